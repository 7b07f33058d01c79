// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/browse_panel.h"

namespace zrv {

using namespace Qt::Literals::StringLiterals;

/// The payer of salaries: the one row that every other record of a store hangs from.
class frmKarfarma : public RecordScreen {
public:
    explicit frmKarfarma(Program &program);

    // clang-format off
    Frame framAll{*this, u"framAll"_s};

    Frame framKey{framAll, u"framKey"_s};
    Label lblTFN{framKey, u"lblTFN"_s, {.caption = u"شماره پرونده (TFN) :"_s}};
    TextBox txtTFN{framKey, u"txtTFN"_s, {.limit = 12, .tag = u"+DigitOnly+N"_s, .leftToRight = true}};
    Label lblCodeShobe{framKey, u"lblCodeShobe"_s, {.caption = u"کد شعبه :"_s}};
    TextBox txtCodeShobe{framKey, u"txtCodeShobe"_s, {.limit = 5, .tag = u"+DigitOnly+N"_s, .leftToRight = true}};
    Button cmdKeyOk{framKey, u"cmdKeyOk"_s, {.caption = u"تاييد"_s}};
    Button cmdKeyReturn{framKey, u"cmdKeyReturn"_s, {.caption = u"انصراف"_s}};

    Frame framData{framAll, u"framData"_s};
    Label lblMMoadiType{framData, u"lblMMoadiType"_s, {.caption = u"نوع مودي :"_s}};
    DataCombo dcbMMoadiType{framData, u"dcbMMoadiType"_s, {.tag = u"+N+FA"_s}};
    DataCombo dcbSMoadiType{framData, u"dcbSMoadiType"_s, {.tag = u"+FA+N"_s}};
    Label lblMohasebeType{framData, u"lblMohasebeType"_s, {.caption = u"نحوه محاسبه ماليات :"_s}};
    DataCombo dcbMohasebeType{framData, u"dcbMohasebeType"_s, {.tag = u"+N+FA"_s}};
    Label llblLTDescription{framData, u"llblLTDescription"_s, {.caption = u"نام :"_s}};
    TextBox txtName{framData, u"txtName"_s, {.limit = 15, .tag = u"+FA"_s}};
    Label lblFamily{framData, u"lblFamily"_s, {.caption = u"نام خانوادگي / نام شرکت :"_s}};
    TextBox txtFamily{framData, u"txtFamily"_s, {.limit = 50, .tag = u"+N+FA+EN+DigitOnly"_s}};
    Label lblShobeName{framData, u"lblShobeName"_s, {.caption = u"نام شعبه :"_s}};
    TextBox txtShobeName{framData, u"txtShobeName"_s, {.limit = 30, .tag = u"+N+FA+EN+DigitOnly"_s}};
    Label lblEdareName{framData, u"lblEdareName"_s, {.caption = u"نام اداره کل :"_s}};
    TextBox txtEdareName{framData, u"txtEdareName"_s, {.limit = 150, .tag = u"+FA+EN+DigitOnly"_s}};
    Label LabelTIN_CodeMelli{framData, u"LabelTIN_CodeMelli"_s, {.caption = u"شماره اقتصادي(TIN) :"_s}};
    TextBox txtTin{framData, u"txtTin"_s, {.limit = 12, .tag = u"+DigitOnly+N"_s, .leftToRight = true}};
    Label lblPostCode{framData, u"lblPostCode"_s, {.caption = u"کد پستي :"_s}};
    TextBox txtPostCode{framData, u"txtPostCode"_s, {.limit = 10, .tag = u"+DigitOnly+N"_s, .leftToRight = true}};
    Label lblCodeHozeh{framData, u"lblCodeHozeh"_s, {.caption = u"کد واحد مالياتي :"_s}};
    TextBox txtCodeHozeh{framData, u"txtCodeHozeh"_s, {.limit = 6, .tag = u"+DigitOnly"_s, .leftToRight = true}};
    Label lblTelNo{framData, u"lblTelNo"_s, {.caption = u"شماره تلفن :"_s}};
    TextBox txtTelNo{framData, u"txtTelNo"_s, {.limit = 20, .tag = u"+DigitOnly+N"_s, .leftToRight = true}};
    Label lblAddress{framData, u"lblAddress"_s, {.caption = u"نشاني :"_s}};
    TextBox txtAddress{framData, u"txtAddress"_s, {.limit = 150, .tag = u"+FA+EN+DigitOnly+N"_s}};

