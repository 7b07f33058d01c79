// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/tools/tool_fixture.h"
#include "tools/zrvstore/findings.h"

namespace zrv::storetool {
namespace {

TEST(Findings, ShowsTheFirstOfEachKindAndCountsTheRest)
{
    QStringList lines;
    Findings findings([&](const QString &line) { lines.append(line); }, 2);
    for (int i = 0; i < 5; ++i)
        findings.add(finding::Form, u"T [k] C"_s, QString::number(i));
    findings.add(finding::Empty, u"T [k] C"_s, u"is empty"_s);
    EXPECT_EQ(findings.finish(), 6);
    EXPECT_EQ(lines, (QStringList{u"T [k] C: 0 [form]"_s, u"T [k] C: 1 [form]"_s, u"T [k] C: is empty [empty]"_s,
                                  u"and 3 more [form]"_s}));
}

TEST(Findings, ZeroShowsThemAll)
{
    QStringList lines;
    Findings findings([&](const QString &line) { lines.append(line); }, 0);
    for (int i = 0; i < 100; ++i)
        findings.add(finding::Form, u"T"_s, u"x"_s);
    EXPECT_EQ(findings.finish(), 100);
    EXPECT_EQ(lines.size(), 100);
}

TEST(Findings, NotesAreShownAndNotCounted)
{
    QStringList lines;
    Findings findings([&](const QString &line) { lines.append(line); }, 1);
    findings.note(finding::OtherClass, u"T"_s, u"x"_s);
    findings.note(finding::OtherClass, u"T"_s, u"y"_s);
    EXPECT_EQ(findings.finish(), 0);
    EXPECT_EQ(lines, (QStringList{u"note T: x [other-class]"_s, u"and 1 more [note other-class]"_s}));
}

TEST(Findings, AValueCannotBreakItsLineOrMoveTheCursor)
{
    EXPECT_EQ(shown("a\nb\x1b[2J"), u"\"a?b?[2J\""_s);
    EXPECT_EQ(shown(std::string(60, 'x')), QString(u'"' + QString(40, u'x') + u"…\""_s));
    EXPECT_EQ(shown("کد"), u"\"کد\""_s);
}

} // namespace
} // namespace zrv::storetool
