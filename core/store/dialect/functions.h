// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/store/dialect/sql_text.h"

#include <vector>

namespace zrv::dialect {

/// A call of one of the dialect's functions in SQLite's SQL. The name is in lower case. Raises store_error::Syntax
/// for a name that the dialect lacks and for a wrong number of arguments.
[[nodiscard]] Sql writeCall(const QString &name, const std::vector<Sql> &arguments);

[[nodiscard]] bool isAggregateFunction(QStringView name);

} // namespace zrv::dialect
