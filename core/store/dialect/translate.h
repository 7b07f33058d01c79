// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/store/dialect/scope.h"
#include "core/store/dialect/statement.h"

#include <QStringList>

namespace zrv::dialect {

/// A SELECT in SQLite's SQL.
struct Query {
    QString sql;
    QString countSql; ///< gives the number of its rows
    std::vector<ScopeColumn> columns;
    QStringList codeTables; ///< the SQL of the tables that it looks up, by the numbers of its parameters

    /// Where each result comes from one row of the first table: the ids of these rows, one a result, and the results
    /// of the ids whose list is put behind it, each with its id as a further column at the end.
    QString idSql;
    QString rowsOfIdsSql;
};

/// Whether a small table that is joined by its key is looked up in memory; the rows are the same either way.
enum class CodeLists { InMemory, Joined };

[[nodiscard]] Query translate(const Select &select, Catalog &catalog, CodeLists codeLists = CodeLists::InMemory);

/// An INSERT, UPDATE or DELETE in SQLite's SQL.
[[nodiscard]] QString translate(const Insert &insert, Catalog &catalog);
[[nodiscard]] QString translate(const Update &update, Catalog &catalog);
[[nodiscard]] QString translate(const Delete &statement, Catalog &catalog);

} // namespace zrv::dialect
