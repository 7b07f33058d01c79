// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/store/table_shape.h"
#include "tools/jet/definition.h"
#include "tools/zrvstore/takeover_report.h"

namespace zrv::storetool {

/// Compares a table of an old store with those that versions of the program had: columns, types, widths. Gives the
/// shape that it keeps in the new store: its own columns and widths in their own order, and of this version's keys and
/// indexes those whose columns it has.
[[nodiscard]] TableShape checkOldShape(const TableShape &wanted, const jet::Definition &definition,
                                       TakeoverReport &report);

/// The columns of a table's key that the table has.
[[nodiscard]] QStringList keyOf(const TableShape &shape);

} // namespace zrv::storetool
