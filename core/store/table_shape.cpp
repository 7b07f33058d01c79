// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/store/table_shape.h"

#include <algorithm>

namespace zrv {

const ColumnShape *TableShape::column(QStringView columnName) const
{
    const auto found = std::find_if(columns.begin(), columns.end(), [&](const ColumnShape &candidate) {
        return columnName.compare(candidate.name, Qt::CaseInsensitive) == 0;
    });
    return found == columns.end() ? nullptr : &*found;
}

} // namespace zrv
