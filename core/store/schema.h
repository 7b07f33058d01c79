// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/store/table_shape.h"

namespace zrv {

/// The six tables of a store of this version: columns in the order in which rows are inserted without naming them,
/// keys, and the indexes that the statements of the program live by.
[[nodiscard]] const std::vector<TableShape> &storeSchema();

} // namespace zrv
