// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/forms/form.h"

#include "core/basic/run_time_error.h"

#include <utility>

namespace zrv {

Form::Form(QString name)
    : m_name(std::move(name))
{
}

Form::~Form() = default;

void Form::setCaption(const QString &caption)
{
    if (m_caption == caption)
        return;
    m_caption = caption;
    if (m_view)
        m_view->captionChanged();
}

void Form::add(Control &control)
{
    control.m_tabIndex = static_cast<int>(m_controls.size());
    m_controls.push_back(&control);
}

Control *Form::find(QStringView name) const
{
    for (Control *control : m_controls)
        if (control->name() == name)
            return control;
    return nullptr;
}

// Focus ------------------------------------------------------------------------------------------------------

void Form::giveFocus(Control *control)
{
    Control *const left = m_active;
    if (left == control)
        return;
    m_active = control;
    if (m_view)
        m_view->focusMoved(control);
    if (left && left->onLostFocus)
        left->onLostFocus();
    // A leave rule may have sent the focus elsewhere; then the enter rule of this control must not run.
    if (m_active != control || !control)
        return;
    if (auto *edit = dynamic_cast<Edit *>(control))
        edit->selectAll();
    if (control->onGotFocus)
        control->onGotFocus();
}

void Form::moveFocus(int step, Stops stops)
{
    const int count = static_cast<int>(m_controls.size());
    const int start = m_active ? m_active->tabIndex() : (step > 0 ? -1 : count);
    for (int distance = 1; distance <= count; ++distance) {
        const int place = ((start + step * distance) % count + count) % count;
        Control *const next = m_controls[static_cast<size_t>(place)];
        if (next->takesFocus() && next->isTabStop() == (stops == Stops::OfTab) && next->isReachable()) {
            giveFocus(next);
            return;
        }
    }
}

void Form::settleFocus()
{
    // A control that was switched off while it had the focus keeps it until its routine is over, because most
    // routines give it a new place themselves.
    if (m_open && m_active && !m_active->isReachable())
        moveFocus(1);
    if (m_active && !m_active->isReachable())
        giveFocus(nullptr);
}

// Life -------------------------------------------------------------------------------------------------------

/// Runs one action of the user, or of the form's life, to its end; its failures end here. Always true.
bool Form::carryOut(const std::function<void()> &action)
{
    struct Depth {
        int &depth;
        explicit Depth(int &d)
            : depth(d)
        {
            ++depth;
        }
        ~Depth() { --depth; }
    } const running(m_depth);
    try {
        action();
        settleFocus();
    } catch (const RunTimeError &failure) {
        failed(failure);
        settleFocus();
    }
    return true;
}

void Form::load()
{
    if (m_loaded)
        return;
    m_loaded = true;
    m_open = true;
    for (Control *control : m_controls)
        if (control->kind() == ControlKind::Tabs)
            static_cast<Tabs *>(control)->setPage(static_cast<Tabs *>(control)->page());
    carryOut([this] { Form_Load(); });
}

void Form::activate()
{
    carryOut([this] {
        Form_Activate();
        if (m_open && !std::exchange(m_shown, true) && !m_active)
            moveFocus(1);
    });
}

void Form::unload(UnloadMode mode)
{
    if (!m_open || !Form_QueryUnload(mode))
        return;
    m_open = false;
    Form_Unload();
    if (m_view)
        m_view->closed();
}

// What a user does -------------------------------------------------------------------------------------------

bool Form::accepts(const Control &control) const
{
    return m_open && (m_depth == 0 || m_live == &control) && control.isReachable();
}

bool Form::userFocus(Control &control)
{
    if (&control == m_active)
        return true;
    return control.takesFocus() && accepts(control) && carryOut([&] { giveFocus(&control); });
}

bool Form::userClick(Control &control)
{
    if (!accepts(control))
        return false;
    return carryOut([&] {
        if (control.takesFocus() && m_active != &control) {
            giveFocus(&control);
            // A button's enter rule, and any rule that sent the focus on, has used the click up.
            const bool served = control.kind() == ControlKind::Button && control.onGotFocus;
            if (served || m_active != &control || !control.isReachable())
                return;
        }
        if (control.kind() == ControlKind::CheckBox) {
            auto &box = static_cast<CheckBox &>(control);
            box.setChecked(!box.isChecked());
        } else if (control.kind() == ControlKind::OptionButton && !static_cast<OptionButton &>(control).isChecked()) {
            static_cast<OptionButton &>(control).setChecked(true);
        } else if (control.onClick) {
            control.onClick();
        }
    });
}

bool Form::userDblClick(Control &control)
{
    return accepts(control) && carryOut([&] {
               if (control.takesFocus())
                   giveFocus(&control);
               if (control.onDblClick)
                   control.onDblClick();
           });
}

bool Form::userChoose(Combo &combo, int row)
{
    if (!accepts(combo) || combo.isLocked())
        return false;
    return carryOut([&] {
        giveFocus(&combo);
        combo.chooseRow(row);
    });
}

bool Form::userChoose(ListBox &list, int row)
{
    return accepts(list) && carryOut([&] {
               giveFocus(&list);
               list.setListIndex(row);
           });
}

bool Form::userCheckItem(ListBox &list, int row, bool checked)
{
    return accepts(list) && carryOut([&] {
               giveFocus(&list);
               list.setItemChecked(row, checked);
           });
}

bool Form::userCheck(Control &checkOrOption, bool checked)
{
    return accepts(checkOrOption) && carryOut([&] {
               giveFocus(&checkOrOption);
               if (checkOrOption.kind() == ControlKind::CheckBox)
                   static_cast<CheckBox &>(checkOrOption).setChecked(checked);
               else
                   static_cast<OptionButton &>(checkOrOption).setChecked(checked);
           });
}

bool Form::userRow(Grid &grid, int row, int column)
{
    return accepts(grid) && carryOut([&] {
               giveFocus(&grid);
               grid.setCurrent(row, column);
           });
}

bool Form::userHead(Grid &grid, int column)
{
    return accepts(grid) && carryOut([&] {
               giveFocus(&grid);
               if (grid.onHeadClick)
                   grid.onHeadClick(column);
           });
}

bool Form::userLines(ReportBox &report, qint64 anchor, qint64 line)
{
    return accepts(report) && carryOut([&] {
               giveFocus(&report);
               report.select(anchor, line);
           });
}

bool Form::userPage(Tabs &tabs, int page)
{
    return accepts(tabs) && carryOut([&] {
               giveFocus(&tabs);
               tabs.setPage(page);
           });
}

bool Form::userClose()
{
    // What can be cancelled is cancelled first; the form stays until it is asked again.
    if (m_open && m_depth > 0)
        return m_live && userClick(*m_live);
    return m_open && m_depth == 0 && carryOut([this] { unload(UnloadMode::CloseBox); });
}

void Form::tick(Timer &timer)
{
    if (m_open && timer.isEnabled() && timer.onTimer)
        timer.onTimer();
}

} // namespace zrv
