// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "qt/binder.h"

class QTableView;

namespace zrv {

class GridModel;

/// A table whose cells are asked of the grid when they are painted, so that it opens at once with any number of rows.
class GridBinder : public Binder {
public:
    GridBinder(Grid &grid, FormWindow &window);
    [[nodiscard]] QWidget *widget() const override;
    [[nodiscard]] QWidget *target() const override;
    [[nodiscard]] bool keepsKey(const QKeyEvent &event) const override;
    void refresh(Aspect aspect) override;

private:
    void showCurrent();
    void fitColumns();

    Grid &m_grid;
    QTableView *m_widget;
    GridModel *m_model;
    bool m_showing = false;
};

} // namespace zrv
