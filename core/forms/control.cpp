// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/forms/control.h"

#include "core/forms/form.h"

#include <utility>

namespace zrv {

Control::Control(Container &container, QString name, ControlKind kind, bool takesFocus)
    : m_form(&container.containerForm())
    , m_container(&container)
    , m_name(std::move(name))
    , m_kind(kind)
    , m_takesFocus(takesFocus)
{
    m_container->m_children.push_back(this);
    m_form->add(*this);
}

void Control::changed(Aspect aspect)
{
    if (m_form->view())
        m_form->view()->controlChanged(*this, aspect);
}

void Control::setEnabled(bool enabled)
{
    if (m_enabled == enabled)
        return;
    m_enabled = enabled;
    changed(Aspect::Enabled);
}

void Control::setVisible(bool visible)
{
    if (m_visible == visible)
        return;
    m_visible = visible;
    changed(Aspect::Visible);
}

bool Control::isReachable() const
{
    for (const Control *control = this; control; control = control->m_container->containerControl())
        if (!control->m_enabled || !control->m_visible)
            return false;
    return true;
}

bool Control::isShown() const
{
    for (const Control *control = this; control; control = control->m_container->containerControl())
        if (!control->m_visible)
            return false;
    return true;
}

void Control::setBackColor(Color color)
{
    if (m_backColor == color)
        return;
    m_backColor = color;
    changed(Aspect::Colors);
}

void Control::setTextColor(Color color)
{
    if (m_textColor == color)
        return;
    m_textColor = color;
    changed(Aspect::Colors);
}

void Control::setToolTip(const QString &text)
{
    if (m_toolTip == text)
        return;
    m_toolTip = text;
    changed(Aspect::ToolTip);
}

bool Control::hasFocus() const
{
    return m_form->activeControl() == this;
}

void Control::setFocus()
{
    if (m_takesFocus && isReachable())
        m_form->giveFocus(this);
}

} // namespace zrv
