// SPDX-License-Identifier: GPL-3.0-or-later
// Saving and deleting the payer.
#include "core/basic/val.h"
#include "core/code_combos.h"
#include "core/mdlError.h"
#include "core/public/check_digit.h"
#include "core/store/connection.h"
#include "core/store/store_error.h"
#include "parties/frmKarfarma.h"
#include "parties/frmKarfarma_texts.h"
#include "parties/payer_columns.h"

#include <array>

namespace zrv {

namespace {

const QString Refused = u" اخطار  "_s;

/// Tables whose rows hang from the payer, and what is said when they hold some.
struct Guard {
    QStringView table;
    QStringView message;
};
// clang-format off
constexpr std::array Guards{
    Guard{u"ZRVtbKarkonan", u" به علت تعريف کارکنان براي اين پرداخت کننده حقوق در جدول کارکنان ، عمليات حذف پرداخت کننده حقوق مقدور نميباشد "},
    Guard{u"ZRVtbHogog",    u" به علت وجود ليست حقوق براي اين پرداخت کننده حقوق در جدول ليست حقوق ، عمليات حذف پرداخت کننده حقوق مقدور نميباشد "},
    Guard{u"ZRVtbKholList", u" به علت وجود خلاصه ليست حقوق براي اين پرداخت کننده حقوق در جدول خلاصه ليست ، عمليات حذف پرداخت کننده حقوق مقدور نميباشد "},
};
// clang-format on

} // namespace

void frmKarfarma::requireSecondSignatory()
{
    // The second signatory is all or nothing. The tags of a screen that has tried to save no longer let Latin
    // letters in, which the fields' own tags did.
    const bool wanted = txtMelliCode2.text().size() >= 2;
    txtMelliCode2.setTag(wanted ? u"+N+DigitOnly"_s : u"+DigitOnly"_s);
    for (TextBox *field : {&txtEmzaName2, &txtEmzaFamily2, &txtEmzaSemat2})
        field->setTag(wanted ? u"+N+FA"_s : u"+FA"_s);
}

bool frmKarfarma::tinIsValid()
{
    const QString tin = txtTin.text().trimmed();
    if (wholeVal(dcbMMoadiType.boundText()) == NaturalPerson) {
        if (!tin.isEmpty() && tin.size() != 10)
            return refuse(u" کد ملي پرداخت کننده حقوق بايد 10 رقمي باشد "_s, txtTin);
        return true;
    }
    if (!tin.isEmpty() && tin.size() != 12)
        return refuse(u" کد اقتصادي بايد 12 رقمي باشد "_s, txtTin);
    if (!tin.startsWith(u'4') && !tin.startsWith(u'5'))
        return refuse(u"شماره اقتصادي (TIN) صحيح نميباشد.احتمالا شما کد پرونده(TFN) را بجاي شماره اقتصادي وارد نموده "
                      "ايد.لطفا اصلاح نماييد"_s,
                      txtTin, box::RefusalRtl);
    return true;
}

bool frmKarfarma::numbersAreValid()
{
    if (!tinIsValid())
        return false;
    if (!txtCodeHozeh.text().isEmpty() && txtCodeHozeh.text().size() != 6)
        return refuse(u" کد اداره امور مالياتي 6 رقمي ميباشد "_s, txtCodeHozeh);
    if (!txtPostCode.text().isEmpty() && txtPostCode.text().size() != 10)
        return refuse(u" کد پستي 10 رقمي ميباشد "_s, txtPostCode);
    if (wholeVal(dcbMMoadiType.boundText()) == NaturalPerson && !isValidNationalCode(txtTin.text()))
        return refuse(u"  کد ملي پرداخت کننده حقوق نامعتبر است  "_s, txtTin);
    return true;
}

void frmKarfarma::cmdDataOk_Click()
{
    try {
        requireSecondSignatory();
        if (!requiredAreFilled(u"framData") || !numbersAreValid())
            return;
        if (!m_recordExists && m_rowCount >= 1) {
            messageBox(box::Refusal, Refused, u"  تعريف بيش از يک پرداخت کننده حقوق مجاز نميباشد "_s);
            return;
        }
        const bool saved = m_recordExists ? UpdateRoutine() : AddRoutine();
        // An insert that failed and was told flips the screen into edit mode all the same.
        m_recordExists = true;
        FillGrid();
        cmdDelete.setEnabled(true);
        if (saved && m_program.showPayer)
            m_program.showPayer(txtName.text() + u" "_s + txtFamily.text() + u" - شعبه "_s + txtShobeName.text()
                                + u" "_s);
    } catch (const RunTimeError &failure) {
        ShowInlineError(m_platform, failure);
    }
}

QString frmKarfarma::keyCondition() const
{
    return u" WHERE TFN = "_s + quoted(txtTFN.text()) + u" AND CodeShobe = "_s + quoted(txtCodeShobe.text());
}

/// False when the store refused the row; the user knows by then.
bool frmKarfarma::AddRoutine()
{
    QString values = quoted(numberText(Val(txtTFN.text()))) + u","_s + quoted(numberText(Val(txtCodeShobe.text())));
    try {
        for (const auto column : PayerDataColumns)
            values += u","_s + valueOf(column);
        Connection(m_program.StoreConnectionString)
            .execute(u"INSERT INTO ZRVtbKarfarma "_s
                     + u"(TFN,CodeShobe,MMoadiType,SMoadiType,MohasebeType,Name,Family,ShobeName,"
                       "Tin,PostCode,CodeHozeh,TelNo,Address,MelliCode1,EmzaName1,EmzaFamily1,EmzaSemat1,"
                       "MelliCode2,EmzaName2,EmzaFamily2,EmzaSemat2,EdareName) "_s
                     + u"VALUES "_s + u"("_s + values + u")"_s);
    } catch (const RunTimeError &failure) {
        if (failure.number() == store_error::ValueTooLong)
            messageBox(box::Refusal, u" تــوجه  "_s, karfarma_texts::BranchColumnTooShort);
        else
            messageBox(box::Warning, u"Add"_s, failure.description());
        return false;
    }
    messageBox(box::Notice, u" توجه "_s, u" اطلاعات پرداخت کننده حقوق ذخيره گرديد "_s);
    return true;
}

/// Likewise.
bool frmKarfarma::UpdateRoutine()
{
    QString changes;
    try {
        for (const auto column : PayerUpdatedColumns)
            changes += (changes.isEmpty() ? u" "_s : u", "_s) + column + u" = "_s + valueOf(column);
        Connection(m_program.StoreConnectionString).execute(u"UPDATE ZRVtbKarfarma Set"_s + changes + keyCondition());
    } catch (const RunTimeError &failure) {
        messageBox(box::Warning, u"Update"_s, failure.description());
        return false;
    }
    messageBox(box::Notice, u" توجه "_s, u"  بروزرساني اطلاعات پرداخت کننده حقوق انجام گرديد "_s);
    return true;
}

// Deleting ---------------------------------------------------------------------------------------------------

bool frmKarfarma::deletionIsRefused()
{
    QString lines;
    for (const Guard &guard : Guards)
        if (RecordExists(m_program, u"SELECT * FROM "_s + guard.table + u" WHERE TFN = "_s + quoted(txtTFN.text())))
            lines += guard.message + u"\r"_s;
    if (lines.isEmpty())
        return false;
    messageBox(box::Refusal, Refused,
               lines + u"\r"_s
                   + u"جهت انجام عمليات حذف ابتدا مورد(موارد) فوق را حذف نموده و سپس نسبت به حذف پرداخت کننده حقوق "
                     "اقدام فرماييد"_s);
    return true;
}

void frmKarfarma::cmdDelete_Click()
{
    if (deletionIsRefused())
        return;
    if (confirmDelete())
        DeleteRoutine();
    FillGrid();
    backToKey();
}

void frmKarfarma::DeleteRoutine()
{
    try {
        Connection(m_program.StoreConnectionString).execute(u" DELETE From ZRVtbKarfarma "_s + keyCondition());
    } catch (const RunTimeError &failure) {
        messageBox(box::Warning, u"Delete"_s, failure.description());
    }
}

} // namespace zrv
