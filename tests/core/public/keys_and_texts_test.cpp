// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/basic/ansi.h"
#include "core/mdlPublic.h"
#include "tests/print_text.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <set>

namespace zrv {
namespace {

using namespace Qt::Literals::StringLiterals;

// clang-format off
const std::set<int> Always  = {8, 13, 27};
const std::set<int> Digits  = {48, 49, 50, 51, 52, 53, 54, 55, 56, 57};
const std::set<int> Persian = {
    32, 129, 141, 142, 144, 152,
    193, 194, 195, 196, 197, 198, 199, 200, 201, 202, 203, 204, 205, 206, 207, 208, 209, 210, 211, 212, 213, 214,
    216, 217, 218, 219, 221, 222, 223, 225, 227, 228, 229, 230, 236, 237, 45, 47,
};
const std::set<int> Latin = {
    32,
    65, 66, 67, 68, 69, 70, 71, 72, 73, 74, 75, 76, 77, 78, 79, 80, 81, 82, 83, 84, 85, 86, 87, 88, 89, 90,
    97, 98, 99, 100, 101, 102, 103, 104, 105, 106, 107, 108, 109, 110, 111, 112, 113, 114, 115, 116, 117, 118, 119,
    120, 121, 122,
};
// clang-format on

std::set<int> united(std::initializer_list<std::set<int>> sets)
{
    std::set<int> all;
    for (const std::set<int> &set : sets)
        all.insert(set.begin(), set.end());
    return all;
}

/// The codes of 0 to 255 that a text box with this tag keeps; the others must come back as 0.
std::set<int> kept(QStringView tag)
{
    std::set<int> codes;
    for (int code = 1; code <= 255; ++code) {
        const int result = FilterKey(tag, code);
        if (result == code)
            codes.insert(code);
        else
            EXPECT_EQ(result, 0) << code;
    }
    EXPECT_EQ(FilterKey(tag, 0), 0);
    return codes;
}

TEST(FilterKey, LetsDigitsIntoADigitField)
{
    EXPECT_EQ(kept(u"+DigitOnly"), united({Always, Digits}));
}

TEST(FilterKey, LetsPersianLettersBlankHyphenAndSlashIntoAPersianField)
{
    EXPECT_EQ(kept(u"+FA"), united({Always, Persian}));
}

TEST(FilterKey, LetsLatinLettersAndTheBlankIntoALatinField)
{
    EXPECT_EQ(kept(u"+EN"), united({Always, Latin}));
}

TEST(FilterKey, UnitesTheWordsOfATagInAnyOrder)
{
    EXPECT_EQ(kept(u"+FA+EN+DigitOnly+N"), united({Always, Digits, Persian, Latin}));
    EXPECT_EQ(kept(u"+N+DigitOnly+FA"), united({Always, Digits, Persian}));
    EXPECT_EQ(kept(u"+EN+DigitOnly"), united({Always, Digits, Latin}));
    EXPECT_EQ(kept(u"+DigitOnly+N"), united({Always, Digits}));
}

TEST(FilterKey, LetsNothingButBackspaceEnterAndEscapeIntoAFieldThatIsOnlyRequired)
{
    EXPECT_EQ(kept(u"+N"), Always);
}

TEST(FilterKey, LetsEverythingIntoAFieldWithoutATag)
{
    for (int code = 0; code <= 255; ++code) {
        EXPECT_EQ(FilterKey(u"", code), code);
        EXPECT_EQ(FilterKey(u"   ", code), code);
    }
}

TEST(FilterKey, DropsPersianDigitsAsOtherKeyCodesFromADigitField)
{
    EXPECT_EQ(FilterKey(u"+DigitOnly", 0x06F1), 0);
    EXPECT_EQ(FilterKey(u"+DigitOnly", ansiCode(u'\u06F1')), 0);
}

TEST(FilterKey, KeepsQuotesOutOfEveryFilteredField)
{
    for (const QStringView tag : {u"+DigitOnly", u"+FA", u"+EN", u"+FA+EN+DigitOnly+N"})
        EXPECT_EQ(FilterKey(tag, '\''), 0);
}

TEST(FirstDigitCode, IsTheCodeOfTheFirstDigitWithABlankBeforeIt)
{
    EXPECT_EQ(FirstDigitCode(u"07"), u" 48");
    EXPECT_EQ(FirstDigitCode(u"ab97"), u" 57");
}

TEST(FirstDigitCode, IsMinusOneWithoutADigit)
{
    EXPECT_EQ(FirstDigitCode(u""), u"-1");
    EXPECT_EQ(FirstDigitCode(u"ab\u06F1"), u"-1");
}

TEST(FirstNonDigitCode, IsTheCodeOfTheFirstLetterThatIsNoDigitWithABlankBeforeIt)
{
    EXPECT_EQ(FirstNonDigitCode(u"12a"), u" 97");
    EXPECT_EQ(FirstNonDigitCode(u" 12"), u" 32");
    EXPECT_EQ(FirstNonDigitCode(u"1\u0628"), u" 200");
    EXPECT_EQ(FirstNonDigitCode(u"1/"), u" 47");
    EXPECT_EQ(FirstNonDigitCode(u"1:"), u" 58");
}

TEST(FirstNonDigitCode, IsMinusOneWhenThereAreOnlyDigits)
{
    EXPECT_EQ(FirstNonDigitCode(u""), u"-1");
    EXPECT_EQ(FirstNonDigitCode(u"0123456789"), u"-1");
}

TEST(FirstNonDigitCode, IsThatOfTheQuestionMarkForALetterOutsideTheCodePage)
{
    EXPECT_EQ(FirstNonDigitCode(u"1\u06CC"), u" 63");
}

TEST(NullToZero, IsZeroForNullAndForBlanks)
{
    EXPECT_EQ(NullToZero(std::nullopt), u"0");
    EXPECT_EQ(NullToZero(u""_s), u"0");
    EXPECT_EQ(NullToZero(u"  "_s), u"0");
}

TEST(NullToZero, LeavesAnyOtherTextAsItIs)
{
    EXPECT_EQ(NullToZero(u"12"_s), u"12");
    EXPECT_EQ(NullToZero(u" 12 "_s), u" 12 ");
    EXPECT_EQ(NullToZero(u"abc"_s), u"abc");
}

TEST(NullToEmpty, IsEmptyForNullAndTrimsATextOfItsBlanks)
{
    EXPECT_EQ(NullToEmpty(std::nullopt), u"");
    EXPECT_EQ(NullToEmpty(u"  a b "_s), u"a b");
    EXPECT_EQ(NullToEmpty(u"   "_s), u"");
}

struct Cell {
    std::optional<QString> text;
    [[nodiscard]] bool isNull() const { return !text; }
    [[nodiscard]] QString toText() const { return text.value_or(QString()); }
};

TEST(NullTexts, TakeTheCellsOfARecordset)
{
    EXPECT_EQ(NullToZero(Cell{}), u"0");
    EXPECT_EQ(NullToZero(Cell{u"5"_s}), u"5");
    EXPECT_EQ(NullToEmpty(Cell{}), u"");
    EXPECT_EQ(NullToEmpty(Cell{u" 5 "_s}), u"5");
}

TEST(NegativeToZero, ReplacesOnlyAValueBelowZero)
{
    EXPECT_EQ(NegativeToZero(u"-1"_s), u"0");
    EXPECT_EQ(NegativeToZero(u"- 5 rials"_s), u"0");
    EXPECT_EQ(NegativeToZero(u"-0"_s), u"-0");
    EXPECT_EQ(NegativeToZero(u"0"_s), u"0");
    EXPECT_EQ(NegativeToZero(u"12"_s), u"12");
    EXPECT_EQ(NegativeToZero(u""_s), u"");
    EXPECT_EQ(NegativeToZero(u"abc"_s), u"abc");
}

} // namespace
} // namespace zrv
