// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/menu_binder.h"

#include "qt/form_window.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>

namespace zrv {

MenuBinder::MenuBinder(MenuItem &item, FormWindow &window)
    : Binder(item, window)
    , m_item(item)
    , m_action(new QAction(&window))
{
    m_action->setObjectName(item.name());
    m_action->setSeparator(item.isSeparator());
    if (Control *const outer = item.container().containerControl())
        static_cast<MenuBinder &>(window.binderOf(*outer)).menu()->addAction(m_action);
    else
        window.menuBar()->addAction(m_action);
    QObject::connect(m_action, &QAction::triggered, m_action,
                     [this] { m_window.enter([this] { form().userClick(m_item); }); });
}

QMenu *MenuBinder::menu()
{
    if (!m_menu) {
        m_menu = new QMenu(&m_window);
        m_menu->setObjectName(m_item.name());
        m_action->setMenu(m_menu);
    }
    return m_menu;
}

void MenuBinder::refresh(Aspect aspect)
{
    if (aspect == Aspect::Caption && !m_item.isSeparator())
        m_action->setText(m_item.caption());
    else if (aspect == Aspect::Enabled)
        m_action->setEnabled(m_item.isEnabled());
    else if (aspect == Aspect::Visible)
        m_action->setVisible(m_item.isVisible());
}

} // namespace zrv
