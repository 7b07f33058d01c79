// SPDX-License-Identifier: GPL-3.0-or-later
// The grid of what was entered, and the list printed from it.
#include "core/store/connection.h"
#include "lists/frmHogog1.h"
#include "lists/rptHogogTextFile.h"
#include "lists/salary_grid.h"

namespace zrv {

namespace {

const QString UsualOrder = u" ORDER BY Family,Name"_s;
constexpr int TaxMonthColumn = 1;

} // namespace

void frmHogog1::wireGrid()
{
    browse.onPick = [this] { (void)openRow(); };
    browse.onDelete = [this] { deleteRow(); };
    cmdPrintHogh.onClick = [this] { cmdPrintHogh_Click(); };
    cmdDelete.onClick = [this] { cmdDelete_Click(); };
}

void frmHogog1::FormatGrid()
{
    browse.LabelGridCountCaption.setCaption(u"تعداد حقوق بگيران :"_s);
    browse.setUp({.all = [this] { return QString(salarySelect() + shownRows()); },
                  .order = UsualOrder,
                  .search =
                      [this](const QString &sought) {
                          return QString(salarySelect() + shownRows() + u" AND ("_s + sought + u")"_s);
                      },
                  .countFormat = u"#,##0"_s,
                  .keepsEntryOrder = true},
                 salaryGridColumns());
}

void frmHogog1::FillGrid()
{
    browse.fill();
}

/// The payer's rows of the chosen month; a key that is blank leaves nothing out.
QString frmHogog1::shownRows() const
{
    const ListMonth month = chosenMonth();
    QString condition = u" WHERE ZRVtbHogog.TFN = "_s + quoted(m_program.PayerTFN);
    if (!month.year.isEmpty())
        condition += u" AND ZRVtbHogog.TaxYear = "_s + quoted(month.year);
    if (!month.month.isEmpty())
        condition += u" AND ZRVtbHogog.TaxMonth = "_s + quoted(month.month);
    return condition;
}

/// Opens the current row's month and payee, except over a payee that is open already. False when the row wasn't opened.
bool frmHogog1::openRow()
{
    if (cmdDataOk.isReachable())
        return false;
    const QString code = browse.grid.currentCell(u"MelliCode");
    if (txtTaxYear.isReachable()) {
        const QString month = browse.grid.currentCell(u"TaxMonth");
        txtTaxYear.setText(browse.grid.currentCell(u"TaxYear"));
        dcbTaxMonth.setText(month);
    }
    if (!acceptMonth())
        return false;
    dcbMelliCode.setBoundText(code);
    if (!dcbMelliCode.text().isEmpty()) {
        cmdKeyOk1_Click();
        return cmdDataOk.isReachable();
    }
    messageBox(
        box::Refusal, u" تــوجه  "_s,
        u" احتمالا پس از انتقال اتوماتيک اطلاعات ليست حقوق از يک ماه به ماه جاري براي اين شخص تاريخ پايان کاري کوچکتر از ماه جاري مشخص شده است"_s
            + u"\r"_s
            + u"جهت اصلاح و يا حذف اين شخص ابتدا تاريخ پايان کار وي را پاک و سپس عمليات مورد نظر را انجام دهيد و در پايان مجددا تاريخ پايان کار را وارد نماييد"_s);
    return false;
}

void frmHogog1::deleteRow()
{
    if (!openRow())
        return;
    cmdDelete_Click();
    browse.grid.setFocus();
}

void frmHogog1::cmdPrintHogh_Click()
{
    if (browse.rowCount() == 0) {
        messageBox(box::Refusal, u" توجه "_s, u" رکوردي جهت چاپ يافت نشد "_s);
        return;
    }
    m_platform.preview(rptHogogTextFile(rowsOf(browse.grid), {.TaxMonth = browse.grid.cell(0, TaxMonthColumn),
                                                              .txtYear = txtTaxYear.text(),
                                                              .txtName = m_program.ShownPayer,
                                                              .today = m_platform.today(),
                                                              .lblVaziat = QString()}));
}

} // namespace zrv
