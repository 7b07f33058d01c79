// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/store/dialect/scope.h"
#include "core/store/dialect/statement.h"

#include <optional>
#include <set>
#include <vector>

namespace zrv::dialect {

/// A joined table of which each row of the others finds one row at most, so that its rows can be looked up in memory:
/// one column of a unique key is joined to a column of another table, and the rest of the key has given values.
/// That is how every code list is joined. The result is the same, and a join is half of a long list's time.
struct CodeLookup {
    const Source *source = nullptr;
    bool dropsRows = true;                   ///< an inner join; a left join keeps rows without a code
    QString keyColumn;                       ///< of the looked up table
    const Expression *key = nullptr;         ///< what it is joined to
    QString rowsSql;                         ///< reads the key column, then all columns of the rows in question
    std::set<const Expression *> conditions; ///< of the statement, which the look-up stands for
};

/// The parts of a condition that are joined by AND.
[[nodiscard]] std::vector<const Expression *> conjuncts(const std::optional<Expression> &condition);

/// The tables of a SELECT that can be looked up, once all its tables are in scope. Never the first table.
[[nodiscard]] std::vector<CodeLookup> findCodeLookups(const Select &select, const Scope &scope, Catalog &catalog);

} // namespace zrv::dialect
