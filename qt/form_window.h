// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/forms/form.h"
#include "qt/kept_size.h"
#include "qt/mnemonics.h"

#include <QWidget>

#include <functional>
#include <memory>
#include <optional>
#include <unordered_map>

class QAction;
class QKeyEvent;
class QMenuBar;
class QScrollArea;
class QStatusBar;

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
    [[nodiscard]] Mnemonics &mnemonics() { return m_mnemonics; }
    /// The bars are made when the first control asks for one.
    QMenuBar *menuBar();
    QStatusBar *statusBar();
    /// The ground on which the layout places everything that lies in no container.
    [[nodiscard]] QWidget *ground() const { return m_ground; }

    /// Runs a piece of screen code for a user's action and then brings Qt's focus to where the form has it.
    void enter(const std::function<void()> &action);
    /// The same while the user types in a field: what the field then shows can be undone.
    void enterTyping(const Control *field, const std::function<void()> &action);
    [[nodiscard]] bool isTyping(const Control &field) const { return m_typingIn == &field; }
    /// The mouse, or whatever acts like it, is on a control: asks the form for the focus. False when the control did
    /// not get it; the press must not reach the widget then.
    bool pressed(Control &control);

    void controlChanged(Control &control, Aspect aspect) override;
    void focusMoved(Control *control) override;
    void captionChanged() override;
    void closed() override;

    /// The height that the window takes beyond its need when it opens, as far as its display has it.
    void wishHeight(int spare) { m_spare = spare; }

    /// Shows the window over its parent, or in the middle of the display, in the size in which its user left it.
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
    void watch(Binder &binder);
    [[nodiscard]] QSize groundSize() const;
    void fit();
    void scroll();
    bool keyPressed(Binder *binder, const QKeyEvent &event);
    bool watchedEvent(Binder &binder, QObject *object, QEvent &event);

    Form &m_form;
    QtPlatform &m_platform;
    Mnemonics m_mnemonics;
    QScrollArea *m_scroll = nullptr;
    QWidget *m_ground = nullptr;
    QMenuBar *m_menuBar = nullptr;
    QStatusBar *m_statusBar = nullptr;
    std::optional<KeptSize> m_keptSize;
    int m_spare = 0; ///< see wishHeight
    const Control *m_typingIn = nullptr;
    bool m_leaving = false;
    std::unordered_map<const Control *, std::unique_ptr<Binder>> m_binders;
    std::unordered_map<const QObject *, Binder *> m_watched;
};

} // namespace zrv
