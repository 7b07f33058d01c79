// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/screen.h"

namespace zrv {

using namespace Qt::Literals::StringLiterals;

/// The main form: a button or menu item for each screen. Each time it becomes active it reads the payer anew,
/// switches what needs a payer, and finds out whether the store fits the program.
class frmMain : public Screen {
public:
    explicit frmMain(Program &program);
    ~frmMain() override;

    // clang-format off
    MenuItem mnuAmaliat{*this, u"mnuAmaliat"_s, {.caption = u"&عمليات  "_s}};
    MenuItem mnusubfrmKarfarma{mnuAmaliat, u"mnusubfrmKarfarma"_s, {.caption = u"ايجاد و ويرايش اطلاعات پرداخت کننده حقوق"_s}};
    MenuItem mnusubfrmKarkonan{mnuAmaliat, u"mnusubfrmKarkonan"_s, {.caption = u"ايجاد و ويرايش اطلاعات دريافت کنندگان حقوق"_s}};
    MenuItem mnusubfrmHogog{mnuAmaliat, u"mnusubfrmHogog"_s, {.caption = u"ايجاد و ويرايش ليست  حقوق  ماهانه"_s}};
    MenuItem mnusubfrmKholList{mnuAmaliat, u"mnusubfrmKholList"_s, {.caption = u"ايجاد و ويرايش خلاصه  ليست  حقوق "_s}};
    MenuItem mnusubfrmTransferData{mnuAmaliat, u"mnusubfrmTransferData"_s, {.caption = u"عمليات انتقال سالانه اطلاعات"_s}};
    MenuItem mnuSeperator{mnuAmaliat, u"mnuSeperator"_s, {.caption = u"-"_s}};
    MenuItem mnuExit{mnuAmaliat, u"mnuExit"_s, {.caption = u"خـروج"_s}};
    MenuItem mnuBaseInformation{*this, u"mnuBaseInformation"_s, {.caption = u"&اطلاعات پايه  "_s}};
    MenuItem mnusubfrmCoding_Semat{mnuBaseInformation, u"mnusubfrmCoding_Semat"_s, {.caption = u"ايجاد و ويرايش اطلاعات پايه"_s}};
    MenuItem mnuAdmin{*this, u"mnuAdmin"_s, {.caption = u"سوپروايزر"_s}};
    MenuItem mnusubUpgrades{mnuAdmin, u"mnusubUpgrades"_s, {.caption = u"بروزرساني ساختار بانک اطلاعاتي"_s}};
    MenuItem mnusubMakeShobe{mnuAdmin, u"mnusubMakeShobe"_s, {.caption = u"ايجاد اتوماتيک شعبه هاي پرداخت کننده حقوق"_s}};
    MenuItem mnusubUpgradeDatabaseStructure{mnuAdmin, u"mnusubUpgradeDatabaseStructure"_s, {.enabled = false}};
    MenuItem mnuHelp{*this, u"mnuHelp"_s, {.caption = u"راهنما "_s}};
    MenuItem mnuAbout{mnuHelp, u"mnuAbout"_s, {.caption = u"درباره ..."_s}};
    MenuItem mnusubVersionsFacilities{mnuHelp, u"mnusubVersionsFacilities"_s, {.caption = u"فهرست تغييرات ايجاد شده در نسخ برنامه"_s}};

    Button cmdKarfarma{*this, u"cmdKarfarma"_s, {.caption = u"تعريف پرداخت کننده حقوق"_s}};
    Button cmdKarkonan{*this, u"cmdKarkonan"_s, {.caption = u" تعريف دريافت کننده حقوق"_s}};
    Button cmdHogog{*this, u"cmdHogog"_s, {.caption = u"ليست حقوق"_s}};
    Button cmdKholList{*this, u"cmdKholList"_s, {.caption = u"خلاصه ليست حقوق"_s}};
    Button cmdCreatTextFiles{*this, u"cmdCreatTextFiles"_s, {.caption = u"ايجاد  فايل هاي مورد نياز  واحد مالياتي"_s}};
    Button cmdReadTextFiles{*this, u"cmdReadTextFiles"_s, {.caption = u"کنترل و نمايش محتواي فايلهاي الکترونيکي"_s}};
    Button cmdSrcMoadi{*this, u"cmdSrcMoadi"_s, {.caption = u"جستجوي دريافت کنندگان حقوق"_s}};
    Button cmdReports{*this, u"cmdReports"_s, {.caption = u"گزارشات"_s, .enabled = false}};
    Button cmdUsres{*this, u"cmdUsres"_s, {.caption = u"تعريف کاربران سيستم"_s}};
    Button cmdCodin_Semat{*this, u"cmdCodin_Semat"_s, {.caption = u"تعريف اطلاعات پايه"_s}};
    Button cmdExit{*this, u"cmdExit"_s, {.caption = u"خروج"_s}};

    StatusPanel panelDate{*this, u"StatusBar1(1)"_s, StatusPanel::Size::Content};
    StatusPanel panelPayer{*this, u"StatusBar1(2)"_s, StatusPanel::Size::Spring};
    StatusPanel panelFree{*this, u"StatusBar1(3)"_s, StatusPanel::Size::Content};
    StatusPanel panelUser{*this, u"StatusBar1(4)"_s, StatusPanel::Size::Content};
    StatusPanel panelOwner{*this, u"StatusBar1(5)"_s, StatusPanel::Size::Content};
    // clang-format on

protected:
    void Form_Load() override;
    void Form_Activate() override;
    void Form_KeyPress(int &keyAscii) override;
    bool Form_QueryUnload(UnloadMode mode) override;
    void Form_Unload() override;

private:
    void cmdSrcMoadi_Click();
    void cmdExit_Click();
    void mnusubUpgradeDatabaseStructure_Click();
    void testPayer();
    void storeIsTooOld();
    void testFirstRun();
    void enablePayerControls(bool enabled);
};

} // namespace zrv
