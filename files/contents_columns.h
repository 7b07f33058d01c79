// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The columns in which the contents of electronic files are shown: payer and payees of a WH file, the summary of a WK
// file.

#include "core/browse_panel.h"

#include <span>

namespace zrv {

enum class Shown {
    Text,
    Code, ///< digits and Latin letters, from left to right
    Amount,
    Date,
};

struct ContentsColumn {
    QStringView field; ///< as the file's layout names it
    QStringView caption;
    Shown shown = Shown::Text;
};

/// Which columns there are, and the field of the file's line that the first field among them is. The others follow in
/// the order of the line.
struct ContentsTable {
    QStringView name; ///< in statements
    std::span<const ContentsColumn> columns;
    int firstField;
    int derivedBefore = 0; ///< columns before that field that no field of the file holds
    int derivedBehind = 0; ///< likewise behind the last

    [[nodiscard]] int fieldCount() const { return static_cast<int>(columns.size()) - derivedBefore - derivedBehind; }
    /// The column of a field of the file; the nearest where it has none.
    [[nodiscard]] int columnOf(int field) const;
    [[nodiscard]] QStringList fieldNames() const;
    /// As a grid has them.
    [[nodiscard]] std::vector<BrowseColumn> browseColumns() const;
    [[nodiscard]] std::vector<GridColumn> gridColumns() const;
};

[[nodiscard]] const ContentsTable &payerContents();
/// Before the fields of the line it is told what the payee's code is; behind them stands all that was paid.
[[nodiscard]] const ContentsTable &payeeContents();
[[nodiscard]] const ContentsTable &summaryContents();

} // namespace zrv
