// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/zrvstore/database.h"
#include "tools/zrvstore/verify_shape.h"

#include <string_view>
#include <vector>

namespace zrv::storetool {

/// The place of a column in a table's shape. The column must be one of the shape's.
[[nodiscard]] std::size_t placeOf(const TableShape &shape, std::string_view column);

/// The rows of a table in the order of entry, read through the schema's columns whatever the file has.
class TableReader {
public:
    /// `joined` is the rest of a FROM clause in which the table's alias is t, and `joinedColumns` what to read of it.
    TableReader(const Database &database, const FoundTable &table, const QString &joined = {},
                const QString &joinedColumns = {});

    [[nodiscard]] bool next() { return m_rows.next(); }

    /// Empty for NULL and for a column that the file lacks.
    [[nodiscard]] std::string_view value(std::size_t column) const;
    /// False for a value that is no text, which the program never writes.
    [[nodiscard]] bool isText(std::size_t column) const;
    [[nodiscard]] bool has(std::size_t column) const { return m_table.has(column); }
    /// Of the joined columns, the first being 0.
    [[nodiscard]] std::string_view joined(int column) const { return m_rows.text(m_joinedPlace + column); }
    [[nodiscard]] qint64 rowId() const { return m_rows.number(m_rowIdPlace); }

    /// Table, key and column, for a finding. The key of a user leaves out the password.
    [[nodiscard]] QString where(std::string_view column) const;
    [[nodiscard]] const TableShape &shape() const { return *m_table.shape; }

private:
    const FoundTable &m_table;
    std::vector<int> m_places; ///< of the schema's columns in the query; -1 for one that the file lacks
    int m_rowIdPlace = 0;
    int m_joinedPlace = 0;
    std::vector<std::size_t> m_key;
    Rows m_rows;

    QString query(const QString &joined, const QString &joinedColumns);
};

} // namespace zrv::storetool
