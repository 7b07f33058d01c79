// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/frmEnterance_Door.h"
#include "tests/core/screens/quiet_platform.h"
#include "tests/print_text.h"
#include "upkeep/frmVersionsFacilities.h"
#include "upkeep/version_history.h"

#include <gtest/gtest.h>

namespace zrv {
namespace {

class VersionsFacilities : public testing::Test {
protected:
    QuietPlatform platform;
    Program program{platform};
};

TEST_F(VersionsFacilities, LastHeaderIsTheVersionOfTheProgram)
{
    frmEnterance_Door login(program);
    login.load();
    EXPECT_EQ(versionHistory().back().header.toString(), program.ProgramVersion);
}

TEST_F(VersionsFacilities, EachVersionHasItsNumberOfLines)
{
    std::vector<size_t> lines;
    for (const VersionChanges &version : versionHistory())
        lines.push_back(version.lines.size());
    EXPECT_EQ(lines, (std::vector<size_t>{1, 3, 5, 17, 10, 15}));
}

TEST_F(VersionsFacilities, ChosenVersionReplacesTheLinesOfTheOneBefore)
{
    frmVersionsFacilities screen(program);
    screen.load();
    for (int row = 0; row < 6; ++row) {
        ASSERT_TRUE(screen.userChoose(screen.cmbVersionsList, row));
        QString expected;
        for (const QStringView line : versionHistory()[static_cast<size_t>(row)].lines)
            expected += line + u"\r\n"_s;
        EXPECT_EQ(screen.txtLog.text(), expected);
    }
}

// The store's letters are those of the code page; a letter of another keyboard in the program's own texts would be
// drawn alike and found by nobody.
TEST_F(VersionsFacilities, LinesAreWrittenWithTheLettersOfTheProgram)
{
    for (const VersionChanges &version : versionHistory())
        for (const QStringView line : version.lines)
            for (const char16_t foreign : u"\u06CC\u0643\u200C")
                EXPECT_FALSE(foreign && line.contains(foreign)) << line.toUtf8().constData();
}

} // namespace
} // namespace zrv
