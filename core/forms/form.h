// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/forms/controls.h"
#include "core/forms/grid.h"
#include "core/forms/report_box.h"

namespace zrv {

class RunTimeError;

/// What the window side (or a test) is told of a form. Calls come on the program's one thread.
class FormView {
public:
    virtual ~FormView() = default;
    virtual void controlChanged(Control &control, Aspect aspect) = 0;
    /// The focus is now at this control; null: nowhere.
    virtual void focusMoved(Control *control) = 0;
    virtual void captionChanged() = 0;
    virtual void closed() = 0;
};

/// Who asks a form to go.
enum class UnloadMode { CloseBox = 0, Code = 1, SystemShutdown = 2 };

/// A screen without a toolkit: its controls, its routines, the focus, the keys, its life from load to unload.
///
/// Everything a user does comes in through the user… calls, from the window side and from tests alike, so that
/// both behave the same. While one of them runs, further ones are dropped: a second click during a long
/// operation does nothing, unless the control was marked with setLiveWhileBusy.
///
/// A key runs: onKeyDown of the focused control; for letters and Enter, Escape, Backspace then Form_KeyPress,
/// then onKeyPress of the control, each of which may change or drop it; then the key's own effect. Enter on a
/// focused button clicks it before anything else; an Enter nobody dropped clicks the default button; an Escape
/// that Form_KeyPress let through clicks the Cancel button.
class Form : public Container {
public:
    explicit Form(QString name);
    ~Form() override;
    Form(const Form &) = delete;
    Form &operator=(const Form &) = delete;

    [[nodiscard]] const QString &name() const { return m_name; }
    [[nodiscard]] const QString &caption() const { return m_caption; }
    void setCaption(const QString &caption);

    /// All controls in tab order.
    [[nodiscard]] const std::vector<Control *> &controls() const { return m_controls; }
    /// The control of this name (element I of a control array is NAME(I)); null if there is none.
    [[nodiscard]] Control *find(QStringView name) const;

    [[nodiscard]] Control *activeControl() const { return m_active; }
    enum class Stops { OfTab, PassedByTab };
    /// Moves the focus on (1) or back (-1) in the tab order, round the end.
    void moveFocus(int step, Stops stops = Stops::OfTab);

    [[nodiscard]] Button *defaultButton() const { return m_default; }
    [[nodiscard]] Button *cancelButton() const { return m_cancel; }

    [[nodiscard]] FormView *view() const { return m_view; }
    void setView(FormView *view) { m_view = view; }

    // Life. Whoever opens a form loads it; the platform's modal run then shows it, activates it, and waits until
    // isOpen is false.
    /// Runs Form_Load once.
    void load();
    /// Runs Form_Activate; the first time it also gives the focus to the first control in tab order, if the
    /// screen itself put it nowhere.
    void activate();
    [[nodiscard]] bool isOpen() const { return m_open; }
    /// Asks Form_QueryUnload, then closes the form.
    void unload(UnloadMode mode = UnloadMode::Code);

    // What a user does. They return false when the control can't be reached or the form is busy.
    bool userFocus(Control &control);
    bool userClick(Control &control);
    /// The second press of a double click; the first was a click like any other, and came as one.
    bool userDblClick(Control &control);
    /// A letter typed into the focused control, as the keyboard gives it.
    bool userLetter(QChar letter);
    bool userKey(Key key);
    /// A text pasted, dropped or committed by an input method: letter by letter through the key filter.
    bool userPaste(const QString &text);
    /// Letters of `typed` that the key filter lets into the focused field, folded to the code page's letters.
    /// The window side calls it for edits that its widget carries out itself.
    [[nodiscard]] QString filtered(const QString &typed);
    /// The widget has edited the field: its new text and selection. The letters have been through filtered.
    void userEdited(Edit &edit, const QString &text, qsizetype caret);
    bool userChoose(Combo &combo, int row);
    bool userChoose(ListBox &list, int row);
    bool userCheckItem(ListBox &list, int row, bool checked);
    bool userCheck(Control &checkOrOption, bool checked);
    bool userRow(Grid &grid, int row, int column);
    bool userHead(Grid &grid, int column);
    /// Lines of a report, from one to another, which becomes current.
    bool userLines(ReportBox &report, qint64 anchor, qint64 line);
    bool userPage(Tabs &tabs, int page);
    bool userClose();
    void tick(Timer &timer);

    /// True while a user's action is being carried out.
    [[nodiscard]] bool isBusy() const { return m_depth > 0; }
    /// The control that can be used while the form is busy, such as a Cancel button; null for none.
    void setLiveWhileBusy(Control *control) { m_live = control; }
    [[nodiscard]] Control *liveWhileBusy() const { return m_live; }

protected:
    virtual void Form_Load() {}
    virtual void Form_Activate() {}
    /// The form's look at each key before its controls; 0 drops the key.
    virtual void Form_KeyPress(int &keyAscii) { Q_UNUSED(keyAscii); }
    virtual bool Form_KeyDown(Key key)
    {
        Q_UNUSED(key);
        return false;
    }
    /// False keeps the form open.
    virtual bool Form_QueryUnload(UnloadMode mode)
    {
        Q_UNUSED(mode);
        return true;
    }
    virtual void Form_Unload() {}
    /// A failure that a routine let go: tells the user. The screen keeps its state.
    virtual void failed(const RunTimeError &failure) = 0;

    [[nodiscard]] Form &containerForm() override { return *this; }

private:
    friend class Control;
    friend class Button;

    bool carryOut(const std::function<void()> &action);
    [[nodiscard]] bool accepts(const Control &control) const;
    void add(Control &control);
    void giveFocus(Control *control);
    void settleFocus();
    int filterKey(int keyAscii);
    bool namedKey(Key key);
    bool editKey(Edit &edit, Key key);
    bool listKey(Control &control, Key key);
    bool press(int keyAscii);

    QString m_name;
    QString m_caption;
    std::vector<Control *> m_controls;
    Control *m_active = nullptr;
    Control *m_live = nullptr;
    Button *m_default = nullptr;
    Button *m_cancel = nullptr;
    FormView *m_view = nullptr;
    int m_depth = 0;
    bool m_loaded = false;
    bool m_shown = false;
    bool m_open = false;
};

} // namespace zrv
