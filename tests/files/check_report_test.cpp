// SPDX-License-Identifier: GPL-3.0-or-later

// A report that is only measured while its file is checked, and made where it is looked at, is that of a check which
// writes every word.

#include "tests/files/check_fixture.h"

#include <random>

namespace zrv {
namespace {

class TextSink : public ReportSink {
public:
    void add(QStringView piece) override { text += piece; }
    void endLine() override { text += u"\r\n"; }

    QString text;
};

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

} // namespace
} // namespace zrv
