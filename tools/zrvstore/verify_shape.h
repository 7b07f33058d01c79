// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/store/table_shape.h"
#include "tools/zrvstore/database.h"
#include "tools/zrvstore/findings.h"

#include <vector>

namespace zrv::storetool {

/// A table of the schema as a file has it.
struct FoundTable {
    const TableShape *shape = nullptr; ///< as it should be
    bool isThere = false;
    std::vector<bool> columns; ///< in the schema's order: is it there
    bool keyIsUnique = false;  ///< the file itself keeps it so

    [[nodiscard]] bool has(std::size_t column) const { return isThere && columns[column]; }
};

/// Compares the tables of a file with those of this version: tables, columns, widths, keys. What an older version's
/// store lacks or has is told as such, since the program's upgrade mends it. Gives the six tables in the schema's
/// order. A file that has none of them raises Failure.
[[nodiscard]] std::vector<FoundTable> checkShape(const Database &database, Findings &findings);

} // namespace zrv::storetool
