// SPDX-License-Identifier: GPL-3.0-or-later
// The payee search as a picker: the viewer's ways are played as scenarios.
#include "parties/frmSrcKarkonan.h"
#include "tests/core/screens/quiet_platform.h"
#include "tests/core/store/store_fixture.h"
#include "tests/print_text.h"

namespace zrv {
namespace {

class PayeePicker : public StoreTest {
protected:
    PayeePicker()
    {
        program.StoreConnectionString = connectionString();
        for (const auto *code : {"0012345679", "1234567891"})
            execute(u"INSERT INTO ZRVtbKarkonan (TFN,MelliCode) VALUES ('1','"_s + QLatin1String(code) + u"')"_s);
        program.SearchCallerName = u"frmHogog"_s;
        program.SelectedMelliCode = u"before"_s;
        screen.load();
        screen.activate();
    }

    QuietPlatform platform;
    Program program{platform};
    frmSrcKarkonan screen{program};
};

TEST_F(PayeePicker, DoubleClickHandsTheRowsCodeBackAndCloses)
{
    screen.userRow(screen.browse.grid, 1, 0);
    screen.userDblClick(screen.browse.grid);
    EXPECT_EQ(program.SelectedMelliCode, u"1234567891"_s);
    EXPECT_FALSE(screen.isOpen());
}

TEST_F(PayeePicker, EnterInTheGridHandsTheRowsCodeBackAndCloses)
{
    screen.userFocus(screen.browse.grid);
    screen.userKey(Key::Enter);
    EXPECT_EQ(program.SelectedMelliCode, u"0012345679"_s);
    EXPECT_FALSE(screen.isOpen());
}

TEST_F(PayeePicker, ClosingWithoutAChoiceLeavesTheLastCode)
{
    screen.userClick(screen.cmdExit);
    EXPECT_EQ(program.SelectedMelliCode, u"before"_s);
    EXPECT_FALSE(screen.isOpen());
}

TEST_F(PayeePicker, ListWithoutRowsPicksNothing)
{
    screen.userFocus(screen.txtName);
    screen.userLetter(u'x');
    ASSERT_EQ(screen.browse.rowCount(), 0);
    screen.userFocus(screen.browse.grid);
    screen.userKey(Key::Enter);
    screen.userDblClick(screen.browse.grid);
    EXPECT_EQ(program.SelectedMelliCode, u"before"_s);
    EXPECT_TRUE(screen.isOpen());
}

TEST_F(PayeePicker, WithoutACallerNothingIsPicked)
{
    program.SearchCallerName.clear();
    screen.userDblClick(screen.browse.grid);
    EXPECT_EQ(program.SelectedMelliCode, u"before"_s);
    EXPECT_TRUE(screen.isOpen());
}

} // namespace
} // namespace zrv
