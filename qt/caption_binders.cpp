// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/caption_binders.h"

#include "qt/form_window.h"

#include <QEvent>
#include <QLabel>
#include <QPainter>
#include <QStatusBar>
#include <QStyle>

namespace zrv {

namespace {

/// A path or a code: read from left to right, and cut in its middle where the window is too narrow for it.
class CodeLabel : public QLabel {
public:
    explicit CodeLabel(QWidget *parent)
        : QLabel(parent)
    {
        setLayoutDirection(Qt::LeftToRight);
        setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    }

protected:
    void paintEvent(QPaintEvent *event) override
    {
        Q_UNUSED(event);
        QPainter painter(this);
        drawFrame(&painter);
        const QRect room = contentsRect().adjusted(margin() + 4, 0, -margin() - 4, 0);
        const int flags =
            Qt::AlignRight | Qt::AlignAbsolute | Qt::AlignVCenter | Qt::TextSingleLine | Qt::TextForceLeftToRight;
        style()->drawItemText(&painter, room, flags, palette(), isEnabled(),
                              fontMetrics().elidedText(text(), Qt::ElideMiddle, room.width()), foregroundRole());
    }
};

} // namespace

LabelBinder::LabelBinder(Label &label, FormWindow &window)
    : Binder(label, window)
    , m_label(label)
    , m_widget(label.isLeftToRight() ? new CodeLabel(window.groundOf(label.container()))
                                     : new QLabel(window.groundOf(label.container())))
{
    adopt(*m_widget);
    m_widget->setTextFormat(Qt::PlainText);
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
    , m_widget(new QLabel)
{
    adopt(*m_widget);
    m_widget->setTextFormat(Qt::PlainText);
    m_widget->setContentsMargins(8, 2, 8, 2);
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
