// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/store/row_window.h"

#include "core/store/code_table.h"
#include "core/store/dialect/tokens.h"
#include "core/store/dialect/translate.h"
#include "core/store/recordset.h"
#include "core/store/store_file.h"

#include <algorithm>
#include <map>
#include <sqlite3.h>

namespace zrv {

namespace {

QString textOf(sqlite3_stmt *row, int column)
{
    switch (sqlite3_column_type(row, column)) {
    case SQLITE_NULL:
        return {};
    case SQLITE_INTEGER:
        return Value(qint64(sqlite3_column_int64(row, column))).toText();
    case SQLITE_FLOAT:
        return Value(sqlite3_column_double(row, column)).toText();
    default:
        return QString::fromUtf8(reinterpret_cast<const char *>(sqlite3_column_text(row, column)),
                                 sqlite3_column_bytes(row, column));
    }
}

QStringList cellsOf(sqlite3_stmt *row, int columns)
{
    QStringList cells;
    cells.reserve(columns);
    for (int column = 0; column < columns; ++column)
        cells.append(textOf(row, column));
    return cells;
}

} // namespace

RowWindow::RowWindow(QString connectionString, const QString &select)
    : m_connectionString(std::move(connectionString))
{
    const Connection connection(m_connectionString);
    readIds(*connection.m_file, select);
}

RowWindow::RowWindow(std::shared_ptr<StoreFile> file, const QString &select, std::function<bool()> goesOn)
    : m_file(std::move(file))
{
    struct Asking {
        StoreFile &file;
        ~Asking() { file.askWhileRunning({}); }
    } const asking{*m_file};
    m_file->askWhileRunning(std::move(goesOn));
    readIds(*m_file, select);
}

void RowWindow::readIds(StoreFile &file, const QString &select)
{
    const dialect::Statement statement = dialect::parse(select);
    if (!std::holds_alternative<dialect::Select>(statement))
        dialect::refuse(select);
    const dialect::Query query = translate(std::get<dialect::Select>(statement), file);
    m_columns = int(query.columns.size());
    m_rowsOfIdsSql = query.rowsOfIdsSql;
    m_codeTables = query.codeTables;

    CodeTables codeTables; // before the statement, which must not outlive them
    const PreparedStatement rows = file.prepare(query.idSql.isEmpty() ? query.sql : query.idSql);
    codeTables = bindCodeTables(rows.get(), m_codeTables);
    while (file.step(rows)) {
        if (query.idSql.isEmpty())
            m_rows.push_back(cellsOf(rows.get(), m_columns));
        else
            m_ids.push_back(sqlite3_column_int64(rows.get(), 0));
    }
}

QString RowWindow::cell(int row, int column) const
{
    if (m_ids.empty())
        return m_rows.at(std::size_t(row)).value(column);
    if (!canRead(row / PageRows))
        return {};
    return page(row / PageRows).rows.at(std::size_t(row % PageRows)).value(column);
}

bool RowWindow::canRead(int page) const
{
    return !m_file || !m_file->isAsking() || std::ranges::find(m_pages, page, &Page::number) != m_pages.end();
}

const RowWindow::Page &RowWindow::page(int number) const
{
    const auto kept = std::ranges::find(m_pages, number, &Page::number);
    if (kept != m_pages.end()) {
        m_pages.splice(m_pages.begin(), m_pages, kept);
    } else {
        m_pages.push_front(readPage(number));
        if (m_pages.size() > PagesKept)
            m_pages.pop_back();
    }
    return m_pages.front();
}

RowWindow::Page RowWindow::readPage(int number) const
{
    const auto first = m_ids.begin() + std::ptrdiff_t(number) * PageRows;
    const auto last = m_ids.end() - first > PageRows ? first + PageRows : m_ids.end();
    QString list;
    for (auto id = first; id != last; ++id)
        list += (id == first ? u'(' : u',') + QString::number(*id);

    const std::shared_ptr<StoreFile> opened = m_file ? m_file : Connection(m_connectionString).m_file;
    StoreFile &file = *opened;
    CodeTables codeTables;
    const PreparedStatement statement = file.prepare(m_rowsOfIdsSql + list + u')');
    codeTables = bindCodeTables(statement.get(), m_codeTables);
    // A join may give several results from one row; they come in the order in which the ids name them.
    std::map<qint64, std::list<QStringList>> found;
    while (file.step(statement))
        found[sqlite3_column_int64(statement.get(), m_columns)].push_back(cellsOf(statement.get(), m_columns));

    Page page{number, {}};
    for (auto id = first; id != last; ++id) {
        std::list<QStringList> &rows = found[*id];
        page.rows.push_back(rows.empty() ? QStringList() : std::move(rows.front()));
        if (!rows.empty())
            rows.pop_front();
    }
    return page;
}

} // namespace zrv
