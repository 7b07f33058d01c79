// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/forms/color.h"

#include <QString>

#include <functional>
#include <vector>

namespace zrv {

class Container;
class Control;
class Form;

/// What the window side makes of a control: one binder per kind.
enum class ControlKind {
    TextBox,
    Label,
    Button,
    OptionButton,
    CheckBox,
    ComboBox,
    DataCombo,
    ListBox,
    Grid,
    ReportBox,
    Frame,
    Picture,
    Tabs,
    StatusPanel,
    MenuItem,
    Timer,
};

/// The part of a control that changed, told to the form's view.
enum class Aspect {
    Text,
    Selection,
    Caption,
    Enabled,
    Visible,
    Locked,
    Colors,
    Limit,
    ToolTip,
    Checked,
    DefaultOrCancel,
    Items,
    Rows,
    Columns,
    CurrentRow,
    Page,
    Interval,
};

/// The keys that are no letters. Enter, Escape and Backspace also run through the key filter as 13, 27 and 8.
enum class Key {
    Enter,
    Escape,
    Tab,
    Backtab,
    Backspace,
    Delete,
    Left,
    Right,
    Up,
    Down,
    Home,
    End,
    PageUp,
    PageDown,
    F1,
    F2,
    F3,
    F4,
    F5,
    F6,
    F7,
    F8,
    F9,
    F10,
    F11,
    F12,
    Find, ///< Ctrl+F
};

/// What every control has. Controls are members of their screen, declared in tab order; a control registers
/// itself with its form when it is made, and lives as long as the form.
///
/// The handlers are the screen's; an empty one means that nothing happens.
class Control {
public:
    Control(const Control &) = delete;
    Control &operator=(const Control &) = delete;
    virtual ~Control() = default;

    [[nodiscard]] const QString &name() const { return m_name; }
    [[nodiscard]] ControlKind kind() const { return m_kind; }
    [[nodiscard]] Form &form() const { return *m_form; }
    /// The container it lies in: a frame, a picture box, a tab control, or the form itself.
    [[nodiscard]] Container &container() const { return *m_container; }
    /// Place in the tab order, from 0, in the order of declaration.
    [[nodiscard]] int tabIndex() const { return m_tabIndex; }

    [[nodiscard]] const QString &tag() const { return m_tag; }
    void setTag(const QString &tag) { m_tag = tag; }

    /// The control's own switch; a disabled container disables what lies in it as well, see isReachable.
    [[nodiscard]] bool isEnabled() const { return m_enabled; }
    void setEnabled(bool enabled);
    [[nodiscard]] bool isVisible() const { return m_visible; }
    void setVisible(bool visible);
    /// Enabled, visible, and so is every container around it: only then can a user reach it.
    [[nodiscard]] bool isReachable() const;
    /// Shown, it and every container around it.
    [[nodiscard]] bool isShown() const;

    [[nodiscard]] Color backColor() const { return m_backColor; }
    void setBackColor(Color color);
    [[nodiscard]] Color textColor() const { return m_textColor; }
    void setTextColor(Color color);

    [[nodiscard]] const QString &toolTip() const { return m_toolTip; }
    void setToolTip(const QString &text);

    /// Whether Tab stops here; labels, containers and menus never do.
    [[nodiscard]] bool takesFocus() const { return m_takesFocus; }
    [[nodiscard]] bool isTabStop() const { return m_takesFocus && m_tabStop; }
    void setTabStop(bool stop) { m_tabStop = stop; }
    [[nodiscard]] bool hasFocus() const;
    /// Gives the control the focus, with the leave and enter rules of both controls. Does nothing when the
    /// control can't be reached.
    void setFocus();

    /// What the user sees as the control's text: the text of a field, the caption of a label or button.
    [[nodiscard]] virtual QString shownText() const { return {}; }

    std::function<void()> onGotFocus;
    std::function<void()> onLostFocus;
    std::function<void()> onClick;
    std::function<void()> onDblClick;
    /// A letter key as its code in the ANSI code page, or 8, 13, 27; the handler may change it, 0 drops the key.
    std::function<void(int &keyAscii)> onKeyPress;
    /// Any named key before it has its effect; true swallows it.
    std::function<bool(Key)> onKeyDown;

protected:
    Control(Container &container, QString name, ControlKind kind, bool takesFocus);
    void changed(Aspect aspect);

    bool m_enabled = true;
    bool m_visible = true;
    QString m_tag;
    QString m_toolTip;
    Color m_backColor = color::Field;
    Color m_textColor = color::Text;

private:
    friend class Form;

    Form *m_form;
    Container *m_container;
    QString m_name;
    ControlKind m_kind;
    int m_tabIndex = 0;
    bool m_takesFocus;
    bool m_tabStop = true;
};

/// What can hold controls: the form, and the controls that are frames, picture boxes or tabs.
class Container {
public:
    virtual ~Container() = default;
    [[nodiscard]] virtual Form &containerForm() = 0;
    /// The container as a control; null for the form itself.
    [[nodiscard]] virtual Control *containerControl() { return nullptr; }
    /// The controls that lie directly in it, in tab order.
    [[nodiscard]] const std::vector<Control *> &children() const { return m_children; }

private:
    friend class Control;
    std::vector<Control *> m_children;
};

} // namespace zrv
