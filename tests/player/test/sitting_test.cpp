// SPDX-License-Identifier: GPL-3.0-or-later
// Boxes, screens one above the other, and the account of them.
#include "tests/player/test/sitting.h"

namespace zrv::player {

TEST_F(SittingTest, EndsWithItsLinesWhateverIsOpen)
{
    holds("expect-screen frmTest\n");
    EXPECT_EQ(lines, QStringList(u"open frmTest"_s));
}

TEST_F(SittingTest, TheCloseBoxEndsTheScreenAndTheProgramWithTheLast)
{
    holds("close\nexpect-ended\n");
    EXPECT_EQ(lines, QStringList({u"open frmTest"_s, u"close frmTest"_s, u"end"_s}));
}

TEST_F(SittingTest, AScreenThatKeepsOpenStaysAfterItsCloseBox)
{
    keepsOpen = true;
    holds("close\nexpect-screen frmTest\n");
    EXPECT_EQ(lines, QStringList(u"open frmTest"_s));
}

TEST_F(SittingTest, AProgramThatEndsItselfLeavesNoCloseBehind)
{
    holds("click cmdOpen\nclick cmdEnd\nexpect-ended\nexpect-missing x\n");
    EXPECT_EQ(lines, QStringList({u"open frmTest"_s, u"open frmInner"_s, u"end"_s}));
}

TEST_F(SittingTest, AProgramThatHasEndedCanBeStartedAgain)
{
    holds("close\nstart\nexpect-screen frmTest\nclose\nexpect-ended\n");
    EXPECT_EQ(lines.count(u"open frmTest"_s), 2);
    fails("start\n");
    EXPECT_TRUE(complaint.contains(u"the program is running"_s));
}

TEST_F(SittingTest, LinesBehindTheOneThatOpensAScreenActOnItUntilItCloses)
{
    holds("click cmdOpen\nexpect-screen frmInner\ntype txtFirst a\nclose\nexpect-screen frmTest\n"
          "expect txtFirst text \"\"\n");
    EXPECT_EQ(lines, QStringList({u"open frmTest"_s, u"open frmInner"_s, u"close frmInner"_s}));
}

TEST_F(SittingTest, KeysBehindTheOneThatOpenedAScreenAreDropped)
{
    holds("focus cmdOpen\nkeys \"\\nabc\"\nexpect-screen frmInner\nexpect txtFirst text \"\"\nclose\n"
          "expect-screen frmTest\n");
}

TEST_F(SittingTest, AnEnterRuleThatOpensAScreenEndsTheLineToo)
{
    holds("type cmdDoor abc\nexpect-screen frmInner\nclose\nexpect-screen frmTest\nexpect cmdDoor focused yes\n");
}

TEST_F(SittingTest, ABoxWithOneButtonIsAnsweredAtOnceAndWrittenDown)
{
    holds("click cmdTell\n");
    EXPECT_EQ(lines.last(), uR"(box 0x90010 " t " "a\r\nb\rc\nd" -> ok)"_s);
}

TEST_F(SittingTest, AQuestionTakesTheAnswersInTheirOrder)
{
    holds("answer no\nanswer yes\nclick cmdAsk\nclick cmdAsk\n");
    EXPECT_EQ(log.mid(log.size() - 2), QStringList({u"no"_s, u"yes"_s}));
    EXPECT_EQ(lines, QStringList({u"open frmTest"_s, uR"(box 36 "t" "?" -> no)"_s, uR"(box 36 "t" "?" -> yes)"_s}));
}

TEST_F(SittingTest, AQuestionWithoutAnAnswerEndsTheSittingWithAFailure)
{
    fails("click cmdAsk");
    EXPECT_TRUE(complaint.contains(u"no answer is ready"_s));
    EXPECT_EQ(lines, QStringList(u"open frmTest"_s));
}

TEST_F(SittingTest, AFailureInsideAnInnerScreenNamesTheLineInHand)
{
    fails("click cmdOpen\nclick cmdAsk");
    EXPECT_TRUE(complaint.contains(u"click cmdAsk"_s));
}

TEST_F(SittingTest, AFileDialogueTakesThePathOrTheCancelLaidReady)
{
    holds("file sub\\a.txt\nfile cancel\nclick cmdFile\nclick cmdFile\n");
    EXPECT_EQ(log.mid(log.size() - 2), QStringList({m_folder.filePath(u"sub/a.txt"_s), u"none"_s}));
    EXPECT_EQ(lines.at(1), u"file-dialog \"/where\" -> \""_s + m_folder.filePath(u"sub/a.txt"_s) + u'"');
    EXPECT_EQ(lines.at(2), u"file-dialog \"/where\" -> \"\""_s);
}

TEST_F(SittingTest, AFileDialogueWithNothingReadyIsAFailure)
{
    fails("click cmdFile");
}

TEST_F(SittingTest, WithoutStartNothingIsOpened)
{
    EXPECT_EQ(play("expect-missing x\n"), Status::Held);
    EXPECT_TRUE(lines.isEmpty());
}

TEST_F(SittingTest, AScreenIsMissedOnceTheProgramHasEnded)
{
    fails("close\nclick cmdEnd");
    EXPECT_TRUE(complaint.contains(u"the program has ended"_s));
}

TEST_F(SittingTest, SettingsAndDesktopLieInTheFolder)
{
    QBuffer account;
    Transcript transcript(account);
    ScriptedPlatform platform(m_folder.path(), transcript);
    EXPECT_EQ(platform.setting(u"S"_s, u"K"_s, u"1"_s), u"1"_s);
    platform.saveSetting(u"S"_s, u"K"_s, u"( نسخه , 1 )"_s);
    ScriptedPlatform later(m_folder.path(), transcript);
    EXPECT_EQ(later.setting(u"S"_s, u"K"_s, u"1"_s), u"( نسخه , 1 )"_s);
    EXPECT_TRUE(QFile::exists(m_folder.filePath(u"settings.ini"_s)));
    EXPECT_EQ(later.desktopFolder(), m_folder.filePath(u"Desktop"_s));
    EXPECT_TRUE(QFileInfo(later.desktopFolder()).isDir());
}

TEST_F(SittingTest, TheWorldIsAsTheLinesBeforeStartTell)
{
    EXPECT_EQ(play("today 2011-03-21\ntime 23:59:58\ndisplay 1024 600\nsetting S K \"a b\"\n"), Status::Held);
    EXPECT_EQ(play("today 2011-13-21\n"), Status::Unusable);
    EXPECT_EQ(play("time 24:00:00\n"), Status::Unusable);
    EXPECT_EQ(play("display 0 600\n"), Status::Unusable);
    EXPECT_TRUE(complaint.contains(u"s.scn:1: display 0 600"_s));
}

TEST(StyleText, IsDecimalUntilThereAreFlagsBeyondTheIcon)
{
    EXPECT_EQ(styleText(0), u"0"_s);
    EXPECT_EQ(styleText(36), u"36"_s);
    EXPECT_EQ(styleText(0x90010), u"0x90010"_s);
    EXPECT_EQ(styleText(0x1000A), u"0x1000a"_s);
}

} // namespace zrv::player
