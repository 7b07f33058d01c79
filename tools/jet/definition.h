// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/jet/page_file.h"

#include <QString>

#include <vector>

namespace zrv::jet {

/// The types of columns that are read here.
inline constexpr quint8 IntegerType = 3;
inline constexpr quint8 LongType = 4;
inline constexpr quint8 TextType = 10;

struct Column {
    QString name;
    quint8 type = 0;
    bool isFixed = false; ///< stands at `fixedOffset` in every row; else it is the row's `variableIndex`-th value
    quint16 number = 0;   ///< of its place in the table, and of its bit in a row's null mask
    quint16 variableIndex = 0;
    quint16 fixedOffset = 0;
    quint16 size = 0; ///< in bytes; two for each letter of a text
};

/// A table as the file defines it.
struct Definition {
    quint32 page = 0;
    quint32 rowCount = 0;
    quint16 mostColumns = 0;     ///< that the table ever had: each row has a bit for each of them at most
    RowPlace usageMap;           ///< that names the table's data pages
    std::vector<Column> columns; ///< in the order of their numbers, which is the order in which a user sees them

    /// The column of this name, spelt so if there is one, else without regard to case; null if there is none.
    [[nodiscard]] const Column *column(QStringView name) const;
};

/// Reads the definition that begins on a page, with the pages that continue it. Raises Refused.
[[nodiscard]] Definition readDefinition(const PageFile &file, quint32 page);

} // namespace zrv::jet
