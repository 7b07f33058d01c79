// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/basic/run_time_error.h"
#include "core/browse_panel.h"
#include "tests/core/screens/quiet_platform.h"
#include "tests/print_text.h"

#include <gtest/gtest.h>

namespace zrv {
namespace {

using namespace Qt::Literals::StringLiterals;

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

} // namespace
} // namespace zrv
