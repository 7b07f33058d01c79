// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/forms/grid.h"
#include "core/program.h"
#include "core/store/row_window.h"

namespace zrv {

/// The rows of a SELECT for a grid. Raises the store's errors when the statement can't be run.
[[nodiscard]] std::shared_ptr<const RowSource> openRows(Program &program, const QString &select);

/// Rows that were opened elsewhere.
[[nodiscard]] std::shared_ptr<const RowSource> openRows(RowWindow rows);

} // namespace zrv
