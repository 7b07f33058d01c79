// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/kept_copies.h"
#include "core/store/store_backups.h"
#include "tests/core/screens/quiet_platform.h"
#include "tests/core/store/store_fixture.h"
#include "tests/failing_disk.h"

#include <QDir>
#include <QFile>

namespace zrv {
namespace {

class Boxes : public QuietPlatform {
public:
    Answer messageBox(int style, const QString &, const QString &text) override
    {
        texts.append(text);
        return (style & box::YesNo) != 0 ? answer : Answer::Ok;
    }

    QStringList texts;
    Answer answer = Answer::No;
};

class KeptCopies : public StoreTest {
protected:
    KeptCopies()
    {
        program.StoreConnectionString = connectionString();
        program.UserFullName = u"مدير سيستم"_s;
    }

    /// From now on no copy can be made.
    void takeTheFolder()
    {
        QFile file(backupFolder(path()));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    }

    Boxes platform;
    Program program{platform};
};

TEST_F(KeptCopies, ACopyBeforeAStepBearsTheSolarDateAndTheTime)
{
    EXPECT_TRUE(keepCopyBeforeStep(program));
    EXPECT_EQ(backupNames(path()), QStringList{u"DBZorvan-13890303-103000.mdb"_s});
    EXPECT_EQ(platform.texts, QStringList());
}

TEST_F(KeptCopies, WithoutACopyTheUserSaysWhetherTheStepIsTaken)
{
    takeTheFolder();
    EXPECT_FALSE(keepCopyBeforeStep(program));
    ASSERT_EQ(platform.texts.size(), 1);
    EXPECT_TRUE(platform.texts.first().contains(backupFolder(path())));
    platform.answer = Answer::Yes;
    EXPECT_TRUE(keepCopyBeforeStep(program));
}

TEST_F(KeptCopies, AFullDiskIsToldWithWhatToLookAt)
{
    const QString hint = u"ديسک را بررسي نماييد"_s;
    const FilesNoLargerThan limit(16'384);
    EXPECT_FALSE(keepCopyBeforeStep(program));
    keepCopyAtLeaving(program);
    ASSERT_EQ(platform.texts.size(), 2);
    EXPECT_TRUE(platform.texts[0].contains(hint)) << platform.texts[0].toStdString();
    EXPECT_TRUE(platform.texts[1].contains(hint)) << platform.texts[1].toStdString();
    EXPECT_EQ(QDir(backupFolder(path())).entryList(QDir::Files | QDir::Hidden), QStringList());
}

TEST_F(KeptCopies, BesideACopyOfItsOwnAStepIsNotAskedAgain)
{
    keepCopyBesideAnother(program);
    EXPECT_EQ(backupNames(path()).size(), 1);
    ASSERT_TRUE(QDir(backupFolder(path())).removeRecursively());
    takeTheFolder();
    keepCopyBesideAnother(program);
    EXPECT_EQ(platform.texts, QStringList());
}

TEST_F(KeptCopies, LeavingTellsOfACopyThatCannotBeMade)
{
    takeTheFolder();
    keepCopyAtLeaving(program);
    EXPECT_EQ(platform.texts.size(), 1);
}

TEST_F(KeptCopies, ADamagedStoreIsRefusedWithTheNameOfTheNewestSoundCopy)
{
    EXPECT_NO_THROW(refuseDamagedStore(program));
    backUpStore(path(), u"13890303-103000"_s);
    QFile file(path());
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    file.seek(8192);
    file.write(QByteArray(4096, '\xA5'));
    file.close();
    const auto refusal = [&] {
        try {
            refuseDamagedStore(program);
            return QString();
        } catch (const RunTimeError &failure) {
            return failure.description();
        }
    };
    EXPECT_TRUE(refusal().endsWith(u" : DBZorvan-13890303-103000.mdb"_s)) << refusal().toStdString();
    ASSERT_TRUE(QFile::remove(backupFolder(path()) + u"/DBZorvan-13890303-103000.mdb"_s));
    EXPECT_TRUE(refusal().endsWith(u"Backups وجود ندارد"_s)) << refusal().toStdString();
}

TEST_F(KeptCopies, AMissingStoreIsNoDamage)
{
    ASSERT_TRUE(QFile::remove(path()));
    EXPECT_NO_THROW(refuseDamagedStore(program));
}

TEST_F(KeptCopies, ARunWithoutALoginKeepsNone)
{
    program.UserFullName.clear();
    keepCopyAtLeaving(program);
    EXPECT_EQ(backupNames(path()), QStringList());
}

} // namespace
} // namespace zrv
