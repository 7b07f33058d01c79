// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/forms/controls.h"

#include "core/forms/form.h"

#include <utility>

namespace zrv {

TextBox::TextBox(Container &container, QString name, const TextBoxLook &look)
    : Edit(container, std::move(name), ControlKind::TextBox)
    , m_look(look)
{
    m_maxLength = look.limit;
    m_tag = look.tag;
    m_toolTip = look.toolTip;
    m_locked = look.locked;
    m_visible = look.visible;
    m_leftToRight = look.leftToRight;
}

Captioned::Captioned(Container &container, QString name, ControlKind kind, bool takesFocus, const ButtonLook &look)
    : Control(container, std::move(name), kind, takesFocus)
    , m_caption(look.caption)
{
    m_toolTip = look.toolTip;
    m_enabled = look.enabled;
    m_visible = look.visible;
    m_backColor = color::Window;
}

void Captioned::setCaption(const QString &caption)
{
    if (m_caption == caption)
        return;
    m_caption = caption;
    changed(Aspect::Caption);
}

Label::Label(Container &container, QString name, const LabelLook &look)
    : Captioned(container, std::move(name), ControlKind::Label, false,
                {.caption = look.caption, .toolTip = look.toolTip, .visible = look.visible})
    , m_leftToRight(look.leftToRight)
{
}

Button::Button(Container &container, QString name, const ButtonLook &look)
    : Captioned(container, std::move(name), ControlKind::Button, true, look)
{
}

namespace {

/// A form has one default and one Cancel button: the latest that asked for it.
bool takeRole(Button *&role, Button &button, bool on)
{
    if (on == (role == &button))
        return false;
    role = on ? &button : nullptr;
    return true;
}

} // namespace

bool Button::isDefault() const
{
    return form().m_default == this;
}

void Button::setDefault(bool on)
{
    if (takeRole(form().m_default, *this, on))
        changed(Aspect::DefaultOrCancel);
}

bool Button::isCancel() const
{
    return form().m_cancel == this;
}

void Button::setCancel(bool on)
{
    if (takeRole(form().m_cancel, *this, on))
        changed(Aspect::DefaultOrCancel);
}

namespace {

ButtonLook captionLook(const ChoiceLook &look)
{
    return {.caption = look.caption, .toolTip = look.toolTip, .enabled = look.enabled, .visible = look.visible};
}

} // namespace

CheckBox::CheckBox(Container &container, QString name, const ChoiceLook &look)
    : Captioned(container, std::move(name), ControlKind::CheckBox, true, captionLook(look))
    , m_checked(look.checked)
{
}

void CheckBox::setChecked(bool checked)
{
    if (m_checked == checked)
        return;
    m_checked = checked;
    changed(Aspect::Checked);
    if (onClick)
        onClick();
}

OptionButton::OptionButton(Container &container, QString name, const ChoiceLook &look)
    : Captioned(container, std::move(name), ControlKind::OptionButton, true, captionLook(look))
    , m_checked(look.checked)
{
}

void OptionButton::setChecked(bool checked)
{
    if (m_checked == checked)
        return;
    if (checked)
        for (Control *other : container().children())
            if (other != this && other->kind() == ControlKind::OptionButton)
                static_cast<OptionButton *>(other)->setChecked(false);
    m_checked = checked;
    changed(Aspect::Checked);
    if (checked && onClick)
        onClick();
}

ListBox::ListBox(Container &container, QString name, const ListBoxLook &look)
    : Control(container, std::move(name), ControlKind::ListBox, true)
    , m_checkBoxes(look.checkBoxes)
{
    m_visible = look.visible;
}

void ListBox::setItems(std::vector<ListItem> items)
{
    m_items = std::move(items);
    m_index = -1;
    changed(Aspect::Items);
}

void ListBox::addItem(const ListItem &item)
{
    m_items.push_back(item);
    changed(Aspect::Items);
}

void ListBox::removeItem(int row)
{
    m_items.erase(m_items.begin() + row);
    if (m_index >= row)
        m_index = -1;
    changed(Aspect::Items);
}

void ListBox::clear()
{
    setItems({});
}

void ListBox::setListIndex(int row)
{
    if (row == m_index || std::cmp_greater_equal(row, m_items.size()))
        return;
    m_index = row;
    changed(Aspect::CurrentRow);
    if (row >= 0 && onClick)
        onClick();
}

void ListBox::setItemChecked(int row, bool checked)
{
    ListItem &item = m_items.at(static_cast<size_t>(row));
    if (item.checked == checked)
        return;
    item.checked = checked;
    changed(Aspect::Items);
    if (onItemCheck)
        onItemCheck(row);
}

QString ListBox::shownText() const
{
    return m_index < 0 ? QString() : m_items[static_cast<size_t>(m_index)].shown;
}

Frame::Frame(Container &container, QString name, const FrameLook &look)
    : Captioned(container, std::move(name), ControlKind::Frame, false,
                {.caption = look.caption, .visible = look.visible})
{
}

Picture::Picture(Container &container, QString name, const FrameLook &look)
    : Control(container, std::move(name), ControlKind::Picture, false)
{
    m_visible = look.visible;
    m_backColor = color::Window;
}

Tabs::Tabs(Container &container, QString name, QStringList captions)
    : Control(container, std::move(name), ControlKind::Tabs, true)
    , m_captions(std::move(captions))
{
    m_backColor = color::Window;
}

void Tabs::setPage(int page)
{
    if (page < 0 || page >= m_captions.size())
        return;
    const bool other = page != m_page;
    m_page = page;
    for (int place = 0; std::cmp_less(place, children().size()); ++place)
        children()[static_cast<size_t>(place)]->setVisible(place == page);
    if (!other)
        return;
    changed(Aspect::Page);
    if (onClick)
        onClick();
}

StatusPanel::StatusPanel(Container &container, QString name, Size size)
    : Control(container, std::move(name), ControlKind::StatusPanel, false)
    , m_size(size)
{
    m_backColor = color::Window;
}

void StatusPanel::setText(const QString &text)
{
    if (m_text == text)
        return;
    m_text = text;
    changed(Aspect::Text);
}

void StatusPanel::setSize(Size size)
{
    m_size = size;
    changed(Aspect::Text);
}

MenuItem::MenuItem(Container &container, QString name, const ButtonLook &look)
    : Captioned(container, std::move(name), ControlKind::MenuItem, false, look)
{
}

Timer::Timer(Container &container, QString name, int intervalMs)
    : Control(container, std::move(name), ControlKind::Timer, false)
    , m_interval(intervalMs)
{
}

} // namespace zrv
