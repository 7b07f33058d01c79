// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/forms/form.h"

#include <memory>

class QAction;
class QEvent;
class QKeyEvent;
class QPalette;
class QWidget;

namespace zrv {

class FormWindow;

/// One control and what shows it: makes the widget, keeps it in step with the control, and hands what the user does
/// to the form. There is one class per kind of control; makeBinder chooses.
class Binder {
public:
    Binder(Control &control, FormWindow &window);
    virtual ~Binder();
    Binder(const Binder &) = delete;
    Binder &operator=(const Binder &) = delete;

    [[nodiscard]] Control &control() const { return m_control; }
    [[nodiscard]] virtual QWidget *widget() const { return nullptr; }
    /// The widget that has Qt's focus when the control has the form's.
    [[nodiscard]] virtual QWidget *input() const { return widget(); }
    /// What the mouse presses on; it differs from the input where a widget scrolls.
    [[nodiscard]] virtual QWidget *target() const { return input(); }
    [[nodiscard]] virtual QAction *action() const { return nullptr; }

    /// Brings one aspect of the control to the widget.
    virtual void refresh(Aspect aspect);
    /// Brings every aspect, columns with their rows; called once when all widgets are made and placed.
    void refreshAll();

    /// Whether the widget carries this key out itself, such as a move of the caret that marks text.
    [[nodiscard]] virtual bool keepsKey(const QKeyEvent &event) const;
    /// An event of the widget that only this kind of control knows; true when it is used up.
    virtual bool special(QEvent &event);

protected:
    [[nodiscard]] Form &form() const { return m_control.form(); }
    /// Gives the widget its name and what all widgets have.
    void adopt(QWidget &widget) const;

    Control &m_control;
    FormWindow &m_window;

private:
    std::unique_ptr<QPalette> m_plainPalette; ///< before the screen coloured the text
};

/// A new binder of the control's kind, its widget made and lying in the widget of the control's container.
std::unique_ptr<Binder> makeBinder(Control &control, FormWindow &window);

} // namespace zrv
