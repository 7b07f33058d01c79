// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/forms/form.h"

#include <QWidget>

#include <functional>
#include <memory>
#include <unordered_map>

class QAction;
class QKeyEvent;
class QScrollArea;

namespace zrv {

class Binder;
class QtPlatform;

/// The window of a form: a widget for each control (its object name is the control's name), placed by the form's
/// layout. The form decides what has the focus, what a key does, what is enabled; the window shows it and passes on
/// what the user does. Qt's own tab order, default buttons and maximal lengths are not used.
class FormWindow : public QWidget, public FormView {
public:
    FormWindow(Form &form, QtPlatform &platform, QWidget *parent);
    ~FormWindow() override;

    [[nodiscard]] Form &form() const { return m_form; }
    [[nodiscard]] QtPlatform &platform() const { return m_platform; }

    /// The widget of a control; null for timers and menu items.
    [[nodiscard]] QWidget *widgetFor(const Control &control) const;
    /// The widget that takes the control's keys: the line edit of a combo box, else the widget itself.
    [[nodiscard]] QWidget *inputFor(const Control &control) const;
    /// The action of a menu item; null for other controls.
    [[nodiscard]] QAction *actionFor(const Control &control) const;
    /// What lies around the widgets of a container: the container's own widget, or the window's ground.
    [[nodiscard]] QWidget *groundOf(Container &container) const;
    [[nodiscard]] Binder &binderOf(const Control &control) const;

    /// Runs a piece of screen code for a user's action and then brings Qt's focus to where the form has it.
    void enter(const std::function<void()> &action);
    /// A key press that reached a control's widget. True when the form has taken it; false leaves it to the widget.
    bool keyPressed(Binder *binder, QKeyEvent &event);
    /// A mouse press on a control that takes the focus: false when the press must not reach the widget.
    bool pressed(Control &control);

    void controlChanged(Control &control, Aspect aspect) override;
    void focusMoved(Control *control) override;
    void captionChanged() override;
    void closed() override;

    /// Shows the window over its parent, or in the middle of the display.
    void open();
    /// Puts Qt's focus where the form has it, unless a menu or a list is open over the window.
    void syncFocus();

protected:
    bool eventFilter(QObject *object, QEvent *event) override;
    bool focusNextPrevChild(bool next) override;
    void keyPressEvent(QKeyEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    void makeBinders();
    void place();
    void fit();
    void watch(Binder &binder);

    Form &m_form;
    QtPlatform &m_platform;
    QScrollArea *m_scroll = nullptr;
    QWidget *m_ground = nullptr;
    std::unordered_map<const Control *, std::unique_ptr<Binder>> m_binders;
    std::unordered_map<const QObject *, Binder *> m_watched;
};

} // namespace zrv
