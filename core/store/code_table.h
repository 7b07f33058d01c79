// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

struct sqlite3;
struct sqlite3_stmt;

namespace zrv {

/// The rows of a small table by one column, for statements that look them up instead of joining the table
/// (core/store/dialect/code_lookup.h). They are read when the statement asks for the first one, and so belong to the
/// same state of the store as the statement's other rows.
class CodeTable {
public:
    using Cells = std::vector<std::optional<std::string>>;

    /// The statement gives the key of each row and then its columns.
    explicit CodeTable(const QString &rowsSql)
        : m_rowsSql(rowsSql.toUtf8())
    {
    }

    /// The columns of the row with that key, compared without regard to the case of Latin letters; null if there is
    /// none. To be called when load() has succeeded.
    [[nodiscard]] const Cells *find(std::string key) const;
    /// Reads the rows unless they are there already; false if SQLite reports a failure.
    [[nodiscard]] bool load(sqlite3 *database);

private:
    QByteArray m_rowsSql;
    bool m_loaded = false;
    std::unordered_map<std::string, Cells> m_rows;
};

using CodeTables = std::vector<std::unique_ptr<CodeTable>>;

/// Gives a connection the functions zrv_has(table, key) and zrv_code(table, column, key).
void addCodeFunctions(sqlite3 *database);

/// Makes the tables that a statement looks up and binds them to its parameters. They must outlive the statement.
[[nodiscard]] CodeTables bindCodeTables(sqlite3_stmt *statement, const QStringList &rowsSql);

} // namespace zrv
