// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/core/forms/test_form.h"

#include <gtest/gtest.h>

namespace zrv {
namespace {

struct Squares : RowSource {
    mutable int made = 0;
    [[nodiscard]] int rowCount() const override { return 100000; }
    [[nodiscard]] QString cell(int row, int column) const override
    {
        ++made;
        return QString::number(column == 0 ? row : qint64(row) * row);
    }
};

struct GridForm : TestForm {
    Grid grid{*this, u"dbgRows"_s};
    std::shared_ptr<Squares> squares = std::make_shared<Squares>();

    GridForm()
    {
        grid.setColumns({{u"N"_s, u"عدد"_s}, {u"Square"_s, u"مربع"_s, u"#,##0"_s}});
        grid.setRows(squares);
        load();
        activate();
    }
};

TEST(Grid, MakesNoCellBeforeItIsLookedAt)
{
    GridForm form;
    EXPECT_EQ(form.squares->made, 0);
    EXPECT_EQ(form.grid.rowCount(), 100000);
}

TEST(Grid, ShowsACellThroughItsColumnsPicture)
{
    GridForm form;
    EXPECT_EQ(form.grid.cell(1000, 1), u"1000000"_s);
    EXPECT_EQ(form.grid.shownCell(1000, 1), u"1,000,000"_s);
    EXPECT_EQ(form.grid.shownCell(1000, 0), u"1000"_s);
}

TEST(Grid, FirstRowIsCurrentAndArrowsMoveWithinTheRows)
{
    GridForm form;
    int moves = 0;
    form.grid.onRowColChange = [&] { ++moves; };
    form.userFocus(form.grid);
    EXPECT_EQ(form.grid.currentRow(), 0);
    form.userKey(Key::Up);
    EXPECT_EQ(form.grid.currentRow(), 0);
    form.userKey(Key::Down);
    EXPECT_EQ(form.grid.currentRow(), 1);
    EXPECT_EQ(moves, 1);
}

TEST(Grid, SidewaysArrowsStepThroughTheShownColumnsFromRightToLeftAndWrapRound)
{
    GridForm form;
    form.grid.setColumns({{u"N"_s, u"N"_s}, {u"Hidden"_s, {}, {}, false, false}, {u"Square"_s, u"Square"_s}});
    form.userRow(form.grid, 3, 0);
    form.userKey(Key::Left);
    EXPECT_EQ(form.grid.currentColumn(), 2) << "a hidden column is stepped over";
    form.userKey(Key::Left);
    EXPECT_EQ(form.grid.currentColumn(), 0);
    form.userKey(Key::Right);
    EXPECT_EQ(form.grid.currentColumn(), 2);
    EXPECT_EQ(form.grid.currentRow(), 3);
}

TEST(Grid, CurrentCellIsFoundByItsField)
{
    GridForm form;
    form.userRow(form.grid, 12, 0);
    EXPECT_EQ(form.grid.currentCell(u"square"), u"144"_s);
    EXPECT_EQ(form.grid.currentCell(u"nothing"), QString());
}

TEST(Grid, WithoutRowsNothingIsCurrent)
{
    struct : GridForm {
        Grid empty{*this, u"dbgEmpty"_s};
    } form;
    EXPECT_EQ(form.empty.currentRow(), -1);
    EXPECT_EQ(form.empty.currentCell(u"N"), QString());
}

} // namespace
} // namespace zrv
