// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/basic/run_time_error.h"
#include "core/browse_panel.h"
#include "tests/core/screens/quiet_platform.h"
#include "tests/core/store/store_fixture.h"
#include "tests/print_text.h"

namespace zrv {
namespace {

class ScreenWithPanel : public RecordScreen {
public:
    explicit ScreenWithPanel(Program &program)
        : RecordScreen(program, u"screen"_s)
    {
    }

    Frame framBrows{*this, u"framBrows"_s};
    BrowsePanel browse{*this, framBrows, u"dbgBrowser"_s};
};

class BrowsePanelTest : public testing::Test {
protected:
    QuietPlatform m_platform;
    Program m_program{m_platform};
    ScreenWithPanel m_screen{m_program};
    BrowsePanel &m_panel = m_screen.browse;
};

TEST(SearchWords, BlanksBetweenAndAroundWordsMakeNoEmptyOnes)
{
    EXPECT_EQ(searchWords(u"  a  bc   d "_s), QStringList({u"a"_s, u"bc"_s, u"d"_s}));
    EXPECT_EQ(searchWords(u"   "_s), QStringList());
    EXPECT_EQ(searchWords({}), QStringList());
}

TEST_F(BrowsePanelTest, WordsAreJoinedByOrAndWithTheTickByAnd)
{
    EXPECT_EQ(m_panel.wordCondition(u"F"_s, {u"a"_s, u"b"_s}, true), u"F LIKE '%a%' OR F LIKE '%b%'"_s);
    m_panel.chkAnd.setChecked(true);
    EXPECT_EQ(m_panel.wordCondition(u"F"_s, {u"a"_s, u"b"_s}, true), u"F LIKE '%a%' And F LIKE '%b%'"_s);
}

TEST_F(BrowsePanelTest, EqualWordsStandWithoutWildcards)
{
    EXPECT_EQ(m_panel.wordCondition(u"F"_s, {u"a"_s}, false), u"F LIKE 'a'"_s);
}

TEST_F(BrowsePanelTest, WordWithAQuoteMakesNoCondition)
{
    EXPECT_THROW((void)m_panel.wordCondition(u"F"_s, {u"a'b"_s}, true), RunTimeError);
}

TEST_F(BrowsePanelTest, SearchBarHidesAndShowsItsFourControlsAlone)
{
    const auto shown = [this](QStringView name) { return m_screen.find(name)->isVisible(); };
    for (const bool on : {false, true}) {
        ArrangeSearchBar(on, m_screen);
        for (const auto name : {u"lblSearch", u"txtSearch", u"cmdSearch", u"cmdCancel_Search"})
            EXPECT_EQ(shown(name), on);
        EXPECT_TRUE(shown(u"chkAnd"));
    }
}

TEST_F(BrowsePanelTest, ShowingTheSearchBarSwitchesSortAndNormalOn)
{
    m_panel.OptSort.setEnabled(false);
    m_panel.OptNormal.setEnabled(false);
    ArrangeSearchBar(false, m_screen);
    EXPECT_FALSE(m_panel.OptSort.isEnabled());
    ArrangeSearchBar(true, m_screen);
    EXPECT_TRUE(m_panel.OptSort.isEnabled());
    EXPECT_TRUE(m_panel.OptNormal.isEnabled());
}

class BrowsePanelRows : public StoreTest {
protected:
    BrowsePanelRows()
    {
        execute(u"DELETE FROM ZRVtbCoding"_s);
        for (const auto *amount : {"900", "1000", "20"})
            execute(u"INSERT INTO ZRVtbCoding VALUES ('1','',%1,'%1')"_s.arg(QLatin1String(amount)));
        m_program.StoreConnectionString = connectionString();
        m_screen.browse.setUp({.all = [] { return u"SELECT MCode,SDesc FROM ZRVtbCoding"_s; }, .search = nullptr},
                              {{.field = u"MCode"_s, .caption = u"list"_s, .visible = false},
                               {.field = u"SDesc"_s, .caption = u"amount"_s, .sortedBy = u"val(ZRVtbCoding.SDesc)"_s}});
        m_screen.load();
        m_screen.browse.fill();
    }

    QStringList amounts() const
    {
        QStringList cells;
        for (int row = 0; row < m_screen.browse.grid.rowCount(); ++row)
            cells += m_screen.browse.grid.shownCell(row, 1);
        return cells;
    }

    QuietPlatform m_platform;
    Program m_program{m_platform};
    ScreenWithPanel m_screen{m_program};
};

TEST_F(BrowsePanelRows, ColumnIsSortedByWhatItNames)
{
    m_screen.browse.OptSort.setChecked(true);
    ASSERT_TRUE(m_screen.userHead(m_screen.browse.grid, 1));
    EXPECT_EQ(amounts(), (QStringList{u"20"_s, u"900"_s, u"1000"_s}));
    m_screen.browse.OptSort.onDblClick();
    ASSERT_TRUE(m_screen.userHead(m_screen.browse.grid, 1));
    EXPECT_EQ(amounts(), (QStringList{u"1000"_s, u"900"_s, u"20"_s}));
}

TEST_F(BrowsePanelRows, HiddenColumnHoldsItsCellsAllTheSame)
{
    EXPECT_FALSE(m_screen.browse.grid.columns()[0].visible);
    EXPECT_TRUE(m_screen.browse.grid.columns()[1].visible);
    EXPECT_EQ(m_screen.browse.grid.currentCell(u"MCode"), u"1"_s);
}

} // namespace
} // namespace zrv
