// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/store/connection.h"
#include "core/store/value.h"

#include <QStringList>

#include <memory>

namespace zrv {

/// The rows of one SELECT of the store's dialect, read forward. Rows are fetched as they are walked, so a
/// recordset of any length needs the memory of a few rows. It keeps its connection's file open as long as it lives,
/// and others from writing to the store while there are more rows to come than four.
class Recordset {
public:
    Recordset(const Connection &connection, const QString &select);
    ~Recordset();
    Recordset(Recordset &&other) noexcept;
    Recordset &operator=(Recordset &&other) noexcept;

    /// True before the first row when there is none, and past the last row.
    [[nodiscard]] bool eof() const;
    void moveNext();

    [[nodiscard]] int columnCount() const;
    [[nodiscard]] QString columnName(int column) const;

    [[nodiscard]] Value value(int column) const;
    /// By the column's name, without regard to case; an unknown name raises error 3265.
    [[nodiscard]] Value value(QStringView name) const;
    [[nodiscard]] int columnIndex(QStringView name) const;

    /// The column's UTF-8 bytes in place, for loops over many rows; valid until moveNext. NULL gives an empty view.
    [[nodiscard]] std::string_view utf8(int column) const;

    /// The number of all rows, counted by a query of its own.
    [[nodiscard]] int recordCount() const;

private:
    struct Cursor;
    std::unique_ptr<Cursor> m_cursor;
};

} // namespace zrv
