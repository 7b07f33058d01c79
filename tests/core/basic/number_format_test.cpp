// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/basic/number_format.h"
#include "tests/print_text.h"

#include <gtest/gtest.h>
#include <limits>

namespace zrv {
namespace {

TEST(Format, GroupsAmountsByThrees)
{
    EXPECT_EQ(Format(0, u"#,##0"), u"0");
    EXPECT_EQ(Format(7, u"#,##0"), u"7");
    EXPECT_EQ(Format(999, u"#,##0"), u"999");
    EXPECT_EQ(Format(1000, u"#,##0"), u"1,000");
    EXPECT_EQ(Format(123456, u"#,##0"), u"123,456");
    EXPECT_EQ(Format(9999999999, u"#,##0"), u"9,999,999,999");
    EXPECT_EQ(Format(-1234567, u"#,##0"), u"-1,234,567");
    EXPECT_EQ(Format(-123, u"#,##0"), u"-123");
}

TEST(Format, ShowsNegativeNumbersInTheSecondPictureWhereThereIsOne)
{
    EXPECT_EQ(Format(-1234567, u"#,##0;(#,##0)"), u"(1,234,567)");
    EXPECT_EQ(Format(u"-12", u"#,##0;(#,##0)"), u"(12)");
    EXPECT_EQ(Format(1234567, u"#,##0;(#,##0)"), u"1,234,567");
    EXPECT_EQ(Format(0, u"#,##0;(#,##0)"), u"0");
    EXPECT_EQ(Format(u"", u"#,##0;(#,##0)"), u"");
}

TEST(Format, HoldsWholeNumbersIn64BitsWithoutExponent)
{
    EXPECT_EQ(Format(std::numeric_limits<qint64>::max(), u"#,##0"), u"9,223,372,036,854,775,807");
    EXPECT_EQ(Format(std::numeric_limits<qint64>::min(), u"0"), u"-9223372036854775808");
    EXPECT_EQ(Format(1E20, u"0"), u"100000000000000000000");
    EXPECT_EQ(Format(u"1E18", u"0"), u"1000000000000000000");
}

TEST(Format, TakesTheSeparatorsOutOfAnAmountText)
{
    EXPECT_EQ(Format(u"1,234,567", u"0"), u"1234567");
    EXPECT_EQ(Format(u"-1,234", u"0"), u"-1234");
    EXPECT_EQ(Format(u" 1,234 ", u"#,##0"), u"1,234");
}

TEST(Format, ReformatsAnAmountTextWhileItIsTyped)
{
    EXPECT_EQ(Format(u"1,2345", u"#,##0"), u"12,345");
    EXPECT_EQ(Format(u"0012", u"#,##0"), u"12");
    EXPECT_EQ(Format(u"1,00", u"#,##0"), u"100");
}

TEST(Format, KeepsDigitTextsLongerThan64Bits)
{
    EXPECT_EQ(Format(u"1234567890123456789012", u"#,##0"), u"1,234,567,890,123,456,789,012");
}

TEST(Format, FillsPlacesWithZeros)
{
    EXPECT_EQ(Format(3, u"00"), u"03");
    EXPECT_EQ(Format(12, u"00"), u"12");
    EXPECT_EQ(Format(123, u"00"), u"123");
    EXPECT_EQ(Format(0, u"0000"), u"0000");
    EXPECT_EQ(Format(1389, u"0000"), u"1389");
    EXPECT_EQ(Format(u"3", u"00"), u"03");
}

TEST(Format, PutsSlashesIntoAStoredDate)
{
    EXPECT_EQ(Format(u"13890303", u"####/##/##"), u"1389/03/03");
    EXPECT_EQ(Format(u"890303", u"####/##/##"), u"89/03/03");
    EXPECT_EQ(Format(u"303", u"####/##/##"), u"/3/03");
}

TEST(Format, LeavesAnEmptyTextEmptyInEveryPicture)
{
    for (const QStringView picture : {u"0", u"#,##0", u"0000", u"00", u"####/##/##"})
        EXPECT_EQ(Format(u"", picture), u"") << picture.toString().toStdString();
}

TEST(Format, LeavesATextThatIsNoNumberAsItIs)
{
    EXPECT_EQ(Format(u"12a", u"#,##0"), u"12a");
    EXPECT_EQ(Format(u" ", u"0"), u" ");
    EXPECT_EQ(Format(u"\u06F1\u06F2", u"00"), u"\u06F1\u06F2");
}

TEST(Format, RoundsHalvesAwayFromZero)
{
    EXPECT_EQ(Format(0.5, u"0"), u"1");
    EXPECT_EQ(Format(2.5, u"0"), u"3");
    EXPECT_EQ(Format(-2.5, u"0"), u"-3");
    EXPECT_EQ(Format(1234.4, u"#,##0"), u"1,234");
    EXPECT_EQ(Format(u"1234.5", u"#,##0"), u"1,235");
    EXPECT_EQ(Format(u"1,234.5", u"0"), u"1235");
}

TEST(Format, ShowsNoNegativeZero)
{
    EXPECT_EQ(Format(-0.4, u"0"), u"0");
    EXPECT_EQ(Format(u"-0", u"0"), u"0");
}

} // namespace
} // namespace zrv
