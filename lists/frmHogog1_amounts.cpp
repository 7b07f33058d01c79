// SPDX-License-Identifier: GPL-3.0-or-later
// The data stage: a payee's amounts, bound to the month's arithmetic.
#include "core/containers.h"
#include "core/store/connection.h"
#include "lists/frmHogog1.h"

namespace zrv {

namespace {

constexpr Color FinalTaxGround = 0xFF8080;

} // namespace

void frmHogog1::wireAmounts()
{
    for (std::size_t place = 0; place < MonthFields; ++place) {
        const auto field = static_cast<MonthField>(place);
        const SalaryColumn &column = columnOf(field);
        Edit &edit = fieldOf(column.name);
        m_fields[place] = &edit;
        edit.onChange = [this, field] { m_arithmetic.changed(field); };
        if (column.origin == Origin::Derived)
            edit.setTabStop(false);
    }
    cmdDataOk.onClick = [this] { cmdDataOk_Click(); };
    cmdDataReturn.onClick = [this] { cmdDataReturn_Click(); };
}

void frmHogog1::cmdKeyOk1_Click()
{
    if (!requiredAreFilled(u"framKey1"))
        return;
    reporting([this] {
        // Read before the stage changes, so that a store that can't be read leaves the choice as it is.
        const Connection connection(m_program.StoreConnectionString);
        const Recordset payee(connection, u"SELECT ShakhsMoafCode FROM ZRVtbKarkonan"_s + u" WHERE MelliCode = "_s
                                              + quoted(textMelliCode.text().trimmed()));
        const Recordset row(connection, u"SELECT * FROM ZRVtbHogog"_s + keyCondition());
        m_recordExists = !row.eof();
        openDataStage();
        txtFinalTax.setBackColor(FinalTaxGround);
        txtNJariHogog.setFocus();
        m_arithmetic.readClass(payee.eof() ? std::nullopt : std::optional(payee.value(0).toText()));
        if (!payee.eof())
            lbDVaziateMoafiat.setCaption(exemptionText(m_arithmetic.exemptionClass()));
        cmdDelete.setEnabled(m_recordExists);
        if (m_recordExists)
            m_arithmetic.loadRow([&row](QStringView column) { return row.value(column).toText(); });
        else
            m_arithmetic.beginRow();
        m_arithmetic.applyClass();
        // The first digit typed replaces what was loaded.
        txtNJariHogog.selectAll();
    });
}

// The fields as the arithmetic sees them ------------------------------------------------------------------------

QString frmHogog1::text(MonthField field) const
{
    const Edit &edit = *m_fields[static_cast<std::size_t>(field)];
    const auto *const list = dynamic_cast<const Combo *>(&edit);
    return list ? list->boundText() : edit.text();
}

void frmHogog1::setText(MonthField field, const QString &text)
{
    Edit &edit = *m_fields[static_cast<std::size_t>(field)];
    if (auto *const list = dynamic_cast<Combo *>(&edit))
        list->setBoundText(text);
    else
        edit.setText(text);
}

void frmHogog1::moveCaretToEnd(MonthField field)
{
    Edit &edit = *m_fields[static_cast<std::size_t>(field)];
    edit.select(edit.text().size(), 0);
}

void frmHogog1::disable(MonthField field)
{
    m_fields[static_cast<std::size_t>(field)]->setEnabled(false);
}

void frmHogog1::setOpen(MonthField amount, bool open)
{
    Edit &edit = *m_fields[static_cast<std::size_t>(amount)];
    edit.setEnabled(open);
    edit.setBackColor(open ? color::DataField : color::Disabled);
}

void frmHogog1::showTaxInWords(const QString &words)
{
    lblFinalTax.setCaption(words);
}

void frmHogog1::warn(const QString &title, const QString &text)
{
    messageBox(box::Refusal, title, text);
}

} // namespace zrv
