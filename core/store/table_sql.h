// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/store/table_shape.h"

namespace zrv {

/// How tables of the store are declared to SQLite. Widths are checks of the file itself, so that they hold whoever
/// writes, and texts compare without regard to case in every program that reads the file.

/// `"Name" TEXT(15) COLLATE NOCASE CHECK(…)`
[[nodiscard]] QString columnSql(const ColumnShape &column);

[[nodiscard]] QString createTableSql(const TableShape &table);

/// One CREATE INDEX statement for each key and index of a table.
[[nodiscard]] QStringList createIndexSql(const TableShape &table);

} // namespace zrv
