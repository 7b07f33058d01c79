// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/jet/row.h"

namespace zrv::jet {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr std::size_t Head = 2; ///< bytes before the fixed values

} // namespace

Row::Row(Bytes bytes, const Definition &definition)
    : m_bytes(bytes)
    , m_columns(bytes.u16(0))
{
    const std::size_t maskSize = (m_columns + 7) / 8;
    if (m_columns == 0 || m_columns > definition.mostColumns || Head + maskSize + 4 > bytes.size())
        damaged(u"a row of "_s + QString::number(m_columns) + u" columns"_s);
    m_mask = bytes.size() - maskSize;
    m_variables = bytes.u16(m_mask - 2);
    const std::size_t offsets = 2 * (m_variables + 1);
    if (Head + offsets + 2 > m_mask)
        damaged(u"a row of "_s + QString::number(m_variables) + u" texts"_s);
    m_offsetsStart = m_mask - 2 - offsets;
    checkOffsets();
    m_valuesEnd = offset(m_variables);
    checkColumns(definition);
}

/// Where a variable value begins; the one behind the last tells where that ends. They stand from the mask down.
std::size_t Row::offset(std::size_t variable) const
{
    return m_bytes.u16(m_mask - 4 - 2 * variable);
}

void Row::checkOffsets() const
{
    std::size_t least = Head;
    for (std::size_t i = 0; i <= m_variables; ++i) {
        if (offset(i) < least || offset(i) > m_offsetsStart)
            damaged(u"the texts of a row overlap"_s);
        least = offset(i);
    }
}

/// A row has the values of exactly those columns that are older than it, and none for a NULL.
void Row::checkColumns(const Definition &definition) const
{
    for (const Column &column : definition.columns) {
        if (column.isFixed)
            continue;
        const bool isOlder = column.number < m_columns;
        if (isOlder != (column.variableIndex < m_variables))
            damaged(u"a row has other columns than its table"_s);
        if (isOlder && isNull(column) && offset(column.variableIndex) != offset(column.variableIndex + 1U))
            damaged(u"a value without a text has one"_s);
    }
}

bool Row::isNull(const Column &column) const
{
    // A bit that is set means that there is a value.
    return (m_bytes.u8(m_mask + column.number / 8U) >> (column.number % 8U) & 1) == 0;
}

std::optional<Bytes> Row::value(const Column &column) const
{
    if (column.number >= m_columns || isNull(column))
        return std::nullopt;
    if (!column.isFixed) {
        const std::size_t start = offset(column.variableIndex);
        return m_bytes.part(start, offset(column.variableIndex + 1U) - start);
    }
    const std::size_t start = Head + column.fixedOffset;
    if (start + column.size > offset(0))
        damaged(u"a fixed value lies among the texts"_s);
    return m_bytes.part(start, column.size);
}

} // namespace zrv::jet
