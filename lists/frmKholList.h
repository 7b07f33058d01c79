// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/browse_panel.h"
#include "core/date_boxes.h"
#include "lists/summary_columns.h"

#include <optional>

namespace zrv {

using namespace Qt::Literals::StringLiterals;

/// The summary list of a month: the totals of its salary list, what the months before it come to, penalties and debt,
/// and how the tax was paid. The totals are read from the salary list whenever a month is opened; the sums of the
/// months before stay as they were first saved.
class frmKholList : public RecordScreen {
public:
    explicit frmKholList(Program &program);

    // clang-format off
    Frame framAll{*this, u"framAll"_s};

    Frame framKey{framAll, u"framKey"_s};
    Label lblTaxYear{framKey, u"lblTaxYear"_s, {.caption = u"ســــال :"_s}};
    TextBox txtTaxYear{framKey, u"txtTaxYear"_s, {.limit = 4, .tag = u"+DigitOnly+N"_s, .leftToRight = true}};
    Label lblTaxMonth{framKey, u"lblTaxMonth"_s, {.caption = u"ماه :"_s}};
    DataCombo dcbTaxMonth{framKey, u"dcbTaxMonth"_s, {.tag = u"+FA+N"_s, .listOnly = true}};
    Label lblKholListType{framKey, u"lblKholListType"_s, {.caption = u"نوع خلاصه ليست :"_s}};
    DataCombo dcbKholListType{framKey, u"dcbKholListType"_s, {.tag = u"+FA+N"_s, .listOnly = true}};
    Label lblTFN{framKey, u"lblTFN"_s, {.caption = u"شماره پرونده(TFN) : "_s}};
    TextBox TextTFN{framKey, u"TextTFN"_s, {.limit = 12, .tag = u"+DigitOnly"_s, .locked = true, .leftToRight = true}};
    Button cmdKeyOk{framKey, u"cmdKeyOk"_s, {.caption = u"تاييد"_s}};
    Button cmdKeyReturn{framKey, u"cmdKeyReturn"_s, {.caption = u"انصراف"_s}};

    Frame framData{framAll, u"framData"_s};
    Label lblKarkonanNo{framData, u"lblKarkonanNo"_s, {.caption = u"تعداد کل کارکنان در ماه جاري :"_s}};
    TextBox txtKarkonanNo{framData, u"txtKarkonanNo"_s, {.limit = 6, .tag = u"+DigitOnly+N"_s, .locked = true, .leftToRight = true}};
    Label lblKharejiNo{framData, u"lblKharejiNo"_s, {.caption = u"تعداد کارکنان خارجي :"_s}};
    TextBox txtKharejiNo{framData, u"txtKharejiNo"_s, {.limit = 4, .tag = u"+DigitOnly"_s, .leftToRight = true}};

