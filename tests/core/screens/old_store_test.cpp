// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/old_store.h"
#include "core/store/store_error.h"
#include "tests/core/screens/quiet_platform.h"
#include "tests/print_text.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace zrv {
namespace {

using namespace Qt::Literals::StringLiterals;

/// A platform whose tool answers as it is told and notes what it was asked.
class OldStoreTest : public testing::Test, public QuietPlatform {
protected:
    QString programFolder() override { return m_folder.path(); }
    Answer messageBox(int style, const QString &, const QString &text) override
    {
        boxes.append(QString::number(style) + u' ' + text);
        return answer;
    }
    ToolEnd runTool(const QString &tool, const QStringList &words) override
    {
        calls.append(tool + u' ' + words.join(u' '));
        return calls.size() > 1 ? second : first;
    }

    void writeStore(const QByteArray &bytes)
    {
        QFile file(path());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
    [[nodiscard]] QString path() const { return m_folder.filePath(u"DBZorvan.mdb"_s); }
    [[nodiscard]] QString failure()
    {
        try {
            takeOverOldStore(*this);
        } catch (const RunTimeError &error) {
            EXPECT_EQ(error.number(), store_error::General);
            return error.description();
        }
        return {};
    }

    const QByteArray m_old = QByteArray("\0\1\0\0Standard Jet DB\0", 20) + QByteArray(100, '\1');
    ToolEnd first;
    ToolEnd second;
    Answer answer = Answer::No;
    QStringList calls;
    QStringList boxes;

private:
    QTemporaryDir m_folder;
};

TEST_F(OldStoreTest, NothingIsDoneWhereNoOldStoreLies)
{
    EXPECT_EQ(failure(), QString());
    writeStore({});
    EXPECT_EQ(failure(), QString());
    writeStore(QByteArray("SQLite format 3\0", 16) + QByteArray(4'080, '\0'));
    EXPECT_EQ(failure(), QString());
    EXPECT_EQ(calls, QStringList());
    EXPECT_EQ(boxes, QStringList());
}

TEST_F(OldStoreTest, APipeUnderTheStoresNameIsNotWaitedFor)
{
    ASSERT_EQ(::mkfifo(QFile::encodeName(path()).constData(), 0600), 0);
    EXPECT_EQ(failure(), QString());
    EXPECT_EQ(calls, QStringList());
}

TEST_F(OldStoreTest, AToolThatIsMissingOrNeverEndsIsTold)
{
    writeStore(m_old);
    EXPECT_EQ(failure(), u"برنامه zrvstore در پوشه برنامه پيدا نشد و يا کار آن به پايان نرسيد"_s);
    EXPECT_EQ(calls, QStringList{u"zrvstore takeover "_s + path() + u' ' + programFolder()});
    EXPECT_EQ(boxes, QStringList());
}

TEST_F(OldStoreTest, AReasonThatNobodyKnowsIsDamage)
{
    writeStore(m_old);
    first = {2, {}, u"zrvstore: something [odd]\n"_s};
    EXPECT_EQ(failure(), u"فايل بانک اطلاعاتي نسخه قديمي آسيب ديده است . فايل پشتيبان را جايگزين نماييد"
                         "\rzrvstore: something [odd]"_s);
}

TEST_F(OldStoreTest, TheQuestionComesForAnOldCodePageAlone)
{
    writeStore(m_old);
    first = {2, {}, u"zrvstore: x [old-code-page]\n"_s};
    EXPECT_NE(failure(), QString());
    EXPECT_EQ(calls.size(), 1);
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_TRUE(boxes[0].startsWith(u"36 "));

    calls.clear();
    answer = Answer::Yes;
    second = {0, u"ZRVtbKarkonan: 7 rows\nthe old file is kept as JetDBZorvan.mdb\n"_s, {}};
    EXPECT_EQ(failure(), QString());
    EXPECT_TRUE(calls.last().endsWith(u" --as-stored"));
    EXPECT_TRUE(boxes.last().contains(u"JetDBZorvan.mdb"));
    EXPECT_TRUE(boxes.last().contains(u"دريافت کنندگان حقوق : 7\r\n"_s));
}

TEST_F(OldStoreTest, DoubtsAreKeptBesideTheOldFile)
{
    writeStore(m_old);
    first = {1, u"a: doubt [form]\nthe old file is kept as Jet3DBZorvan.mdb\n"_s, {}};
    EXPECT_EQ(failure(), QString());
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_TRUE(boxes[0].contains(u"Jet3DBZorvan.txt"));
    QFile report(programFolder() + u"/Jet3DBZorvan.txt"_s);
    ASSERT_TRUE(report.open(QIODevice::ReadOnly));
    EXPECT_EQ(QString::fromUtf8(report.readAll()), first.output);
}

TEST_F(OldStoreTest, DoubtsThatCanNotBeKeptAreToldWithTheRest)
{
    writeStore(m_old);
    first = {1, u"a: doubt [form]\nthe old file is kept as JetDBZorvan.mdb\n"_s, {}};
    // A folder in its place: no file can take that name.
    ASSERT_TRUE(QDir(programFolder()).mkdir(u"JetDBZorvan.txt"_s));
    EXPECT_EQ(failure(), QString());
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_TRUE(boxes[0].contains(u"فايل اصلي با نام JetDBZorvan.mdb"_s));
    EXPECT_TRUE(boxes[0].contains(u"فهرست آنها ذخيره نگرديد"_s));
}

} // namespace
} // namespace zrv
