// SPDX-License-Identifier: GPL-3.0-or-later
// What is printed of the contents.
#include "files/contents_columns.h"
#include "files/frmReadTextFiles.h"
#include "lists/rptHogogTextFile.h"
#include "lists/rptKhol.h"

#include <array>

namespace zrv {

namespace {

const QString Notice = u"توجه"_s;

/// The boxes of the form by what the summary says of the payment.
struct Payment {
    QStringView field;
    QStringView description;
};
constexpr std::array Payments{
    Payment{u"NAGHDY", u"نقدي"},
    Payment{u"GNAGHDY", u"غير نقدي - چک"},
    Payment{u"ADAMEPARDAKHT", u"ارائه ليست بدون پرداخت ماليات"},
};

} // namespace

void frmReadTextFiles::cmdPrint_Click()
{
    switch (SSTab1.page()) {
    case KholPage:
        printKhol();
        break;
    case HogogPage:
        printHogog();
        break;
    default:
        messageBox(box::Refusal, u" اخطار  "_s, u"عمليات چاپ در اين برگه فعال نيست"_s);
    }
}

QString frmReadTextFiles::payerName() const
{
    return dbgKarfarma.currentCell(u"Name") + u" "_s + dbgKarfarma.currentCell(u"Family") + u" - شعبه "_s
           + dbgKarfarma.currentCell(u"ShobeName");
}

void frmReadTextFiles::printKhol()
{
    if (lblKhol.caption().isEmpty()) {
        messageBox(box::Notice, Notice,
                   u"جهت چاپ خلاصه ليست ابتدا دکمه (نمايش محتوي فايل خلاصه ليست) را کليک نماييد"_s);
        return;
    }
    if (lblHogog.caption().isEmpty()) {
        messageBox(box::Notice, Notice,
                   u"جهت چاپ خلاصه ليست ابتدا دکمه (نمايش محتوي فايل ليست حقوق و مشخصات کارفرما) را کليک نماييد"_s);
        return;
    }
    KholRow row{
        {u"TFN"_s, m_program.DisplayedTFN},         {u"KholListType"_s, u" خلاصه ليست ماليات بر حقوق "_s},
        {u"TaxYear"_s, m_program.DisplayedTaxYear}, {u"TaxMonth"_s, m_monthName},
        {u"KarfarmaName"_s, payerName()},
    };
    for (const QString &field : {u"PostCode"_s, u"TelNo"_s, u"Address"_s})
        row.insert(field, dbgKarfarma.currentCell(field));
    for (const ContentsColumn &column : summaryContents().columns)
        row.insert(column.field.toString(), dbgKhol.currentCell(column.field));
    const QString manner = row.take(u"NahveyePardakht"_s);
    for (const Payment &payment : Payments)
        row.insert(payment.field.toString(), manner == payment.description ? u"1"_s : u"0"_s);
    m_platform.preview(rptKhol(m_program, row));
}

void frmReadTextFiles::printHogog()
{
    if (browse.rowCount() == 0) {
        messageBox(box::Refusal, u" توجه "_s, u" رکوردي جهت چاپ يافت نشد "_s);
        return;
    }
    // The list bears the payer whom the main form names; without one, the payer of the file.
    m_platform.preview(rptHogogTextFile(rowsOf(browse.grid),
                                        {.TaxMonth = m_hogogMonth,
                                         .txtYear = m_hogogYear,
                                         .txtName = m_program.ShownPayer.isEmpty() ? payerName() : m_program.ShownPayer,
                                         .today = m_platform.today()}));
}

} // namespace zrv