    Label lblJari{framData, u"lblJari"_s, {.caption = u" مـــــاه  جـــــــاري"_s}};
    Label lblGabl{framData, u"lblGabl"_s, {.caption = u"جمع  تا  ماه  گذشته"_s}};
    Label lblSumHogog{framData, u"lblSumHogog"_s, {.caption = u"جمع حقوق و مزاياي نقدي،غير نقدي،عيدي و پاداش پرداختي/تخصيصي : "_s}};
    TextBox txtJariSumHogog{framData, u"txtJariSumHogog"_s, {.limit = 19, .tag = u"+DigitOnly+N"_s, .locked = true, .leftToRight = true}};
    TextBox txtGablSumHogog{framData, u"txtGablSumHogog"_s, {.limit = 22, .tag = u"+DigitOnly"_s, .leftToRight = true}};
    Label lblSumMashmol{framData, u"lblSumMashmol"_s, {.caption = u"جمع حقوق و مزايـاي نقدي ، غير نقدي ، عيدي و پاداش مشمول ماليات : "_s}};
    TextBox txtJariSumMashmol{framData, u"txtJariSumMashmol"_s, {.limit = 19, .tag = u"+DigitOnly+N"_s, .locked = true, .leftToRight = true}};
    TextBox txtGablSumMashmol{framData, u"txtGablSumMashmol"_s, {.limit = 22, .tag = u"+DigitOnly"_s, .leftToRight = true}};
    Label lblTax{framData, u"lblTax"_s, {.caption = u"جمع مـــــــاليات  متعلقه : "_s}};
    TextBox txtJariTax{framData, u"txtJariTax"_s, {.limit = 19, .tag = u"+DigitOnly+N"_s, .locked = true, .leftToRight = true}};
    TextBox txtGablTax{framData, u"txtGablTax"_s, {.limit = 22, .tag = u"+DigitOnly"_s, .leftToRight = true}};
    Label lblJarimeDo{framData, u"lblJarimeDo"_s, {.caption = u"جريمه عدم تسليم به موقع خلاصه ليست 2%(موضوع ماده 197) : "_s}};
    TextBox txtJariJarimeDo{framData, u"txtJariJarimeDo"_s, {.limit = 19, .tag = u"+DigitOnly"_s, .leftToRight = true}};
    TextBox txtGablJarimeDo{framData, u"txtGablJarimeDo"_s, {.limit = 22, .tag = u"+DigitOnly"_s, .leftToRight = true}};
    Label lblJarimeBist{framData, u"lblJarimeBist"_s, {.caption = u"جريمه عدم پرداخت به موقع ماليات 20%(موضوع ماده 199) : "_s}};
    TextBox txtJariJarimeBist{framData, u"txtJariJarimeBist"_s, {.limit = 19, .tag = u"+DigitOnly"_s, .leftToRight = true}};
    TextBox txtGablJarimeBist{framData, u"txtGablJarimeBist"_s, {.limit = 22, .tag = u"+DigitOnly"_s, .leftToRight = true}};
    Label lblBedehiTax{framData, u"lblBedehiTax"_s, {.caption = u"بدهي  مــــــالياتي : "_s}};
    TextBox txtJariBedehiTax{framData, u"txtJariBedehiTax"_s, {.limit = 19, .tag = u"+DigitOnly"_s, .leftToRight = true}};
    TextBox txtGablBedehiTax{framData, u"txtGablBedehiTax"_s, {.limit = 22, .tag = u"+DigitOnly"_s, .leftToRight = true}};

    Label lblNahveyePardakht{framData, u"lblNahveyePardakht"_s, {.caption = u"نحوه پرداخت ماليات :"_s}};
    DataCombo dcbNahveyePardakht{framData, u"dcbNahveyePardakht"_s, {.tag = u"+FA+N"_s, .toolTip = u"در صورت عدم پرداخت ماليات در لحظه ارايه ليست حقوق گزينه \"ارائه ليست بدون پرداخت ماليات \" را انتخاب نماييد"_s, .listOnly = true}};
    Label lblMablagPardakhti{framData, u"lblMablagPardakhti"_s, {.caption = u"مبلغ ماليات پرداختي :"_s}};
    TextBox txtMablagPardakhti{framData, u"txtMablagPardakhti"_s, {.limit = 19, .tag = u"+DigitOnly+N"_s, .leftToRight = true}};
    Label lblRoznameDate{framData, u"lblRoznameDate"_s, {.caption = u"تاريخ ثبت در دفتر روزنامه (تخصيص يا پرداخت)"_s}};
    Picture picRoznameDate{framData, u"picRoznameDate"_s};
    DateBoxes RoznameDate{m_platform, picRoznameDate, u"txtRozname"_s, RequiredDate};

