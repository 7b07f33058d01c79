// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/player/test/sitting.h"

namespace zrv::player {

TEST_F(SittingTest, FocusRunsTheLeaveRuleAndThenTheEnterRule)
{
    holds("focus txtSecond\nfocus txtFirst\n");
    EXPECT_EQ(log, QStringList({u"+txtFirst"_s, u"-txtFirst"_s, u"+txtSecond"_s, u"-txtSecond"_s, u"+txtFirst"_s}));
}

TEST_F(SittingTest, TypeReplacesTheTextAndKeysAddToIt)
{
    holds("type txtFirst abc\ntype txtFirst de\nkeys f\nexpect txtFirst text def\n");
}

TEST_F(SittingTest, LineEndsInATextAreEnterAndTabsAreTab)
{
    holds("type txtFirst \"a\\nb\"\nexpect txtSecond text b\nfocus txtFirst\nkeys \"c\\td\"\n"
          "expect txtFirst text c\nexpect txtSecond text d\n");
}

TEST_F(SittingTest, CarriageReturnAndLineFeedAreOneEnter)
{
    holds("type txtFirst \"a\\r\\nb\"\nexpect txtSecond text b\nexpect txtSecond focused yes\n");
}

TEST_F(SittingTest, KeysFollowTheCaret)
{
    holds("type txtFirst abc\nkey Left\nkey Backspace\nkeys x\nkey Right\nkey Backspace\nexpect txtFirst text ax\n"
          "key Tab\nexpect txtSecond focused yes\n");
}

TEST_F(SittingTest, PasteReplacesTheTextUpToTheLimit)
{
    holds("type txtFirst abc\npaste txtFirst 1234567890123\nexpect txtFirst text 1234567890\n");
}

TEST_F(SittingTest, ChooseGoesByCodeAndInAListWithoutCodesByText)
{
    holds("choose dcbList 02\nexpect dcbList text دو\nexpect dcbList code 02\nchoose cmbPlain سبز\n"
          "expect cmbPlain text سبز\nchoose-text dcbList يك\nexpect dcbList code 01\nexpect dcbList count 2\n");
    fails("choose dcbList دو");
    fails("choose-text dcbList سه");
    fails("choose txtFirst 1");
}

TEST_F(SittingTest, ChooseTextTicksTheRowOfAListWithCheckBoxes)
{
    holds("choose-text lstTicks b\nexpect lstTicks count 2\n");
}

TEST_F(SittingTest, TickSetsWhatItIsToldAndNeverTurnsItOver)
{
    holds("tick chkOne on\nexpect chkOne checked yes\ntick chkOne on\nexpect chkOne checked yes\ntick chkOne off\n"
          "expect chkOne checked no\ntick OptRight on\nexpect OptLeft checked no\nexpect OptRight checked yes\n");
    fails("tick OptLeft off");
    fails("tick txtFirst on");
}

TEST_F(SittingTest, ClickWorksOnMenuItems)
{
    holds("click mnuItem\n");
    EXPECT_EQ(log.last(), u"menu"_s);
}

TEST_F(SittingTest, WhatIsHiddenOrDisabledCannotBeUsed)
{
    fails("click cmdHidden");
    EXPECT_TRUE(complaint.contains(u"cmdHidden is hidden"_s));
    fails("click cmdDisabled");
    EXPECT_TRUE(complaint.contains(u"cmdDisabled is disabled"_s));
    fails("focus cmdDisabled");
    fails("type cmdHidden a");
    fails("dblclick cmdDisabled");
}

TEST_F(SittingTest, WhatIsNotThereOrTakesNoFocusFails)
{
    fails("click cmdNowhere");
    fails("focus lblWord(1)");
}

TEST_F(SittingTest, ALineOfAReportIsChosenFoundAndDoubleClicked)
{
    holds("row txtReport 3\nexpect txtReport line 3\nexpect txtReport focused yes\nkey Up\nexpect txtReport line 2\n"
          "dblclick txtReport\nkey Enter\n");
    EXPECT_EQ(log.mid(log.size() - 2), QStringList({u"line 1"_s, u"line 1"_s}));
    holds("focus txtReport\nkey Ctrl+F\nexpect txtReport_Find focused yes\nkeys \"علي\"\nkey Enter\n"
          "expect txtReport line 2\nkey Escape\nexpect txtReport focused yes\nexpect txtReport_Find visible no\n");
    holds("expect txtReport rows 3\nexpect txtReport text \"يك\\r\\nعلی\\r\\nسه\\r\\n\"\n");
    fails("row txtReport 4");
}

TEST_F(SittingTest, RowsAndHeadsOfAGrid)
{
    holds("row dbgRows 2\ndblclick dbgRows\nhead dbgRows 1\n");
    EXPECT_EQ(log.mid(log.size() - 2), QStringList({u"row y"_s, u"head 1"_s}));
    fails("row dbgRows 3");
    fails("head dbgRows 2");
    fails("row txtFirst 1");
}

TEST_F(SittingTest, AWordThatMakesNoSenseIsTheScenariosFault)
{
    EXPECT_EQ(play("start\nkey Shift\n"), Status::Unusable);
    EXPECT_EQ(play("start\ntick chkOne maybe\n"), Status::Unusable);
    EXPECT_EQ(play("start\nrow dbgRows x\n"), Status::Unusable);
    EXPECT_EQ(play("answer maybe\n"), Status::Unusable);
    EXPECT_EQ(play("start\nexpect txtFirst size 1\n"), Status::Unusable);
}

} // namespace zrv::player
