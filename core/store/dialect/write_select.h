// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/store/dialect/scope.h"
#include "core/store/dialect/statement.h"

namespace zrv::dialect {

/// A SELECT in two parts, since a count has no use for the order.
struct WrittenSelect {
    QString body;
    QString order; ///< " ORDER BY …" or empty
    std::vector<ScopeColumn> columns;
};

/// Puts a SELECT into SQLite's SQL. A query that states no order gives its rows in the order in which the rows of
/// its first table were entered. With `columnsAreTexts` every result is made a text, as the store's columns need.
[[nodiscard]] WrittenSelect writeSelect(const Select &select, Catalog &catalog, bool columnsAreTexts = false);

} // namespace zrv::dialect
