// SPDX-License-Identifier: GPL-3.0-or-later
#include "lists/amounts.h"
#include "tests/print_text.h"

#include <gtest/gtest.h>

namespace zrv {
namespace {

using namespace Qt::Literals::StringLiterals;

TEST(Amounts, AreShownWithSeparatorsAndStoredWithout)
{
    EXPECT_EQ(shownAmount(u"1234567"_s), u"1,234,567"_s);
    EXPECT_EQ(plainAmount(u"1,234,567"_s), u"1234567"_s);
    EXPECT_EQ(shownAmount(u"0010"_s), u"10"_s);
}

TEST(Amounts, BlankStaysBlankAndIsWorthNothing)
{
    EXPECT_EQ(shownAmount({}), QString());
    EXPECT_EQ(plainAmount({}), QString());
    EXPECT_EQ(amountOf({}), 0);
}

TEST(Amounts, SeparatorsThatAnEditLeavesAnywhereAreNoHindrance)
{
    // The first digit of 1,234,567 was erased, then a digit put in its middle.
    EXPECT_EQ(shownAmount(u",234,567"_s), u"234,567"_s);
    EXPECT_EQ(plainAmount(u",234,567"_s), u"234567"_s);
    EXPECT_EQ(amountOf(u",234,567"_s), 234567);
    EXPECT_EQ(shownAmount(u"2394,567"_s), u"2,394,567"_s);
}

TEST(Amounts, SumsOfAmountsBeyondAllColumnsDoNotOverflow)
{
    const qint64 largest = amountOf(QString(30, u'9'));
    EXPECT_EQ(largest, 1'000'000'000'000'000'000);
    EXPECT_GT(4 * largest, 0);
}

} // namespace
} // namespace zrv
