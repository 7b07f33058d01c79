// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/basic/ansi.h"
#include "core/basic/keyboard_letters.h"
#include "core/basic/letter_fold.h"
#include "core/basic/text.h"
#include "tests/print_text.h"

#include <QStringDecoder>

#include <gtest/gtest.h>

namespace zrv {
namespace {

TEST(Ansi, AgreesWithTheLibrarysCodePageWhereItHasOne)
{
    QStringDecoder decoder("windows-1256");
    if (!decoder.isValid())
        GTEST_SKIP() << "this Qt was built without the code page";
    for (int code = 0; code <= 0xFF; ++code) {
        const QString letter = decoder.decode(QByteArray(1, char(code)));
        ASSERT_EQ(letter.size(), 1) << code;
        EXPECT_EQ(ansiLetter(code), letter.front()) << code;
    }
}

TEST(Ansi, EveryCodeHasALetterOfItsOwn)
{
    for (int code = 0; code <= 0xFF; ++code)
        EXPECT_EQ(ansiCode(ansiLetter(code)), code);
}

TEST(Ansi, KnowsThePersianLettersByTheirCodes)
{
    EXPECT_EQ(ansiCode(u'\u067E'), 129); // peh
    EXPECT_EQ(ansiCode(u'\u0686'), 141); // cheh
    EXPECT_EQ(ansiCode(u'\u0698'), 142); // jeh
    EXPECT_EQ(ansiCode(u'\u06AF'), 144); // gaf
    EXPECT_EQ(ansiCode(u'\u06A9'), 152); // keheh
    EXPECT_EQ(ansiCode(u'\u0643'), 223); // kaf
    EXPECT_EQ(ansiCode(u'\u064A'), 237); // Arabic yeh
    EXPECT_EQ(ansiCode(u'\u200C'), 157); // zero-width non-joiner
    EXPECT_EQ(ansiCode(u'\u20AC'), 128);
    EXPECT_EQ(ansiCode(u'\u06D2'), 255);
}

TEST(Ansi, HasNoCodeForLettersOutsideTheCodePage)
{
    for (const char16_t letter :
         {u'\u06CC', u'\u06F1', u'\u0661', u'\u0080', u'\u00C0', u'\u2603', char16_t(0xD83D), u'\uFFFF'})
        EXPECT_EQ(ansiCode(letter), -1) << int(letter);
}

TEST(KeyboardLetter, TurnsDigitsOfAnyScriptIntoZeroToNine)
{
    for (const char16_t zero : {u'0', u'\u0660', u'\u06F0', u'\u0966', u'\uFF10'}) {
        for (int digit = 0; digit <= 9; ++digit)
            EXPECT_EQ(keyboardLetter(QChar(char16_t(zero + digit))), QChar(char16_t(u'0' + digit)));
    }
}

TEST(KeyboardLetter, LeavesSuperscriptsAndCircledDigitsAlone)
{
    for (const char16_t letter : {u'\u00B2', u'\u2460', u'\u00BD'})
        EXPECT_EQ(keyboardLetter(letter), QChar(letter));
}

TEST(KeyboardLetter, TurnsTheFarsiYehIntoTheArabicOne)
{
    EXPECT_EQ(keyboardLetter(u'\u06CC'), QChar(u'\u064A'));
}

TEST(KeyboardLetter, KeepsKehehKafAndAlefMaksuraAsTheCodePageHasThemAll)
{
    for (const char16_t letter : {u'\u06A9', u'\u0643', u'\u0649', u'\u064A'}) {
        EXPECT_EQ(keyboardLetter(letter), QChar(letter));
        EXPECT_NE(ansiCode(keyboardLetter(letter)), -1);
    }
}

TEST(KeyboardLetter, TurnsAPresentationFormIntoItsLetter)
{
    EXPECT_EQ(keyboardLetter(u'\uFE91'), QChar(u'\u0628')); // initial beh
    EXPECT_EQ(keyboardLetter(u'\uFB58'), QChar(u'\u067E')); // initial peh
    EXPECT_EQ(keyboardLetter(u'\uFBFF'), QChar(u'\u064A')); // medial Farsi yeh
}

TEST(KeyboardLetter, KeepsALigatureOfSeveralLetters)
{
    EXPECT_EQ(keyboardLetter(u'\uFEFB'), QChar(u'\uFEFB')); // lam with alef
}

TEST(KeyboardLetter, KeepsEveryLetterOfTheCodePage)
{
    for (int code = 0; code <= 0xFF; ++code)
        EXPECT_EQ(keyboardLetter(ansiLetter(code)), ansiLetter(code)) << code;
}

TEST(SearchKey, FindsAWordWhicheverYehItIsWrittenWith)
{
    EXPECT_EQ(searchKey(u"عل\u06CC"), searchKey(u"عل\u064A"));
    EXPECT_EQ(searchKey(u"عل\u0649"), searchKey(u"عل\u064A"));
}

TEST(SearchKey, FindsAWordWhicheverKafItIsWrittenWith)
{
    EXPECT_EQ(searchKey(u"ا\u0643بر"), searchKey(u"ا\u06A9بر"));
}

TEST(SearchKey, PassesOverZeroWidthNonJoiners)
{
    EXPECT_EQ(searchKey(u"م\u064A\u200Cرود"), u"م\u064Aرود");
    EXPECT_EQ(searchKey(u"\u200C"), u"");
}

TEST(SearchKey, DisregardsCase)
{
    EXPECT_EQ(searchKey(u"Ab12"), u"ab12");
}

TEST(SearchKey, KeepsOtherLettersBlanksAndWildcards)
{
    EXPECT_EQ(searchKey(u" %_ بپ\u0626 "), u" %_ بپ\u0626 ");
    EXPECT_NE(searchKey(u"علي"), searchKey(u"عل"));
}

TEST(Trim, TakesAwayBlanksAndNothingElse)
{
    EXPECT_EQ(Trim(u"  a b  "), u"a b");
    EXPECT_EQ(Trim(u"   "), u"");
    EXPECT_EQ(Trim(u""), u"");
    EXPECT_EQ(Trim(u" \ta\u00A0 "), u"\ta\u00A0");
}

} // namespace
} // namespace zrv
