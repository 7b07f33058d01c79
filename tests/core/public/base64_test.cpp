// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/basic/ansi.h"
#include "core/mdlEncriptDecript.h"
#include "tests/print_text.h"

#include <gtest/gtest.h>

namespace zrv {
namespace {

constexpr QStringView LengthFault = u"رشته ورودي جهت رمز گشايي نامعتبر ميباشد";
constexpr QStringView LetterFault = u"رشته ورودي جهت رمز گشايي حاوي کاراکتر نامعتبر ميباشد";

TEST(Base64, ComesBackFromItsTextForAllCodesAtEveryLength)
{
    QString text;
    for (int code = 0; code <= 0xFF; ++code) {
        text += ansiLetter(code);
        EXPECT_EQ(DecodeBase64(EncodeBase64(text)), text) << code;
    }
}

TEST(EncodeBase64, PadsToFourLettersAndBreaksNoLine)
{
    EXPECT_EQ(EncodeBase64(u""), u"");
    EXPECT_EQ(EncodeBase64(u"M"), u"TQ==");
    EXPECT_EQ(EncodeBase64(u"Ma"), u"TWE=");
    EXPECT_EQ(EncodeBase64(u"Man"), u"TWFu");
    EXPECT_EQ(EncodeBase64(QString(300, u'a')).size(), 400);
}

TEST(EncodeBase64, TakesLettersByTheirAnsiCodes)
{
    EXPECT_EQ(EncodeBase64(u"( نسخه 1.1.38 - 89/03/03 )"), u"KCDk087lIDEuMS4zOCAtIDg5LzAzLzAzICk=");
}

TEST(EncodeBase64, TakesALetterWithoutAnsiCodeAsAQuestionMark)
{
    EXPECT_EQ(EncodeBase64(u"\u06CC\u06F1"), EncodeBase64(u"??"));
}

TEST(DecodeBase64, GivesTheFirstErrorTextForALengthThatIsNoMultipleOfFour)
{
    EXPECT_EQ(DecodeBase64(u"AAA"), LengthFault);
    EXPECT_EQ(DecodeBase64(u"AAAAA"), LengthFault);
}

TEST(DecodeBase64, GivesTheSecondErrorTextForALetterOutsideTheAlphabet)
{
    EXPECT_EQ(DecodeBase64(u"AA$A"), LetterFault);
    EXPECT_EQ(DecodeBase64(u"TWFuAA$A"), LetterFault);
    EXPECT_EQ(DecodeBase64(u"AAA\u06F1"), LetterFault);
    EXPECT_EQ(DecodeBase64(u"AAA-"), LetterFault);
}

TEST(DecodeBase64, LooksAtTheLengthBeforeTheLetters)
{
    EXPECT_EQ(DecodeBase64(u"A$A"), LengthFault);
}

TEST(DecodeBase64, TakesOutLineEndsTabsAndBlanksFirst)
{
    EXPECT_EQ(DecodeBase64(u" TW\r\nFu\t"), u"Man");
    EXPECT_EQ(DecodeBase64(u" \r\n\t"), u"");
}

TEST(DecodeBase64, TakesHalfALineEndForALetterOutsideTheAlphabet)
{
    EXPECT_EQ(DecodeBase64(u"TWF\n"), LetterFault);
    EXPECT_EQ(DecodeBase64(u"TWF\r"), LetterFault);
}

TEST(DecodeBase64, ShortensAGroupByEachEqualsSignWhereverItStandsAndThatIsKept)
{
    EXPECT_EQ(DecodeBase64(u"TQ==TWFu"), u"MMan");
    EXPECT_EQ(DecodeBase64(u"=WFu"), QString(QChar(u'\u0001')) + u'a'); // six zero bits for the sign
    EXPECT_EQ(DecodeBase64(u"T==="), u"");
    EXPECT_EQ(DecodeBase64(u"===="), u"");
}

} // namespace
} // namespace zrv
