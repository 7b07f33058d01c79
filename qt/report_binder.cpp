// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/report_binder.h"

#include "qt/form_window.h"
#include "qt/look.h"
#include "qt/report_view.h"

#include <QBoxLayout>
#include <QKeyEvent>

namespace zrv {

ReportBinder::ReportBinder(ReportBox &box, FormWindow &window)
    : Binder(box, window)
    , m_box(box)
    , m_widget(new QWidget(window.groundOf(box.container())))
    , m_view(new ReportView(box, window, m_widget))
{
    adopt(*m_widget);
    m_widget->setFocusPolicy(Qt::NoFocus);
    m_view->setFocusPolicy(Qt::TabFocus);
    m_view->setAccessibleName(box.spokenName());
    auto *const cells = new QVBoxLayout(m_widget);
    cells->setContentsMargins(0, 0, 0, 0);
    cells->addWidget(m_view, 1);
}

QWidget *ReportBinder::widget() const
{
    return m_widget;
}

QWidget *ReportBinder::input() const
{
    return m_view;
}

QWidget *ReportBinder::target() const
{
    return m_view->viewport();
}

bool ReportBinder::keepsKey(const QKeyEvent &event) const
{
    if (event.matches(QKeySequence::Find))
        return false;
    return ReportView::keepsKey(event) || Binder::keepsKey(event);
}

void ReportBinder::refresh(Aspect aspect)
{
    switch (aspect) {
    case Aspect::Text:
        placeBar();
        m_view->showLines();
        break;
    case Aspect::CurrentRow:
        m_view->showCurrent();
        break;
    case Aspect::Colors:
        look::colorField(*m_view, m_box.backColor(), m_box.textColor());
        break;
    default:
        Binder::refresh(aspect);
    }
}

/// The controls that lie in a report have their widgets later than it has its own, and a layout of its screen knows
/// nothing of them.
void ReportBinder::placeBar()
{
    if (m_widget->layout()->count() > 1)
        return;
    for (Control *bar : m_box.children()) {
        QWidget *const line = m_window.widgetFor(*bar);
        auto *const cells = new QHBoxLayout(line);
        cells->setContentsMargins(0, 0, 0, 0);
        for (Control *part : static_cast<Picture &>(*bar).children())
            cells->addWidget(m_window.widgetFor(*part), part->kind() == ControlKind::TextBox ? 1 : 0);
        m_widget->layout()->addWidget(line);
    }
}

} // namespace zrv
