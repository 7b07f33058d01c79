// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/forms/grid.h"

#include "core/basic/number_format.h"

#include <algorithm>
#include <utility>

namespace zrv {

Grid::Grid(Container &container, QString name, bool visible)
    : Control(container, std::move(name), ControlKind::Grid, true)
{
    m_visible = visible;
}

void Grid::setColumns(std::vector<GridColumn> columns)
{
    m_columns = std::move(columns);
    m_column = 0;
    changed(Aspect::Columns);
}

void Grid::setColumnCaption(int column, const QString &caption)
{
    m_columns.at(static_cast<size_t>(column)).caption = caption;
    changed(Aspect::Columns);
}

void Grid::setRows(std::shared_ptr<const RowSource> rows)
{
    m_rows = std::move(rows);
    m_row = rowCount() > 0 ? 0 : -1;
    changed(Aspect::Rows);
}

QString Grid::cell(int row, int column) const
{
    return m_rows->cell(row, column);
}

QString Grid::shownCell(int row, int column) const
{
    const QString text = cell(row, column);
    const QString &picture = m_columns.at(static_cast<size_t>(column)).format;
    return picture.isEmpty() ? text : Format(text, picture);
}

QString Grid::currentCell(QStringView field) const
{
    if (m_row < 0)
        return {};
    for (int column = 0; std::cmp_less(column, m_columns.size()); ++column)
        if (field.compare(m_columns[static_cast<size_t>(column)].field, Qt::CaseInsensitive) == 0)
            return cell(m_row, column);
    return {};
}

void Grid::setCurrent(int row, int column)
{
    if (row < 0 || row >= rowCount())
        return;
    const bool isOther = row != m_row || column != m_column;
    m_row = row;
    m_column = std::clamp(column, 0, std::max(0, static_cast<int>(m_columns.size()) - 1));
    // Also for the cell that is current already: its user may have scrolled away from it.
    changed(Aspect::CurrentRow);
    if (isOther && onRowColChange)
        onRowColChange();
}

} // namespace zrv
