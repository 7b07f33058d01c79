// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/browse_panel.h"

namespace zrv {

using namespace Qt::Literals::StringLiterals;

/// Finds payees by any mix of six fields. Opened by the main form it is for reading alone; opened by a screen that
/// has left its name in SearchCallerName it is a picker, which hands the chosen payee's code back in
/// SelectedMelliCode.
class frmSrcKarkonan : public RecordScreen {
public:
    explicit frmSrcKarkonan(Program &program);

    // clang-format off
    Frame framAll{*this, u"framAll"_s};
    Label lblForm{framAll, u"lblForm"_s, {.caption = u"فــرم  جستجوي  کـارکنــان"_s}};

    Frame framSearch{framAll, u"framSearch"_s};
    Label lblMelliCode{framSearch, u"lblMelliCode"_s, {.caption = u"شماره ملي :"_s}};
    TextBox txtMelliCode{framSearch, u"txtMelliCode"_s, {.limit = 10, .tag = u"+DigitOnly"_s, .leftToRight = true}};
    Label lblName{framSearch, u"lblName"_s, {.caption = u"نام :"_s}};
    TextBox txtName{framSearch, u"txtName"_s, {.limit = 15}};
    Label lblFamily{framSearch, u"lblFamily"_s, {.caption = u"نام خانوادگي :"_s}};
    TextBox txtFamily{framSearch, u"txtFamily"_s, {.limit = 50}};
    Label lblFatherName{framSearch, u"lblFatherName"_s, {.caption = u"نام  پدر :"_s}};
    TextBox txtFatherName{framSearch, u"txtFatherName"_s, {.limit = 15}};
    Label lblPostCode{framSearch, u"lblPostCode"_s, {.caption = u"کد پستي :"_s}};
    TextBox txtPostCode{framSearch, u"txtPostCode"_s, {.limit = 10, .tag = u"+DigitOnly"_s, .leftToRight = true}};
    Label lblInsuNo{framSearch, u"lblInsuNo"_s, {.caption = u"شماره بيمه :"_s}};
    TextBox txtInsuNo{framSearch, u"txtInsuNo"_s, {.limit = 12, .tag = u"+DigitOnly"_s, .leftToRight = true}};
    Frame fraSettings{framSearch, u"fraSettings"_s, {.caption = u" تنظيمات جستجو "_s}};
    OptionButton optExactSearch{fraSettings, u"optExactSearch"_s, {.caption = u"جستجوي تطابقي"_s, .toolTip = u"با انتخاب اين گزينه اطلاعاتي که به لحاظ متني دقيقا مطابق متن مورد جستجو ميباشند نمايش داده ميشوند"_s}};
    OptionButton optLikeSearch{fraSettings, u"optLikeSearch"_s, {.caption = u"جستجوي تشابهي"_s, .toolTip = u"با انتخاب اين گزينه اطلاعاتي که به لحاظ متني مشابه متن مورد جستجو ميباشند نيز نمايش داده ميشوند"_s, .checked = true}};
    CheckBox chkAutoSearch{fraSettings, u"chkAutoSearch"_s, {.caption = u"جستجوي اتوماتيک"_s, .toolTip = u"در صورت فعال بودن جستحوي اتوماتيک و  به محض تايپ حروف در اقلام اطلاعاتي که داراي کادر قرمز رنگ ميباشند موارد مشابه بصورت اتوماتيک در ليست پايين فرم نمايش داده ميشود"_s, .checked = true}};
    Button cmdComboSearch{framSearch, u"cmdComboSearch"_s, {.caption = u"&شروع عمليات جستجو"_s}};

    Frame picButtons{framAll, u"picButtons"_s};
    Button cmdExit{picButtons, u"cmdExit"_s, {.caption = u"&خروج"_s}};

    Frame framBrows{framAll, u"framBrows"_s};
    BrowsePanel browse{*this, framBrows, u"dbgLetter_Topic"_s};
    // clang-format on

protected:
    void Form_Load() override;

private:
    void FormatGrid();
    void FillGrid();
    void SearchRoutine();
    void ReturnSelection();
    [[nodiscard]] QString condition() const;
};

} // namespace zrv
