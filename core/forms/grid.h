// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/forms/control.h"

#include <memory>

namespace zrv {

/// The rows a grid shows, made when they are looked at: a grid of any length needs no more than its row numbers.
class RowSource {
public:
    virtual ~RowSource() = default;
    [[nodiscard]] virtual int rowCount() const = 0;
    /// The cell as stored, before the column's format. Rows and columns from 0.
    [[nodiscard]] virtual QString cell(int row, int column) const = 0;
};

/// One column: the field it shows, what stands over it, and how.
struct GridColumn {
    QString field;
    QString caption;
    QString format = {};      ///< a picture of formatNumber such as "#,##0"; empty shows the cell as it is
    bool leftToRight = false; ///< codes and numbers
    bool visible = true;
};

/// A table of rows of which one is current. A form's keys and double clicks act on the current row.
class Grid : public Control {
public:
    Grid(Container &container, QString name, bool visible = true);

    [[nodiscard]] const std::vector<GridColumn> &columns() const { return m_columns; }
    void setColumns(std::vector<GridColumn> columns);
    void setColumnCaption(int column, const QString &caption);

    /// New rows; the first becomes current when there is one.
    void setRows(std::shared_ptr<const RowSource> rows);
    [[nodiscard]] int rowCount() const { return m_rows ? m_rows->rowCount() : 0; }
    /// Null before the first; a column of theirs is a column of the grid.
    [[nodiscard]] const std::shared_ptr<const RowSource> &rows() const { return m_rows; }
    /// The cell as stored.
    [[nodiscard]] QString cell(int row, int column) const;
    /// The cell as shown, through the column's format.
    [[nodiscard]] QString shownCell(int row, int column) const;
    /// Cell of the current row in the column that shows this field; empty without a current row.
    [[nodiscard]] QString currentCell(QStringView field) const;

    /// Current row and column from 0; -1 without rows.
    [[nodiscard]] int currentRow() const { return m_row; }
    [[nodiscard]] int currentColumn() const { return m_column; }
    void setCurrent(int row, int column);

    std::function<void()> onRowColChange;
    std::function<void(int column)> onHeadClick;

private:
    std::vector<GridColumn> m_columns;
    std::shared_ptr<const RowSource> m_rows;
    int m_row = -1;
    int m_column = 0;
};

} // namespace zrv
