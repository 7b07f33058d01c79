// SPDX-License-Identifier: GPL-3.0-or-later

// What the structure check says of things that are no electronic files, and of files that change under its hands.

#include "core/basic/run_time_error.h"
#include "core/basic/safe_file.h"
#include "tests/files/check_fixture.h"

#include <QDir>

#include <sys/stat.h>

namespace zrv {
namespace {

class HostileFiles : public StructureCheckTest {
protected:
    void expectFailure(qint32 number, const QString &path)
    {
        check(FileKind::Wh, path);
        EXPECT_EQ(outcome.end, CheckEnd::Failed);
        EXPECT_EQ(outcome.failure, number);
        EXPECT_TRUE(outcome.description.contains(path)) << outcome.description.toStdString();
        EXPECT_TRUE(closingBox(FileKind::Wh, outcome)->text.contains(QString::number(number) + u" < "_s));
    }

    QString path(const QString &name) const { return m_folder.filePath(name); }
};

TEST_F(HostileFiles, AFolderIsNoFile)
{
    ASSERT_TRUE(QDir().mkpath(path(u"WH138902.TXT"_s)));
    expectFailure(error::PathFileAccess, path(u"WH138902.TXT"_s));
    EXPECT_TRUE(closingBox(FileKind::Wh, outcome)->text.startsWith(u"فايل مورد نظر يافت نشد\r75 < "_s));
}

TEST_F(HostileFiles, APipeIsRefusedAndNotWaitedFor)
{
    ASSERT_EQ(::mkfifo(QFile::encodeName(path(u"WH138902.TXT"_s)).constData(), 0600), 0);
    expectFailure(error::PathFileAccess, path(u"WH138902.TXT"_s));
}

TEST_F(HostileFiles, AFileAsAFolderIsAPathThatIsMissing)
{
    write("x", u"WH"_s);
    expectFailure(error::PathNotFound, path(u"WH/WH138902.TXT"_s));
}

TEST_F(HostileFiles, ALineThatNeverEndsIsRefusedBeforeItFillsTheMemory)
{
    QFile file(path(u"WH138902.TXT"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly)
                && file.resize(qint64(1) << 30)); // a hole: it takes no room on the disk
    file.close();
    expectFailure(error::OutOfMemory, path(u"WH138902.TXT"_s));
}

TEST_F(HostileFiles, CommasAloneAreEmptyFieldsAndSurplusOnes)
{
    // 15 payer fields must not be empty; the control field may hold anything that is Base64, even nothing.
    EXPECT_EQ(checkWh({QString(2'000'000, u',')}).errors, 1 + 15 + (2'000'001 - 22) + 1);
}

TEST_F(HostileFiles, MillionsOfCommasAreCounted)
{
    options.onlyErrors = true;
    EXPECT_EQ(checkWk({summaryLine(), QString(3'000'000, u',')}).errors, 1 + 2'999'976);
    const qint64 last = report->lineCount() - 2;
    EXPECT_EQ(report->nextError(last - 1), last);
    EXPECT_TRUE(report->lines(last, 1).contains(u"خطاي شماره 2999977 : "_s));
}

TEST_F(HostileFiles, OddBytesAreToldOf)
{
    const auto oddities = [this](const QByteArray &bytes) {
        return check(FileKind::Wk, write(bytes, u"WK138902.TXT"_s)).oddities;
    };
    const FileOddities none = oddities(utf16File({summaryLine()}));
    EXPECT_FALSE(none.hasNoMark || none.isUtf8 || none.isBigEndian || none.hasOddLength);
    EXPECT_TRUE(oddities(utf16File({summaryLine()}) + "x").hasOddLength);
    EXPECT_EQ(outcome.errors, 0);
    EXPECT_TRUE(oddities(utf16File({summaryLine()}).mid(2)).hasNoMark);
    EXPECT_EQ(outcome.errors, 0);
    EXPECT_TRUE(oddities("\xEF\xBB\xBF" + QString(summaryLine()).toUtf8()).isUtf8);
    EXPECT_TRUE(oddities(QByteArray("\xFE\xFF\0a", 4)).isBigEndian);
    EXPECT_TRUE(oddities("a").hasOddLength);
    EXPECT_EQ(outcome.end, CheckEnd::Empty);
}

TEST_F(HostileFiles, AFileThatShrinksWhileItIsReadFails)
{
    const QString file = write(utf16File(QStringList(20'000, summaryLine())), u"WK138902.TXT"_s);
    CheckReport shrinking(FileKind::Wk, file, options, StandingClock);
    const CheckOutcome ended =
        shrinking.run([&](const CheckPlace &place) { return place.state.records != 10 || QFile::resize(file, 4000); });
    EXPECT_EQ(ended.end, CheckEnd::Failed);
    EXPECT_EQ(ended.failure, error::DeviceIo);
    EXPECT_THROW((void)shrinking.lines(9, 1), RunTimeError);
}

TEST_F(HostileFiles, TheReportOfAFileThatWasChangedIsNotMadeUp)
{
    checkWk({summaryLine()});
    EXPECT_NO_THROW((void)report->lines(9, 1));
    QFile file(path(u"WK138902.TXT"_s));
    ASSERT_TRUE(file.open(QIODevice::Append) && file.write("xx") == 2);
    file.close();
    EXPECT_THROW((void)report->lines(9, 1), RunTimeError);
    EXPECT_THROW((void)report->nextError(0), RunTimeError);
}

TEST_F(HostileFiles, ARunCanBeCancelledAndKeepsWhatItHas)
{
    const QString file = write(utf16File(QStringList(50, summaryLine())), u"WK138902.TXT"_s);
    CheckReport cancelled(FileKind::Wk, file, options, StandingClock);
    const CheckOutcome ended = cancelled.run([](const CheckPlace &place) { return place.state.records < 3; });
    EXPECT_EQ(ended.end, CheckEnd::Cancelled);
    EXPECT_EQ(ended.records, 3);
    EXPECT_FALSE(closingBox(FileKind::Wk, ended));
    TextSink sink;
    EXPECT_TRUE(cancelled.write(sink));
    EXPECT_EQ(sink.text.size(), cancelled.length());
    EXPECT_EQ(sink.text.count(u"-- در حال کنترل خط شماره"_s), 3);
}

TEST_F(HostileFiles, AnyPartOfALongReportIsThatOfTheWholeOne)
{
    QStringList lines(140'000, u"x"_s); // more than two marks fit for each, so that three of four are left out
    lines[0] = summaryLine();
    lines[70'001] = lines[99'999] = QStringList(25, u"x"_s).join(u',');
    checkWk(lines);
    ASSERT_EQ(outcome.errors, 139'997);
    TextSink sink;
    ASSERT_TRUE(report->write(sink));
    ASSERT_EQ(sink.text.size(), report->length());
    const QStringList whole = sink.text.split(u"\r\n"_s);
    ASSERT_EQ(whole.size() - 1, report->lineCount());
    for (qint64 line = 0; line < report->lineCount(); line += 9'973)
        ASSERT_EQ(report->lines(line, 3), whole.mid(line, 3).join(u"\r\n"_s)) << line;
    const qint64 behind = whole.indexOf(u" -- در حال کنترل خط شماره : 100000 از فايل خلاصه ليست حقوق ... "_s);
    EXPECT_EQ(report->nextError(behind - 1), behind + 5) << "line 100000 has 25 fields and no error";
}

TEST_F(HostileFiles, TheLogHoldsTheReportAndALineEnd)
{
    checkWh({payerLine(), payeeLine().with(2, u"12"_s)});
    {
        SafeFile file(path(u"log"_s));
        ReportLog log(file);
        report->write(log);
        log.finish();
        file.commit();
    }
    QFile file(path(u"log"_s));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    TextSink sink;
    report->write(sink);
    const QString logged = QChar(QChar::ByteOrderMark) + sink.text + u"\r\n"_s;
    EXPECT_EQ(file.readAll(), QByteArray(reinterpret_cast<const char *>(logged.utf16()), logged.size() * 2));
}

} // namespace
} // namespace zrv
