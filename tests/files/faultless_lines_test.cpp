// SPDX-License-Identifier: GPL-3.0-or-later

// Whether passing over faultless lines, or sharing a file among threads, ever changes what is found, or how long the
// report is measured to be: files damaged at
// random, checked field by field and with every kind of instructions, several sizes of blocks and numbers of threads.

#include "tests/files/check_fixture.h"

#include <random>

namespace zrv {
namespace {

/// Every finding in words, a line each.
class FindingList : public CheckEvents {
public:
    FindingList(bool errorsAlone)
        : m_errorsAlone(errorsAlone)
    {
    }
    bool wantsErrorsAlone() const override { return m_errorsAlone; }
    void finding(const Finding &finding) override
    {
        text += QString::number(finding.number) + u' ' + QString::number(finding.line) + u' '
                + QString::number(finding.field) + u' ' + QString::number(finding.offset) + u' '
                + findingWords(whRules(), finding, CheckedVersion) + u'\n';
    }
    void lineBegins(qint64) override { ++linesLookedAt; }

    QString text;
    int linesLookedAt = 0;

private:
    bool m_errorsAlone;
};

class FaultlessLinesTest : public StructureCheckTest {
protected:
    /// What is found, and how the run ended.
    QString found(const QString &path, bool errorsAlone)
    {
        FindingList list(errorsAlone);
        const CheckOutcome ended = StructureCheck(whRules(), path, options).run(list);
        linesLookedAt = list.linesLookedAt;
        return list.text + QString::number(int(ended.end)) + u' ' + QString::number(ended.records) + u' '
               + QString::number(ended.errors) + u' ' + QString::number(ended.line) + u' '
               + QString::number(ended.field);
    }

    /// The length of a report, and its lines.
    using Size = std::pair<qint64, qint64>;
    Size measuredReport(const QString &path) const
    {
        CheckReport measured(FileKind::Wh, path, options, StandingClock);
        (void)measured.run([](const CheckPlace &) { return true; });
        return {measured.length(), measured.lineCount()};
    }
    Size writtenReport(const QString &path) const
    {
        TextSink sink;
        ReportWriter writer(whRules(), options, StandingClock, sink);
        (void)StructureCheck(whRules(), path, options).run(writer);
        return {sink.text.size(), sink.text.count(u"\r\n"_s) + (sink.text.endsWith(u"\r\n"_s) ? 0 : 1)};
    }

    static std::vector<Instructions> allInstructions()
    {
        std::vector<Instructions> found;
        for (const Instructions one : {Instructions::Plain, Instructions::Sse2, Instructions::Avx2}) {
            if (hasInstructions(one))
                found.push_back(one);
        }
        return found;
    }

