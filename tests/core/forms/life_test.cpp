// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/core/forms/test_form.h"

#include <gtest/gtest.h>

namespace zrv {
namespace {

TEST(Life, LoadRunsOnceAndActivationEachTime)
{
    TestForm form;
    form.load();
    form.load();
    form.activate();
    form.activate();
    EXPECT_EQ(form.diary.count(u"load"_s), 1);
    EXPECT_EQ(form.diary.count(u"activate"_s), 2);
}

TEST(Life, UserActionsAreDroppedWhileOneIsRunning)
{
    OpenForm form;
    int runs = 0;
    form.ok.onGotFocus = nullptr;
    form.ok.onClick = [&] {
        ++runs;
        EXPECT_TRUE(form.isBusy());
        EXPECT_FALSE(form.userClick(form.ok));
        EXPECT_FALSE(form.userKey(Key::Tab));
        EXPECT_FALSE(form.userClose());
    };
    form.userClick(form.ok);
    EXPECT_EQ(runs, 1);
    EXPECT_FALSE(form.isBusy());
}

TEST(Life, ControlMarkedLiveWorksWhileTheFormIsBusy)
{
    OpenForm form;
    form.setLiveWhileBusy(&form.back);
    form.ok.onGotFocus = form.back.onGotFocus = nullptr;
    form.ok.onClick = [&] { EXPECT_TRUE(form.userClick(form.back)); };
    form.userClick(form.ok);
    EXPECT_TRUE(form.diary.contains(u"click back"_s));
}

TEST(Life, FailureThatARoutineLetsGoIsToldAndTheFormStaysUsable)
{
    OpenForm form;
    form.userFocus(form.ok);
    form.takeDiary();
    form.ok.onClick = [] { throw RunTimeError(9, u"Subscript"_s); };
    form.userClick(form.ok);
    EXPECT_EQ(form.diary, QStringList{u"failed 9"_s});
    EXPECT_FALSE(form.isBusy());
    EXPECT_TRUE(form.userFocus(form.first));
}

TEST(Life, EndOfTheProgramPassesThroughAndLeavesTheFormIdle)
{
    OpenForm form;
    form.userFocus(form.ok);
    form.ok.onClick = [] { throw ProgramEnd{}; };
    EXPECT_THROW(form.userClick(form.ok), ProgramEnd);
    EXPECT_FALSE(form.isBusy());
}

TEST(Life, CloseBoxAsksAndARefusalKeepsTheFormOpen)
{
    OpenForm form;
    UnloadMode asked = UnloadMode::Code;
    form.query = [&](UnloadMode mode) {
        asked = mode;
        return false;
    };
    form.userClose();
    EXPECT_EQ(asked, UnloadMode::CloseBox);
    EXPECT_TRUE(form.isOpen());
    form.query = nullptr;
    form.userClose();
    EXPECT_FALSE(form.isOpen());
    EXPECT_TRUE(form.diary.contains(u"unload"_s));
}

TEST(Life, ClosedFormTakesNoInput)
{
    OpenForm form;
    form.userClose();
    EXPECT_FALSE(form.userClick(form.ok));
    EXPECT_FALSE(form.userKey(Key::Enter));
    EXPECT_FALSE(form.userLetter(u'a'));
}

TEST(Life, ControlsAreFoundByNameLetterForLetter)
{
    OpenForm form;
    EXPECT_EQ(form.find(u"txtFirst"), &form.first);
    EXPECT_EQ(form.find(u"txtfirst"), nullptr);
}

} // namespace
} // namespace zrv
