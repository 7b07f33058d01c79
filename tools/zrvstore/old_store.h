// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/store/table_shape.h"
#include "tools/jet/definition.h"
#include "tools/jet/page_file.h"
#include "tools/jet/table.h"
#include "tools/zrvstore/takeover_report.h"

#include <QString>

#include <functional>
#include <optional>
#include <vector>

namespace zrv::storetool {

/// A row's values, in the order of its table's columns; nothing for NULL.
using OldRow = std::vector<std::optional<QString>>;

/// A table of an old store: the shape that it keeps, and where its rows lie.
struct OldTable {
    TableShape shape;
    jet::Definition definition;
    std::vector<jet::PlacedRow> rows;

    /// A row's values. Raises jet::Refused, which names the row.
    [[nodiscard]] OldRow values(const jet::PlacedRow &row) const;
    /// Table, key and column, for a finding. The key of a user leaves out the password.
    [[nodiscard]] QString where(const OldRow &row, const QString &column) const;
    /// The place of a column in a row; -1 if the table hasn't got it.
    [[nodiscard]] int placeOf(const QString &column) const;
};

/// The six tables of an old store, staged in memory: nothing is decided yet.
class OldStore {
public:
    /// Reads the bytes of a file, finds the tables, compares their columns with what the versions of the program had,
    /// and finds their rows. Tells the report what isn't as it should be; raises jet::Refused for damage.
    OldStore(std::vector<unsigned char> bytes, TakeoverReport &report);

    [[nodiscard]] const std::vector<OldTable> &tables() const { return m_tables; }

private:
    void addTable(const TableShape &wanted, quint32 page, TakeoverReport &report);

    jet::PageFile m_file;
    std::vector<OldTable> m_tables;
};

} // namespace zrv::storetool
