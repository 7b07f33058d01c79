// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/record_screen.h"

namespace zrv {

using namespace Qt::Literals::StringLiterals;

/// Chooses a code list to edit: one of the eight with a button of their own, or any by name. The fixed lists are
/// told from the user's own by the note alone.
class frmCodingCalls : public RecordScreen {
public:
    explicit frmCodingCalls(Program &program);

    // clang-format off
    Label lblForm{*this, u"lblForm"_s, {.caption = u"تعريف و ويرايش کـدهاي  پـايه"_s}};

    Frame framKey{*this, u"framKey"_s};
    Label lblMCode{framKey, u"lblMCode"_s, {.caption = u"شرح کد :"_s}};
    DataCombo dcbMCode{framKey, u"dcbMCode"_s, {.tag = u"+FA"_s}};
    Button cmdOk{framKey, u"cmdOk"_s, {.caption = u"تاييد"_s}};

    Frame framFixed{*this, u"framFixed"_s};
    Button cmdBank{framFixed, u"cmdBank"_s, {.caption = u"تعريف نام بانکها"_s}};
    Button cmdEstekhdam{framFixed, u"cmdEstekhdam"_s, {.caption = u"تعريف نوع استخدام"_s}};
    Button cmdMadrak{framFixed, u"cmdMadrak"_s, {.caption = u"تعريف مدارک تحصيلي"_s}};
    Button cmdRasteh{framFixed, u"cmdRasteh"_s, {.caption = u"تعريف رسته شغلي"_s}};
    Button Command1{framFixed, u"Command1"_s, {.caption = u"تعريف اشخاص معاف"_s}};

    Frame framOwn{*this, u"framOwn"_s};
    Button cmdSemat{framOwn, u"cmdSemat"_s, {.caption = u"تعريف سمت يا شغل"_s}};
    Button cmdKeshvar{framOwn, u"cmdKeshvar"_s, {.caption = u"تعريف نام کشورها"_s}};
    Button cmdMoafiat{framOwn, u"cmdMoafiat"_s, {.caption = u"تعيين ميزان معافيت سالانه ماده 84"_s}};

    Label lblNote{*this, u"lblNote"_s, {.caption = u"تذکر مهم : بدون هماهنگي ديوان زروان از تغيير کدهاي موجود در کادر مشخص شده با رنگ قرمز جدا خودداري نماييد . ايجاد و يا تغيير در کدهايي که توسط کادر آبي مشخص گرديده اند در اختيار کـاربر بوده و نيازي به هماهنگي ندارد."_s}};
    Button cmdExit{*this, u"cmdExit"_s, {.caption = u"خروج"_s}};
    // clang-format on

protected:
    void Form_Load() override;

private:
    void openList(const QString &list, const QString &name);
    void cmdOk_Click();
};

} // namespace zrv
