// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/jet/definition.h"

#include <optional>

namespace zrv::jet {

/// One row of a table, read where it lies.
///
/// A row begins with the number of columns that the table had when it was written; the fixed values follow, then the
/// variable ones. It is taken apart from its end: the null mask, the number of variable values, their offsets.
class Row {
public:
    /// Checks that the row's parts fit each other and the definition. Raises Refused.
    Row(Bytes bytes, const Definition &definition);

    /// The bytes of a value; nothing for NULL and for a column that is younger than the row. Not null and empty is the
    /// empty text.
    [[nodiscard]] std::optional<Bytes> value(const Column &column) const;

    /// False if bytes lie between the values and their offsets that belong to no column.
    [[nodiscard]] bool isTight() const { return m_valuesEnd == m_offsetsStart; }

private:
    [[nodiscard]] std::size_t offset(std::size_t variable) const;
    [[nodiscard]] bool isNull(const Column &column) const;
    void checkOffsets() const;
    void checkColumns(const Definition &definition) const;

    Bytes m_bytes;
    std::size_t m_columns = 0;
    std::size_t m_variables = 0;
    std::size_t m_mask = 0;         ///< where the null mask begins
    std::size_t m_offsetsStart = 0; ///< where the lowest offset stands
    std::size_t m_valuesEnd = 0;
};

} // namespace zrv::jet
