// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/field_edit.h"

#include "core/forms/form.h"
#include "qt/difference.h"
#include "qt/edit_menu.h"
#include "qt/form_window.h"

#include <QClipboard>
#include <QComboBox>
#include <QDropEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMimeData>
#include <QPainter>
#include <QScopedValueRollback>
#include <QStyleOptionFrame>
#include <QToolTip>

namespace zrv {

FieldEdit::FieldEdit(Edit &edit, FormWindow &window, QWidget *parent)
    : QLineEdit(parent)
    , m_edit(edit)
    , m_window(window)
{
    // Left to itself, the line would follow its first letter. It only listens to a change, so it gets one.
    setLayoutDirection(Qt::LeftToRight);
    if (!edit.isLeftToRight())
        setLayoutDirection(Qt::RightToLeft);
    setAlignment(Qt::AlignRight | Qt::AlignAbsolute | Qt::AlignVCenter);
    connect(this, &QLineEdit::textChanged, this, [this] { textEditedByWidget(); });
    connect(this, &QLineEdit::selectionChanged, this, [this] { selectionMovedByWidget(); });
    connect(this, &QLineEdit::cursorPositionChanged, this, [this] { selectionMovedByWidget(); });
}

// From the control to the widget ------------------------------------------------------------------------------

void FieldEdit::showText()
{
    const QScopedValueRollback showing(m_showing, true);
    if (text() == m_edit.text())
        return;
    if (m_window.isTyping(m_edit)) {
        const Difference change = difference(text(), m_edit.text());
        setSelection(static_cast<int>(change.start), static_cast<int>(change.removed));
        insert(change.inserted);
    }
    if (text() != m_edit.text())
        setText(m_edit.text());
    showSelection();
}

void FieldEdit::showSelection()
{
    const QScopedValueRollback showing(m_showing, true);
    // Where nobody types, the beginning of a text too long for its field is what tells it from others.
    if (!m_edit.hasFocus()) {
        setCursorPosition(0);
        return;
    }
    const int start = static_cast<int>(m_edit.selStart());
    // Set anew, a selection that the user draws out backwards would turn round and shrink with the next key.
    if (hasSelectedText() && selectionStart() == start && selectionLength() == m_edit.selLength())
        return;
    if (m_edit.selLength() > 0)
        setSelection(start, static_cast<int>(m_edit.selLength()));
    else
        setCursorPosition(start);
}

void FieldEdit::showLocked()
{
    setReadOnly(m_edit.isLocked());
}

void FieldEdit::quietly(const std::function<void()> &action)
{
    const QScopedValueRollback showing(m_showing, true);
    action();
}

// From the user to the form -----------------------------------------------------------------------------------

void FieldEdit::enterText(const QString &text)
{
    m_window.enterTyping(&m_edit, [&] { m_edit.form().userPaste(text); });
}

void FieldEdit::pasteClipboard()
{
    enterText(QGuiApplication::clipboard()->text());
}

void FieldEdit::textEditedByWidget()
{
    if (m_showing || text() == m_edit.text())
        return;
    Form &form = m_edit.form();
    if (!form.isBusy() && form.userFocus(m_edit) && m_edit.hasFocus() && !m_edit.isLocked()) {
        const QString edited = text();
        const int caret = cursorPosition();
        const Difference change = difference(m_edit.text(), edited);
        m_window.enterTyping(&m_edit, [&] {
            if (m_restoring || change.inserted.isEmpty()) {
                form.userEdited(m_edit, edited, caret);
            } else if (!dynamic_cast<Combo *>(&m_edit)) {
                // The text of a row that was picked in a combo's list also comes here; the pick itself follows.
                m_edit.select(change.start, change.removed);
                form.userPaste(change.inserted);
            }
        });
    }
    showText();
}

void FieldEdit::selectionMovedByWidget()
{
    if (m_showing || text() != m_edit.text())
        return;
    const QScopedValueRollback showing(m_showing, true);
    if (hasSelectedText())
        m_edit.select(selectionStart(), selectionLength());
    else
        m_edit.select(cursorPosition(), 0);
}

void FieldEdit::restore(void (QLineEdit::*undoOrRedo)())
{
    const QScopedValueRollback restoring(m_restoring, true);
    (this->*undoOrRedo)();
}

// A text too long for its field -----------------------------------------------------------------------------------

QRect FieldEdit::textRoom() const
{
    constexpr int Beside = 2; // kept free by the widget on either side of its text
    QStyleOptionFrame field;
    initStyleOption(&field);
    const QRect inside = style()->subElementRect(QStyle::SE_LineEditContents, &field, this);
    return inside.marginsRemoved(textMargins()).adjusted(Beside, 0, -Beside, 0);
}

bool FieldEdit::isCut() const
{
    return !m_edit.hasFocus() && echoMode() == QLineEdit::Normal
           && fontMetrics().horizontalAdvance(text()) >= textRoom().width();
}

void FieldEdit::paintEvent(QPaintEvent *event)
{
    if (!isCut()) {
        QLineEdit::paintEvent(event);
        return;
    }
    QPainter painter(this);
    painter.setLayoutDirection(layoutDirection());
    QStyleOptionFrame field;
    initStyleOption(&field);
    style()->drawPrimitive(QStyle::PE_PanelLineEdit, &field, &painter, this);
    painter.setPen(palette().color(QPalette::Text));
    const QRect room = textRoom();
    painter.drawText(room, static_cast<int>(alignment()) | Qt::TextSingleLine,
                     fontMetrics().elidedText(text(), Qt::ElideRight, room.width()));
}

bool FieldEdit::event(QEvent *event)
{
    if (event->type() != QEvent::ToolTip || !isCut())
        return QLineEdit::event(event);
    // Screens give some boxes their own text for a tip.
    const QString tip = m_edit.toolTip();
    const bool tellsMore = !tip.isEmpty() && tip != text();
    QToolTip::showText(static_cast<const QHelpEvent *>(event)->globalPos(),
                       tellsMore ? QString(text() + u'\n' + tip) : text(), this);
    return true;
}

// Events --------------------------------------------------------------------------------------------------------

bool FieldEdit::keepsKey(const QKeyEvent &event)
{
    switch (event.key()) {
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Home:
    case Qt::Key_End:
    case Qt::Key_Insert:
    case Qt::Key_Delete:
        return event.modifiers() & (Qt::ShiftModifier | Qt::ControlModifier);
    case Qt::Key_Paste:
    case Qt::Key_Copy:
    case Qt::Key_Cut:
    case Qt::Key_Undo:
    case Qt::Key_Redo:
        return true;
    default:
        return false;
    }
}

void FieldEdit::focusInEvent(QFocusEvent *event)
{
    showSelection();
    QLineEdit::focusInEvent(event);
    redrawBox();
}

void FieldEdit::focusOutEvent(QFocusEvent *event)
{
    QLineEdit::focusOutEvent(event);
    redrawBox();
    // Left for its menu, its list or another program, the field still has the form's focus.
    if (event->reason() == Qt::PopupFocusReason || event->reason() == Qt::ActiveWindowFocusReason)
        return;
    const QScopedValueRollback showing(m_showing, true);
    setCursorPosition(0);
}

/// The ring of the focus is drawn by the list's box around the field.
void FieldEdit::redrawBox()
{
    if (auto *const box = qobject_cast<QComboBox *>(parentWidget()))
        box->update();
}

void FieldEdit::keyPressEvent(QKeyEvent *event)
{
    if (event->matches(QKeySequence::Paste))
        pasteClipboard();
    else if (event->matches(QKeySequence::Undo))
        restore(&QLineEdit::undo);
    else if (event->matches(QKeySequence::Redo))
        restore(&QLineEdit::redo);
    else
        QLineEdit::keyPressEvent(event);
}

void FieldEdit::inputMethodEvent(QInputMethodEvent *event)
{
    const QString committed = event->commitString();
    if (event->replacementLength() > 0) {
        const qsizetype start = m_edit.selStart() + event->replacementStart();
        m_edit.select(start, event->replacementLength());
    }
    // The widget shows what is being composed; what is done goes the way of every other text.
    QInputMethodEvent composing(event->preeditString(), event->attributes());
    QLineEdit::inputMethodEvent(&composing);
    if (!committed.isEmpty())
        enterText(committed);
    event->accept();
}

void FieldEdit::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() != Qt::MiddleButton) {
        QLineEdit::mouseReleaseEvent(event);
        return;
    }
    enterText(QGuiApplication::clipboard()->text(QClipboard::Selection));
    event->accept();
}

