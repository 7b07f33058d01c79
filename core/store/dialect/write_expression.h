// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/store/dialect/scope.h"
#include "core/store/dialect/statement.h"

namespace zrv::dialect {

/// The names that a SELECT gives to its results; an ORDER BY may use them where no column has the name.
using ResultNames = std::vector<std::pair<QString, Sql>>;

/// Puts an expression into SQLite's SQL. Names that don't exist raise store_error::MissingColumn, unknown functions
/// and wrong numbers of arguments store_error::Syntax, a text compared with a number store_error::TypeMismatch.
[[nodiscard]] Sql writeExpression(const Expression &expression, const Scope &scope, const ResultNames &names = {});

/// True if the expression adds up rows (sum, count, max, min).
[[nodiscard]] bool isAggregate(const Expression &expression);

} // namespace zrv::dialect