    int linesLookedAt = 0;
};

TEST_F(FaultlessLinesTest, AllInstructionsSeeTheSameEndsOfFields)
{
    std::mt19937 dice(1);
    constexpr char16_t Letters[] = u"0190,\r\n /:\0aعی\u0130\u2C2C\u0A0D\xD800\uFFFF\uFF0C";
    const auto ends = std::make_unique<FieldEnds>();
    for (int round = 0; round < 300; ++round) {
        std::array<char16_t, 40 * FieldEnds::UnitsPerStep> units{};
        // In every other round most are digits, and some fields are longer than a step.
        for (char16_t &unit : units)
            unit = Letters[dice() % (round % 2 == 0 || dice() % 90 == 0 ? std::size(Letters) - 1 : 4)];
        for (const Instructions one : allInstructions()) {
            endsFinder(one)(units.data(), 40, *ends);
            std::size_t end = 0;
            bool digits = true;
            bool noDigits = true;
            for (std::size_t i = 0; i < units.size(); ++i) {
                const bool isDigit = units[i] >= u'0' && units[i] <= u'9';
                const bool isOfLine = units[i] == u'\r' || units[i] == u'\n';
                if (units[i] != u',' && !isOfLine) {
                    (isDigit ? noDigits : digits) = false;
                    continue;
                }
                ASSERT_LT(end, ends->count);
                ASSERT_EQ(ends->places[++end], i);
                ASSERT_EQ(FieldEnds::bitsFrom(ends->digits, end - 1) & 1U, digits ? 1U : 0U) << i;
                ASSERT_EQ(FieldEnds::bitsFrom(ends->noDigits, end - 1) & 1U, noDigits ? 1U : 0U) << i;
                ASSERT_EQ(FieldEnds::bitsFrom(ends->ofLine, end - 1) & 1U, isOfLine ? 1U : 0U) << i;
                digits = noDigits = true;
            }
            ASSERT_EQ(end, ends->count);
        }
    }
}

TEST_F(FaultlessLinesTest, GoodLinesAreMostlyPassedOver)
{
    QStringList lines(5000, payeeLine());
    lines[0] = payerLine();
    for (int i = 1; i + 1 < 5000; i += 3) {
        lines[i] = foreignPayeeLine();
        lines[i + 1] = payeeLine().with(14, u"0"_s).with(15, u"بيمه ايران"_s).with(6, u""_s).with(20, u""_s);
    }
    const QString path = write(utf16File(lines), u"WH138902.TXT"_s);
    for (const Instructions one : allInstructions()) {
        options.instructions = one;
        EXPECT_EQ(found(path, true), u"0 5000 0 0 0"_s);
        EXPECT_LT(linesLookedAt, 50);
    }
}

TEST_F(FaultlessLinesTest, AShareWithMoreErrorsThanAreKeptIsCheckedWhereItsTurnComes)
{
    QStringList lines(3000, payeeLine().and_(u"1"_s).and_(QString(300, u'x')));
    lines[0] = payerLine();
    lines[1500] = QString(20'000, u',');
    const QString path = write(utf16File(lines), u"WH138902.TXT"_s);
    const QString expected = found(path, false);
    options.threads = 3;
    EXPECT_EQ(found(path, true), expected);
    options.shareBytes = 100'000;
    EXPECT_EQ(found(path, true), expected);
}

/// One damage at a random place; most leave a line with an error, some don't.
void damage(QString &text, std::mt19937 &dice)
{
    static const QStringList Pieces = {u","_s,
                                       u",,"_s,
                                       u"\r"_s,
                                       u"\n"_s,
                                       u"\r\n"_s,
                                       u"\r\n\r\n"_s,
                                       u"1"_s,
                                       u"0"_s,
                                       u"a"_s,
                                       u" "_s,
                                       u"."_s,
                                       u"-"_s,
                                       u"ع"_s,
                                       u"١"_s,
                                       u"\u2C2C"_s,
                                       u"\u0A0D"_s,
                                       u"\u0130"_s,
                                       QString(QChar(0xD800)),
                                       QString(QChar(0)),
                                       u"1234567890123456789012345678901234567890"_s};
    const auto at = qsizetype(dice() % std::size_t(text.size() - 1)) + 1;
    switch (dice() % 5) {
    case 0:
        text.remove(at, 1 + qsizetype(dice() % 3));
        break;
    case 1:
        text.replace(at, 1, Pieces[qsizetype(dice() % std::size_t(Pieces.size()))]);
        break;
    case 2:
        // A whole field goes.
        if (const qsizetype comma = text.indexOf(u',', at); comma > 0) {
            const qsizetype end = text.indexOf(u',', comma + 1);
            text.remove(comma + 1, std::max<qsizetype>(0, end - comma - 1));
        }
        break;
    default:
        text.insert(at, Pieces[qsizetype(dice() % std::size_t(Pieces.size()))]);
    }
}

TEST_F(FaultlessLinesTest, DamagedFilesHaveTheSameErrorsHoweverTheyAreRead)
{
    std::mt19937 dice(7);
    const QStringList good = {payeeLine(),
                              foreignPayeeLine(),
                              payeeLine().with(14, u"0"_s).with(15, u"بيمه"_s),
                              payeeLine().with(6, u""_s),
                              payeeLine().with(1, u"0012345679"_s),
                              payeeLine().with(16, u"0"_s)};
    for (int round = 0; round < 150; ++round) {
        QString text = payerLine();
        for (int line = 0; line < 60; ++line)
            text += u"\r\n"_s + good[qsizetype(dice() % (round % 3 == 0 ? 6 : 4))];
        text += u"\r\n"_s;
        for (int i = 0; i < round % 12; ++i)
            damage(text, dice);
        text.prepend(QChar(QChar::ByteOrderMark));
        const QString path = write(
            QByteArray(reinterpret_cast<const char *>(text.utf16()), text.size() * 2 - round % 2), u"WH138902.TXT"_s);
        options = {.programVersion = CheckedVersion};
        const QString expected = found(path, false);
        const Size written = writtenReport(path);
        for (const Instructions one : allInstructions()) {
            options.instructions = one;
            for (const std::size_t block : {2, 100, 1001, 131072}) {
                options.blockUnits = block;
                options.threads = 1;
                ASSERT_EQ(found(path, true), expected) << "round " << round << ", block " << block;
                options.threads = 2 + unsigned(dice() % 3);
                options.shareBytes = std::array{200, 1000, 5000, 20000}[dice() % 4];
                ASSERT_EQ(found(path, true), expected) << "round " << round << ", share " << options.shareBytes;
                ASSERT_EQ(measuredReport(path), written) << "round " << round << ", share " << options.shareBytes;
            }
        }
    }
}

} // namespace
} // namespace zrv
