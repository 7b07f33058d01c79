// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/player/scenario.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace zrv::player {

using namespace Qt::Literals::StringLiterals;

namespace {

class ReadScenario : public testing::Test {
protected:
    QString write(const QString &name, const QByteArray &text)
    {
        QString path = m_folder.filePath(name);
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
        return path;
    }

    std::vector<Line> read(const QByteArray &text) { return readScenario(write(u"s.scn"_s, text), u"/sitting"_s); }

    /// What reading it complains of; empty when it can be read.
    QString complaint(const QByteArray &text)
    {
        try {
            read(text);
        } catch (const ScenarioError &error) {
            return QString::fromUtf8(error.what());
        }
        return {};
    }

    QTemporaryDir m_folder;
};

} // namespace

TEST_F(ReadScenario, SkipsCommentsAndEmptyLinesAndCountsThem)
{
    const std::vector<Line> lines = read("# first\n\n  # indented\nstart\n\tclick  cmdExit \n");
    ASSERT_EQ(lines.size(), 2U);
    EXPECT_EQ(lines[0].number, 4);
    EXPECT_EQ(lines[1].number, 5);
    EXPECT_EQ(lines[1].command->word, u"click"_s);
    EXPECT_EQ(lines[1].text(0), u"cmdExit"_s);
}

TEST_F(ReadScenario, TakesMarksAndLineEndsOfEverySystem)
{
    const std::vector<Line> lines = read("\xEF\xBB\xBFstart\r\ntype txtName \"\xD8\xA7\"\r\n");
    ASSERT_EQ(lines.size(), 2U);
    EXPECT_EQ(lines[1].text(1), u"\u0627"_s);
}

TEST_F(ReadScenario, TellsFileAndLineOfAnUnknownWord)
{
    EXPECT_TRUE(complaint("start\nclick cmdExit\nclck cmdExit\n").contains(u"s.scn:3: there is no line \"clck\""_s));
}

TEST_F(ReadScenario, TellsHowALineReadsWhenWordsAreMissingOrTooMany)
{
    EXPECT_TRUE(
        complaint("start\nexpect cmdExit enabled\n").contains(u":2: this line reads: expect CONTROL PROPERTY"_s));
    EXPECT_TRUE(complaint("start\nclick cmdExit now\n").contains(u":2: "_s));
    EXPECT_TRUE(complaint("start now\n").contains(u":1: "_s));
}

TEST_F(ReadScenario, TellsTheLineOfABrokenQuote)
{
    EXPECT_TRUE(complaint("start\nkeys \"abc\n").contains(u":2: a double quote is never closed"_s));
}

TEST_F(ReadScenario, WhatPreparesTheWorldMustStandBeforeStart)
{
    for (const char *line : {"today 2010-05-24", "time 10:30:00", "display 1 1", "setting a b c"}) {
        EXPECT_EQ(complaint(line), QString());
        EXPECT_NE(complaint(QByteArray("start\n") + line), QString()) << line;
    }
}

TEST_F(ReadScenario, WhatAUserDoesMustStandBehindStart)
{
    for (const char *line : {"focus a", "type a b", "click a", "close", "expect a text b", "controls"}) {
        EXPECT_NE(complaint(line), QString()) << line;
        EXPECT_EQ(complaint(QByteArray("start\n") + line), QString());
    }
}

TEST_F(ReadScenario, StatementsAnswersAndLooksAtFilesStandAnywhere)
{
    for (const char *line : {"sql \"SELECT 1\"", "answer yes", "file cancel", "expect-sql a b", "expect-missing a"}) {
        EXPECT_EQ(complaint(line), QString()) << line;
        EXPECT_EQ(complaint(QByteArray("start\n") + line), QString()) << line;
    }
}

TEST_F(ReadScenario, AStatementWithoutQuotesIsTheRestOfTheLine)
{
    EXPECT_EQ(read("sql SELECT * FROM a WHERE b = \"c\"\n").at(0).text(0), u"SELECT * FROM a WHERE b = \"c\""_s);
    EXPECT_EQ(read("sql \"SELECT 1\"\n").at(0).text(0), u"SELECT 1"_s);
}

TEST_F(ReadScenario, PlaysTheLinesOfAnIncludedFileInItsPlace)
{
    write(u"parts/login.scn"_s, "include more.scn\nkeys b\n");
    write(u"parts/more.scn"_s, "keys a\n");
    const std::vector<Line> lines = read("start\ninclude parts/login.scn\nkeys c\n");
    ASSERT_EQ(lines.size(), 4U);
    EXPECT_EQ(lines[1].text(0), u"a"_s);
    EXPECT_EQ(lines[2].text(0), u"b"_s);
    EXPECT_EQ(lines[3].text(0), u"c"_s);
    EXPECT_TRUE(lines[1].place().endsWith(u"parts/more.scn:1"_s));
}

TEST_F(ReadScenario, AnErrorInAnIncludedFileIsToldWithThatFile)
{
    write(u"part.scn"_s, "\nnonsense\n");
    EXPECT_TRUE(complaint("start\ninclude part.scn\n").contains(u"part.scn:2: "_s));
}

TEST_F(ReadScenario, RefusesAFileThatIncludesItselfOverAnother)
{
    write(u"part.scn"_s, "include s.scn\n");
    EXPECT_TRUE(complaint("include part.scn\n").contains(u"includes itself"_s));
}

TEST_F(ReadScenario, IncludesOneFileTwice)
{
    write(u"part.scn"_s, "sql \"SELECT 1\"\n");
    EXPECT_EQ(read("include part.scn\ninclude part.scn\n").size(), 2U);
}

TEST_F(ReadScenario, RefusesAMissingFileAndOneThatIsNoText)
{
    EXPECT_THROW((void)readScenario(m_folder.filePath(u"none.scn"_s), {}), ScenarioError);
    EXPECT_TRUE(complaint("include none.scn\n").contains(u":1: there is no file"_s));
    EXPECT_TRUE(complaint("keys \"\xFF\xFE\"\n").contains(u"no UTF-8"_s));
}

TEST(Commands, NameEachLineOnceAndTellWhatItDoes)
{
    QStringList words;
    for (const Command &command : allCommands()) {
        EXPECT_FALSE(words.contains(command.word)) << command.word.toStdString();
        EXPECT_FALSE(command.help.isEmpty());
        EXPECT_EQ(findCommand(command.word), &command);
        words += command.word;
    }
}

} // namespace zrv::player