    Frame fraEmza1{framData, u"fraEmza1"_s, {.caption = u"مشخصات صاحبان امضا مجاز  (نفر اول) "_s}};
    Label lblMelliCode1{fraEmza1, u"lblMelliCode1"_s, {.caption = u"شماره ملي/ شماره گذرنامه :"_s}};
    TextBox txtMelliCode1{fraEmza1, u"txtMelliCode1"_s, {.limit = 10, .tag = u"+DigitOnly+N+EN"_s, .toolTip = SignatoryTip, .leftToRight = true}};
    Label lblEmzaName1{fraEmza1, u"lblEmzaName1"_s, {.caption = u"نام :"_s}};
    TextBox txtEmzaName1{fraEmza1, u"txtEmzaName1"_s, {.limit = 15, .tag = u"+N+FA+EN"_s}};
    Label lblEmzaFamily1{fraEmza1, u"lblEmzaFamily1"_s, {.caption = u"نام خانوادگي :"_s}};
    TextBox txtEmzaFamily1{fraEmza1, u"txtEmzaFamily1"_s, {.limit = 50, .tag = u"+N+FA+EN"_s}};
    Label lblEmzaSemat1{fraEmza1, u"lblEmzaSemat1"_s, {.caption = u"سمت :"_s}};
    TextBox txtEmzaSemat1{fraEmza1, u"txtEmzaSemat1"_s, {.limit = 30, .tag = u"+N+FA+EN"_s}};

    Frame fraEmza2{framData, u"fraEmza2"_s, {.caption = u"مشخصات صاحبان امضا مجاز  (نفر دوم) "_s}};
    Label lblMelliCode2{fraEmza2, u"lblMelliCode2"_s, {.caption = u"شماره ملي/ شماره گذرنامه :"_s}};
    TextBox txtMelliCode2{fraEmza2, u"txtMelliCode2"_s, {.limit = 10, .tag = u"+DigitOnly+N+EN"_s, .toolTip = SignatoryTip, .leftToRight = true}};
    Label lblEmzaName2{fraEmza2, u"lblEmzaName2"_s, {.caption = u"نام :"_s}};
    TextBox txtEmzaName2{fraEmza2, u"txtEmzaName2"_s, {.limit = 15, .tag = u"+FA+EN"_s}};
    Label lblEmzaFamily2{fraEmza2, u"lblEmzaFamily2"_s, {.caption = u"نام خانوادگي :"_s}};
    TextBox txtEmzaFamily2{fraEmza2, u"txtEmzaFamily2"_s, {.limit = 50, .tag = u"+FA+EN"_s}};
    Label lblEmzaSemat2{fraEmza2, u"lblEmzaSemat2"_s, {.caption = u"سمت :"_s}};
    TextBox txtEmzaSemat2{fraEmza2, u"txtEmzaSemat2"_s, {.limit = 30, .tag = u"+FA+EN"_s}};

    Button cmdDataOk{framData, u"cmdDataOk"_s, {.caption = u" &ذخيره"_s}};
    Button cmdDataReturn{framData, u"cmdDataReturn"_s, {.caption = u"&انصراف"_s}};

    Frame picButtons{framAll, u"picButtons"_s};
    Button cmdDelete{picButtons, u"cmdDelete"_s, {.caption = u" &حذف"_s}};
    Button cmdHelp{picButtons, u"cmdHelp"_s, {.caption = u"راهنما"_s}};
    Button cmdExit{picButtons, u"cmdExit"_s, {.caption = u"&خروج"_s}};

    Frame framBrows{framAll, u"framBrows"_s};
    CheckBox chkAutoSearch{framBrows, u"chkAutoSearch"_s, {.caption = u"جستجوي اتوماتيک"_s}};
    BrowsePanel browse{*this, framBrows, u"dbgLetter_Topic"_s};

    Frame frmHelp{*this, u"frmHelp"_s, {.visible = false}};
    TextBox txtHelpMessage{frmHelp, u"txtHelpMessage"_s, {.multiLine = true, .locked = true}};
    Button cmdExitHelp{frmHelp, u"cmdExitHelp"_s, {.caption = u"&خروج"_s}};
    // clang-format on

    void cmdKeyOk_Click();
    void cmdDataOk_Click();

protected:
    void Form_Load() override;
    bool goBack() override;

private:
    static const QString SignatoryTip;

    void wireFields();
    void FillMMoadiType();
    void FillSMoadiType();
    void FillMohasebeType();
    void FillGrid();
    void FormatGrid();
    void dcbMMoadiType_Change();
    void pickRow();
    void showRecord();
    void backToKey();
    void cmdDelete_Click();
    void cmdHelp_Click();
    void cmdExitHelp_Click();
    void requireSecondSignatory();
    [[nodiscard]] bool keyIsValid();
    [[nodiscard]] bool rowIsInHand() const;
    [[nodiscard]] bool numbersAreValid();
    [[nodiscard]] bool tinIsValid();
    [[nodiscard]] bool refuse(const QString &text, Control &field, int style = box::Refusal);
    [[nodiscard]] bool deletionIsRefused();
    bool AddRoutine();
    bool UpdateRoutine();
    void DeleteRoutine();
    [[nodiscard]] QString keyCondition() const;

    bool m_recordExists = false;
    int m_rowCount = 0; ///< payers in the store at the last filling of the grid
};

} // namespace zrv
