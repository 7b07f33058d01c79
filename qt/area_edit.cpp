// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/area_edit.h"

#include "qt/difference.h"
#include "qt/edit_menu.h"
#include "qt/form_window.h"

#include <QContextMenuEvent>
#include <QMimeData>
#include <QScopedValueRollback>
#include <QStyle>
#include <QTextOption>

namespace zrv {

namespace {

void selectIn(QPlainTextEdit &area, qsizetype start, qsizetype length)
{
    QTextCursor cursor = area.textCursor();
    cursor.setPosition(static_cast<int>(start));
    cursor.setPosition(static_cast<int>(start + length), QTextCursor::KeepAnchor);
    area.setTextCursor(cursor);
}

/// The area's lines end in LF; the control's text may hold CR LF, whose places must not slip.
QString shownLines(const QString &text)
{
    QString lines = text;
    return lines.replace(QLatin1String("\r\n"), QLatin1String("\n")).replace(u'\r', u'\n');
}

} // namespace

AreaEdit::AreaEdit(Edit &edit, FormWindow &window, QWidget *parent)
    : QPlainTextEdit(parent)
    , m_edit(edit)
    , m_window(window)
{
    setTabChangesFocus(true);
    if (edit.isLeftToRight())
        setLayoutDirection(Qt::LeftToRight);
    // The area puts every line at the left unless it is told; each line still runs as its own letters do.
    QTextOption lines = document()->defaultTextOption();
    lines.setAlignment(QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft));
    document()->setDefaultTextOption(lines);
    connect(this, &QPlainTextEdit::textChanged, this, [this] { textEditedByWidget(); });
    connect(this, &QPlainTextEdit::selectionChanged, this, [this] { selectionMovedByWidget(); });
    connect(this, &QPlainTextEdit::cursorPositionChanged, this, [this] { selectionMovedByWidget(); });
}

void AreaEdit::showText()
{
    const QScopedValueRollback showing(m_showing, true);
    const QString lines = shownLines(m_edit.text());
    if (toPlainText() == lines)
        return;
    if (m_window.isTyping(m_edit)) {
        const Difference change = difference(toPlainText(), lines);
        selectIn(*this, change.start, change.removed);
        textCursor().insertText(change.inserted);
    }
    if (toPlainText() != lines)
        setPlainText(lines);
    showSelection();
}

void AreaEdit::showSelection()
{
    const QScopedValueRollback showing(m_showing, true);
    const QString &text = m_edit.text();
    const qsizetype start = shownLines(text.first(m_edit.selStart())).size();
    const qsizetype length = shownLines(text.mid(m_edit.selStart(), m_edit.selLength())).size();
    // Set anew, a selection that the user draws out backwards would turn round and shrink with the next key.
    const QTextCursor cursor = textCursor();
    if (!cursor.hasSelection() || cursor.selectionStart() != start || cursor.selectionEnd() != start + length)
        selectIn(*this, start, length);
}

void AreaEdit::showLocked()
{
    setReadOnly(m_edit.isLocked());
    // A text that is only read can still be marked and copied by keyboard.
    if (m_edit.isLocked())
        setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
}

void AreaEdit::enterText(const QString &text)
{
    m_window.enterTyping(&m_edit, [&] { m_edit.form().userPaste(text); });
}

void AreaEdit::textEditedByWidget()
{
    const QString edited = toPlainText();
    const QString before = shownLines(m_edit.text());
    if (m_showing || edited == before)
        return;
    Form &form = m_edit.form();
    if (!form.isBusy() && form.userFocus(m_edit) && m_edit.hasFocus() && !m_edit.isLocked()) {
        const Difference change = difference(before, edited);
        const int caret = textCursor().position();
        m_window.enterTyping(&m_edit, [&] {
            if (m_restoring || change.inserted.isEmpty()) {
                form.userEdited(m_edit, edited, caret);
            } else {
                m_edit.select(change.start, change.removed);
                form.userPaste(change.inserted);
            }
        });
    }
    showText();
}

void AreaEdit::selectionMovedByWidget()
{
    // Places are told only where both sides count alike; a text with CR LF is shown, not edited.
    if (m_showing || toPlainText() != m_edit.text())
        return;
    const QScopedValueRollback showing(m_showing, true);
    const QTextCursor cursor = textCursor();
    m_edit.select(cursor.selectionStart(), cursor.selectionEnd() - cursor.selectionStart());
}

void AreaEdit::restore(void (QPlainTextEdit::*undoOrRedo)())
{
    const QScopedValueRollback restoring(m_restoring, true);
    (this->*undoOrRedo)();
}

bool AreaEdit::keepsKey(const QKeyEvent &event)
{
    switch (event.key()) {
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
    case Qt::Key_Home:
    case Qt::Key_End:
    case Qt::Key_Insert:
        return true;
    case Qt::Key_Delete:
        return event.modifiers() & (Qt::ShiftModifier | Qt::ControlModifier);
    default:
        return false;
    }
}

void AreaEdit::keyPressEvent(QKeyEvent *event)
{
    if (event->matches(QKeySequence::Undo))
        restore(&QPlainTextEdit::undo);
    else if (event->matches(QKeySequence::Redo))
        restore(&QPlainTextEdit::redo);
    else
        QPlainTextEdit::keyPressEvent(event);
}

void AreaEdit::inputMethodEvent(QInputMethodEvent *event)
{
    const QString committed = event->commitString();
    QInputMethodEvent composing(event->preeditString(), event->attributes());
    QPlainTextEdit::inputMethodEvent(&composing);
    if (!committed.isEmpty())
        enterText(committed);
    event->accept();
}

void AreaEdit::insertFromMimeData(const QMimeData *source)
{
    if (source->hasText() && m_window.pressed(m_edit))
        enterText(source->text());
}

void AreaEdit::contextMenuEvent(QContextMenuEvent *event)
{
    if (!m_window.pressed(m_edit))
        return;
    EditMenuState state;
    state.canUndo = document()->isUndoAvailable();
    state.canRedo = document()->isRedoAvailable();
    state.hasSelection = textCursor().hasSelection();
    state.isLocked = isReadOnly();
    EditMenuActions actions;
    actions.undo = [this] { restore(&QPlainTextEdit::undo); };
    actions.redo = [this] { restore(&QPlainTextEdit::redo); };
    actions.cut = [this] { cut(); };
    actions.copy = [this] { copy(); };
    actions.paste = [this] { paste(); };
    actions.remove = [this] { textCursor().removeSelectedText(); };
    actions.selectAll = [this] { selectAll(); };
    showEditMenu(*this, event->globalPos(), state, actions);
}

} // namespace zrv