    Frame framCheque{framData, u"framCheque"_s, {.caption = u" مشخصات چک "_s}};
    Label lblChequeSeriNo{framCheque, u"lblChequeSeriNo"_s, {.caption = u"شماره سري چک:"_s}};
    TextBox txtChequeSeriNo{framCheque, u"txtChequeSeriNo"_s, {.limit = 15, .tag = u"+DigitOnly+N"_s, .leftToRight = true}};
    Label lblChequeDate{framCheque, u"lblChequeDate"_s, {.caption = u"تاريخ چک :"_s}};
    Picture picChequeDate{framCheque, u"picChequeDate"_s};
    DateBoxes ChequeDate{m_platform, picChequeDate, u"txtCheque"_s, RequiredDate};
    Label lblBankName{framCheque, u"lblBankName"_s, {.caption = u"نام بانک :"_s}};
    ComboBox cmbBankName{framCheque, u"cmbBankName"_s, {.tag = u"+FA+N"_s, .listOnly = true}};
    Button cmdSearchBankName{framCheque, u"cmdSearchBankName"_s, {.caption = u"..."_s, .toolTip = u"در صورت موجود نبودن بانک مورد نظر در ليست مجاور ، جهت افزودن آن به ليست  اين کليد را کليک نمائيد"_s}};
    Label lblShobeName{framCheque, u"lblShobeName"_s, {.caption = u"نام شعبه :"_s}};
    TextBox txtShobeName{framCheque, u"txtShobeName"_s, {.limit = 25, .tag = u"+N+FA+EN+DigitOnly"_s}};
    Label lblHesabNo{framCheque, u"lblHesabNo"_s, {.caption = u"شماره حساب :"_s}};
    TextBox txtHesabNo{framCheque, u"txtHesabNo"_s, {.limit = 13, .tag = u"+DigitOnly+N"_s, .leftToRight = true}};

    Button cmdDataOk{framData, u"cmdDataOk"_s, {.caption = u" &ذخيره"_s}};
    Button cmdDataReturn{framData, u"cmdDataReturn"_s, {.caption = u"&انصراف"_s}};

    Frame picButtons{framAll, u"picButtons"_s};
    Button cmdPrintKhol{picButtons, u"cmdPrintKhol"_s, {.caption = u"چاپ خلاصه ليست ماه جاري"_s, .enabled = false}};
    Button cmdDelete{picButtons, u"cmdDelete"_s, {.caption = u" &حذف"_s}};
    Button cmdExit{picButtons, u"cmdExit"_s, {.caption = u"&خروج"_s}};

    Frame framBrows{framAll, u"framBrows"_s};
    CheckBox chkAutoSearch{framBrows, u"chkAutoSearch"_s, {.caption = u"جستجوي اتوماتيک"_s, .visible = false}};
    BrowsePanel browse{*this, framBrows, u"dbgLetter_Topic"_s};
    // clang-format on

    void cmdKeyOk_Click();
    void cmdDataOk_Click();
    void cmdPrintKhol_Click();
    /// What the base data screen came back with: a blank code changes nothing, "-1" clears the choice of a bank.
    void takeBank(const QString &code);

protected:
    void Form_Load() override;

private:
    static const DateBoxes::Look RequiredDate;

    /// What the store knows of a month, read before it is shown.
    struct Month {
        bool hasSalaryList;
        QStringList figures;              ///< of MonthFigures
        QStringList earlier;              ///< of the first so many EarlierColumns
        std::optional<QStringList> saved; ///< of SummaryShownColumns; nothing when the month has no row yet
    };

    void wireKey();
    void wireAmounts();
    void setTips();
    void FormatGrid();
    void FillGrid();
    void ReadPayer();

    void dcbKholListType_Change();
    [[nodiscard]] Month readMonth() const;
    void openMonth(const Month &month);
    void showMonth(const Month &month);
    void fillPaymentKinds();
    void fillBanks();

    /// The field of an amount or count.
    [[nodiscard]] TextBox &figure(QStringView column) const;
    [[nodiscard]] bool amountIsShown(TextBox &field, int digits);
    void showAmountToPay();
    [[nodiscard]] const PaymentKind *paymentKind() const;
    void applyPaymentKind();
    void showBank(const QString &code);
    void cmdSearchBankName_Click();
    void showColumn(QStringView column, const QString &stored);

    void pickRow();
    void deleteRow();

    void backToKey();
    void cmdDelete_Click();
    [[nodiscard]] bool amountSuitsPayment();
    [[nodiscard]] QString columnValue(const SummaryColumn &column) const;
    [[nodiscard]] QString addedValue(const SummaryColumn &column) const;
    [[nodiscard]] QString salaryCondition() const;
    [[nodiscard]] QString keyCondition() const;
    void AddRoutine();
    void UpdateRoutine();
    void DeleteRoutine();

    bool m_recordExists = false;
};

} // namespace zrv
