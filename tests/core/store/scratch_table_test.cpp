// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/basic/run_time_error.h"
#include "core/store/scratch_table.h"
#include "core/store/store_file.h"
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

class LongTable : public testing::Test {
protected:
    LongTable()
    {
        for (int i = 0; i < 20'000; ++i)
            m_table.add({QString::number(i * 7919 % 20'000)});
        m_table.finish();
    }

    const QString m_all = u"SELECT * FROM Numbers"_s;
    const QString m_sorted = m_all + u" ORDER BY Number DESC"_s;
    ScratchTable m_table{u"Numbers"_s, {u"Number"_s}};
};

TEST_F(LongTable, AQueryAsksWhetherToGoOnAndCanBeStopped)
{
    int asked = 0;
    EXPECT_EQ(m_table.rows(m_sorted, [&] { return ++asked > 0; }).rowCount(), 20'000);
    EXPECT_GT(asked, 3);
    EXPECT_THROW((void)m_table.rows(m_sorted, [] { return false; }), StatementStopped);
    EXPECT_THROW((void)m_table.rows(m_sorted, []() -> bool { throw 7; }), int);
    const RowWindow rows = m_table.rows(m_sorted, [] { return true; });
    EXPECT_EQ(rows.cell(0, 0), u"9999"_s) << "one that was stopped stops no other";
}

TEST_F(LongTable, WhileItIsAskedOnlyRowsThatWereLookedAtAreThere)
{
    const RowWindow rows = m_table.rows(m_all);
    EXPECT_EQ(rows.cell(1, 0), u"7919"_s);
    QStringList seen;
    (void)m_table.rows(m_sorted, [&] {
        seen = QStringList{rows.cell(1, 0), rows.cell(19'999, 0)};
        return true;
    });
    EXPECT_EQ(seen, (QStringList{u"7919"_s, QString()}));
    EXPECT_EQ(rows.cell(19'999, 0), u"12081"_s);
}

} // namespace
} // namespace zrv
