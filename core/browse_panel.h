// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/record_screen.h"

namespace zrv {

using namespace Qt::Literals::StringLiterals;

/// A column of a browse grid: as it is shown, and the store's name for it in conditions and orders.
struct BrowseColumn {
    QString field; ///< name in the result
    QString caption;
    QString format = {};      ///< "#,##0" for money, " ##/##/## " for dates
    bool leftToRight = false; ///< codes and numbers
    QString expression = {};  ///< what the field is in a condition; empty when it is the field itself
    QString sortedBy = {};    ///< what rows are sorted by; empty when it is what the field is in a condition
    bool visible = true;
};

/// Where a failure of the grid's statements is told: in the plain box of most grids, or in the error box.
enum class FailureReport { PlainBox, ErrorBox };

/// What a screen tells its browse panel.
struct BrowseQuery {
    std::function<QString()> all;                            ///< the statement of all rows, without its order
    QString order = {};                                      ///< the grid's usual order
    std::function<QString(const QString &condition)> search; ///< the statement of a search, without its order
    QString searchOrder = {};                                ///< of the rows found; empty: the usual one
    FailureReport report = FailureReport::PlainBox;
    QString countFormat = u"0"_s; ///< picture of the number of rows
    bool keepsEntryOrder = false; ///< while OptNormal is chosen, each filling shows the order of entry
    /// Opens a statement's rows where they aren't the store's.
    std::function<std::shared_ptr<const RowSource>(const QString &select)> open = {};
};

/// The grid of a record screen with everything that acts on it: the three options with their two captions each,
/// sorting by a column's head, searching by words, and the keys that take a row to the key fields. All screens
/// with a grid have this one.
class BrowsePanel {
public:
    BrowsePanel(Screen &screen, Container &framBrows, const QString &gridName);

    // clang-format off
private:
    Screen &m_screen;
public:
    Picture PicOperation;
    OptionButton OptNormal;
    OptionButton OptSort;
    OptionButton OptSearch;
    Label lblSearch;
    TextBox txtSearch;
    CheckBox chkAnd;
    Button cmdSearch;
    Button cmdCancel_Search;
    ListBox lstWord_Seperator;
    Grid grid;
    Label LabelGridCountCaption;
    Label LabelGridCount;
    // clang-format on

    /// Called once by the screen's constructor.
    void setUp(BrowseQuery query, std::vector<BrowseColumn> columns);
    void setColumnCaptions(const std::vector<QString> &captions);

    /// Start of a screen: search bar hidden, ascending, alike.
    void reset();
    /// All rows in the usual order. Failures are told as the screen wants them.
    void fill();
    /// All rows in the order in which they were entered, as OptNormal shows them.
    void fillAsStored();
    /// Shows the rows of any statement with the panel's columns; false when there are none. The order stands apart,
    /// as a click on a column's head sorts the same rows by another.
    bool show(const QString &statement, const QString &order = {});
    /// The condition of a search for these words in a field: each word alike or equal, joined by And or Or.
    [[nodiscard]] QString wordCondition(const QString &field, const QStringList &words, bool alike) const;

    /// Searches as the sought text changes, without a word when nothing is found.
    void setAutoSearch(bool on);

    /// A double click or Enter on a row, and the Delete key on it.
    std::function<void()> onPick;
    std::function<void()> onDelete;
    /// The rows of a search are shown, or all rows again.
    std::function<void(bool areSought)> onShown;

    [[nodiscard]] bool sortAscending() const { return m_sortAscending; }
    [[nodiscard]] bool searchSimilar() const { return m_searchSimilar; }
    [[nodiscard]] int rowCount() const { return grid.rowCount(); }

private:
    void showRows(const QString &statement, const QString &order);
    void showAll(const QString &order);
    void reporting(const std::function<void()> &routine);
    void headClicked(int column);
    bool gridKey(Key key);
    bool searchKeyDown(Key key);
    void cmdSearch_Click();
    [[nodiscard]] bool search();
    void cmdCancel_Search_Click();
    [[nodiscard]] QString expressionOf(int column) const;

    BrowseQuery m_query;
    std::vector<BrowseColumn> m_columns;
    QString m_shown; ///< the statement of the rows in the grid, without their order
    int m_searchColumn = 0;
    bool m_sortAscending = true;
    bool m_searchSimilar = true;
};

/// Shows or hides the search controls of a form: lblSearch, txtSearch, cmdSearch, cmdCancel_Search. Shown, OptSort and
/// OptNormal can be used.
void ArrangeSearchBar(bool shown, Form &form);

/// The words of a text, split at its blanks, without empty ones.
[[nodiscard]] QStringList searchWords(const QString &text);

} // namespace zrv
