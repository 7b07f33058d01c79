// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "qt/view_binder.h"

class QTableView;

namespace zrv {

class GridModel;

/// A table whose cells are asked of the grid when they are painted, so that it opens at once with any number of rows.
class GridBinder : public ViewBinder {
public:
    GridBinder(Grid &grid, FormWindow &window);

protected:
    void userMoved(const QModelIndex &current) override;
    void showRows() override;
    void showCurrent() override;

private:
    GridBinder(Grid &grid, FormWindow &window, QTableView &widget);
    void fitColumns();

    Grid &m_grid;
    QTableView *m_widget;
    GridModel *m_model;
    bool m_fitted = false; ///< the columns have the widths of rows that were seen
};

} // namespace zrv
