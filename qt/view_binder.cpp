// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/view_binder.h"

#include "qt/form_window.h"
#include "qt/look.h"

#include <QAbstractItemView>
#include <QKeyEvent>
#include <QScopedValueRollback>

namespace zrv {

ViewBinder::ViewBinder(Control &control, FormWindow &window, QAbstractItemView &view, Aspect rows)
    : Binder(control, window)
    , m_view(view)
    , m_rows(rows)
{
    adopt(m_view);
    m_view.setEditTriggers(QAbstractItemView::NoEditTriggers);
    QObject::connect(&m_view, &QAbstractItemView::doubleClicked, &m_view,
                     [this] { m_window.enter([this] { form().userDblClick(m_control); }); });
}

void ViewBinder::setModel(QAbstractItemModel &model)
{
    m_view.setModel(&model);
    QObject::connect(m_view.selectionModel(), &QItemSelectionModel::currentChanged, &m_view,
                     [this](const QModelIndex &current) {
                         if (m_showing || !current.isValid())
                             return;
                         m_window.enter([&] { userMoved(current); });
                         quietly(&ViewBinder::showCurrent);
                     });
}

QWidget *ViewBinder::widget() const
{
    return &m_view;
}

QWidget *ViewBinder::target() const
{
    return m_view.viewport();
}

bool ViewBinder::keepsKey(const QKeyEvent &event) const
{
    switch (event.key()) {
    case Qt::Key_Home:
    case Qt::Key_End:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        return true;
    default:
        return Binder::keepsKey(event);
    }
}

void ViewBinder::quietly(void (ViewBinder::*show)())
{
    const QScopedValueRollback showing(m_showing, true);
    (this->*show)();
}

void ViewBinder::refresh(Aspect aspect)
{
    if (aspect == m_rows || aspect == Aspect::Columns) {
        quietly(&ViewBinder::showRows);
        quietly(&ViewBinder::showCurrent);
    } else if (aspect == Aspect::CurrentRow) {
        quietly(&ViewBinder::showCurrent);
    } else if (aspect == Aspect::Colors) {
        look::colorField(m_view, m_control.backColor(), m_control.textColor());
    } else {
        Binder::refresh(aspect);
    }
}

} // namespace zrv
