// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/caption_binders.h"

#include "qt/caption_label.h"
#include "qt/form_window.h"

#include <QEvent>
#include <QStatusBar>

namespace zrv {

LabelBinder::LabelBinder(Label &label, FormWindow &window)
    : Binder(label, window)
    , m_label(label)
    , m_widget(new CaptionLabel(label.isLeftToRight(), window.groundOf(label.container())))
{
    adopt(*m_widget);
}

QWidget *LabelBinder::widget() const
{
    return m_widget;
}

void LabelBinder::refresh(Aspect aspect)
{
    if (aspect == Aspect::Caption) {
        m_widget->setText(m_label.caption());
        return;
    }
    Binder::refresh(aspect);
}

bool LabelBinder::special(QEvent &event)
{
    const bool twice = event.type() == QEvent::MouseButtonDblClick;
    if (event.type() != QEvent::MouseButtonRelease && !twice)
        return false;
    m_window.enter([&] { twice ? form().userDblClick(m_label) : form().userClick(m_label); });
    return true;
}

StatusPanelBinder::StatusPanelBinder(StatusPanel &panel, FormWindow &window)
    : Binder(panel, window)
    , m_panel(panel)
    , m_widget(new CaptionLabel(false, nullptr))
{
    adopt(*m_widget);
    m_widget->setTextFormat(Qt::PlainText);
    m_widget->setIndent(8);
    const bool spring = panel.size() == StatusPanel::Size::Spring;
    // A long payer's name must not force the window wider than its screen.
    if (spring)
        m_widget->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    window.statusBar()->addWidget(m_widget, spring ? 1 : 0);
}

QWidget *StatusPanelBinder::widget() const
{
    return m_widget;
}

void StatusPanelBinder::refresh(Aspect aspect)
{
    if (aspect == Aspect::Text)
        m_widget->setText(m_panel.text());
    else
        Binder::refresh(aspect);
}

} // namespace zrv
