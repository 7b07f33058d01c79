// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/core/forms/test_form.h"

#include <gtest/gtest.h>

namespace zrv {
namespace {

TEST(Focus, FirstControlThatTakesItGetsItWhenTheFormComesUp)
{
    TestForm form;
    form.load();
    form.activate();
    EXPECT_EQ(form.diary, (QStringList{u"load"_s, u"activate"_s, u"enter txtFirst"_s}));
    EXPECT_EQ(form.activeControl(), &form.first);
}

TEST(Focus, LeaveRuleRunsBeforeEnterRule)
{
    OpenForm form;
    EXPECT_TRUE(form.userFocus(form.second));
    EXPECT_EQ(form.diary, (QStringList{u"leave txtFirst"_s, u"enter txtSecond"_s}));
}

TEST(Focus, LeaveRuleThatSendsTheFocusElsewhereStopsTheEnterRule)
{
    OpenForm form;
    form.first.onLostFocus = [&] { form.back.setFocus(); };
    form.userFocus(form.second);
    EXPECT_EQ(form.activeControl(), &form.back);
    EXPECT_EQ(form.diary, (QStringList{u"leave txtSecond"_s, u"enter cmdBack"_s}));
}

TEST(Focus, TabWalksInOrderOfDeclarationAndRoundTheEnd)
{
    OpenForm form;
    QStringList walk;
    for (int i = 0; i < 4; ++i) {
        form.userKey(Key::Tab);
        walk << form.activeControl()->name();
    }
    EXPECT_EQ(walk, (QStringList{u"txtSecond"_s, u"cmdOk"_s, u"cmdBack"_s, u"txtFirst"_s}));
    form.userKey(Key::Backtab);
    EXPECT_EQ(form.activeControl(), &form.back);
}

TEST(Focus, TabPassesWhatIsDisabledOrHidden)
{
    OpenForm form;
    form.second.setEnabled(false);
    form.ok.setVisible(false);
    form.userKey(Key::Tab);
    EXPECT_EQ(form.activeControl(), &form.back);
}

TEST(Focus, F6WalksThroughWhatTabPassesBy)
{
    OpenForm form;
    form.second.setTabStop(false);
    form.back.setTabStop(false);
    QStringList walk;
    for (int i = 0; i < 3; ++i) {
        form.userKey(Key::F6);
        walk << form.activeControl()->name();
    }
    EXPECT_EQ(walk, (QStringList{u"txtSecond"_s, u"cmdBack"_s, u"txtSecond"_s}));
    form.userKey(Key::Tab);
    EXPECT_EQ(form.activeControl(), &form.ok);
}

TEST(Focus, F6GoesNowhereWhereTabPassesNothingBy)
{
    OpenForm form;
    form.userFocus(form.second);
    form.userKey(Key::F6);
    EXPECT_EQ(form.activeControl(), &form.second);
}

TEST(Focus, DisabledFrameMakesWhatLiesInItUnreachable)
{
    OpenForm form;
    form.frame.setEnabled(false);
    EXPECT_TRUE(form.second.isEnabled());
    EXPECT_FALSE(form.second.isReachable());
    EXPECT_FALSE(form.userFocus(form.second));
    EXPECT_FALSE(form.userClick(form.ok));
    EXPECT_TRUE(form.diary.isEmpty());
}

TEST(Focus, ControlSwitchedOffWhileItHasTheFocusHandsItOnWhenItsRoutineIsOver)
{
    OpenForm form;
    form.userFocus(form.second);
    form.second.onChange = [&] {
        form.second.setEnabled(false);
        EXPECT_EQ(form.activeControl(), &form.second);
    };
    form.userLetter(u'x');
    EXPECT_EQ(form.activeControl(), &form.ok);
}

TEST(Focus, RoutineThatGivesTheFocusAPlaceItselfIsNotCorrected)
{
    OpenForm form;
    form.userFocus(form.ok);
    form.ok.onClick = [&] {
        form.ok.setEnabled(false);
        form.first.setFocus();
    };
    form.userClick(form.ok);
    EXPECT_EQ(form.activeControl(), &form.first);
}

TEST(Focus, FieldSelectsItsWholeTextWhenItGetsTheFocus)
{
    OpenForm form;
    form.second.setText(u"abc"_s);
    form.userFocus(form.second);
    EXPECT_EQ(form.second.selStart(), 0);
    EXPECT_EQ(form.second.selLength(), 3);
}

TEST(Click, MovesTheFocusFirst)
{
    OpenForm form;
    EXPECT_TRUE(form.userClick(form.back));
    EXPECT_EQ(form.diary, (QStringList{u"leave txtFirst"_s, u"enter cmdBack"_s}));
}

TEST(Click, ButtonWithAnEnterRuleIsServedByItAndClickedOnlyOnce)
{
    OpenForm form;
    int runs = 0;
    form.ok.onGotFocus = form.ok.onClick = [&] { ++runs; };
    form.userClick(form.ok);
    EXPECT_EQ(runs, 1);
    form.userClick(form.ok);
    EXPECT_EQ(runs, 2);
}

TEST(Click, RunsTheRoutineOfAButtonWithoutEnterRule)
{
    OpenForm form;
    form.ok.onGotFocus = nullptr;
    form.userClick(form.ok);
    EXPECT_TRUE(form.diary.contains(u"click ok"_s));
}

TEST(Click, OnHiddenOrDisabledControlDoesNothing)
{
    OpenForm form;
    form.ok.setVisible(false);
    form.back.setEnabled(false);
    EXPECT_FALSE(form.userClick(form.ok));
    EXPECT_FALSE(form.userClick(form.back));
    EXPECT_TRUE(form.diary.isEmpty());
}

TEST(Click, OptionOfAGroupClearsTheOthersOfItsContainer)
{
    struct : OpenForm {
        OptionButton a{frame, u"OptA"_s, {.checked = true}};
        OptionButton b{frame, u"OptB"_s};
        OptionButton elsewhere{*this, u"OptC"_s, {.checked = true}};
    } form;
    form.userClick(form.b);
    EXPECT_FALSE(form.a.isChecked());
    EXPECT_TRUE(form.b.isChecked());
    EXPECT_TRUE(form.elsewhere.isChecked());
}

TEST(Click, SecondPressOfADoubleClickIsNoClickOfItsOwn)
{
    struct : OpenForm {
        OptionButton option{*this, u"OptSort"_s};
    } form;
    QStringList seen;
    form.option.onClick = [&] { seen << u"click"_s; };
    form.option.onDblClick = [&] { seen << u"double"_s; };
    form.userClick(form.option);
    form.userDblClick(form.option);
    EXPECT_EQ(seen, (QStringList{u"click"_s, u"double"_s}));
}

} // namespace
} // namespace zrv
