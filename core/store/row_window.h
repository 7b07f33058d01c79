// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/store/connection.h"

#include <QStringList>

#include <functional>
#include <list>
#include <vector>

namespace zrv {

/// The rows of one SELECT by their number, for a grid of any length: only the order of the rows is kept, and the
/// rows themselves are read, a page at a time, when one of their cells is asked for. A row that was deleted
/// meanwhile gives empty cells. A query whose results combine rows (DISTINCT, GROUP BY, sums) is held whole.
class RowWindow {
public:
    /// Runs the query once. Raises the store's errors.
    RowWindow(QString connectionString, const QString &select);
    /// The same over a file that stays open as long as its rows are looked at. `goesOn` is asked now and then while the
    /// query runs; false ends it in StatementStopped.
    RowWindow(std::shared_ptr<StoreFile> file, const QString &select, std::function<bool()> goesOn = {});

    [[nodiscard]] int rowCount() const { return static_cast<int>(m_ids.empty() ? m_rows.size() : m_ids.size()); }
    /// Row and column from 0. NULL gives the empty text; so does a row that wasn't looked at lately, while another query
    /// of the same open file asks whether to go on.
    [[nodiscard]] QString cell(int row, int column) const;

private:
    static constexpr int PageRows = 64;
    static constexpr int PagesKept = 16;

    struct Page {
        int number;
        std::vector<QStringList> rows;
    };

    void readIds(StoreFile &file, const QString &select);
    [[nodiscard]] bool canRead(int page) const;
    [[nodiscard]] const Page &page(int number) const;
    [[nodiscard]] Page readPage(int number) const;

    QString m_connectionString;
    std::shared_ptr<StoreFile> m_file; ///< null: it is opened for each page
    QString m_rowsOfIdsSql;
    QStringList m_codeTables; ///< what both statements look up
    int m_columns = 0;
    std::vector<qint64> m_ids;
    std::vector<QStringList> m_rows; ///< a query that is held whole
    mutable std::list<Page> m_pages; ///< the latest used first
};

} // namespace zrv
