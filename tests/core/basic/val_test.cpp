// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/basic/val.h"
#include "tests/print_text.h"

#include <gtest/gtest.h>
#include <limits>

namespace zrv {
namespace {

constexpr double LargestDouble = std::numeric_limits<double>::max();
constexpr qint64 LargestWhole = std::numeric_limits<qint64>::max();
constexpr qint64 SmallestWhole = std::numeric_limits<qint64>::min();

struct TextAndNumber {
    QStringView text;
    double number;
};

TEST(Val, ReadsTheNumberThatATextBeginsWith)
{
    const TextAndNumber cases[] = {
        {u"12", 12},     {u"-12", -12},   {u"+12", 12},    {u"12abc", 12}, {u"1.5", 1.5},
        {u".5", 0.5},    {u"5.", 5},      {u"1.2.3", 1.2}, {u"00012", 12}, {u"1E3", 1000},
        {u"1e+3", 1000}, {u"15E-1", 1.5}, {u"1D3", 1000},  {u"1d3", 1000}, {u"-.5x", -0.5},
        {u"1/2", 1},     {u"0", 0},       {u"-0", 0},      {u"1E", 1},     {u"1E+", 1},
        {u"2Ex", 2},     {u"3e4e5", 3e4}, {u"--5", 0},     {u"5-", 5},     {u"999999999999999999999999", 1e24},
    };
    for (const auto &[text, number] : cases)
        EXPECT_EQ(Val(text), number) << text.toString().toStdString();
}

TEST(Val, IsZeroForATextThatBeginsWithNoNumber)
{
    for (const QStringView text : {u"", u" ", u"abc", u"-", u"+", u".", u"-.", u"E5", u"e", u"$5", u"(5)"})
        EXPECT_EQ(Val(text), 0) << text.toString().toStdString();
}

TEST(Val, SkipsBlanksTabsAndLineFeedsWhereverTheyStand)
{
    EXPECT_EQ(Val(u"  12"), 12);
    EXPECT_EQ(Val(u"1 2\t3\n4"), 1234);
    EXPECT_EQ(Val(u"- 5"), -5);
    EXPECT_EQ(Val(u"1 . 5 E 1"), 15);
}

TEST(Val, EndsAtACarriageReturnAndAtANoBreakBlank)
{
    EXPECT_EQ(Val(u"1\r2"), 1);
    EXPECT_EQ(Val(u"1\u00A02"), 1);
}

TEST(Val, EndsAtAThousandsComma)
{
    EXPECT_EQ(Val(u"1,234"), 1);
}

TEST(Val, ReadsNoDigitsOfOtherScripts)
{
    EXPECT_EQ(Val(u"\u06F1\u06F2"), 0);
    EXPECT_EQ(Val(u"\u0661"), 0);
    EXPECT_EQ(Val(u"1\u06F2"), 1);
}

TEST(Val, ReadsNoHexadecimalOrOctalPrefix)
{
    EXPECT_EQ(Val(u"&H1F"), 0);
    EXPECT_EQ(Val(u"&O17"), 0);
}

TEST(Val, EndsInTheLargestDoubleBeyondItsRange)
{
    EXPECT_EQ(Val(u"1E400"), LargestDouble);
    EXPECT_EQ(Val(u"-1E400"), -LargestDouble);
    EXPECT_EQ(Val(u"1E-400"), 0);
}

TEST(WholeVal, KeepsEveryDigitWhereDoubleLosesThem)
{
    EXPECT_EQ(wholeVal(u"9007199254740993"), 9007199254740993);
    EXPECT_EQ(wholeVal(u"999999999999999999"), 999999999999999999);
    EXPECT_EQ(wholeVal(u"9223372036854775807"), LargestWhole);
    EXPECT_EQ(wholeVal(u"-9223372036854775807"), -LargestWhole);
}

TEST(WholeVal, ReadsAsValDoes)
{
    EXPECT_EQ(wholeVal(u""), 0);
    EXPECT_EQ(wholeVal(u"abc"), 0);
    EXPECT_EQ(wholeVal(u" 1 200 rials"), 1200);
    EXPECT_EQ(wholeVal(u"-12"), -12);
    EXPECT_EQ(wholeVal(u"1,234"), 1);
    EXPECT_EQ(wholeVal(u"12E3"), 12000);
}

TEST(WholeVal, DropsWhatFollowsADecimalPoint)
{
    EXPECT_EQ(wholeVal(u"1.9"), 1);
    EXPECT_EQ(wholeVal(u"-1.9"), -1);
    EXPECT_EQ(wholeVal(u".9"), 0);
    EXPECT_EQ(wholeVal(u"19E-1"), 1);
}

TEST(WholeVal, EndsInTheLargestAndSmallestNumberBeyond64Bits)
{
    EXPECT_EQ(wholeVal(u"9223372036854775808"), LargestWhole);
    EXPECT_EQ(wholeVal(u"99999999999999999999999"), LargestWhole);
    EXPECT_EQ(wholeVal(u"-99999999999999999999999"), SmallestWhole);
    EXPECT_EQ(wholeVal(u"1E30"), LargestWhole);
    EXPECT_EQ(wholeVal(u"-1E400"), SmallestWhole);
}

TEST(IsNumeric, AcceptsWhatCanBeReadAsANumber)
{
    for (const QStringView text :
         {u"0", u"12", u"-12", u"+12", u"1.5", u".5", u"5.", u"1,234,567", u"1,2", u"1,", u"1,234.5", u" 12 ",
          u"\t12\r\n", u"1E5", u"1e-5", u"1.5D+3", u"00012", u"123456789012345678901234567890"})
        EXPECT_TRUE(IsNumeric(text)) << text.toString().toStdString();
}

TEST(IsNumeric, RefusesEverythingElse)
{
    for (const QStringView text :
         {u"",  u" ", u"abc", u"12a",   u"a12",   u"1 2",  u"- 5", u"--5", u"5-", u"(5)",   u"$5",  u"&H1F", u"-",
          u".", u",", u",1",  u"1.2.3", u"1.2,3", u".5,0", u"1E",  u"1E+", u"E5", u"1E5,0", u"1/2", u"12%"})
        EXPECT_FALSE(IsNumeric(text)) << text.toString().toStdString();
}

TEST(IsNumeric, RefusesDigitsOfOtherScripts)
{
    EXPECT_FALSE(IsNumeric(u"\u06F1\u06F2"));
    EXPECT_FALSE(IsNumeric(u"1\u0662"));
}

TEST(IsNumeric, RefusesANumberThatDoubleCannotHold)
{
    EXPECT_TRUE(IsNumeric(u"1E308"));
    EXPECT_FALSE(IsNumeric(u"1E400"));
    EXPECT_FALSE(IsNumeric(u"-1E400"));
}

TEST(NumberText, HasFifteenSignificantDigits)
{
    EXPECT_EQ(numberText(1.0 / 3), u"0.333333333333333");
    EXPECT_EQ(numberText(0.1 + 0.2), u"0.3");
    EXPECT_EQ(numberText(1.5), u"1.5");
    EXPECT_EQ(numberText(-12), u"-12");
}

TEST(NumberText, WritesWholeNumbersBelowTenToTheFifteenthWithoutExponent)
{
    EXPECT_EQ(numberText(0), u"0");
    EXPECT_EQ(numberText(1234567890), u"1234567890");
    EXPECT_EQ(numberText(100000), u"100000");
    EXPECT_EQ(numberText(999999999999999), u"999999999999999");
    EXPECT_EQ(numberText(1E15), u"1E+15");
    EXPECT_EQ(numberText(123456789012345678.0), u"1.23456789012346E+17");
}

TEST(NumberText, WritesSmallNumbersWithAnExponent)
{
    EXPECT_EQ(numberText(0.0001), u"0.0001");
    EXPECT_EQ(numberText(0.00001), u"1E-05");
}

TEST(NumberText, HasNoNegativeZero)
{
    EXPECT_EQ(numberText(-0.0), u"0");
}

TEST(StrText, PutsABlankWhereANegativeNumberHasItsSign)
{
    EXPECT_EQ(strText(3), u" 3");
    EXPECT_EQ(strText(-3), u"-3");
    EXPECT_EQ(strText(0), u" 0");
    EXPECT_EQ(strText(1389), u" 1389");
}

TEST(StrText, LeavesOutTheZeroBeforeADecimalPoint)
{
    EXPECT_EQ(strText(0.5), u" .5");
    EXPECT_EQ(strText(-0.5), u"-.5");
    EXPECT_EQ(strText(10.5), u" 10.5");
}

} // namespace
} // namespace zrv
