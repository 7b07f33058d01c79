// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/keyboard_layout.h"
#include "tests/core/screens/keyboards.h"

#include <gtest/gtest.h>

namespace zrv {
namespace {

using namespace layout;

TEST(SwitchToPersianKeyboard, TriesTheThreeLayoutsInOrder)
{
    Keyboards machine;
    SwitchToPersianKeyboard(machine);
    EXPECT_EQ(machine.tried, (std::vector{Arabic, PersianArabic, Persian}));
    EXPECT_EQ(machine.current, Persian);
}

TEST(SwitchToPersianKeyboard, LastLayoutPresentOnTheMachineRemains)
{
    Keyboards machine;
    machine.present = {UsEnglish, Arabic};
    SwitchToPersianKeyboard(machine);
    EXPECT_EQ(machine.current, Arabic);
}

TEST(SwitchToPersianKeyboard, DoesNothingWhenTheLayoutIsNotUsEnglish)
{
    Keyboards machine;
    machine.current = German;
    SwitchToPersianKeyboard(machine);
    EXPECT_TRUE(machine.tried.empty());
}

TEST(SwitchToLatinKeyboard, LeavesAnyOfTheThreeForUsEnglish)
{
    for (const quint32 layout : {Arabic, PersianArabic, Persian}) {
        Keyboards machine;
        machine.current = layout;
        SwitchToLatinKeyboard(machine);
        EXPECT_EQ(machine.current, UsEnglish);
    }
}

TEST(SwitchToLatinKeyboard, DoesNothingFromAnotherLayout)
{
    Keyboards machine;
    machine.current = German;
    SwitchToLatinKeyboard(machine);
    EXPECT_TRUE(machine.tried.empty());
}

} // namespace
} // namespace zrv
