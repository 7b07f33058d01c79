// SPDX-License-Identifier: GPL-3.0-or-later
// Saving, deleting and printing a summary list.
#include "core/basic/run_time_error.h"
#include "core/basic/val.h"
#include "core/mdlError.h"
#include "core/store/connection.h"
#include "lists/amounts.h"
#include "lists/frmKholList.h"
#include "lists/rptKhol.h"

namespace zrv {

namespace {

const QString Refused = u" اخطار  "_s;

} // namespace

void frmKholList::cmdDataOk_Click()
{
    try {
        const QString missing = u" مقداردهي مواردي که با رنگ زمينه متمايز گرديده اند الزامي ميباشد "_s;
        const PaymentKind *const kind = paymentKind();
        // The date of the cheque lies one container deeper than the check looks.
        const bool filled = kind && kind->byCheque ? requiredAreFilled({u"framData", u"picChequeDate"}, missing)
                                                   : requiredAreFilled({u"framData"}, missing);
        if (!filled || !amountSuitsPayment())
            return;
        if (m_recordExists)
            UpdateRoutine();
        else
            AddRoutine();
        backToKey();
        FillGrid();
    } catch (const RunTimeError &failure) {
        ShowInlineError(m_platform, failure);
    }
}

bool frmKholList::amountSuitsPayment()
{
    const PaymentKind *const kind = paymentKind();
    if (!kind || kind->amountMayBeZero || amountOf(txtMablagPardakhti.text()) != 0)
        return true;
    messageBox(box::Refusal, Refused,
               u" در صورت پرداخت بصورت غير نقدي  مبلغ  پرداختي نمي تواند صفر باشد . لطفا اصلاح نماييد "_s);
    txtMablagPardakhti.setFocus();
    return false;
}

void frmKholList::backToKey()
{
    cmdDelete.setEnabled(false);
    cmdPrintKhol.setEnabled(false);
    openKeyStage();
    chkAutoSearch.setVisible(false);
    txtTaxYear.setFocus();
}

// Statements -------------------------------------------------------------------------------------------------

/// An amount without its separators; a blank one stays blank.
QString frmKholList::columnValue(const SummaryColumn &column) const
{
    switch (column.holds) {
    case SummaryValue::Amount:
    case SummaryValue::Count:
        return quoted(plainAmount(figure(column.name).text()).trimmed());
    case SummaryValue::Date:
        return quoted((column.name == u"ChequeDate" ? ChequeDate : RoznameDate).stored());
    case SummaryValue::Bank:
        return quoted(cmbBankName.listIndex() < 0 ? QString() : QString::number(wholeVal(cmbBankName.boundText())));
    default:
        return valueOf(column.name);
    }
}

/// A new row keeps the separators of its two counts, until the next change of the row takes them out.
QString frmKholList::addedValue(const SummaryColumn &column) const
{
    return column.holds == SummaryValue::Count ? valueOf(column.name) : columnValue(column);
}

void frmKholList::AddRoutine()
{
    try {
        QString values;
        for (const QString &key :
             {TextTFN.text(), dcbKholListType.boundText(), txtTaxYear.text(), dcbTaxMonth.boundText()})
            values += (values.isEmpty() ? QString() : u","_s) + quoted(key.trimmed());
        for (const SummaryColumn &column : SummaryDataColumns)
            values += u","_s + addedValue(column);
        // clang-format off
        Connection(m_program.StoreConnectionString)
            .execute(u"INSERT INTO ZRVtbKholList "_s
                     + u"(TFN,KholListType,TaxYear,TaxMonth,JariSumHogog,JariSumMashmol,JariTax,JariJarimeDo,JariJarimeBist,JariBedehiTax,"
                       "GablSumHogog,GablSumMashmol,GablTax,GablJarimeDo,GablJarimeBist,GablBedehiTax,RoznameDate,"
                       "KarkonanNo,KharejiNo,NahveyePardakht,ChequeSeriNo,ChequeDate,BankName,ShobeName,HesabNo,MablagPardakhti) "_s
                     + u"VALUES ("_s + values + u")"_s);
        // clang-format on
    } catch (const RunTimeError &failure) {
        messageBox(box::Warning, u"Add"_s, failure.description());
    }
}

void frmKholList::UpdateRoutine()
{
    try {
        QString changes;
        for (const SummaryColumn &column : SummaryDataColumns)
            changes += (changes.isEmpty() ? u" "_s : u", "_s) + column.name + u" = "_s + columnValue(column);
        Connection(m_program.StoreConnectionString).execute(u"UPDATE ZRVtbKholList Set"_s + changes + keyCondition());
    } catch (const RunTimeError &failure) {
        messageBox(box::Warning, u"Update"_s, failure.description());
    }
}

void frmKholList::DeleteRoutine()
{
    try {
        Connection(m_program.StoreConnectionString).execute(u" DELETE From ZRVtbKholList "_s + keyCondition());
    } catch (const RunTimeError &failure) {
        messageBox(box::Warning, u"Delete"_s, failure.description());
    }
}

// Deleting and printing --------------------------------------------------------------------------------------

/// The sums that later months have carried from this one stay as they are.
void frmKholList::cmdDelete_Click()
{
    if (confirmDelete())
        DeleteRoutine();
    FillGrid();
    backToKey();
}

void frmKholList::cmdPrintKhol_Click()
{
    // The key is closed while a row is open, and with it nothing of it is required.
    if (!requiredAreFilled(u"framKey"))
        return;
    // The form bears the row as it is stored, whatever has been typed since.
    m_platform.preview(rptKhol(m_program, readKholRow(m_program, TextTFN.text(), dcbKholListType.boundText(),
                                                      txtTaxYear.text(), dcbTaxMonth.boundText())));
}

} // namespace zrv
