// SPDX-License-Identifier: GPL-3.0-or-later
// Keys and letters on their way into a form; the order of the steps is told in form.h.
#include "core/basic/ansi.h"
#include "core/basic/keyboard_letters.h"
#include "core/forms/form.h"

#include <algorithm>
#include <utility>

namespace zrv {

namespace {

constexpr int BackspaceCode = 8;
constexpr int EnterCode = 13;
constexpr int EscapeCode = 27;
constexpr int UnknownCode = '?'; ///< what a letter outside the code page is for the key filters

} // namespace

int Form::filterKey(int keyAscii)
{
    Form_KeyPress(keyAscii);
    // The Cancel button comes before the field, whose filter would only drop the key.
    if (keyAscii == EscapeCode && m_cancel && m_cancel->isReachable())
        return keyAscii;
    if (keyAscii != 0 && m_active && m_active->onKeyPress)
        m_active->onKeyPress(keyAscii);
    return keyAscii;
}

namespace {

/// An Enter that nothing else has a use for begins a new line where the field has more than one.
void breakLine(Control *active)
{
    auto *const box = active && active->kind() == ControlKind::TextBox ? static_cast<TextBox *>(active) : nullptr;
    if (box && box->isMultiLine() && !box->isLocked())
        box->insert(QString(u'\n'));
}

} // namespace

/// Enter and Escape: true when the key is used up.
bool Form::press(int keyAscii)
{
    if (filterKey(keyAscii) == 0)
        return true;
    Button *const button = keyAscii == EnterCode ? m_default : m_cancel;
    if (button && button->isReachable()) {
        if (button->onClick)
            button->onClick();
    } else if (keyAscii == EnterCode) {
        breakLine(m_active);
    }
    return true;
}

QString Form::filtered(const QString &typed)
{
    QString kept;
    Control *const field = m_active;
    for (const QChar letter : typed) {
        const QChar folded = keyboardLetter(letter);
        // Line ends and tabs of a pasted text are no keys; they would walk through the form.
        if (folded < u' ')
            continue;
        const int code = ansiCode(folded);
        const int key = filterKey(code < 0 ? UnknownCode : code);
        if (m_active != field)
            break;
        if (key == 0)
            continue;
        kept += key == (code < 0 ? UnknownCode : code) ? folded : ansiLetter(key);
    }
    return kept;
}

bool Form::userLetter(QChar letter)
{
    if (!m_active || !accepts(*m_active))
        return false;
    return carryOut([&] {
        Control &control = *m_active;
        const bool isSwitch = control.kind() == ControlKind::Button || control.kind() == ControlKind::CheckBox
                              || control.kind() == ControlKind::OptionButton;
        if (isSwitch && letter == u' ') {
            if (control.kind() == ControlKind::CheckBox)
                static_cast<CheckBox &>(control).setChecked(!static_cast<CheckBox &>(control).isChecked());
            else if (control.kind() == ControlKind::OptionButton && !static_cast<OptionButton &>(control).isChecked())
                static_cast<OptionButton &>(control).setChecked(true);
            else if (control.onClick)
                control.onClick();
            return;
        }
        const QString kept = filtered(letter);
        auto *edit = dynamic_cast<Edit *>(m_active);
        if (edit == &control && !kept.isEmpty() && !edit->isLocked())
            edit->insert(kept);
    });
}

bool Form::userPaste(const QString &text)
{
    if (!m_active || !accepts(*m_active))
        return false;
    return carryOut([&] {
        auto *const edit = dynamic_cast<Edit *>(m_active);
        if (!edit || edit->isLocked())
            return;
        const QString kept = filtered(text);
        if (!kept.isEmpty() && m_active == edit)
            edit->insert(kept);
    });
}

void Form::userEdited(Edit &edit, const QString &text, qsizetype caret)
{
    if (!accepts(edit) || edit.isLocked())
        return;
    const auto *const combo = dynamic_cast<const Combo *>(&edit);
    carryOut([&] { edit.assign(combo ? combo->admitted(text) : text, caret); });
}

bool Form::userKey(Key key)
{
    // Escape ends what is under way and can be cancelled.
    if (m_open && m_depth > 0)
        return key == Key::Escape && m_live && userClick(*m_live);
    return m_open && carryOut([&] { namedKey(key); });
}

bool Form::namedKey(Key key)
{
    if (Form_KeyDown(key) || (m_active && m_active->onKeyDown && m_active->onKeyDown(key)))
        return true;
    switch (key) {
    case Key::Tab:
        moveFocus(1);
        return true;
    case Key::Backtab:
        moveFocus(-1);
        return true;
    case Key::F6:
        moveFocus(1, Stops::PassedByTab);
        return true;
    case Key::Enter:
        if (m_active && m_active->kind() == ControlKind::Button) {
            if (m_active->onClick)
                m_active->onClick();
            return true;
        }
        if (m_active && m_active->kind() == ControlKind::ReportBox && listKey(*m_active, key))
            return true;
        return press(EnterCode);
    case Key::Escape:
        return press(EscapeCode);
    default:
        break;
    }
    if (auto *edit = dynamic_cast<Edit *>(m_active))
        return editKey(*edit, key);
    return m_active && listKey(*m_active, key);
}

namespace {

/// A letter on or back; a selection is left at its end in that direction.
void moveCaret(Edit &edit, bool onward)
{
    const qsizetype end = edit.selStart() + edit.selLength();
    if (edit.selLength() > 0)
        edit.select(onward ? end : edit.selStart(), 0);
    else
        edit.select(onward ? end + 1 : edit.selStart() - 1, 0);
}

} // namespace

bool Form::editKey(Edit &edit, Key key)
{
    auto *const combo = dynamic_cast<Combo *>(&edit);
    switch (key) {
    case Key::Backspace:
        if (filterKey(BackspaceCode) != 0 && !edit.isLocked() && m_active == &edit)
            edit.erase(true);
        return true;
    case Key::Delete:
        if (!edit.isLocked())
            edit.erase(false);
        return true;
    case Key::Left:
    case Key::Right:
        moveCaret(edit, (key == Key::Right) == edit.isLeftToRight());
        return true;
    case Key::Home:
        edit.select(0, 0);
        return true;
    case Key::End:
        edit.select(edit.text().size(), 0);
        return true;
    case Key::Up:
    case Key::Down: {
        if (!combo || combo->isLocked())
            return false;
        const int row = combo->listIndex() + (key == Key::Down ? 1 : -1);
        if (row >= 0 && std::cmp_less(row, combo->items().size()))
            combo->chooseRow(row);
        return true;
    }
    default:
        return false;
    }
}

namespace {

/// Makes the next shown column current, or the one before, round the end.
void stepColumn(Grid &grid, int step)
{
    const int count = static_cast<int>(grid.columns().size());
    for (int distance = 1; distance < count; ++distance) {
        const int column = ((grid.currentColumn() + step * distance) % count + count) % count;
        if (!grid.columns()[static_cast<size_t>(column)].visible)
            continue;
        grid.setCurrent(grid.currentRow(), column);
        return;
    }
}

} // namespace

bool Form::listKey(Control &control, Key key)
{
    const int step = key == Key::Down ? 1 : -1;
    const bool upDown = key == Key::Up || key == Key::Down;
    switch (control.kind()) {
    case ControlKind::Grid: {
        auto &grid = static_cast<Grid &>(control);
        const bool sideways = key == Key::Left || key == Key::Right;
        if (upDown)
            grid.setCurrent(grid.currentRow() + step, grid.currentColumn());
        // Columns follow each other from right to left.
        if (sideways)
            stepColumn(grid, key == Key::Left ? 1 : -1);
        return upDown || sideways;
    }
    case ControlKind::ListBox: {
        auto &list = static_cast<ListBox &>(control);
        if (upDown)
            list.setListIndex(std::max(0, list.listIndex() + step));
        return upDown;
    }
    case ControlKind::ReportBox:
        return static_cast<ReportBox &>(control).press(key);
    case ControlKind::Tabs: {
        const bool sideways = key == Key::Left || key == Key::Right;
        // Pages follow each other from right to left.
        if (sideways)
            static_cast<Tabs &>(control).setPage(static_cast<Tabs &>(control).page() + (key == Key::Left ? 1 : -1));
        return sideways;
    }
    default:
        return false;
    }
}

} // namespace zrv
