// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "qt/binder.h"

class QMenu;

namespace zrv {

/// A menu of the bar, an item in one, or a separator.
class MenuBinder : public Binder {
public:
    MenuBinder(MenuItem &item, FormWindow &window);
    [[nodiscard]] QAction *action() const override { return m_action; }
    void refresh(Aspect aspect) override;

private:
    /// The menu that holds this one's items, made when the first of them asks for it.
    QMenu *menu();

    MenuItem &m_item;
    QAction *m_action;
    QMenu *m_menu = nullptr;
};

} // namespace zrv
