// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/browse_panel.h"
#include "core/date_boxes.h"

namespace zrv {

using namespace Qt::Literals::StringLiterals;

class Recordset;

/// A person who draws a salary from the payer: a national of the country by national code, or a foreigner by passport
/// number. After each save the screen is back at the key, so that payees can be typed in one after the other.
class frmKarkonan : public RecordScreen {
public:
    explicit frmKarkonan(Program &program);

    // clang-format off
    Frame framAll{*this, u"framAll"_s};

    Frame framKey{framAll, u"framKey"_s};
    Label lblTabeiat{framKey, u"lblTabeiat"_s, {.caption = u"تابعيت حقوق بگير :"_s}};
    OptionButton optIrani{framKey, u"optIrani"_s, {.caption = u"ايراني"_s, .checked = true}};
    OptionButton optKhareji{framKey, u"optKhareji"_s, {.caption = u"خارجي"_s}};
    Label lblMelliCode{framKey, u"lblMelliCode"_s};
    TextBox txtMelliCode{framKey, u"txtMelliCode"_s, {.limit = 10, .leftToRight = true}};
    Button cmdKeyOk{framKey, u"cmdKeyOk"_s, {.caption = u"تاييد"_s}};
    Button cmdKeyReturn{framKey, u"cmdKeyReturn"_s, {.caption = u"انصراف"_s}};
    Label lblKeyNote{framKey, u"lblKeyNote"_s, {.caption = u"مسئوليت و عواقب ناشي از ورود اشتباه شماره ملي / شماره گذرنامه به عهده پرداخت کننده حقوق ميباشد"_s}};

    Frame framData{framAll, u"framData"_s};
    Label lblName{framData, u"lblName"_s, {.caption = u" نام : "_s}};
    TextBox txtName{framData, u"txtName"_s, {.limit = 15, .tag = u"+FA+N+EN"_s}};
    Label lblFamily{framData, u"lblFamily"_s, {.caption = u" نام خانوادگي : "_s}};
    TextBox txtFamily{framData, u"txtFamily"_s, {.limit = 50, .tag = u"+N+FA+EN"_s}};
    Label lblFatherName{framData, u"lblFatherName"_s, {.caption = u"نام  پدر :"_s}};
    TextBox txtFatherName{framData, u"txtFatherName"_s, {.limit = 15, .tag = u"+N+FA+EN"_s}};
    Label lblPostCode{framData, u"lblPostCode"_s, {.caption = u"کد پستي محل سکونت :"_s}};
    TextBox txtPostCode{framData, u"txtPostCode"_s, {.limit = 10, .tag = u"+DigitOnly"_s, .leftToRight = true}};
    Label lblHomeAddress{framData, u"lblHomeAddress"_s, {.caption = u"نشاني محل سکونت :"_s}};
    TextBox txtHomeAddress{framData, u"txtHomeAddress"_s, {.limit = 150, .tag = u"+FA+EN+DigitOnly"_s}};
    Label lblSemat{framData, u"lblSemat"_s, {.caption = u"سمت يا شغل :"_s}};
    DataCombo dcbSemat{framData, u"dcbSemat"_s, {.tag = u"+N+FA"_s, .listOnly = true}};
    Label lblSematSayer{framData, u"lblSematSayer"_s, {.caption = u"شرح سمت يا شغل :"_s}};
    TextBox txtSematSayer{framData, u"txtSematSayer"_s, {.limit = 50, .tag = u"+FA+N"_s}};
    Label lblRasteh{framData, u"lblRasteh"_s, {.caption = u"رسته شغلي :"_s}};
    DataCombo dcbRasteh{framData, u"dcbRasteh"_s, {.tag = u"+FA+N"_s, .listOnly = true}};
    TextBox txtRastehSayer{framData, u"txtRastehSayer"_s, {.limit = 50, .tag = u"+FA+N"_s, .visible = false}};
    Label lblSabege{framData, u"lblSabege"_s, {.caption = u"سابقه(به سال) :"_s}};
    TextBox txtSabege{framData, u"txtSabege"_s, {.limit = 2, .tag = u"+N+DigitOnly"_s, .leftToRight = true}};
    Label lblMadrak{framData, u"lblMadrak"_s, {.caption = u"آخرين مدرک تحصيلي :"_s}};
    DataCombo dcbMadrak{framData, u"dcbMadrak"_s, {.tag = u"+FA+N"_s, .listOnly = true}};
    Label lblEstekhdamType{framData, u"lblEstekhdamType"_s, {.caption = u"نوع استخدام :"_s}};
    DataCombo dcbEstekhdamType{framData, u"dcbEstekhdamType"_s, {.tag = u"+N+FA"_s, .listOnly = true}};
    Label lblBimehType{framData, u"lblBimehType"_s, {.caption = u"نوع بيمه :"_s}};
    DataCombo dcbBimehType{framData, u"dcbBimehType"_s, {.tag = u"+FA+N"_s, .listOnly = true}};
    Label lblBimehSayer{framData, u"lblBimehSayer"_s, {.caption = u"شرح يا نام بيمه :"_s}};
    TextBox txtBimehSayer{framData, u"txtBimehSayer"_s, {.limit = 50, .tag = u"+FA+N"_s}};
    Label LabelBimeNO{framData, u"LabelBimeNO"_s, {.caption = u"شماره بيمه :"_s}};
    TextBox txtInsuNo{framData, u"txtInsuNo"_s, {.limit = 12, .tag = u"+N+DigitOnly"_s, .toolTip = u"لطفا کليه ارقام شماره بيمه تامين اجتمايي يا شماره مستخدمي حقوق بگير را از سمت  چپ به راست و بدون استفاده از کاراکترهايي نظير '-' يا '/'  وارد نماييد"_s, .leftToRight = true}};
    Label lblShakhsMoafCode{framData, u"lblShakhsMoafCode"_s, {.caption = u"معافيت مالياتي مازاد بر ماده 84 ق م م :"_s}};
    DataCombo dcbShakhsMoafCode{framData, u"dcbShakhsMoafCode"_s, {.tag = u"+FA+N"_s, .listOnly = true}};
    TextBox txtMoafiatTozih{framData, u"txtMoafiatTozih"_s, {.limit = 340, .multiLine = true, .visible = false}};
    Label lblMelliatCode{framData, u"lblMelliatCode"_s, {.caption = u"مليت :"_s}};
    DataCombo dcbMelliatCode{framData, u"dcbMelliatCode"_s, {.tag = u"+FA+N"_s, .listOnly = true}};
    Label lblKeshvarCode{framData, u"lblKeshvarCode"_s, {.caption = u"نام کشور :"_s}};
    DataCombo dcbKeshvarCode{framData, u"dcbKeshvarCode"_s, {.tag = u"+FA+N"_s, .listOnly = true}};
    Label lblBeginDate{framData, u"lblBeginDate"_s, {.caption = u"تاريخ شروع کار :"_s}};
    DateBoxes BeginDate{m_platform, framData, u"txtBeginDate"_s};
    Label lblEndDate{framData, u"lblEndDate"_s, {.caption = u"تاريخ پـايـان کار :"_s}};
    DateBoxes EndDate{m_platform, framData, u"txtEndDate"_s};
    Button cmdDataOk{framData, u"cmdDataOk"_s, {.caption = u" &ذخيره"_s}};
    Button cmdDataReturn{framData, u"cmdDataReturn"_s, {.caption = u"&انصراف"_s}};

