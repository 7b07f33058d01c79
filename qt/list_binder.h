// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "qt/binder.h"

class QListView;

namespace zrv {

class ListModel;

class ListBinder : public Binder {
public:
    ListBinder(ListBox &list, FormWindow &window);
    [[nodiscard]] QWidget *widget() const override;
    [[nodiscard]] QWidget *target() const override;
    [[nodiscard]] bool keepsKey(const QKeyEvent &event) const override;
    void refresh(Aspect aspect) override;
    bool special(QEvent &event) override;

private:
    void showCurrent();

    ListBox &m_list;
    QListView *m_widget;
    ListModel *m_model;
    bool m_showing = false;
};

} // namespace zrv
