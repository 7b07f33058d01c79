// SPDX-License-Identifier: GPL-3.0-or-later

// A report that is only measured while its file is checked, and made where it is looked at, is that of a check which
// writes every word.

#include "core/mdlEncriptDecript.h"
#include "tests/files/check_fixture.h"

#include <random>

namespace zrv {
namespace {

class CheckReportTest : public StructureCheckTest {
protected:
    /// Holds the report of these lines against the one that was written.
    void compare(const QStringList &fileLines)
    {
        checkWh(fileLines);
        TextSink whole;
        ReportWriter writer(whRules(), options, StandingClock, whole);
        const CheckOutcome told = StructureCheck(whRules(), m_folder.filePath(u"WH138902.TXT"_s), options).run(writer);
        EXPECT_EQ(outcome.errors, told.errors);
        EXPECT_EQ(outcome.records, told.records);
        ASSERT_EQ(report->length(), whole.text.size());
        QStringList lines = whole.text.split(u"\r\n"_s);
        lines.removeLast();
        ASSERT_EQ(report->lineCount(), lines.size());
        for (qint64 line = 0; line < lines.size(); line += 1 + line % 97)
            ASSERT_EQ(report->lines(line, 5), lines.mid(line, 5).join(u"\r\n"_s)) << line;
        qint64 found = -1;
        for (qint64 line = 0; line < lines.size(); ++line) {
            if (!lines[line].startsWith(u"  ÷÷÷÷÷>"_s))
                continue;
            ASSERT_EQ(report->nextError(found), line);
            found = line;
        }
        EXPECT_EQ(report->nextError(found), -1);
    }

