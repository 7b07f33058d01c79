// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/forms/edit.h"

#include <QLineEdit>

#include <functional>

namespace zrv {

class FormWindow;

/// The line in which a text box or a combo box is edited. The text is the control's: a letter, a paste, a drop, a
/// middle click and an input method's commit all go to the form, through its key filter, and come back as the control's
/// new text. Only what takes text away or brings it back (cut, delete, undo, redo) is the widget's own work and is told
/// to the form afterwards. Where nobody types, a text too long for the line ends in dots, and the tooltip tells it in
/// full.
class FieldEdit : public QLineEdit {
public:
    FieldEdit(Edit &edit, FormWindow &window, QWidget *parent);

    /// Shows the control's text. While the user types, only what differs is replaced, so that undo still works.
    void showText();
    void showSelection();
    void showLocked();
    /// Lets a combo box put its own rows' texts into the line without anybody taking them for the user's.
    void quietly(const std::function<void()> &action);
    /// Text that the user brings in by any other way than a key.
    void enterText(const QString &text);
    /// Whether the widget carries the key out itself.
    [[nodiscard]] static bool keepsKey(const QKeyEvent &event);

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void inputMethodEvent(QInputMethodEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;

private:
    void pasteClipboard();
    void restore(void (QLineEdit::*undoOrRedo)());
    void textEditedByWidget();
    void selectionMovedByWidget();
    void redrawBox();
    [[nodiscard]] QRect textRoom() const;
    [[nodiscard]] bool isCut() const;

    Edit &m_edit;
    FormWindow &m_window;
    bool m_showing = false;   ///< the widget is being brought in step with the control
    bool m_restoring = false; ///< undo or redo: what comes back has been through the filter before
};

} // namespace zrv
