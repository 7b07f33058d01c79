// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/public/check_digit.h"

#include <QString>

#include <gtest/gtest.h>

namespace zrv {
namespace {

using namespace Qt::Literals::StringLiterals;

// 1*10+2*9+3*8+4*7+5*6+6*5+7*4+8*3+9*2 = 210, and 210 = 19*11 + 1.
TEST(CheckDigit, RemainderBelowTwoIsTheDigitItself)
{
    EXPECT_EQ(nationalCheckDigit(u"123456789"), 1);
    EXPECT_TRUE(isValidNationalCode(u"1234567891"));
    EXPECT_EQ(nationalCheckDigit(u"000000000"), 0);
}

// 1*10+1*2 = 12 leaves 1; 1*10+2*2 = 14 leaves 3 and asks for 8; 1*10+6*2 = 22 leaves 0.
TEST(CheckDigit, LargerRemainderIsTakenFromEleven)
{
    EXPECT_EQ(nationalCheckDigit(u"100000001"), 1);
    EXPECT_EQ(nationalCheckDigit(u"100000002"), 8);
    EXPECT_EQ(nationalCheckDigit(u"100000006"), 0);
    EXPECT_TRUE(isValidNationalCode(u"1000000028"));
}

TEST(CheckDigit, RemainderTwoAsksForNine)
{
    // 1*10+7*2 = 24 leaves 2: the only remainder that gives 9.
    EXPECT_EQ(nationalCheckDigit(u"100000007"), 9);
}

TEST(CheckDigit, ExactlyOneTenthDigitFitsEachNine)
{
    for (const QString &nine : {u"123456789"_s, u"987654321"_s, u"400000000"_s, u"055555555"_s}) {
        int fitting = 0;
        for (char16_t tenth = u'0'; tenth <= u'9'; ++tenth)
            fitting += isValidNationalCode(QString(nine + QChar(tenth)));
        EXPECT_EQ(fitting, 1) << nine.toStdString();
    }
}

TEST(CheckDigit, RemaindersOneAndTenShareTheDigitOne)
{
    // 1*10 leaves 10 and asks for 1; 1*10+1*2 leaves 1 and is 1: two codes that differ in one digit, both valid.
    EXPECT_TRUE(isValidNationalCode(u"1000000001"));
    EXPECT_TRUE(isValidNationalCode(u"1000000011"));
}

TEST(CheckDigit, TenEqualDigitsAreNoCodeThoughTheirCheckDigitFits)
{
    for (char16_t digit = u'0'; digit <= u'9'; ++digit) {
        const QString same(10, QChar(digit));
        EXPECT_EQ(nationalCheckDigit(QStringView(same).first(9)), digit - u'0');
        EXPECT_FALSE(isValidNationalCode(same)) << same.toStdString();
    }
}

TEST(CheckDigit, LeadingZerosCountAsDigits)
{
    EXPECT_EQ(nationalCheckDigit(u"001234567"), 9); // 1*8+2*7+3*6+4*5+5*4+6*3+7*2 = 112 leaves 2
    EXPECT_FALSE(isValidNationalCode(u"12345679")) << "a code that lost its zeros";
}

TEST(CheckDigit, OnlyTenAsciiDigitsAreJudged)
{
    for (const QString &text : {u""_s, u"123456789"_s, u"12345678911"_s, u" 1234567891"_s, u"1234567891 "_s,
                                u"12345678٩1"_s, u"۱۲۳۴۵۶۷۸۹۱"_s, u"123456789A"_s, u"A123456789"_s, u"-234567891"_s})
        EXPECT_FALSE(isValidNationalCode(text)) << text.toStdString();
    EXPECT_EQ(nationalCheckDigit(u"12345678"), -1);
    EXPECT_EQ(nationalCheckDigit(u"12345678٩"), -1);
}

} // namespace
} // namespace zrv
