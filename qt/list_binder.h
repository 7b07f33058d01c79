// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "qt/view_binder.h"

class QListView;

namespace zrv {

class ListModel;

class ListBinder : public ViewBinder {
public:
    ListBinder(ListBox &list, FormWindow &window);
    bool special(QEvent &event) override;

protected:
    void userMoved(const QModelIndex &current) override;
    void showRows() override;
    void showCurrent() override;

private:
    ListBinder(ListBox &list, FormWindow &window, QListView &widget);

    ListBox &m_list;
    QListView *m_widget;
    ListModel *m_model;
};

} // namespace zrv
