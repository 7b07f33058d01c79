// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/browse_panel.h"
#include "lists/month_arithmetic.h"
#include "lists/month_copy.h"

namespace zrv {

using namespace Qt::Literals::StringLiterals;

/// The salary list: what each payee drew in a month. Two keys come one after the other, the month and then the payee,
/// so that a month is typed in payee by payee: Enter walks through the amounts, saves, and comes to the next payee of
/// the list.
class frmHogog1 : public RecordScreen, private MonthSheet {
public:
    explicit frmHogog1(Program &program);

    // clang-format off
    Frame framAll{*this, u"framAll"_s};

    Frame framKey{framAll, u"framKey"_s};
    Label lblTaxYear{framKey, u"lblTaxYear"_s, {.caption = u"ســــال :"_s}};
    TextBox txtTaxYear{framKey, u"txtTaxYear"_s, {.limit = 5, .tag = u"+DigitOnly+N"_s}};
    Label lblTaxMonth{framKey, u"lblTaxMonth"_s, {.caption = u"مـــــاه :"_s}};
    DataCombo dcbTaxMonth{framKey, u"dcbTaxMonth"_s, {.tag = u"+FA+N"_s, .listOnly = true}};
    Button cmdKeyOk{framKey, u"cmdKeyOk"_s, {.caption = u"تاييد"_s}};
    Button cmdKeyReturn{framKey, u"cmdKeyReturn"_s, {.caption = u"انصراف"_s}};

    Frame framKey1{framAll, u"framKey1"_s};
    Label lblMelliCode{framKey1, u"lblMelliCode"_s, {.caption = u"مشخصات حقوق بگير :"_s}};
    DataCombo dcbMelliCode{framKey1, u"dcbMelliCode"_s, {.tag = u"+FA+EN+DigitOnly+N"_s, .listOnly = true}};
    TextBox textMelliCode{framKey1, u"textMelliCode"_s, {.locked = true, .leftToRight = true}};
    Button cmdSearchMoadi{framKey1, u"cmdSearchMoadi"_s, {.caption = u"..."_s, .toolTip = u"جهت جستجوي حقوق بگيران اين دگمه را کليک نماييد"_s}};
    Button cmdKeyOk1{framKey1, u"cmdKeyOk1"_s, {.caption = u"تاييد"_s}};
    Button cmdKeyReturn1{framKey1, u"cmdKeyReturn1"_s, {.caption = u"انصراف"_s}};

    Frame framData{framAll, u"framData"_s};

    Frame framNagdy{framData, u"framNagdy"_s, {.caption = u" الف - حقوق و مزاياي نقدي ماه جاري "_s}};
    Label lblNJariHogog{framNagdy, u"lblNJariHogog"_s, {.caption = u"حقوق و مزايـــاي مستمر پرداختي / تخصيصي"_s}};
    TextBox txtNJariHogog{framNagdy, u"txtNJariHogog"_s, {.limit = AmountLimit, .tag = u"+DigitOnly+N"_s}};
    Label lblJariEzafeKar{framNagdy, u"lblJariEzafeKar"_s, {.caption = u"اضافه کار و مزايايي غير مستمر پرداختي /  تخصيصي"_s}};
    TextBox txtJariEzafeKar{framNagdy, u"txtJariEzafeKar"_s, {.limit = AmountLimit, .tag = u"+DigitOnly+N"_s}};
    Label lblNJariSayerPardakhtiha{framNagdy, u"lblNJariSayerPardakhtiha"_s, {.caption = u"ساير پرداختهاي ماه جاري"_s}};
    TextBox txtNJariSayerPardakhtiha{framNagdy, u"txtNJariSayerPardakhtiha"_s, {.limit = AmountLimit, .tag = u"+DigitOnly"_s}};
    Label lblNTotalDaramad{framNagdy, u"lblNTotalDaramad"_s, {.caption = u"جمع کل مبالغ پرداختي/ تخصيصي نقدي"_s}};
    TextBox txtNTotalDaramad{framNagdy, u"txtNTotalDaramad"_s, {.tag = u"+DigitOnly"_s, .locked = true}};
    Label lblNJariMoafiate91{framNagdy, u"lblNJariMoafiate91"_s, {.caption = u"کسر ميشود معافيت ماده 91 (به استثنا بندهاي 10 و 13)"_s}};
    TextBox txtNJariMoafiate91{framNagdy, u"txtNJariMoafiate91"_s, {.limit = AmountLimit, .tag = u"+DigitOnly+N"_s}};
    Label lblNDaramadeMashmol{framNagdy, u"lblNDaramadeMashmol"_s, {.caption = u"مانده پرداختي/تخصيصي نقدي پس از کسر معافيت مـــاده 91 (به استثنابندهاي10و13)"_s}};
    TextBox txtNDaramadeMashmol{framNagdy, u"txtNDaramadeMashmol"_s, {.tag = u"+DigitOnly"_s, .locked = true}};

