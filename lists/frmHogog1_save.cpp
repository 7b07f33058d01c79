// SPDX-License-Identifier: GPL-3.0-or-later
// Saving, cancelling and deleting a payee's month.
#include "core/basic/run_time_error.h"
#include "core/code_combos.h"
#include "core/containers.h"
#include "core/store/connection.h"
#include "lists/frmHogog1.h"

namespace zrv {

void frmHogog1::cmdDataOk_Click()
{
    if (!requiredAreFilled({u"framNagdy", u"framGNagdy", u"framPadash", u"framMohasebeh"}))
        return;
    reporting([this] {
        if (m_recordExists)
            UpdateRoutine();
        else
            AddRoutine();
        const int next = m_payee + 1;
        openKeyStage();
        cmdDelete.setEnabled(false);
        showPayee(next);
        dcbMelliCode.setFocus();
        FillGrid();
    });
}

void frmHogog1::cmdDataReturn_Click()
{
    openKeyStage();
    cmdDelete.setEnabled(false);
    cmdKeyOk1.setEnabled(true);
    showPayee(m_payee);
    dcbMelliCode.setFocus();
}

// Statements -------------------------------------------------------------------------------------------------

QString frmHogog1::monthCondition() const
{
    const ListMonth month = chosenMonth();
    return u" WHERE "_s + u" TFN = "_s + quoted(m_program.PayerTFN) + u" AND TaxYear = "_s + quoted(month.year)
           + u" AND TaxMonth = "_s + quoted(month.month);
}

QString frmHogog1::keyCondition() const
{
    return monthCondition() + u" AND MelliCode = "_s + quoted(textMelliCode.text().trimmed());
}

QString frmHogog1::columnValue(const SalaryColumn &column) const
{
    if (column.name == u"TFN")
        return quoted(m_program.PayerTFN);
    if (column.origin == Origin::Key || column.origin == Origin::Status)
        return valueOf(column.name);
    return quoted(storedAmount(fieldOf(column.name).text()));
}

void frmHogog1::AddRoutine()
{
    QStringList columns;
    QStringList values;
    for (const SalaryColumn &column : SalaryColumns) {
        columns += column.name.toString();
        values += columnValue(column);
    }
    Connection(m_program.StoreConnectionString)
        .execute(u"INSERT INTO ZRVtbHogog "_s + u"("_s + columns.join(u',') + u") "_s + u"VALUES "_s + u"("_s
                 + values.join(u',') + u")"_s);
}

void frmHogog1::UpdateRoutine()
{
    try {
        QStringList changes;
        for (const SalaryColumn &column : SalaryColumns)
            if (column.origin != Origin::Key)
                changes += QString(column.name + u" = "_s + columnValue(column));
        Connection(m_program.StoreConnectionString)
            .execute(u"UPDATE ZRVtbHogog Set "_s + changes.join(u',') + keyCondition());
    } catch (const RunTimeError &failure) {
        messageBox(box::Warning, u"Update"_s, failure.description());
    }
}

void frmHogog1::DeleteRoutine()
{
    try {
        Connection(m_program.StoreConnectionString).execute(u" DELETE From ZRVtbHogog "_s + keyCondition());
    } catch (const RunTimeError &failure) {
        messageBox(box::Warning, u"Delete"_s, failure.description());
    }
}

// Deleting ---------------------------------------------------------------------------------------------------

/// A summary list of the month was made of its rows, whatever its type.
bool frmHogog1::deletionIsRefused()
{
    if (!RecordExists(m_program, u"SELECT * FROM ZRVtbKholList"_s + monthCondition()))
        return false;
    messageBox(
        box::Refusal, u" اخطار  "_s,
        u" به علت ايجاد و ذخيره خلاصه ليست بر اساس اطلاعات ليست حقوق اين ماه و سال در جدول خلاصه ليست حقوق ، عمليات حذف مقدور نميباشد "_s
            + u"\r"_s
            + u"جهت انجام عمليات حذف ابتدا مورد(موارد) فوق را حذف نموده و سپس نسبت به حذف اقلام دريافتي اين دريافت کننده حقوق اقدام فرماييد"_s);
    return true;
}

void frmHogog1::cmdDelete_Click()
{
    if (deletionIsRefused())
        return;
    if (confirmDelete())
        DeleteRoutine();
    FillGrid();
    cmdDelete.setEnabled(false);
    openKeyStage();
    dcbMelliCode.setFocus();
}

} // namespace zrv
