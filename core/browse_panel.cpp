// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/browse_panel.h"

#include "core/basic/number_format.h"
#include "core/mdlError.h"
#include "core/store/connection.h"
#include "core/store/store_file.h"
#include "core/store_rows.h"

#include <utility>

namespace zrv {

using namespace Qt::Literals::StringLiterals;

namespace {

const QString SortUp = u"مرتب(صعودي)"_s;
const QString SortDown = u"مرتب(نزولــي)"_s;
const QString SearchAlike = u"جستجو (تشابهي)"_s;
const QString SearchEqual = u"جستجو (تطـابقي)"_s;

} // namespace

BrowsePanel::BrowsePanel(Screen &screen, Container &framBrows, const QString &gridName)
    : m_screen(screen)
    , PicOperation(framBrows, u"PicOperation"_s)
    , OptNormal(
          PicOperation, u"OptNormal"_s,
          {.caption = u"عادي"_s,
           .toolTip = u"با انتخاب اين گزينه اطلاعات با همان ترتيبي که وارد سيستم گرديده اند نمايش داده خواهند شد"_s,
           .checked = true})
    , OptSort(PicOperation, u"OptSort"_s,
              {.caption = SortUp, .toolTip = u"بوسيله دابل کليک صعودي يا نزولي بودن عمليات مرتب سازي را مشخص نمائيد"_s})
    , OptSearch(PicOperation, u"OptSearch"_s,
                {.caption = SearchAlike,
                 .toolTip = u"پس از انتخاب اين گزينه ، نوع جستجوي مورد نظر را با کليک آن انتخاب نمائيد"_s})
    , lblSearch(framBrows, u"lblSearch"_s)
    , txtSearch(framBrows, u"txtSearch"_s,
                {.tag = u"+FA+DigitOnly"_s,
                 .toolTip =
                     u"لطفا متن مورد نظر جهت جستجو را وارد و سپس کليد اينتر را بفشاريد و در صورت انصراف از جستجو ، "
                     "کليد اسکيپ را بفشاريد"_s})
    , chkAnd(framBrows, u"chkAnd"_s, {.caption = u"عطف کلمات مورد جستجو"_s})
    , cmdSearch(framBrows, u"cmdSearch"_s, {.caption = u" &شروع جستجو"_s})
    , cmdCancel_Search(framBrows, u"cmdCancel_Search"_s, {.caption = u"انصراف جستجو"_s})
    , lstWord_Seperator(framBrows, u"lstWord_Seperator"_s, {.visible = false})
    , grid(framBrows, gridName)
    , LabelGridCountCaption(framBrows, u"LabelGridCountCaption"_s, {.caption = u"تعداد سطرهاي جدول :"_s})
    , LabelGridCount(framBrows, u"LabelGridCount"_s, {.leftToRight = true})
{
    OptNormal.onClick = [this] { fillAsStored(); };
    OptSort.onDblClick = [this] {
        m_sortAscending = !m_sortAscending;
        OptSort.setCaption(m_sortAscending ? SortUp : SortDown);
    };
    OptSearch.onDblClick = [this] {
        m_searchSimilar = !m_searchSimilar;
        OptSearch.setCaption(m_searchSimilar ? SearchAlike : SearchEqual);
    };
    cmdSearch.onClick = [this] { cmdSearch_Click(); };
    cmdCancel_Search.onClick = [this] { cmdCancel_Search_Click(); };
    txtSearch.onKeyDown = [this](Key key) { return searchKeyDown(key); };
    grid.onHeadClick = [this](int column) { headClicked(column); };
    grid.onKeyDown = [this](Key key) { return gridKey(key); };
    grid.onDblClick = [this] { gridKey(Key::Enter); };
}

void BrowsePanel::setUp(BrowseQuery query, std::vector<BrowseColumn> columns)
{
    m_query = std::move(query);
    m_columns = std::move(columns);
    std::vector<GridColumn> shown;
    for (const BrowseColumn &column : m_columns)
        shown.push_back({column.field, column.caption, column.format, column.leftToRight, column.visible});
    grid.setColumns(std::move(shown));
}

void BrowsePanel::setColumnCaptions(const std::vector<QString> &captions)
{
    for (size_t column = 0; column < captions.size(); ++column) {
        m_columns[column].caption = captions[column];
        grid.setColumnCaption(static_cast<int>(column), captions[column]);
    }
}

void BrowsePanel::reset()
{
    m_sortAscending = true;
    m_searchSimilar = true;
    OptSort.setCaption(SortUp);
    OptSearch.setCaption(SearchAlike);
    ArrangeSearchBar(false, m_screen);
}

void BrowsePanel::showRows(const QString &statement, const QString &order)
{
    const QString select = statement + order;
    grid.setRows(m_query.open ? m_query.open(select) : openRows(m_screen.program(), select));
    m_shown = statement;
    LabelGridCount.setCaption(Format(grid.rowCount(), m_query.countFormat));
}

/// Runs a routine of the grid; what it lets go is told in the plain box, or left to the screen's error box.
void BrowsePanel::reporting(const std::function<void()> &routine)
{
    try {
        routine();
    } catch (const RunTimeError &failure) {
        if (m_query.report == FailureReport::ErrorBox)
            throw;
        ShowInlineError(m_screen.program().platform, failure);
    } catch (const StatementStopped &) {
        // The user wouldn't wait for it: the rows stay as they are.
    }
}

void BrowsePanel::fill()
{
    const bool asEntered = m_query.keepsEntryOrder && OptNormal.isChecked();
    reporting([&] { showAll(asEntered ? QString() : m_query.order); });
}

void BrowsePanel::fillAsStored()
{
    reporting([this] { showAll({}); });
}

void BrowsePanel::showAll(const QString &order)
{
    showRows(m_query.all(), order);
    if (onShown)
        onShown(false);
}

bool BrowsePanel::show(const QString &statement, const QString &order)
{
    showRows(statement, order);
    return grid.rowCount() > 0;
}

QString BrowsePanel::expressionOf(int column) const
{
    const BrowseColumn &chosen = m_columns.at(static_cast<size_t>(column));
    return chosen.expression.isEmpty() ? chosen.field : chosen.expression;
}

void BrowsePanel::headClicked(int column)
{
    if (OptSort.isChecked()) {
        const QString &sortedBy = m_columns[static_cast<size_t>(column)].sortedBy;
        reporting([&] {
            showRows(m_shown.isEmpty() ? m_query.all() : m_shown,
                     u" ORDER BY "_s + (sortedBy.isEmpty() ? expressionOf(column) : sortedBy)
                         + (m_sortAscending ? u" ASC"_s : u" DESC"_s));
        });
    } else if (OptSearch.isChecked()) {
        m_searchColumn = column;
        lblSearch.setCaption(m_columns[static_cast<size_t>(column)].caption + u":"_s);
        ArrangeSearchBar(true, m_screen);
        txtSearch.setFocus();
    }
}

bool BrowsePanel::gridKey(Key key)
{
    const auto &act = key == Key::Enter ? onPick : onDelete;
    if ((key != Key::Enter && key != Key::Delete) || !act)
        return false;
    if (grid.currentRow() >= 0)
        act();
    return true;
}

bool BrowsePanel::searchKeyDown(Key key)
{
    if (key == Key::Enter)
        cmdSearch_Click();
    else if (key == Key::Escape)
        cmdCancel_Search_Click();
    else
        return false;
    return true;
}

QString BrowsePanel::wordCondition(const QString &field, const QStringList &words, bool alike) const
{
    QString condition;
    for (const QString &word : words) {
        if (!condition.isEmpty())
            condition += chkAnd.isChecked() ? u" And "_s : u" OR "_s;
        condition += field + u" LIKE "_s + quoted(alike ? QString(u'%' + word + u'%') : word);
    }
    return condition;
}

/// False when the sought words are in no row. Without words all rows are shown.
bool BrowsePanel::search()
{
    const QStringList words = searchWords(txtSearch.text());
    lstWord_Seperator.clear();
    for (const QString &word : words)
        lstWord_Seperator.addItem({word, {}});
    if (words.isEmpty()) {
        fill();
        return true;
    }
    const bool isFound = show(m_query.search(wordCondition(expressionOf(m_searchColumn), words, m_searchSimilar)),
                              m_query.searchOrder.isEmpty() ? m_query.order : m_query.searchOrder);
    if (onShown)
        onShown(true);
    return isFound;
}

void BrowsePanel::cmdSearch_Click()
{
    ArrangeSearchBar(true, m_screen);
    reporting([this] {
        if (!search())
            m_screen.program().platform.messageBox(box::Notice, u"  توجه"_s, u".چنين رکوردي وجود ندارد"_s);
    });
}

void BrowsePanel::setAutoSearch(bool on)
{
    txtSearch.onChange = on ? [this] { reporting([this] { (void)search(); }); } : std::function<void()>();
}

void BrowsePanel::cmdCancel_Search_Click()
{
    ArrangeSearchBar(false, m_screen);
    PicOperation.setEnabled(true);
    // Where the bar had the focus it has gone with it; the rows are what the user looks at next.
    const Control *const active = m_screen.activeControl();
    if (!active || !active->isReachable())
        grid.setFocus();
    fill();
}

void ArrangeSearchBar(bool shown, Form &form)
{
    for (const auto name : {u"lblSearch", u"txtSearch", u"cmdSearch", u"cmdCancel_Search"})
        if (Control *const control = form.find(name))
            control->setVisible(shown);
    if (!shown)
        return;
    for (const auto name : {u"OptSort", u"OptNormal"})
        if (Control *const option = form.find(name))
            option->setEnabled(true);
}

QStringList searchWords(const QString &text)
{
    return text.split(u' ', Qt::SkipEmptyParts);
}

} // namespace zrv