    Frame framGNagdy{framData, u"framGNagdy"_s, {.caption = u" ب - مزاياي غير نقدي ماه جاري "_s}};
    Label lblGJariHogog{framGNagdy, u"lblGJariHogog"_s, {.caption = u"مبلغ پرداختي/تخصيصي غير نقدي"_s}};
    TextBox txtGJariHogog{framGNagdy, u"txtGJariHogog"_s, {.limit = AmountLimit, .tag = u"+DigitOnly"_s}};
    Label lblMaskanStatus{framGNagdy, u"lblMaskanStatus"_s, {.caption = u"وضعيت استفاده از مسکـن"_s}};
    DataCombo dcbMaskanStatus{framGNagdy, u"dcbMaskanStatus"_s, {.tag = u"+FA+N"_s, .listOnly = true}};
    Label lblMaskanMablagh{framGNagdy, u"lblMaskanMablagh"_s, {.caption = u"مبلغ قابل احتساب بابت مسکن (بند الف ماده 83)"_s}};
    TextBox txtMaskanMablagh{framGNagdy, u"txtMaskanMablagh"_s, {.limit = AmountLimit, .tag = u"+DigitOnly"_s}};
    Label lblOtomobilStatus{framGNagdy, u"lblOtomobilStatus"_s, {.caption = u"وضعيت استفاده از اتـومبيل"_s}};
    DataCombo dcbOtomobilStatus{framGNagdy, u"dcbOtomobilStatus"_s, {.tag = u"+FA+N"_s, .listOnly = true}};
    Label lblOtomobilMablagh{framGNagdy, u"lblOtomobilMablagh"_s, {.caption = u"مبلغ قابل احتساب بابت اتومبيل (بند ب ماده 83)"_s}};
    TextBox txtOtomobilMablagh{framGNagdy, u"txtOtomobilMablagh"_s, {.limit = AmountLimit, .tag = u"+DigitOnly"_s}};
    Label lblGTotalDaramad{framGNagdy, u"lblGTotalDaramad"_s, {.caption = u"جمع کل مبالغ پرداختي/ تخصيصي غير نقدي"_s}};
    TextBox txtGTotalDaramad{framGNagdy, u"txtGTotalDaramad"_s, {.tag = u"+DigitOnly"_s, .locked = true}};
    Label lblGDaramadeMashmol{framGNagdy, u"lblGDaramadeMashmol"_s, {.caption = u"مانده پرداختي/ تخصيصي غير نقدي پس از کسر معافيت موضوع بند 13 ماده 91"_s}};
    TextBox txtGDaramadeMashmol{framGNagdy, u"txtGDaramadeMashmol"_s, {.limit = AmountLimit, .tag = u"+DigitOnly"_s}};

    Frame framPadash{framData, u"framPadash"_s, {.caption = u" ج - پاداش يا عيدي پايان سال پرداختي در ماه جاري "_s}};
    Label lblPJariHogog{framPadash, u"lblPJariHogog"_s, {.caption = u"مبلغ پرداختي/ تخصيصي پـاداش يـا عيدي پـايـان سـال"_s}};
    TextBox txtPJariHogog{framPadash, u"txtPJariHogog"_s, {.limit = AmountLimit, .tag = u"+DigitOnly"_s}};
    Label lblPDaramadeMashmol{framPadash, u"lblPDaramadeMashmol"_s, {.caption = u"مانده پرداختي/ تخصيصي عيدي يا پاداش پس از کسر معافيت بند 10 ماده 91"_s}};
    TextBox txtPDaramadeMashmol{framPadash, u"txtPDaramadeMashmol"_s, {.limit = AmountLimit, .tag = u"+DigitOnly"_s}};

