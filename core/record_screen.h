// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/screen.h"

#include <initializer_list>

namespace zrv {

/// What the record screens share. The form looks at each key first and drops those that the field's tag doesn't
/// admit; Enter walks through the fields as Tab does; Escape goes one stage back. A record's life is two stages:
/// the key fields are open and the data fields closed, or the other way round.
class RecordScreen : public Screen {
public:
    /// The containers of the two stages are named letter for letter as the screen has them.
    RecordScreen(Program &program, QString name, QString keyContainer = QStringLiteral("framKey"),
                 QString dataContainer = QStringLiteral("framData"));

protected:
    void Form_KeyPress(int &keyAscii) override;

    /// CheckRequired over a container, or over several in turn; when a field is empty the user is told and the focus
    /// goes to the one that comes first in tab order.
    bool requiredAreFilled(QStringView container);
    bool requiredAreFilled(std::initializer_list<QStringView> containers, const QString &refusal = RequiredMissing);

    /// Key fields closed, data fields open.
    void openDataStage();
    /// Data fields emptied and closed, key fields emptied if wanted and open. The screen then gives the focus.
    void openKeyStage(bool clearKey = true);

    /// The field that shows a column bears the column's name behind its kind: txtName, dcbSemat.
    [[nodiscard]] Edit &fieldOf(QStringView column) const;
    /// The column's value for a statement: trimmed and quoted, a list's code.
    [[nodiscard]] QString valueOf(QStringView column) const;
    /// Shows a stored value: a text, or the row of a list that has this code.
    void showValue(QStringView column, const QString &stored);
    /// The last step of showing a record: a field that a rule opened as required, and that the record filled, is no
    /// longer asked for.
    void recordIsShown();

    /// The question before a record is deleted.
    bool confirmDelete();

    /// Key fields emptied and closed, and the browse panel closed with them; the focus waits on cmdContinue, which can
    /// be used only now: pressed in another stage it would open the key of the record in hand.
    void leaveKeyStage(Button &cmdContinue);
    /// cmdContinue: both open again.
    void takeUpKeyStage(Button &cmdContinue, Control &keyField);

    /// Escape. Runs, of cmdCancel_Search, cmdDataReturn and cmdKeyReturn, the first whose panel is open; false when
    /// none is.
    virtual bool goBack();

private:
    static const QString RequiredMissing;

    QString m_keyContainer;
    QString m_dataContainer;
};

} // namespace zrv
