// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/store/dialect/scope.h"
#include "core/store/dialect/statement.h"

#include <QStringList>

namespace zrv::dialect {

/// A SELECT in two parts, since a count has no use for the order.
struct WrittenSelect {
    QString body;
    QString order; ///< " ORDER BY …" or empty
    std::vector<ScopeColumn> columns;
    QString from; ///< the body behind its results: " FROM …", with its condition
    bool hasCondition = false;
    QString rowId; ///< which row of the first table a result comes from; empty where results combine rows
};

/// A query that fills a table must give texts.
enum class Columns { AsTheyAre, AsTexts };

/// Puts a SELECT into SQLite's SQL. A query that states no order gives its rows in the order in which the rows of
/// its first table were entered. Given `codeTables`, it looks up code lists in memory (dialect/code_lookup.h) and adds
/// the SQL of their rows there; the statement's parameters stand for them by number.
[[nodiscard]] WrittenSelect writeSelect(const Select &select, Catalog &catalog, QStringList *codeTables,
                                        Columns columns = Columns::AsTheyAre);

} // namespace zrv::dialect
