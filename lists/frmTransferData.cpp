// SPDX-License-Identifier: GPL-3.0-or-later
#include "lists/frmTransferData.h"

#include "core/basic/number_format.h"
#include "core/basic/val.h"
#include "core/code_combos.h"
#include "core/containers.h"
#include "core/kept_copies.h"
#include "core/mdlPublic.h"

namespace zrv {

namespace {

const QString MonthList = u"4"_s;
const QString Attention = u" تــوجه  "_s;

} // namespace

frmTransferData::frmTransferData(Program &program)
    : RecordScreen(program, u"frmTransferData"_s)
{
    dcbSourceYear.onChange = [this] { dcbSourceYear_Change(); };
    dcbSourceMonth.onChange = txtDestinationYear.onChange = dcbDestinationMonth.onChange = [this] { keyChanged(); };
    txtDestinationYear.onLostFocus = [this] { txtDestinationYear_LostFocus(); };
    cmdDisplayInformation.onClick = [this] { cmdDisplayInformation_Click(); };
    cmdTransferData.onClick = [this] { cmdTransferData_Click(); };
    cmdExit.onClick = [this] { unload(); };
    for (const Figure &figure : m_figures) {
        figure.source->setTabStop(false);
        figure.target->setTabStop(false);
    }
}

void frmTransferData::Form_Load()
{
    setCaption(u"فرم انتقال اطلاعات ليست حقوق از يک سال به سال ديگر"_s);
    EnableContainer(u"framKey", *this);
    FillCodeList(m_program, MonthList, dcbDestinationMonth);
}

void frmTransferData::Form_Activate()
{
    FillFromQuery(m_program,
                  u"SELECT Distinct TaxYear FROM ZRVtbHogog"_s + u" WHERE "_s + u" TFN = "_s
                      + quoted(m_program.PayerTFN) + u" ORDER BY TaxYear DESC"_s,
                  dcbSourceYear, u"TaxYear", u"TaxYear");
    if (!dcbSourceYear.items().empty())
        return;
    // clang-format off
    messageBox(box::Refusal, Attention, u" با توجه به عدم وجود اطلاعات براي هيچ سالي در بانک اطلاعاتي ، اطلاعاتي جهت انتقال موجود نميباشد "_s);
    // clang-format on
    unload();
}

bool frmTransferData::goBack()
{
    unload();
    return true;
}

// The two months ---------------------------------------------------------------------------------------------

ListMonth frmTransferData::source() const
{
    return {dcbSourceYear.boundText(), dcbSourceMonth.boundText()};
}

ListMonth frmTransferData::target() const
{
    return {txtDestinationYear.text(), dcbDestinationMonth.boundText()};
}

void frmTransferData::dcbSourceYear_Change()
{
    keyChanged();
    const QString chosen = dcbSourceMonth.boundText();
    FillFromQuery(m_program,
                  u"SELECT SCode,SDesc FROM ZRVtbCoding,"_s + u"(SELECT Distinct TaxMonth FROM ZRVtbHogog"_s
                      + u" WHERE "_s + u" TFN = "_s + quoted(m_program.PayerTFN) + u" AND TaxYear = "_s
                      + quoted(dcbSourceYear.boundText()) + u" ORDER BY TaxMonth DESC) as SQ1"_s
                      + u" WHERE MCode = '4'"_s + u" AND SQ1.TaxMonth = SCode"_s,
                  dcbSourceMonth, u"SDesc", u"SCode");
    // A month that this year hasn't got would otherwise stay to be read.
    dcbSourceMonth.setBoundText(chosen);
}

void frmTransferData::txtDestinationYear_LostFocus()
{
    txtDestinationYear.setText(FullYear(txtDestinationYear.text()));
}

void frmTransferData::keyChanged()
{
    cmdTransferData.setEnabled(false);
    clearFigures();
}

// What can be copied -----------------------------------------------------------------------------------------

void frmTransferData::cmdDisplayInformation_Click()
{
    const ListMonth from = source();
    const ListMonth to = target();
    // Nothing chosen at all is the same on both sides, and is told as that.
    if (from == to) {
        messageBox(box::RefusalRtl, QString(), u"اطلاعات سال و ماه مبدا و مقصد نبايد يکسان باشد"_s);
        return;
    }
    if (from.year.isEmpty() || from.month.isEmpty() || to.year.isEmpty() || to.month.isEmpty()) {
        // clang-format off
        messageBox(box::RefusalRtl, QString(), u"لطفا کليه اطلاعات سال و ماه مبدا و مقصد را بصورت معتبر وارد نماييد"_s);
        // clang-format on
        clearFigures();
        return;
    }
    showFigures(&Figure::source, CountTransferable(m_program, from));
    showFigures(&Figure::target, CountTransferable(m_program, from, to));
    cmdTransferData.setEnabled(true);
}

void frmTransferData::showFigures(TextBox *Figure::*side, const Recordset &counted)
{
    for (const Figure &figure : m_figures) {
        const QString value = counted.value(figure.column).toText();
        (figure.*side)->setText(figure.picture.isEmpty() ? value : Format(value, figure.picture));
    }
}

void frmTransferData::clearFigures()
{
    for (const Figure &figure : m_figures) {
        figure.source->setText({});
        figure.target->setText({});
    }
}

// The copy ---------------------------------------------------------------------------------------------------

/// Tells what stands in the way, and asks.
bool frmTransferData::mayBeTransferred()
{
    // clang-format off
    if (Val(txtTargetTedadKarkonan.text()) == 0) {
        messageBox(box::Refusal, Attention, u" با توجه به صفر بودن تعداد کارکنان قابل انتقال به ماه مقصد،ادامه عمليات انتقال اطلاعات امکانپذير نميباشد.احتمالا تاريخ پايان کار کارکنان قبل از تاريخ مقصد انتخابي جهت انتقال مبياشد "_s);
        return false;
    }
    // Whoever's rows they are: a month with a list isn't added to.
    if (RecordExists(m_program, u"SELECT * FROM ZRVtbHogog "_s + u"WHERE TaxYear="_s + quoted(target().year)
                                    + u" AND TaxMonth="_s + quoted(target().month))) {
        messageBox(box::Refusal, Attention, u" سال و ماه مقصد انتخاب شده داراي اطلاعات ميباشد.ادامه عمليات انتقال اطلاعات امکانپذير نميباشد "_s);
        return false;
    }
    return messageBox(box::AskYesNo, Attention, u"  آيا از انتقال اطلاعات با جزئيات نمايش داده شده مطمئن  هستيد ؟"_s) == Answer::Yes;
    // clang-format on
}

void frmTransferData::cmdTransferData_Click()
{
    if (!mayBeTransferred())
        return;
    PPICWaitingMessage.setVisible(true);
    m_platform.yield();
    const bool goesOn = keepCopyBeforeStep(m_program);
    if (goesOn)
        CopyMonth(m_program, source(), target());
    PPICWaitingMessage.setVisible(false);
    if (!goesOn)
        return;
    // Said even where the copy has just told that it failed.
    messageBox(box::Notice, Attention, u" عمليات انتقال اطلاعات با موفقيت به پايان رسيد "_s);
}

} // namespace zrv
