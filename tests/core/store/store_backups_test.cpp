// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/store/store_backups.h"
#include "core/store/store_copy.h"
#include "tests/core/store/store_fixture.h"
#include "tests/failing_disk.h"

#include <QDateTime>
#include <QDir>
#include <QFile>

namespace zrv {
namespace {

class StoreBackups : public StoreTest {
protected:
    /// A copy of this moment, after something was written to the store.
    void backUpChanged(const QString &moment)
    {
        execute(u"UPDATE User_Defination SET Name='"_s + moment + u"'"_s);
        backUpStore(path(), moment);
    }

    [[nodiscard]] QString copyPath(const QString &name) const { return backupFolder(path()) + u'/' + name; }

    static QString connectionTo(const QString &file) { return u"Data Source = "_s + file; }

    static QString nameIn(const QString &copy)
    {
        return Recordset(Connection(connectionTo(copy)), u"SELECT Name FROM User_Defination"_s).value(0).toText();
    }

    static void overwrite(const QString &file, qint64 offset, const QByteArray &bytes)
    {
        QFile damaged(file);
        ASSERT_TRUE(damaged.open(QIODevice::ReadWrite));
        ASSERT_TRUE(damaged.seek(offset));
        damaged.write(bytes);
    }
};

TEST_F(StoreBackups, ACopyIsNamedAfterItsMomentAndHoldsTheStore)
{
    backUpChanged(u"13890303-103000"_s);
    EXPECT_EQ(backupNames(path()), QStringList{u"DBZorvan-13890303-103000.mdb"_s});
    EXPECT_EQ(nameIn(copyPath(u"DBZorvan-13890303-103000.mdb"_s)), u"13890303-103000"_s);
}

TEST_F(StoreBackups, AStoreThatNobodyWroteToSinceIsNotCopiedAgain)
{
    backUpChanged(u"13890303-103000"_s);
    backUpStore(path(), u"13890304-103000"_s);
    EXPECT_EQ(backupNames(path()), QStringList{u"DBZorvan-13890303-103000.mdb"_s});
}

TEST_F(StoreBackups, TheNewestThirtyStay)
{
    for (int day = 1; day <= 32; ++day)
        backUpChanged(u"1389"_s + QString::number(300 + day).rightJustified(4, u'0') + u"-103000"_s);
    const QStringList names = backupNames(path());
    EXPECT_EQ(names.size(), MostBackups);
    EXPECT_EQ(names.first(), u"DBZorvan-13890332-103000.mdb"_s);
    EXPECT_EQ(names.last(), u"DBZorvan-13890303-103000.mdb"_s);
}

TEST_F(StoreBackups, ACopyMadeUnderAClockThatWasSetBackStays)
{
    for (int day = 1; day <= 30; ++day)
        backUpChanged(u"13890"_s + QString::number(300 + day) + u"-103000"_s);
    backUpChanged(u"13500101-103000"_s);
    EXPECT_TRUE(backupNames(path()).contains(u"DBZorvan-13500101-103000.mdb"_s));
}

TEST_F(StoreBackups, FilesOfOtherNamesAreLeftAlone)
{
    ASSERT_TRUE(QDir().mkpath(backupFolder(path())));
    for (const QString &name : {u"DBZorvan.mdb"_s, u"DBZorvan-1389.mdb"_s, u"letter.txt"_s}) {
        QFile file(copyPath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    }
    for (int day = 1; day <= 31; ++day)
        backUpChanged(u"13890"_s + QString::number(300 + day) + u"-103000"_s);
    EXPECT_EQ(QDir(backupFolder(path())).entryList(QDir::Files).size(), MostBackups + 3);
}

TEST_F(StoreBackups, ADamagedStoreIsNotCopiedAndNoOldCopyGoes)
{
    for (int day = 1; day <= 30; ++day)
        backUpChanged(u"13890"_s + QString::number(300 + day) + u"-103000"_s);
    const QStringList before = backupNames(path());
    overwrite(path(), 4096 * 2, QByteArray(4096, '\xA5'));
    EXPECT_THROW(backUpStore(path(), u"13890401-103000"_s), RunTimeError);
    EXPECT_EQ(backupNames(path()), before);
    EXPECT_EQ(QDir(backupFolder(path())).entryList(QDir::Files | QDir::Hidden),
              QStringList(before.rbegin(), before.rend()));
}

TEST_F(StoreBackups, AFullDiskLeavesTheOlderCopiesAndNoHalfOne)
{
    for (int day = 1; day <= 30; ++day)
        backUpChanged(u"13890"_s + QString::number(300 + day) + u"-103000"_s);
    const QStringList before = backupNames(path());
    const qint64 whole = QFileInfo(path()).size();
    execute(u"UPDATE User_Defination SET Name='changed'"_s);
    // Where nothing can be written, in the midst of the copy, and a page before its end.
    for (const qint64 room : {qint64(0), whole / 2, whole - 4096}) {
        SCOPED_TRACE(room);
        const FilesNoLargerThan limit(static_cast<rlim_t>(room));
        EXPECT_THROW(backUpStore(path(), u"13890401-103000"_s), RunTimeError);
        EXPECT_EQ(QDir(backupFolder(path())).entryList(QDir::Files | QDir::Hidden),
                  QStringList(before.rbegin(), before.rend()));
    }
    for (const QString &name : before)
        EXPECT_EQ(nameIn(copyPath(name)), name.sliced(9, 15));
    // With room again it is made, and the oldest goes.
    backUpStore(path(), u"13890401-103000"_s);
    EXPECT_EQ(nameIn(copyPath(u"DBZorvan-13890401-103000.mdb"_s)), u"changed"_s);
    EXPECT_EQ(backupNames(path()).size(), MostBackups);
}

TEST_F(StoreBackups, AFileInThePlaceOfTheFolderIsTold)
{
    QFile file(backupFolder(path()));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    EXPECT_THROW(backUpStore(path(), u"13890303-103000"_s), RunTimeError);
}

TEST_F(StoreBackups, TheNewestSoundCopyIsFoundBehindDamagedOnes)
{
    EXPECT_EQ(newestSoundBackup(path()), QString());
    backUpChanged(u"13890303-103000"_s);
    backUpChanged(u"13890304-103000"_s);
    backUpChanged(u"13890305-103000"_s);
    EXPECT_EQ(newestSoundBackup(path()), u"DBZorvan-13890305-103000.mdb"_s);
    overwrite(copyPath(u"DBZorvan-13890305-103000.mdb"_s), 4096 * 2, QByteArray(4096, '\xA5'));
    overwrite(copyPath(u"DBZorvan-13890304-103000.mdb"_s), 0, "no database"_ba);
    EXPECT_EQ(newestSoundBackup(path()), u"DBZorvan-13890303-103000.mdb"_s);
}

} // namespace
} // namespace zrv
