// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/player/test/sitting.h"

namespace zrv::player {

TEST_F(SittingTest, ExpectReadsEachProperty)
{
    holds("expect cmdAsk caption &پرسش\nexpect lblWord(1) caption برچسب\nexpect lblWord(1) text بر%\n"
          "expect txtFirst limit 10\nexpect txtFirst tag +N\nexpect txtFirst tooltip راهنما\n"
          "expect txtFirst colour ffffff\nexpect cmdAsk colour ECEBE6\nexpect txtFirst locked no\n"
          "expect txtFirst focused yes\nexpect txtSecond focused no\nexpect cmdHidden visible no\n"
          "expect cmdDisabled enabled no\nexpect cmdDisabled visible yes\nexpect cmdAsk default no\n"
          "expect cmdAsk cancel no\nexpect dbgRows rows 2\nexpect dbgRows columns A|B\nexpect frmTest caption آزمون\n");
}

TEST_F(SittingTest, AFailedExpectationTellsWhatWasExpectedAndSeen)
{
    fails("expect txtFirst limit 11");
    EXPECT_TRUE(complaint.contains(u"expected: \"11\""_s)) << complaint.toStdString();
    EXPECT_TRUE(complaint.contains(u"seen:     \"10\""_s)) << complaint.toStdString();
}

TEST_F(SittingTest, APropertyThatAControlLacksFails)
{
    fails("expect txtFirst rows 0");
    fails("expect cmdAsk checked no");
    fails("expect dbgRows caption A");
}

TEST_F(SittingTest, CellsAreReadAsShown)
{
    holds("expect-cell dbgRows 1 0 x\nexpect-cell dbgRows 2 1 2,000\n");
    fails("expect-cell dbgRows 2 1 2000");
    fails("expect-cell dbgRows 3 0 %");
    fails("expect-cell dbgRows 1 2 %");
}

TEST_F(SittingTest, BoxesAreExpectedFromTheOldestOnWithAnyLineEnds)
{
    holds("answer yes\nclick cmdTell\nclick cmdAsk\nexpect-box \" t \" \"a\\nb\\r\\nc\\nd\"\nexpect-style 0x90010\n"
          "expect-style 589840\nexpect-box t %\nexpect-style 0x24\nexpect-no-box\n");
}

TEST_F(SittingTest, ABoxOutOfTurnFails)
{
    fails("answer yes\nclick cmdTell\nclick cmdAsk\nexpect-box t ?");
}

TEST_F(SittingTest, ABoxNeverShownOrNeverExpectedFails)
{
    fails("expect-box % %");
    fails("click cmdTell\nexpect-no-box");
    fails("expect-style 36");
    fails("click cmdTell\nexpect-box % %\nexpect-style 36");
}

TEST_F(SittingTest, ScreensAndTheEndAreSeen)
{
    fails("expect-screen frmOther");
    fails("expect-ended");
    fails("close\nexpect-screen frmTest");
}

TEST_F(SittingTest, AFilesTextIsReadByItsMark)
{
    const auto write = [&](const char *name, const QByteArray &bytes) {
        QFile file(m_folder.filePath(QString::fromLatin1(name)));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    };
    write("utf16.txt", QByteArray("\xFF\xFE\x27\x06\r\0\n\0b\0\r\0\n\0", 14));
    write("utf8.txt", "\xEF\xBB\xBF\xD8\xA7\nb");
    write("bare.txt", "\xD8\xA7\r\nb\r\n");
    for (const char *name : {"utf16.txt", "utf8.txt", "bare.txt"})
        holds(QByteArray("expect-file ") + name + " \"\\u0627\\nb\"\n");
    holds("expect-file utf16.txt \"\\u0627\\nb\\n\"\nexpect-file utf8.txt %b\nexpect-exists utf8.txt\n");
    fails(R"(expect-file utf8.txt "\u0627\nb\n")");
    fails("expect-file utf16.txt b");
    fails("expect-file none.txt %");
    fails("expect-exists none.txt");
    fails("expect-missing utf8.txt");
    holds("expect-missing none.txt\nexpect-exists \"${folder}/utf8.txt\"\n");
}

TEST_F(SittingTest, APreviewNobodyShowedIsMissed)
{
    fails("expect-print rptKhol 1");
    fails("expect-print-text %");
    fails("save-print a.pdf");
}

TEST_F(SittingTest, PreviewsAreExpectedInTheOrderInWhichTheyCame)
{
    holds("click cmdPrint\nclick cmdPrint\nexpect-print rptTest 2\nexpect-print rpt% 2\n");
    EXPECT_EQ(lines.mid(1), (QStringList{u"print rptTest 2"_s, u"print rptTest 2"_s}));
    fails("click cmdPrint\nexpect-print rptTest 1");
    fails("click cmdPrint\nexpect-print rptKhol 2");
    fails("click cmdPrint\nexpect-print rptTest 2\nexpect-print rptTest 2");
}

TEST_F(SittingTest, PreviewTextIsLookedForOnEveryPageAsOneRun)
{
    const QByteArray shown = "click cmdPrint\nexpect-print rptTest 2\n";
    holds(shown + "expect-print-text \"حقوق 1389\"\nexpect-print-text \"صفحه 2\"\nexpect-print-text \"100 \\%\"\n");
    fails(shown + "expect-print-text \"صفحه 3\"");
    fails(shown + "expect-print-text \"1389 حقوق\"");
    fails(shown + "expect-print-text \"1389100\"");
}

TEST_F(SittingTest, APreviewThatCannotBePaintedFailsItsLine)
{
    fails("click cmdPrint\nsave-print a.pdf");
    holds("expect-missing a.pdf\n");
}

TEST_F(SittingTest, WritersLinesPrintToTheTranscript)
{
    holds(
        "show txtFirst\nrows dbgRows\ntype txtFirst abc\nsave txtFirst out.txt\nexpect-file out.txt abc\npicture p.png\n"
        "picture-print p.png\n"
        "expect-missing p.png\n");
    EXPECT_EQ(lines.at(1), u"txtFirst TextBox text=\"\" enabled=\"yes\" visible=\"yes\" locked=\"no\" focused=\"yes\" "
                           "limit=\"10\" colour=\"FFFFFF\" tag=\"+N\" tooltip=\"راهنما\""_s);
    EXPECT_EQ(lines.mid(2), QStringList({u"x|1,000"_s, u"y|2,000"_s}));
}

TEST_F(SittingTest, ControlsArePrintedInTabOrder)
{
    holds("controls\n");
    EXPECT_EQ(lines.at(1), u"txtFirst TextBox \"\" enabled=yes visible=yes"_s);
    EXPECT_EQ(lines.last(), u"lblWord(1) Label \"برچسب\" enabled=yes visible=yes"_s);
    EXPECT_TRUE(lines.contains(u"cmdHidden Button \"\" enabled=yes visible=no"_s));
}

} // namespace zrv::player