    Frame picButtons{framAll, u"picButtons"_s};
    Button cmdDelete{picButtons, u"cmdDelete"_s, {.caption = u" &حذف"_s}};
    Button cmdExit{picButtons, u"cmdExit"_s, {.caption = u"&خروج"_s}};

    Frame framBrows{framAll, u"framBrows"_s};
    CheckBox chkAutoSearch{framBrows, u"chkAutoSearch"_s, {.caption = u"جستجوي اتوماتيک"_s, .toolTip = u"در صورت فعال بودن جستحوي اتوماتيک و  به محض تايپ حروف در اقلام اطلاعاتي که داراي کادر قرمز رنگ ميباشند موارد مشابه بصورت اتوماتيک در ليست پايين فرم نمايش داده ميشود"_s, .checked = true}};
    BrowsePanel browse{*this, framBrows, u"dbgLetter_Topic"_s};
    // clang-format on

    void cmdKeyOk_Click();
    void cmdDataOk_Click();

protected:
    void Form_Load() override;

private:
    /// A list of the screen and the base data that fill it.
    struct CodeField {
        DataCombo &combo;
        QString list;
        bool descending = false;
    };
    [[nodiscard]] std::vector<CodeField> codeFields();

    void FormatGrid();
    void FillGrid();
    void wireKey();
    void wireLists();
    void wireGrid();

    void nationality_Click();
    void txtMelliCode_Change();
    [[nodiscard]] bool keyIsValid();
    void showRecord(const Recordset &payee);
    void dcbMelliatCode_Change();
    void dcbSemat_Change();
    void dcbBimehType_Change();
    [[nodiscard]] bool listKey(Combo &list, Key key);
    void nameChanged();
    void AutoSearch();
    void chkAutoSearch_Click();
    void pickRow();
    void deleteRow();

    [[nodiscard]] bool refuse(const QString &text, Control &field);
    [[nodiscard]] bool entriesAreValid();
    [[nodiscard]] bool beginsAfterToday() const;
    void addOtherRows();
    void backToKey(bool clearKey);
    void cmdDelete_Click();
    [[nodiscard]] bool deletionIsRefused();
    [[nodiscard]] QString columnValue(QStringView column) const;
    [[nodiscard]] QString keyCondition() const;
    void AddRoutine();
    void UpdateRoutine();
    void DeleteRoutine();

    bool m_recordExists = false;
    bool m_namesAreTyped = true; ///< false while the screen itself writes or empties the names
};

} // namespace zrv
