// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/jet/definition.h"
#include "tools/jet/row.h"

#include <functional>
#include <vector>

namespace zrv::jet {

/// A row, and where it was found.
struct PlacedRow {
    Bytes bytes;
    RowPlace place;
};

/// The rows of a table that are alive, in the order of its pages: where they lie, not yet looked into. Raises Refused.
[[nodiscard]] std::vector<PlacedRow> rowsOf(const PageFile &file, const Definition &definition);

} // namespace zrv::jet
