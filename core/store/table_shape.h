// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

#include <vector>

namespace zrv {

/// A column of the store: always text, at most `width` characters.
struct ColumnShape {
    QString name;
    int width = 0;
};

/// A table as it is made, or as it was found in a file.
struct TableShape {
    QString name;
    std::vector<ColumnShape> columns;
    std::vector<QStringList> uniqueKeys;
    std::vector<QStringList> indexes; ///< not unique

    /// By name without regard to case; null if there is none.
    [[nodiscard]] const ColumnShape *column(QStringView columnName) const;
};

} // namespace zrv
