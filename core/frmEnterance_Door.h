// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/screen.h"

namespace zrv {

using namespace Qt::Literals::StringLiterals;

/// The login. Loading it is the start of the program; a correct login opens the main form above it, and leaving
/// the main form ends the program, so that nobody comes back here.
class frmEnterance_Door : public Screen {
public:
    explicit frmEnterance_Door(Program &program);

    // clang-format off
    Label LabelFormHeader{*this, u"LabelFormHeader"_s};
    Label Label1{*this, u"Label1"_s};
    Label Label2{*this, u"Label2"_s, {.caption = u"  ###  در صورت نادرست بودن تاريخ نسبت به تصحيح آن اقدام فرمائيد   ###"_s}};
    Timer tmrBlink{*this, u"tmrBlink"_s, 500};

    Frame FramKey{*this, u"FramKey"_s};
    Label lblUsernamee{FramKey, u"lblUsernamee"_s, {.caption = u"نام كاربري :"_s}};
    TextBox txtUsernamee{FramKey, u"txtUsernamee"_s, {.limit = 10, .leftToRight = true}};
    Label lblPasswordd{FramKey, u"lblPasswordd"_s, {.caption = u"كلمه عبور :"_s}};
    TextBox txtPasswordd{FramKey, u"txtPasswordd"_s, {.limit = 10, .password = u'*', .leftToRight = true}};
    Button cmdKeyOk{FramKey, u"cmdKeyOk"_s, {.caption = u"تاييد"_s}};
    Button cmdKeyReturn{FramKey, u"cmdKeyReturn"_s, {.caption = u"انصراف"_s}};

    Frame framAll{*this, u"framAll"_s};
    Frame FramData{framAll, u"FramData"_s};
    Label lblName{FramData, u"lblName"_s, {.caption = u"نام :"_s}};
    Label lbDName{FramData, u"lbDName"_s};
    Label lblFamily{FramData, u"lblFamily"_s, {.caption = u"نام خانوادگي :"_s}};
    Label lbDFamily{FramData, u"lbDFamily"_s};
    Label lblAccess_Level{FramData, u"lblAccess_Level"_s, {.caption = u"سطح دسترسي :"_s}};
    Label lbDAccess_Level{FramData, u"lbDAccess_Level"_s};
    Button cmdDataOk{framAll, u"cmdDataOk"_s, {.caption = u"ورود به برنامه"_s}};
    Button cmdDataReturn{framAll, u"cmdDataReturn"_s, {.caption = u"خروج"_s}};

    Button cmdExit{*this, u"cmdExit"_s, {.caption = u"خروج"_s}};
    Label lblResolotion{*this, u"lblResolotion"_s, {.caption = u"جهت اجراي صحيح برنامه دقت صفحه نمايش بايد بر روي  768 * 1024 تنظيم گردد"_s}};
    Label Label3{*this, u"Label3"_s, {.caption = u"اين نرم افزار جهت استفاده در محيط ويندوز XP طراحي و تست گرديده است"_s}};
    // clang-format on

protected:
    void Form_Load() override;

private:
    void warnOfSmallDisplay();
    void fieldChanged();
    void txtUsernamee_KeyPress(int &keyAscii);
    void txtPasswordd_KeyPress(int &keyAscii);
    void cmdKeyOk_Click();
    void cmdDataOk_Click();
    void cmdDataReturn_Click();
    void tmrBlink_Timer();
};

} // namespace zrv