void FieldEdit::dragEnterEvent(QDragEnterEvent *event)
{
    if (m_edit.isLocked() || m_edit.form().isBusy())
        event->ignore();
    else
        QLineEdit::dragEnterEvent(event);
}

void FieldEdit::dropEvent(QDropEvent *event)
{
    if (!event->mimeData()->hasText() || !m_window.pressed(m_edit)) {
        event->ignore();
        return;
    }
    const int place = cursorPositionAt(event->position().toPoint());
    // A piece of this field that is moved within it leaves its old place first.
    qsizetype target = place;
    if (event->source() == this && event->dropAction() == Qt::MoveAction) {
        const qsizetype start = m_edit.selStart();
        const qsizetype length = m_edit.selLength();
        if (place > start)
            target = std::max(start, place - length);
        del();
    }
    m_edit.select(target, 0);
    enterText(event->mimeData()->text());
    // The source must not take anything away: that is done.
    event->setDropAction(Qt::CopyAction);
    event->accept();
}

void FieldEdit::contextMenuEvent(QContextMenuEvent *event)
{
    if (!m_window.pressed(m_edit))
        return;
    EditMenuState state;
    state.canUndo = isUndoAvailable();
    state.canRedo = isRedoAvailable();
    state.hasSelection = hasSelectedText();
    state.isLocked = isReadOnly();
    state.hidesText = echoMode() != QLineEdit::Normal;
    EditMenuActions actions;
    actions.undo = [this] { restore(&QLineEdit::undo); };
    actions.redo = [this] { restore(&QLineEdit::redo); };
    actions.cut = [this] { cut(); };
    actions.copy = [this] { copy(); };
    actions.paste = [this] { pasteClipboard(); };
    actions.remove = [this] { del(); };
    actions.selectAll = [this] { selectAll(); };
    showEditMenu(*this, event->globalPos(), state, actions);
}

} // namespace zrv
