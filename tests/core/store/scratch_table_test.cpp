// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/basic/run_time_error.h"
#include "core/store/scratch_table.h"
#include "tests/print_text.h"

#include <gtest/gtest.h>

namespace zrv {
namespace {

using namespace Qt::Literals::StringLiterals;

TEST(ScratchTable, ItsRowsAreReadByStatementsOfTheStore)
{
    ScratchTable table(u"People"_s, {u"Name"_s, u"Family"_s});
    table.add({u"علي"_s, u"كريمي"_s});
    table.add({u"مريم"_s, u"آذري"_s});
    table.add({u"رضا"_s, QString()});
    table.finish();
    const RowWindow all = table.rows(u"SELECT * FROM People"_s);
    ASSERT_EQ(all.rowCount(), 3);
    EXPECT_EQ(all.cell(1, 0), u"مريم"_s);
    EXPECT_EQ(all.cell(2, 1), QString());
    const RowWindow sought = table.rows(u"SELECT * FROM People WHERE Family LIKE '%کريم%' OR Family LIKE 'آذري'"_s
                                        + u" ORDER BY Family ASC"_s);
    ASSERT_EQ(sought.rowCount(), 2);
    EXPECT_EQ(sought.cell(0, 0), u"مريم"_s);
    EXPECT_EQ(sought.cell(1, 0), u"علي"_s);
    EXPECT_THROW((void)table.rows(u"SELECT * FROM Places"_s), RunTimeError);
}

TEST(ScratchTable, ItsRowsOutliveIt)
{
    std::unique_ptr<RowWindow> rows;
    {
        ScratchTable table(u"Numbers"_s, {u"Number"_s});
        for (int i = 0; i < 1000; ++i)
            table.add({QString::number(i)});
        table.finish();
        rows = std::make_unique<RowWindow>(table.rows(u"SELECT * FROM Numbers"_s));
    }
    EXPECT_EQ(rows->cell(999, 0), u"999"_s);
    EXPECT_EQ(rows->cell(0, 0), u"0"_s);
}

} // namespace
} // namespace zrv
