// SPDX-License-Identifier: GPL-3.0-or-later
// The month that is open: its figures, and how its tax was paid.
#include "core/basic/val.h"
#include "core/code_combos.h"
#include "core/containers.h"
#include "core/frmCoding.h"
#include "core/store/recordset.h"
#include "lists/amounts.h"
#include "lists/frmKholList.h"

#include <algorithm>
#include <span>

namespace zrv {

namespace {

const QString BankList = u"8"_s;
const QString FirstMonth = u"01"_s;
const QString NoBank = u"-1"_s;

/// The columns of the month's figures that its salary list gives.
constexpr std::array<QStringView, 4> MonthFigures = {u"KarkonanNo", u"JariSumHogog", u"JariSumMashmol", u"JariTax"};

// clang-format off
/// Every row of the month counts, also those of payees who have left since.
const QString MonthStatement = u"SELECT count(*) AS KarkonanNo,Sum(NTotalDaramad)+Sum(GTotalDaramad)+Sum(PJariHogog) AS JariSumHogog,sum(FinalDaramadeMashmol) AS JariSumMashmol,sum(FinalTax) AS JariTax FROM ZRVtbHogog"_s;

/// A month without a saved summary list counts nothing in those after it.
const QString EarlierStatement = u"SELECT SUM(JariSumHogog)AS GablSumHogog,SUM(JariSumMashmol) AS GablSumMashmol,SUM(JariTax) AS GablTax"_s + u" FROM ZRVtbKholList"_s;

/// Where the figures come from that can't be typed.
struct Tip {
    QStringView column;
    QStringView text;
};
constexpr std::array<Tip, 4> Tips = {{
    {u"KarkonanNo",     u"حاصل جمع تعداد کليه کارکنان وارد شده در ليست حقوق ماه جاري بوده و از طريق اين فرم غير قابل تغيير ميباشد . جهت اصلاح اين رقم بايد کارکنان وارد شده در فرم ليست حقوق ماهانه حذف و يا اضافه گردند"},
    {u"JariSumHogog",   u"حاصل عبارت (جمع کل مبالغ پرداختي/ تخصيصي نقدي + غير نقدي + پـاداش يــا عيدي پايان سال) ماه جاري کليه کارکنان موجود در ليست حقوق ميباشد."},
    {u"JariSumMashmol", u"مقدار اين ستون حاصل جمع (درآمد مشمول ماليات حقوق پس از کسر معافيت موضوع ماده 84) ماه جاري کليه کارکنان موجود در ليست حقوق اين ماه ميباشد"},
    {u"JariTax",        u"حاصل جمع (ماليات قابل پرداخت پس از اعمال معافيت موضوع ماده92(ويژه مناطق کمتر توسعه يافته)) ماه جاري کليه کارکنان موجود در ليست حقوق ميباشدواز طريق اين فرم غير قابل تغيير ميباشد."},
}};
// clang-format on

QStringList textsOf(const Recordset &row, std::span<const QStringView> columns)
{
    QStringList texts;
    for (const QStringView column : columns)
        texts += row.value(column).toText();
    return texts;
}

} // namespace

// The figures ------------------------------------------------------------------------------------------------

frmKholList::Month frmKholList::readMonth() const
{
    const Connection connection(m_program.StoreConnectionString);
    Month month;
    {
        const Recordset list(connection, MonthStatement + salaryCondition());
        month.figures = textsOf(list, MonthFigures);
        month.hasSalaryList = wholeVal(month.figures.front()) != 0 || !list.value(u"JariSumHogog").isNull()
                              || !list.value(u"JariSumMashmol").isNull();
    }
    const QString number = dcbTaxMonth.boundText();
    if (number == FirstMonth) {
        month.earlier = QStringList(EarlierColumns.size(), u"0"_s);
    } else {
        const Recordset sums(connection, EarlierStatement + u" WHERE TFN = "_s + quoted(TextTFN.text().trimmed())
                                             + u" AND KholListType = "_s + quoted(dcbKholListType.boundText())
                                             + u" AND TaxYear = "_s + quoted(txtTaxYear.text().trimmed())
                                             + u" AND Val(TaxMonth) < "_s + QString::number(wholeVal(number)));
        month.earlier = textsOf(sums, std::span(EarlierColumns).first(3));
    }
    if (const Recordset row(connection, u"SELECT * FROM ZRVtbKholList"_s + keyCondition()); !row.eof())
        month.saved = textsOf(row, SummaryShownColumns);
    return month;
}

void frmKholList::openMonth(const Month &month)
{
    openDataStage();
    chkAutoSearch.setVisible(true);
    applyPaymentKind();
    txtJariJarimeDo.setFocus();
    setTips();
    if (month.hasSalaryList) {
        showMonth(month);
        return;
    }
    messageBox(
        box::Refusal, u" اخطار  "_s,
        u" براي اين ماه اطلاعات ليست حقوق تکميل نشده است . لطفا از اين فرم خارج و نسبت به تکميل ليست حقوق ماه مورد نظر اقدام بفرماييد"_s);
    backToKey();
}

void frmKholList::setTips()
{
    for (const Tip &tip : Tips)
        figure(tip.column).setToolTip(tip.text.toString());
}

void frmKholList::showMonth(const Month &month)
{
    for (size_t place = 0; place < MonthFigures.size(); ++place)
        figure(MonthFigures[place]).setText(month.figures[static_cast<qsizetype>(place)]);
    for (qsizetype place = 0; place < month.earlier.size(); ++place)
        figure(EarlierColumns[static_cast<size_t>(place)]).setText(month.earlier[place]);
    m_recordExists = month.saved.has_value();
    if (m_recordExists)
        for (size_t place = 0; place < SummaryShownColumns.size(); ++place)
            showColumn(SummaryShownColumns[place], month.saved->at(static_cast<qsizetype>(place)));
    cmdDelete.setEnabled(m_recordExists);
    cmdPrintKhol.setEnabled(m_recordExists);
}

void frmKholList::showColumn(QStringView column, const QString &stored)
{
    if (column == u"RoznameDate")
        RoznameDate.show(stored);
    else if (column == u"ChequeDate")
        ChequeDate.show(stored);
    else if (column == u"BankName")
        showBank(stored);
    else
        showValue(column, stored);
}

// Amounts ----------------------------------------------------------------------------------------------------

void frmKholList::wireAmounts()
{
    for (const SummaryColumn &column : SummaryDataColumns) {
        if (column.holds != SummaryValue::Amount && column.holds != SummaryValue::Count)
            continue;
        TextBox &field = figure(column.name);
        const bool isPaid = std::ranges::find(AmountToPayColumns, column.name) != AmountToPayColumns.end();
        field.onChange = [this, &field, isPaid, digits = column.digits] {
            if (amountIsShown(field, digits) && isPaid)
                showAmountToPay();
        };
    }
    for (const QStringView column : MonthFigures)
        figure(column).setTabStop(false);
    for (const QStringView column : EarlierColumns)
        figure(column).setTabStop(false);
}

TextBox &frmKholList::figure(QStringView column) const
{
    return static_cast<TextBox &>(fieldOf(column));
}

/// Puts the separators in as the digits come; false when that has changed the text, and with it run its rules.
/// What a user enters is held to the column's digits. A sum isn't: cut short it would be another amount.
bool frmKholList::amountIsShown(TextBox &field, int digits)
{
    QString plain = QString(field.text()).remove(u',');
    if (field.hasFocus())
        plain.truncate(digits);
    const QString shown = shownAmount(plain);
    if (shown != field.text()) {
        field.setText(shown);
        return false;
    }
    field.select(shown.size(), 0);
    return true;
}

/// Also under a manner of payment that takes no amount: a penalty typed then brings the sum back.
void frmKholList::showAmountToPay()
{
    qint64 sum = 0;
    for (const QStringView column : AmountToPayColumns)
        sum += amountOf(figure(column).text());
    txtMablagPardakhti.setText(shownAmount(QString::number(sum)));
}

// Payment ----------------------------------------------------------------------------------------------------

void frmKholList::fillPaymentKinds()
{
    FillFromQuery(m_program, u"SELECT * FROM ZRVtbCoding "_s + u"WHERE MCode = '9'"_s + u" ORDER BY val(SCode)"_s,
                  dcbNahveyePardakht, u"SDesc", u"SCode", true);
    if (dcbNahveyePardakht.items().empty())
        messageBox(box::Refusal, u" تــوجه  "_s, u" اطلاعات پايه مربوط به نحوه پرداخت خالي ميباشد "_s);
}

const PaymentKind *frmKholList::paymentKind() const
{
    const auto *const kind = std::ranges::find(PaymentKinds, dcbNahveyePardakht.boundText(), &PaymentKind::code);
    return kind == PaymentKinds.end() ? nullptr : kind;
}

void frmKholList::applyPaymentKind()
{
    const PaymentKind *const kind = paymentKind();
    if (!kind)
        return;
    framCheque.setEnabled(kind->byCheque);
    if (kind->byCheque) {
        EnableContainer(u"framCheque", *this);
    } else {
        ClearContainer(u"framCheque", *this);
        DisableContainer(u"framCheque", *this);
    }
    txtMablagPardakhti.setEnabled(kind->takesAmount);
    if (!kind->takesAmount)
        txtMablagPardakhti.setText(u"0"_s);
}

void frmKholList::fillBanks()
{
    FillFromQuery(m_program,
                  u"SELECT * FROM ZRVtbCoding "_s + u"WHERE MCode = "_s + quoted(BankList) + u" ORDER BY val(SCode)"_s,
                  cmbBankName, u"SDesc", u"SCode");
}

/// A bank is known by the number of its code, however that is written.
void frmKholList::showBank(const QString &code)
{
    if (code.trimmed().isEmpty())
        return;
    const auto found = std::ranges::find_if(
        cmbBankName.items(), [&code](const ListItem &bank) { return wholeVal(bank.code) == wholeVal(code); });
    cmbBankName.setBoundText(found == cmbBankName.items().end() ? QString() : found->code);
}

void frmKholList::cmdSearchBankName_Click()
{
    frmCoding banks(m_program, BankList, u"ليست نام بانکها"_s);
    openModal(banks);
    takeBank(banks.lastCode());
}

void frmKholList::takeBank(const QString &code)
{
    if (code.trimmed().isEmpty())
        return;
    fillBanks();
    if (code == NoBank) {
        cmbBankName.setText({});
        return;
    }
    showBank(code);
    moveFocus(1);
}

} // namespace zrv
