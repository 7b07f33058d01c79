// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/player/word.h"

#include <gtest/gtest.h>

namespace zrv::player {

using namespace Qt::Literals::StringLiterals;

namespace {

QStringList texts(const QString &line)
{
    QStringList all;
    for (const Word &word : splitWords(line, u"/sitting"_s))
        all += word.text();
    return all;
}

Word only(const QString &line)
{
    return splitWords(line, u"/sitting"_s).at(0);
}

} // namespace

TEST(SplitWords, SplitsAtBlanksAndTabsAndNeverGivesAnEmptyWord)
{
    EXPECT_EQ(texts(u"  a  b\tc  "_s), QStringList({u"a"_s, u"b"_s, u"c"_s}));
    EXPECT_EQ(texts(u""_s), QStringList());
}

TEST(SplitWords, AWordInDoubleQuotesKeepsItsBlanksAndMayBeEmpty)
{
    EXPECT_EQ(texts(u"a \" b  c \" \"\""_s), QStringList({u"a"_s, u" b  c "_s, u""_s}));
}

TEST(SplitWords, ReadsTheEscapesInsideQuotes)
{
    EXPECT_EQ(texts(uR"("\"\\\n\r\t\u06A9\u200c")"_s), QStringList(u"\"\\\n\r\t\u06A9\u200C"_s));
}

TEST(SplitWords, EscapesMeanNothingOutsideQuotes)
{
    EXPECT_EQ(texts(uR"(ERSAL\new)"_s), QStringList(uR"(ERSAL\new)"_s));
}

TEST(SplitWords, TheFolderStandsForItselfInAnyWord)
{
    EXPECT_EQ(texts(u"${folder}/a \"in ${folder} b\""_s), QStringList({u"/sitting/a"_s, u"in /sitting b"_s}));
}

TEST(SplitWords, RefusesAQuoteThatIsNeverClosed)
{
    EXPECT_THROW(texts(u"a \"b"_s), ScenarioError);
    EXPECT_THROW(texts(u"\"b\\"_s), ScenarioError);
}

TEST(SplitWords, RefusesLettersBehindAClosingQuote)
{
    EXPECT_THROW(texts(u"\"a\"b"_s), ScenarioError);
}

TEST(SplitWords, RefusesUnknownEscapesAndCutCodes)
{
    EXPECT_THROW(texts(u"\"\\x\""_s), ScenarioError);
    EXPECT_THROW(texts(u"\"\\u06A\""_s), ScenarioError);
    EXPECT_THROW(texts(u"\"\\u06"_s), ScenarioError);
    EXPECT_THROW(texts(u"\"\\u06-1\""_s), ScenarioError);
}

TEST(WordPattern, WithoutPerCentSignOnlyTheSameTextMatches)
{
    EXPECT_TRUE(only(u"abc"_s).matches(u"abc"));
    EXPECT_FALSE(only(u"abc"_s).matches(u"abcd"));
    EXPECT_FALSE(only(u"abc"_s).matches(u"ABC"));
}

TEST(WordPattern, APerCentSignStandsForAnyRunOfCharacters)
{
    EXPECT_TRUE(only(u"%"_s).matches(u""));
    EXPECT_TRUE(only(u"a%c"_s).matches(u"ac"));
    EXPECT_TRUE(only(u"a%c"_s).matches(u"a\nb\rc"));
    EXPECT_TRUE(only(u"%b%"_s).matches(u"abc"));
    EXPECT_TRUE(only(u"a%b%c"_s).matches(u"a1b2b3c"));
    EXPECT_FALSE(only(u"a%c"_s).matches(u"acd"));
    EXPECT_FALSE(only(u"%b%"_s).matches(u"ac"));
}

TEST(WordPattern, WhatStandsBeforeAndBehindAWildcardMayNotOverlap)
{
    EXPECT_FALSE(only(u"aba%aba"_s).matches(u"aba"));
    EXPECT_FALSE(only(u"ab%b%b"_s).matches(u"abb"));
    EXPECT_TRUE(only(u"ab%b%b"_s).matches(u"abbb"));
}

TEST(WordPattern, AnEscapedPerCentSignIsOne)
{
    EXPECT_TRUE(only(u"\"20\\%\""_s).matches(u"20%"));
    EXPECT_FALSE(only(u"\"20\\%\""_s).matches(u"20 years"));
    EXPECT_TRUE(only(u"20\\%"_s).matches(u"20%"));
}

TEST(WordPattern, AnEscapedBackslashBeforeAPerCentSignLeavesItAWildcard)
{
    EXPECT_TRUE(only(uR"("C:\\%")"_s).matches(uR"(C:\folder)"));
    EXPECT_FALSE(only(uR"("C:\\%")"_s).matches(u"C:%"));
}

TEST(WordPattern, APerCentSignInTheFolderIsNoWildcard)
{
    const Word word = splitWords(u"${folder}/a", u"/50%/x"_s).at(0);
    EXPECT_TRUE(word.matches(u"/50%/x/a"));
    EXPECT_FALSE(word.matches(u"/50y/x/a"));
}

TEST(WordPattern, KeepsItsTextForLinesThatMatchNothing)
{
    EXPECT_EQ(only(u"\"a % b \\% c\""_s).text(), u"a % b % c"_s);
}

TEST(WordPattern, LineEndsCanBeMadeAlike)
{
    EXPECT_TRUE(only(u"\"a\\r\\nb%\\rc\""_s).withPlainLineEnds().matches(u"a\nb\nc"));
}

TEST(QuotedWord, IsReadBackAsTheSameText)
{
    for (const QString &text : {u"plain"_s, u""_s, u"\"q\" \\ "_s, u"a\r\nb\tc\x01"_s, u"خطا \u2028 \u200C"_s})
        EXPECT_EQ(texts(quotedWord(text)), QStringList(text)) << text.toStdString();
}

TEST(QuotedWord, StaysOnOneLine)
{
    EXPECT_EQ(quotedWord(u"a\r\nb\"\\"_s), uR"("a\r\nb\"\\")"_s);
    EXPECT_EQ(quotedWord(u"\u2029\x07"_s), uR"("\u2029\u0007")"_s);
}

} // namespace zrv::player
