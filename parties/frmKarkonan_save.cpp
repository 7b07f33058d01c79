// SPDX-License-Identifier: GPL-3.0-or-later
// Saving and deleting a payee.
#include "core/basic/run_time_error.h"
#include "core/basic/val.h"
#include "core/code_combos.h"
#include "core/frmCoding.h"
#include "core/mdlPublic.h"
#include "core/store/connection.h"
#include "parties/frmKarkonan.h"
#include "parties/payee_columns.h"

#include <QScopedValueRollback>

namespace zrv {

namespace {

const QString HomeCountry = u"1"_s;
const QString Uninsured = u"3"_s;
constexpr int PostCodeDigits = 10;

} // namespace

void frmKarkonan::cmdDataOk_Click()
{
    txtInsuNo.setTag(dcbBimehType.boundText() == Uninsured ? u"+DigitOnly"_s : u"+N+DigitOnly"_s);
    if (!requiredAreFilled(u"framData") || !entriesAreValid())
        return;
    addOtherRows();
    if (beginsAfterToday()) {
        (void)refuse(u"تاريخ شروع به کار نميتواند از تاريخ جاري بزرگتر باشد"_s, BeginDate.year);
        return;
    }
    if (m_recordExists)
        UpdateRoutine();
    else
        AddRoutine();
    backToKey(true);
}

bool frmKarkonan::entriesAreValid()
{
    const QString postCode = txtPostCode.text().trimmed();
    if (!postCode.isEmpty() && postCode.size() < PostCodeDigits)
        return refuse(u"در صورت ورود کد پستي آنرا بصورت 10 رقمي بايد وارد نماييد"_s, txtPostCode);
    if (optKhareji.isChecked() && dcbKeshvarCode.boundText() == HomeCountry)
        return refuse(u"نام کشور ايران را براي دريافت کنندگان حقوق خارجي نميتوانيد انتخاب نماييد.لطفا نام کشور صحيح "
                      "را انتخاب نماييد"_s,
                      dcbKeshvarCode);
    return true;
}

/// A text beside a list adds a row to that list, and the payee gets the new code. Like rows are not looked for:
/// the same text saved twice makes two.
void frmKarkonan::addOtherRows()
{
    struct OtherField {
        TextBox &text;
        DataCombo &list;
        QString number;
        QString name;
        bool descending;
    };
    for (const OtherField &other : std::initializer_list<OtherField>{
             {txtSematSayer, dcbSemat, u"2"_s, u"سمت يا شغل"_s, false},
             {txtRastehSayer, dcbRasteh, u"10"_s, u"رسته شغلي"_s, true},
             {txtBimehSayer, dcbBimehType, u"16"_s, u"نوع بيمه"_s, true},
         }) {
        const QString description = other.text.text().trimmed();
        if (description.isEmpty())
            continue;
        frmCoding coding(m_program, other.number, other.name);
        coding.load();
        coding.txtSCode_DblClick();
        coding.txtSDesc.setText(description);
        coding.AddRoutine();
        FillCodeListByValue(m_program, other.number, other.list, other.descending);
        other.list.setBoundText(coding.txtSCode.text());
    }
}

bool frmKarkonan::beginsAfterToday() const
{
    constexpr bool NoSeparators = true;
    return wholeVal(BeginDate.joined()) > wholeVal(SolarDate(m_platform.today(), NoSeparators));
}

void frmKarkonan::backToKey(bool clearKey)
{
    cmdDelete.setEnabled(false);
    chkAutoSearch.setEnabled(false);
    {
        const QScopedValueRollback<bool> emptying(m_namesAreTyped, false);
        openKeyStage(clearKey);
    }
    txtMelliCode_Change();
    txtMelliCode.setFocus();
    FillGrid();
}

// Statements -------------------------------------------------------------------------------------------------

QString frmKarkonan::columnValue(QStringView column) const
{
    if (column == u"BeginDate")
        return quoted(BeginDate.stored());
    if (column == u"EndDate")
        return quoted(EndDate.stored());
    return valueOf(column);
}

QString frmKarkonan::keyCondition() const
{
    return u" WHERE "_s + u" TFN = "_s + quoted(m_program.PayerTFN.trimmed()) + u" AND "_s + u" MelliCode = "_s
           + quoted(txtMelliCode.text().trimmed());
}

void frmKarkonan::AddRoutine()
{
    QString columns = u"TFN,MelliCode"_s;
    QString values = quoted(m_program.PayerTFN.trimmed()) + u","_s + quoted(txtMelliCode.text().trimmed());
    for (const QStringView column : PayeeDataColumns) {
        columns += u","_s + column;
        values += u","_s + columnValue(column);
    }
    Connection(m_program.StoreConnectionString)
        .execute(u"INSERT INTO ZRVtbKarkonan "_s + u"("_s + columns + u") "_s + u"VALUES "_s + u"("_s + values
                 + u")"_s);
}

void frmKarkonan::UpdateRoutine()
{
    try {
        QString changes;
        for (const QStringView column : PayeeDataColumns)
            changes += (changes.isEmpty() ? u" "_s : u", "_s) + column + u" = "_s + columnValue(column);
        Connection(m_program.StoreConnectionString).execute(u"UPDATE ZRVtbKarkonan Set"_s + changes + keyCondition());
    } catch (const RunTimeError &failure) {
        messageBox(box::Warning, u"Update"_s, failure.description());
    }
}

void frmKarkonan::DeleteRoutine()
{
    try {
        Connection(m_program.StoreConnectionString).execute(u" DELETE From ZRVtbKarkonan "_s + keyCondition());
    } catch (const RunTimeError &failure) {
        messageBox(box::Warning, u"Delete"_s, failure.description());
    }
}

// Deleting ---------------------------------------------------------------------------------------------------

bool frmKarkonan::deletionIsRefused()
{
    if (!RecordExists(m_program,
                      u"SELECT * FROM ZRVtbHogog"_s + u" WHERE MelliCode = "_s + quoted(txtMelliCode.text().trimmed())))
        return false;
    messageBox(box::Refusal, u" اخطار  "_s,
               u" به علت وجود اين دريافت کننده حقوق در ليست حقوق ، عمليات حذف مقدور نميباشد "_s + u"\r"_s
                   + u"جهت انجام عمليات حذف ابتدا مورد(موارد) فوق را حذف نموده و سپس نسبت به حذف دريافت کننده حقوق "
                     "اقدام فرماييد"_s);
    return true;
}

void frmKarkonan::cmdDelete_Click()
{
    if (deletionIsRefused())
        return;
    if (confirmDelete())
        DeleteRoutine();
    backToKey(false);
}

} // namespace zrv
