// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/record_lines.h"
#include "tests/print_text.h"

#include <QFile>
#include <QTemporaryDir>

#include <array>
#include <gtest/gtest.h>
#include <random>

namespace zrv {
namespace {

using namespace Qt::Literals::StringLiterals;

class RecordLinesTest : public testing::Test {
protected:
    /// What stands in the file behind the mark once everything is written.
    QString written()
    {
        m_lines.flush();
        m_file.commit();
        QFile file(m_path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        const QByteArray bytes = file.readAll();
        EXPECT_TRUE(bytes.startsWith("\xFF\xFE"));
        return QString(reinterpret_cast<const QChar *>(bytes.constData()) + 1, bytes.size() / 2 - 1);
    }

    QString trimmed(const QString &value, int width)
    {
        m_lines.addTrimmed(value.toStdString(), width);
        return written();
    }

    QString padded(const QString &value, int width)
    {
        m_lines.addPadded(value.toStdString(), width);
        return written();
    }

    const QTemporaryDir m_folder;
    const QString m_path = m_folder.filePath(u"file"_s);
    SafeFile m_file{m_path};
    RecordLines m_lines{m_file};
};

TEST_F(RecordLinesTest, FieldsStandBetweenCommasAndLinesEndInCrLf)
{
    m_lines.addTrimmed("a", 5);
    m_lines.addTrimmed("", 5);
    m_lines.addTrimmed("c", 5);
    m_lines.endLine();
    m_lines.addTrimmed("", 5);
    m_lines.addTrimmed("d", 5);
    m_lines.endLine();
    EXPECT_EQ(written(), u"a,,c\r\n,d\r\n"_s);
}

TEST_F(RecordLinesTest, ValueIsCutFirstAndTrimmedThen)
{
    EXPECT_EQ(trimmed(u"   abcdef"_s, 5), u"ab"_s);
}

TEST_F(RecordLinesTest, BlanksAreTrimmedAtBothEndsAndKeptInside)
{
    EXPECT_EQ(trimmed(u"  a  b "_s, 10), u"a  b"_s);
}

TEST_F(RecordLinesTest, BlanksAloneGiveAnEmptyField)
{
    EXPECT_EQ(trimmed(u"     "_s, 3), QString());
}

TEST_F(RecordLinesTest, TabsAndNoBreakBlanksAreNoBlanks)
{
    EXPECT_EQ(trimmed(u"\t\u00A0a\u00A0\t"_s, 10), u"\t\u00A0a\u00A0\t"_s);
}

TEST_F(RecordLinesTest, LineEndsInsideAValueVanish)
{
    EXPECT_EQ(trimmed(u"a\r\nb\rc\nd"_s, 50), u"abcd"_s);
}

TEST_F(RecordLinesTest, LineEndsCountInTheWidthAndShieldBlanksFromTrimming)
{
    EXPECT_EQ(trimmed(u"ab \r\ncdef"_s, 5), u"ab "_s);
}

TEST_F(RecordLinesTest, WidthCountsLettersAndNotBytes)
{
    EXPECT_EQ(trimmed(u"شرکت نمونه"_s, 6), u"شرکت ن"_s);
}

TEST_F(RecordLinesTest, LettersOfEitherYehAndKafStandAsTheyCame)
{
    EXPECT_EQ(trimmed(u"\u064A\u06CC\u0643\u06A9\u200C"_s, 20), u"\u064A\u06CC\u0643\u06A9\u200C"_s);
}

TEST_F(RecordLinesTest, LetterOfTwoUnitsCutInHalfIsLeftOutWhole)
{
    EXPECT_EQ(trimmed(u"ab\U00020000"_s, 3), u"ab"_s);
}

TEST_F(RecordLinesTest, LetterOfTwoUnitsThatFitsStays)
{
    EXPECT_EQ(trimmed(u"ab\U00020000c"_s, 4), u"ab\U00020000"_s);
}

TEST_F(RecordLinesTest, MarkInsideAValueIsALetterOfIt)
{
    EXPECT_EQ(trimmed(u"\uFEFFش"_s, 5), u"\uFEFFش"_s);
}

TEST_F(RecordLinesTest, WithoutAWidthTheValueIsWrittenWhole)
{
    EXPECT_EQ(trimmed(QString(300, u'x'), 0), QString(300, u'x'));
}

TEST_F(RecordLinesTest, PaddedValueIsFilledWithBlanks)
{
    EXPECT_EQ(padded(u"1234567890"_s, 12), u"1234567890  "_s);
}

TEST_F(RecordLinesTest, PaddedValueIsCutToo)
{
    EXPECT_EQ(padded(u"12345"_s, 4), u"1234"_s);
}

TEST_F(RecordLinesTest, PaddedValueKeepsItsOwnBlanks)
{
    EXPECT_EQ(padded(u" 1"_s, 4), u" 1  "_s);
}

TEST_F(RecordLinesTest, MissingPaddedValueIsAllBlanks)
{
    EXPECT_EQ(padded(QString(), 2), u"  "_s);
}

/// The same rules in the plainest words.
QString expectedField(const QString &value, int width)
{
    QString field = value.left(width);
    if (!field.isEmpty() && field.back().isHighSurrogate() && field.size() < value.size())
        field.chop(1);
    while (field.startsWith(u' '))
        field.remove(0, 1);
    while (field.endsWith(u' '))
        field.chop(1);
    return field.remove(u'\r').remove(u'\n');
}

TEST_F(RecordLinesTest, ManyBlocksOfAnyValuesAreAsThePlainestWritingOfThem)
{
    constexpr std::array<QStringView, 10> Pieces = {u" ",  u"7",  u"1390",       u"ش", u"ي",
                                                    u"\r", u"\n", u"\U00020000", u"€", u"A"};
    std::minstd_rand random(1389);
    QString expected;
    for (int line = 0; line < 5000; ++line) {
        for (int field = 0; field < 12; ++field) {
            QString value;
            for (auto pieces = random() % 9; pieces > 0; --pieces)
                value += Pieces[random() % Pieces.size()];
            const int width = 1 + static_cast<int>(random() % 12);
            m_lines.addTrimmed(value.toStdString(), width);
            expected += (field ? u","_s : QString()) + expectedField(value, width);
        }
        m_lines.endLine();
        expected += u"\r\n"_s;
    }
    EXPECT_GT(expected.size(), 3 * 64 * 1024);
    EXPECT_TRUE(written() == expected);
}

} // namespace
} // namespace zrv
