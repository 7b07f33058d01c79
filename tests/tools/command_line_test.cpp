// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/tools/tool_fixture.h"
#include "tools/zrvstore/command_line.h"

namespace zrv::storetool {
namespace {

QString refusal(const QStringList &words)
{
    return refusalOf([&] { (void)readCommandLine(words); });
}

TEST(CommandLine, EachCommandHasItsDefaults)
{
    const Request create = readCommandLine({u"create"_s, u"D"_s});
    EXPECT_EQ(create.command, Command::Create);
    EXPECT_EQ(create.folder, u"D"_s);
    EXPECT_EQ(create.user.name, u"ADMIN"_s);
    EXPECT_EQ(create.user.password, u"ADMIN"_s);

    const Request sample = readCommandLine({u"sample"_s, u"D"_s});
    EXPECT_EQ(sample.command, Command::Sample);
    EXPECT_EQ(sample.plan.payees, 12);
    EXPECT_EQ(sample.plan.months, 3);
    EXPECT_EQ(sample.plan.year, 1389);
    EXPECT_EQ(sample.plan.rng, 1u);

    EXPECT_FALSE(readCommandLine({u"verify"_s, u"D"_s}).all);
    const Request backup = readCommandLine({u"backup"_s, u"D"_s, u"F"_s});
    EXPECT_EQ(backup.file, u"F"_s);
    EXPECT_FALSE(backup.force);
}

TEST(CommandLine, OptionsStandAnywhereWithTheirValueBehindThemOrAfterAnEqualsSign)
{
    const Request request = readCommandLine({u"sample"_s, u"--payees"_s, u"1000000"_s, u"D"_s, u"--months=12"_s,
                                             u"--year"_s, u"1499"_s, u"--rng=18446744073709551615"_s});
    EXPECT_EQ(request.folder, u"D"_s);
    EXPECT_EQ(request.plan.payees, 1'000'000);
    EXPECT_EQ(request.plan.months, 12);
    EXPECT_EQ(request.plan.year, 1499);
    EXPECT_EQ(request.plan.rng, ~quint64(0));
    EXPECT_TRUE(readCommandLine({u"verify"_s, u"--all"_s, u"D"_s}).all);
    EXPECT_TRUE(readCommandLine({u"backup"_s, u"D"_s, u"F"_s, u"--force"_s}).force);
}

TEST(CommandLine, NamesAndPasswordsAreKeptInCapitals)
{
    const Request request = readCommandLine({u"create"_s, u"D"_s, u"--user"_s, u"maryam7"_s, u"--password=aB3"_s});
    EXPECT_EQ(request.user.name, u"MARYAM7"_s);
    EXPECT_EQ(request.user.password, u"AB3"_s);
}

TEST(CommandLine, NamesAndPasswordsThatTheLoginCannotTypeAreRefused)
{
    for (const QString &word : {u""_s, u"ABCDEFGHIJK"_s, u"A B"_s, u"O'NEIL"_s, u"علي"_s, u"A_B"_s, u"\u0661"_s}) {
        EXPECT_EQ(refusal({u"create"_s, u"D"_s, u"--user"_s, word}),
                  u"--user takes 1 to 10 Latin letters and digits"_s);
        EXPECT_EQ(refusal({u"create"_s, u"D"_s, u"--password"_s, word}),
                  u"--password takes 1 to 10 Latin letters and digits"_s);
    }
    EXPECT_EQ(readCommandLine({u"create"_s, u"D"_s, u"--user"_s, u"ABCDEFGHIJ"_s}).user.name.size(), 10);
}

TEST(CommandLine, NumbersOutOfTheirRangeAreRefusedWithTheRange)
{
    const QString payees = u"--payees takes a number from 1 to 1000000"_s;
    EXPECT_EQ(refusal({u"sample"_s, u"D"_s, u"--payees"_s, u"0"_s}), payees);
    EXPECT_EQ(refusal({u"sample"_s, u"D"_s, u"--payees"_s, u"1000001"_s}), payees);
    EXPECT_EQ(refusal({u"sample"_s, u"D"_s, u"--months"_s, u"13"_s}), u"--months takes a number from 1 to 12"_s);
    EXPECT_EQ(refusal({u"sample"_s, u"D"_s, u"--year"_s, u"89"_s}), u"--year takes a number from 1300 to 1499"_s);
    for (const QString &text :
         {u"-1"_s, u"+3"_s, u" 3"_s, u"3.0"_s, u"0x3"_s, u"۳"_s, u""_s, u"18446744073709551616"_s})
        EXPECT_TRUE(refusal({u"sample"_s, u"D"_s, u"--rng"_s, text}).startsWith(u"--rng takes a number"_s))
            << text.toStdString();
}

TEST(CommandLine, WhatNoCommandKnowsIsRefusedByName)
{
    EXPECT_EQ(refusal({}), u"no command; zrvstore --help names them"_s);
    EXPECT_EQ(refusal({u"destroy"_s}), u"there is no command 'destroy'; zrvstore --help names them"_s);
    EXPECT_EQ(refusal({u"verify"_s, u"D"_s, u"--force"_s}),
              u"this command has no option '--force'; zrvstore --help names them"_s);
    EXPECT_EQ(refusal({u"create"_s, u"D"_s, u"--user"_s}), u"--user needs a value"_s);
    EXPECT_EQ(refusal({u"verify"_s, u"D"_s, u"--all=yes"_s}), u"--all takes no value"_s);
    EXPECT_EQ(refusal({u"create"_s}), u"usage: zrvstore create DIR [--user U] [--password P]"_s);
    EXPECT_EQ(refusal({u"verify"_s, u"D"_s, u"E"_s}), u"usage: zrvstore verify DIR [--all]"_s);
    EXPECT_EQ(refusal({u"backup"_s, u"D"_s}), u"usage: zrvstore backup DIR FILE [--force]"_s);
    EXPECT_EQ(refusal({u"create"_s, u""_s}), u"usage: zrvstore create DIR [--user U] [--password P]"_s);
}

TEST(CommandLine, TheProgramRefusesInOneLineAndLeavesWithTwo)
{
    const Outcome outcome = zrvstore({u"destroy"_s});
    EXPECT_EQ(outcome.exitCode, 2);
    EXPECT_EQ(outcome.out, QString());
    EXPECT_EQ(outcome.err, u"zrvstore: there is no command 'destroy'; zrvstore --help names them\n"_s);
}

TEST(CommandLine, HelpNamesEveryCommandOptionAndExitCode)
{
    const Outcome outcome = zrvstore({u"--help"_s});
    EXPECT_EQ(outcome.exitCode, 0);
    for (const QString &words :
         {u"create DIR [--user U] [--password P]"_s, u"sample DIR [--payees N] [--months M] [--year Y] [--rng K]"_s,
          u"verify DIR [--all]"_s, u"backup DIR FILE [--force]"_s, u"--version"_s, u"exit     0 "_s, u"         1 "_s,
          u"         2 "_s})
        EXPECT_TRUE(outcome.out.contains(words)) << words.toStdString();
    EXPECT_EQ(zrvstore({u"sample"_s, u"--help"_s}).out, outcome.out);
}

TEST(CommandLine, VersionIsTheProgramsOwn)
{
    EXPECT_EQ(zrvstore({u"--version"_s}).out, u"zrvstore 1.1.38\n"_s);
}

TEST(CommandLine, WhatCanNotBeWrittenIsToldAndNoSuccess)
{
    const Outcome outcome = zrvstore({u"--help"_s}, u"/dev/full"_s);
    EXPECT_EQ(outcome.exitCode, 2);
    EXPECT_EQ(outcome.err, u"zrvstore: can't write: the disk is full, or nobody reads any more\n"_s);
}

} // namespace
} // namespace zrv::storetool
