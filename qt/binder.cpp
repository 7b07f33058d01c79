// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/binder.h"

#include "qt/button_binders.h"
#include "qt/caption_binders.h"
#include "qt/combo_binder.h"
#include "qt/container_binders.h"
#include "qt/grid_binder.h"
#include "qt/list_binder.h"
#include "qt/menu_binder.h"
#include "qt/report_binder.h"
#include "qt/text_binders.h"
#include "qt/timer_binder.h"

#include <QKeyEvent>
#include <QWidget>

namespace zrv {

Binder::Binder(Control &control, FormWindow &window)
    : m_control(control)
    , m_window(window)
{
}

Binder::~Binder() = default;

void Binder::adopt(QWidget &widget) const
{
    widget.setObjectName(m_control.name());
    // Tab, not a press of the mouse: a press asks the form first, and only the form moves the focus.
    widget.setFocusPolicy(m_control.takesFocus() ? Qt::TabFocus : Qt::NoFocus);
}

void Binder::refresh(Aspect aspect)
{
    QWidget *const shown = widget();
    if (!shown)
        return;
    switch (aspect) {
    case Aspect::Enabled:
        shown->setEnabled(m_control.isEnabled());
        break;
    case Aspect::Visible:
        shown->setVisible(m_control.isVisible());
        break;
    case Aspect::ToolTip:
        shown->setToolTip(m_control.toolTip());
        break;
    case Aspect::Colors: {
        // Only a colour that the screen chose counts; the widget's kind has its own.
        if (m_control.textColor() == color::Text && !m_plainPalette)
            break;
        if (!m_plainPalette)
            m_plainPalette = std::make_unique<QPalette>(shown->palette());
        QPalette palette = *m_plainPalette;
        if (m_control.textColor() != color::Text)
            for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive})
                palette.setColor(group, QPalette::WindowText, QColor(m_control.textColor()));
        shown->setPalette(palette);
        break;
    }
    default:
        break;
    }
}

void Binder::refreshAll()
{
    for (const Aspect aspect :
         {Aspect::Items, Aspect::Rows, Aspect::Caption, Aspect::Text, Aspect::Selection, Aspect::Checked,
          Aspect::CurrentRow, Aspect::Page, Aspect::Colors, Aspect::ToolTip, Aspect::Locked, Aspect::DefaultOrCancel,
          Aspect::Interval, Aspect::Enabled, Aspect::Visible})
        refresh(aspect);
}

bool Binder::keepsKey(const QKeyEvent &event) const
{
    // The form has no keys with Ctrl, Alt or the like; mnemonics and the system's own keys live there.
    return event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
}

bool Binder::special(QEvent &event)
{
    Q_UNUSED(event);
    return false;
}

std::unique_ptr<Binder> makeBinder(Control &control, FormWindow &window)
{
    switch (control.kind()) {
    case ControlKind::TextBox:
        return makeTextBinder(static_cast<TextBox &>(control), window);
    case ControlKind::Label:
        return std::make_unique<LabelBinder>(static_cast<Label &>(control), window);
    case ControlKind::Button:
        return std::make_unique<ButtonBinder>(static_cast<Button &>(control), window);
    case ControlKind::OptionButton:
        return std::make_unique<OptionBinder>(static_cast<OptionButton &>(control), window);
    case ControlKind::CheckBox:
        return std::make_unique<CheckBinder>(static_cast<CheckBox &>(control), window);
    case ControlKind::ComboBox:
    case ControlKind::DataCombo:
        return std::make_unique<ComboBinder>(static_cast<Combo &>(control), window);
    case ControlKind::ListBox:
        return std::make_unique<ListBinder>(static_cast<ListBox &>(control), window);
    case ControlKind::Grid:
        return std::make_unique<GridBinder>(static_cast<Grid &>(control), window);
    case ControlKind::ReportBox:
        return std::make_unique<ReportBinder>(static_cast<ReportBox &>(control), window);
    case ControlKind::Frame:
        return std::make_unique<FrameBinder>(static_cast<Frame &>(control), window);
    case ControlKind::Picture:
        return std::make_unique<PictureBinder>(static_cast<Picture &>(control), window);
    case ControlKind::Tabs:
        return std::make_unique<TabsBinder>(static_cast<Tabs &>(control), window);
    case ControlKind::StatusPanel:
        return std::make_unique<StatusPanelBinder>(static_cast<StatusPanel &>(control), window);
    case ControlKind::MenuItem:
        return std::make_unique<MenuBinder>(static_cast<MenuItem &>(control), window);
    case ControlKind::Timer:
        return std::make_unique<TimerBinder>(static_cast<Timer &>(control), window);
    }
    Q_UNREACHABLE();
}

} // namespace zrv
