// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/forms/edit.h"

#include <QPlainTextEdit>

namespace zrv {

class FormWindow;

/// A text box of several lines; the same way of working as FieldEdit.
class AreaEdit : public QPlainTextEdit {
public:
    AreaEdit(Edit &edit, FormWindow &window, QWidget *parent);

    void showText();
    void showSelection();
    void showLocked();
    void enterText(const QString &text);
    [[nodiscard]] static bool keepsKey(const QKeyEvent &event);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void inputMethodEvent(QInputMethodEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    /// Paste, drop and middle click of a text area all end here.
    void insertFromMimeData(const QMimeData *source) override;

private:
    void restore(void (QPlainTextEdit::*undoOrRedo)());
    void textEditedByWidget();
    void selectionMovedByWidget();

    Edit &m_edit;
    FormWindow &m_window;
    bool m_showing = false;
    bool m_restoring = false;
};

} // namespace zrv