    Frame framMohasebeh{framData, u"framMohasebeh"_s, {.caption = u" د - محاسبه درآمد مشمول ماليات و ماليات متعلقه ماه جاري "_s}};
    Label lblNGPTotalDaramadeMashmol{framMohasebeh, u"lblNGPTotalDaramadeMashmol"_s, {.caption = u"جمع کل مانده حقوق و مزاياي نقدي،غير نقدي و عيدي و پاداش(انتقالي از ستونهاي الف و ب و ج)"_s}};
    TextBox txtNGPTotalDaramadeMashmol{framMohasebeh, u"txtNGPTotalDaramadeMashmol"_s, {.tag = u"+DigitOnly"_s, .locked = true}};
    Label lblSayereMoafiatha{framMohasebeh, u"lblSayereMoafiatha"_s, {.caption = u" کسر ميشود ساير معافيت ها(به غير از معافيت موضوع ماده 84)"_s}};
    TextBox txtSayereMoafiatha{framMohasebeh, u"txtSayereMoafiatha"_s, {.limit = AmountLimit, .tag = u"+DigitOnly"_s}};
    Label lblFinalDaramadeMashmol{framMohasebeh, u"lblFinalDaramadeMashmol"_s, {.caption = u"درآمد مشمول ماليات حقوق پس از کسر معافيت موضوع ماده 84"_s}};
    TextBox txtFinalDaramadeMashmol{framMohasebeh, u"txtFinalDaramadeMashmol"_s, {.limit = AmountLimit, .tag = u"+DigitOnly+N"_s}};
    Label lblJariTax{framMohasebeh, u"lblJariTax"_s, {.caption = u"ماليات قابل پرداخت ماه جاري "_s}};
    TextBox txtJariTax{framMohasebeh, u"txtJariTax"_s, {.limit = AmountLimit, .tag = u"+DigitOnly+N"_s}};
    Label lblFinalTaxCaption{framMohasebeh, u"lblFinalTaxCaption"_s, {.caption = u"ماليات قابل پرداخت پس از اعمال معافيت موضوع ماده 92 (ويژه مناطق کمتر توسعه يافته)"_s}};
    TextBox txtFinalTax{framMohasebeh, u"txtFinalTax"_s, {.limit = AmountLimit, .tag = u"+DigitOnly+N"_s}};
    Label lblFinalTax{framData, u"lblFinalTax"_s};
    Label lbDVaziateMoafiat{framData, u"lbDVaziateMoafiat"_s};
    Button cmdDataOk{framData, u"cmdDataOk"_s, {.caption = u" &ذخيره"_s}};
    Button cmdDataReturn{framData, u"cmdDataReturn"_s, {.caption = u"&انصراف"_s}};

    Frame picButtons{framAll, u"picButtons"_s};
    Button cmdPrintHogh{picButtons, u"cmdPrintHogh"_s, {.caption = u"چاپ ليست حقوق ماه جاري"_s}};
    Button cmdDelete{picButtons, u"cmdDelete"_s, {.caption = u" &حذف اطلاعات حقوق و مزاياي ماه جاري حقوق بگير"_s}};
    Button cmdExit{picButtons, u"cmdExit"_s, {.caption = u"&خروج"_s}};

    Frame framBrows{framAll, u"framBrows"_s};
    BrowsePanel browse{*this, framBrows, u"dbgLetter_Topic"_s};

    Picture PPICWaitingMessage{*this, u"PPICWaitingMessage"_s, {.visible = false}};
    Label LabelWaitingMessage{PPICWaitingMessage, u"LabelWaitingMessage"_s, {.caption = u"در حال انتقال اطلاعات ليست حقوق از ماه مبداء به ماه مقصد لطفا تا پايان عمليات منتظر بمانيد ..."_s}};
    // clang-format on

    void cmdKeyOk_Click() { (void)acceptMonth(); }
    void cmdKeyOk1_Click();
    void cmdDataOk_Click();
    void cmdDelete_Click();
    void cmdPrintHogh_Click();

protected:
    void Form_Load() override;

private:
    void wireKeys();
    void wireAmounts();
    void wireGrid();
    void FormatGrid();
    void FillGrid();
    void reporting(const std::function<void()> &routine);

    [[nodiscard]] QString currentYear() const;
    [[nodiscard]] ListMonth chosenMonth() const;
    void txtTaxYear_GotFocus();
    void txtTaxYear_LostFocus();
    [[nodiscard]] bool acceptMonth();
    [[nodiscard]] QString payeesOf(const ListMonth &month) const;
    [[nodiscard]] std::optional<ListItem> lastMonthWithRows(const QString &year) const;
    [[nodiscard]] bool carryMonth();
    [[nodiscard]] QString carryQuestion(const ListItem &last) const;

    void dcbMelliCode_Change();
    void showPayee(int row);
    void cmdSearchMoadi_Click();
    void cmdKeyReturn1_Click();

    [[nodiscard]] QString text(MonthField field) const override;
    void setText(MonthField field, const QString &text) override;
    void moveCaretToEnd(MonthField field) override;
    void disable(MonthField field) override;
    void setOpen(MonthField amount, bool open) override;
    void showTaxInWords(const QString &words) override;
    void warn(const QString &title, const QString &text) override;

    [[nodiscard]] QString columnValue(const SalaryColumn &column) const;
    [[nodiscard]] QString monthCondition() const;
    [[nodiscard]] QString keyCondition() const;
    void AddRoutine();
    void UpdateRoutine();
    void DeleteRoutine();
    void cmdDataReturn_Click();
    [[nodiscard]] bool deletionIsRefused();

    [[nodiscard]] QString shownRows() const;
    [[nodiscard]] bool openRow();
    void deleteRow();

    std::array<Edit *, MonthFields> m_fields{}; ///< by MonthField
    MonthArithmetic m_arithmetic{*this};
    int m_payee = 0; ///< place in the list of payees, which the walk goes on from
    bool m_recordExists = false;
};

} // namespace zrv
