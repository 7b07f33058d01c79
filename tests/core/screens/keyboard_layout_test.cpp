// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/keyboard_layout.h"
#include "tests/core/screens/quiet_platform.h"

#include <gtest/gtest.h>
#include <set>
#include <vector>

namespace zrv {
namespace {

constexpr quint32 UsEnglish = 0x04090409;
constexpr quint32 Arabic = 0x04010401;
constexpr quint32 PersianArabic = 0x04010429;
constexpr quint32 Persian = 0x04290429;
constexpr quint32 German = 0x04070407;

struct Keyboards : QuietPlatform {
    quint32 current = UsEnglish;
    std::set<quint32> present{UsEnglish, Arabic, PersianArabic, Persian};
    std::vector<quint32> tried;

    quint32 keyboardLayout() override { return current; }
    void activateKeyboardLayout(quint32 layout) override
    {
        tried.push_back(layout);
        if (present.contains(layout))
            current = layout;
    }
};

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