    TestLine anyPayee()
    {
        TestLine line = random(4) == 0 ? foreignPayeeLine() : payeeLine();
        if (random(3) == 0)
            line = line.with(14, u"0"_s).with(15, u"تامين"_s);
        line = line.with(3, QString(1 + random(50), u'ن'));
        if (random(2) == 0)
            line = line.with(6, u""_s);
        for (int field = 17; field <= 34; ++field)
            if (random(5) == 0)
                line = line.with(field, random(2) == 0 ? u""_s : QString(1 + random(10), u'7'));
        return line;
    }
    TestLine anyBadPayee()
    {
        const TestLine line = anyPayee();
        switch (random(4)) {
        case 0:
            return line.with(2 + random(33), u"1x"_s);
        case 1:
            return line.cutTo(1 + random(33));
        case 2:
            return line.and_(u"more"_s).and_(u""_s);
        default:
            return line.with(1 + random(34), u""_s);
        }
    }
    int random(int end) { return static_cast<int>(m_random() % static_cast<unsigned>(end)); }

private:
    std::mt19937 m_random{7};
};

TEST_F(CheckReportTest, FaultlessLinesOfEveryFormAreMeasuredAsTheyAreWritten)
{
    QStringList lines{payerLine()};
    for (int line = 0; line < 1500; ++line) // numbers of one digit to four
        lines += anyPayee();
    for (const bool onlyErrors : {false, true}) {
        options.onlyErrors = onlyErrors;
        compare(lines);
        EXPECT_EQ(outcome.errors, 0);
    }
}

TEST_F(CheckReportTest, BadLinesAmongGoodOnesAreMeasuredAsTheyAreWritten)
{
    for (const int goodOnes : {0, 1, 50}) {
        QStringList lines{legalPayerLine()};
        for (int line = 0; line < 400; ++line)
            lines += random(1 + goodOnes) == 0 ? anyBadPayee() : anyPayee();
        compare(lines);
        EXPECT_GT(outcome.errors, 0);
    }
}

TEST_F(CheckReportTest, LinesAcrossTheReadersBlocksAreMeasuredAsTheyAreWritten)
{
    QStringList lines{payerLine()};
    for (int line = 0; line < 300; ++line)
        lines += anyPayee();
    for (const std::size_t units : {2, 100, 1000, 5000}) {
        options.blockUnits = units;
        compare(lines);
    }
}

TEST_F(CheckReportTest, ABlankLineEndsTheReportBehindTheGoodLinesBefore)
{
    QStringList lines{payerLine()};
    for (int line = 0; line < 100; ++line)
        lines += payeeLine();
    compare(lines + QStringList{u""_s, u"x"_s});
    EXPECT_EQ(outcome.records, 101);
    compare({payerLine(), u""_s});
    EXPECT_EQ(outcome.errors, 1);
}

TEST_F(CheckReportTest, AVersionWithLineEndsOfItsOwnIsMeasuredAsItIsWritten)
{
    const TestLine payer = payerLine().with(22, EncodeBase64(u"1\r\n\r\n\r\n2"_s));
    compare({payer, payeeLine(), payeeLine().with(2, u"1"_s)});
    EXPECT_EQ(outcome.errors, 2);
    const QStringList lines = text().split(u"\r\n"_s);
    const qint64 second = report->nextError(report->nextError(-1));
    for (qsizetype line = 0; line < lines.size() - 1; line += 9) {
        // A report of which nothing was looked at yet counts the lines before.
        check(FileKind::Wh, m_folder.filePath(u"WH138902.TXT"_s));
        EXPECT_EQ(report->lines(line, 1), lines[line]) << line;
        check(FileKind::Wh, m_folder.filePath(u"WH138902.TXT"_s));
        EXPECT_EQ(report->nextError(std::min<qint64>(line + 5, second - 1)), second);
    }
}

TEST_F(CheckReportTest, ARunThatIsCancelledBehindGoodLinesKeepsTheirReport)
{
    QStringList lines{payerLine()};
    for (int line = 0; line < 100; ++line)
        lines += line == 70 ? payeeLine().with(2, u"1"_s) : payeeLine();
    const QString path = write(utf16File(lines), u"WH138902.TXT"_s);
    CheckReport cancelled(FileKind::Wh, path, options, StandingClock);
    const CheckOutcome ended = cancelled.run([](const CheckPlace &place) { return place.state.records < 71; });
    EXPECT_EQ(ended.end, CheckEnd::Cancelled);
    EXPECT_EQ(ended.records, 71);
    TextSink sink;
    EXPECT_TRUE(cancelled.write(sink));
    EXPECT_EQ(sink.text.size(), cancelled.length());
    EXPECT_EQ(sink.text.count(u"-- در حال کنترل خط شماره"_s), 71);
}

/// Holds what is left of the report of a run that was cancelled before line `line` (from 0) against the lines before.
void expectEndsBefore(CheckReport &report, const CheckOutcome &ended, qint64 line)
{
    EXPECT_EQ(ended.end, CheckEnd::Cancelled);
    EXPECT_EQ(ended.records, line);
    TextSink sink;
    EXPECT_TRUE(report.write(sink));
    EXPECT_EQ(sink.text.size(), report.length());
    EXPECT_EQ(sink.text.count(u"\r\n"_s), report.lineCount());
    EXPECT_EQ(sink.text.count(u"-- در حال کنترل خط شماره"_s), line);
    EXPECT_EQ(sink.text.count(u"  ÷÷÷÷÷>"_s), ended.errors);
}

/// Checks the file and gives up line `line` (from 0) at one of the questions in it; the first stands before the line.
void expectGivenUp(FileKind kind, const QString &path, const CheckOptions &options, qint64 line, int question)
{
    int asked = 0;
    CheckReport report(kind, path, options, StandingClock);
    const CheckOutcome ended =
        report.run([&](const CheckPlace &place) { return place.state.records != line || ++asked < question; });
    EXPECT_EQ(asked, question);
    EXPECT_EQ(ended.errors, 0);
    expectEndsBefore(report, ended, line);
}

/// How often a run asks in that line.
int questionsIn(FileKind kind, const QString &path, const CheckOptions &options, qint64 line)
{
    int asked = 0;
    CheckReport report(kind, path, options, StandingClock);
    const CheckOutcome ended = report.run([&](const CheckPlace &place) {
        asked += place.state.records == line;
        return true;
    });
    EXPECT_EQ(ended.end, CheckEnd::Finished);
    return asked;
}

TEST_F(CheckReportTest, ALineOfVeryManyFieldsCanBeGivenUpAndTheReportEndsBeforeIt)
{
    const QString many(200'000, u',');
    const QString salaries =
        write(utf16File({payerLine(), payeeLine(), QString(payeeLine()) + many, payeeLine()}), u"WH138902.TXT"_s);
    expectGivenUp(FileKind::Wh, salaries, options, 2, 4);
    const QString summaries = write(utf16File({summaryLine(), QString(summaryLine()) + many}), u"WK138902.TXT"_s);
    expectGivenUp(FileKind::Wk, summaries, options, 1, 4);
}

TEST_F(CheckReportTest, ALineOfVeryManyFieldsThatIsMeasuredAlreadyCanBeGivenUpInItsCheckToo)
{
    const QString path =
        write(utf16File({payerLine(), payeeLine(), QString(payeeLine()) + QString(200'000, u','), payeeLine()}),
              u"WH138902.TXT"_s);
    const int questions = questionsIn(FileKind::Wh, path, options, 2);
    ASSERT_GT(questions, 8);
    expectGivenUp(FileKind::Wh, path, options, 2, questions);
}

TEST_F(CheckReportTest, LinesInTheSharesOfSeveralThreadsAreMeasuredAsTheyAreWritten)
{
    for (const int goodOnes : {0, 1, 7, 200}) {
        QStringList lines{legalPayerLine()};
        for (int line = 0; line < 1200; ++line)
            lines += random(1 + goodOnes) == 0 ? anyBadPayee() : anyPayee();
        for (const qint64 share : {1000, 5000, 60'000}) {
            options.threads = 2 + unsigned(random(3));
            options.shareBytes = share;
            compare(lines);
        }
    }
}

TEST_F(CheckReportTest, ARunInSharesEndsBeforeTheLineAtWhichItIsCancelled)
{
    QStringList lines{legalPayerLine()};
    for (int line = 0; line < 400; ++line)
        lines += random(2) == 0 ? payeeLine().with(2, u"1x"_s) : anyPayee();
    const QString path = write(utf16File(lines), u"WH138902.TXT"_s);
    options.threads = 3;
    options.shareBytes = 5000;
    for (const qint64 end : {1, 2, 50, 123, 350}) {
        CheckReport cancelled(FileKind::Wh, path, options, StandingClock);
        qint64 last = 0;
        const CheckOutcome ended = cancelled.run([&](const CheckPlace &place) {
            EXPECT_GE(place.state.records, last) << "in the file's order";
            last = place.state.records;
            return last < end;
        });
        EXPECT_EQ(ended.records, last);
        EXPECT_LT(last, end + 20);
        expectEndsBefore(cancelled, ended, last);
    }
}

} // namespace
} // namespace zrv
