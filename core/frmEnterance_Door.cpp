// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/frmEnterance_Door.h"

#include "core/basic/run_time_error.h"
#include "core/containers.h"
#include "core/kept_copies.h"
#include "core/keyboard_layout.h"
#include "core/mdlPublic.h"
#include "core/old_store.h"
#include "core/public/program_version.h"
#include "core/store/recordset.h"

namespace zrv {

namespace {

constexpr QSize SmallestDisplay(1024, 768);
constexpr Color Black = 0x000000;
constexpr Color Red = 0xFF0000;
const QString Refused = u" اخطار  "_s;

/// Names and passwords are upper-case Latin letters and digits; any other key but Enter and Backspace is dropped.
void admitNameKey(int &keyAscii)
{
    if (keyAscii >= 'a' && keyAscii <= 'z')
        keyAscii += 'A' - 'a';
    const bool admitted = (keyAscii >= '0' && keyAscii <= '9') || (keyAscii >= 'A' && keyAscii <= 'Z')
                          || keyAscii == '\b' || keyAscii == '\r';
    if (!admitted)
        keyAscii = 0;
}

} // namespace

frmEnterance_Door::frmEnterance_Door(Program &program)
    : Screen(program, u"frmEnterance_Door"_s)
{
    txtUsernamee.onChange = txtPasswordd.onChange = [this] { fieldChanged(); };
    txtUsernamee.onKeyPress = [this](int &keyAscii) { txtUsernamee_KeyPress(keyAscii); };
    txtPasswordd.onKeyPress = [this](int &keyAscii) { txtPasswordd_KeyPress(keyAscii); };
    // Both buttons have no stage of their own: getting the focus, by any means, is the click.
    cmdKeyOk.onGotFocus = cmdKeyOk.onClick = [this] { cmdKeyOk_Click(); };
    cmdDataOk.onGotFocus = cmdDataOk.onClick = [this] { cmdDataOk_Click(); };
    cmdDataReturn.onClick = [this] { cmdDataReturn_Click(); };
    cmdKeyReturn.onClick = cmdExit.onClick = [] { throw ProgramEnd{}; };
    tmrBlink.onTimer = [this] { tmrBlink_Timer(); };
}

void frmEnterance_Door::Form_Load()
{
    warnOfSmallDisplay();
    m_program.StoreConnectionString = u"Provider = Microsoft.Jet.OLEDB.4.0;Data Source = "_s
                                      + m_platform.programFolder() + u"\\DBZorvan.mdb;Persist Security Info=False"_s;
    m_program.ProgramVersion = CurrentProgramVersion.toString();
    setCaption(u"ورود  به  سيستم  ماليات  بر حقوق "_s + m_program.ProgramVersion);
    LabelFormHeader.setCaption(u"ورود  به  سيستم  ماليات  بر حقوق "_s + m_program.ProgramVersion);
    SwitchToLatinKeyboard(m_platform);
    DisableContainer(u"framAll", *this);
    cmdKeyReturn.setCancel(true);
    fieldChanged();
    const QDate today = m_platform.today();
    // The second text replaces the first at once; both are set because either alone is a screen users know.
    Label1.setCaption(u" تاريخ ورود به سيستم : "_s + u" "_s + SolarDate(today));
    Label1.setCaption(u" امروز : "_s + u" "_s + LongSolarDate(today, today));
    takeOverOldStore(m_platform);
}

void frmEnterance_Door::warnOfSmallDisplay()
{
    const QSize display = m_platform.displaySize();
    if (display.height() >= SmallestDisplay.height() && display.width() >= SmallestDisplay.width())
        return;
    messageBox(box::RefusalRtl, Refused,
               u" کاربر گرامي،دقت صفحه نمايش فعلي شما"_s + QString::number(display.width()) + u"*"_s
                   + QString::number(display.height()) + u" ميباشد"_s + u"\r\n"_s
                   + u" جهت اجراي صحيح برنامه دقت صفحه نمايش بايد بر روي  768 * 1024 تنظيم گردد "_s + u"\r\n"_s
                   + u"لطفا از برنامه خارج و اقدام لازم جهت اصلاح دقت صفحه نمايش را انجام دهيد"_s);
}

void frmEnterance_Door::tmrBlink_Timer()
{
    Label2.setTextColor(Label2.textColor() == Black ? Red : Black);
}

void frmEnterance_Door::fieldChanged()
{
    const bool complete = !txtUsernamee.text().trimmed().isEmpty() && !txtPasswordd.text().trimmed().isEmpty();
    cmdKeyOk.setEnabled(complete);
    cmdKeyOk.setDefault(complete);
}

void frmEnterance_Door::txtUsernamee_KeyPress(int &keyAscii)
{
    admitNameKey(keyAscii);
    if (keyAscii != '\r')
        return;
    keyAscii = 0;
    if (txtUsernamee.text().isEmpty()) {
        messageBox(box::Refusal, Refused, u"  جهت ورود به برنامه ورود كلمه كاربري الزامي ميباشد "_s);
        txtUsernamee.setFocus();
    } else {
        txtPasswordd.setFocus();
    }
}

void frmEnterance_Door::txtPasswordd_KeyPress(int &keyAscii)
{
    admitNameKey(keyAscii);
    if (keyAscii != '\r')
        return;
    keyAscii = 0;
    if (txtPasswordd.text().trimmed().isEmpty()) {
        messageBox(box::Refusal, Refused, u"  جهت ورود به برنامه ورود كلمه عبور الزامي ميباشد "_s);
        txtPasswordd.setFocus();
    } else if (cmdKeyOk.isEnabled()) {
        cmdKeyOk.setFocus();
    } else {
        // Without a name the button is off and can't take the focus; its routine says what is missing.
        cmdKeyOk_Click();
    }
}

void frmEnterance_Door::cmdKeyOk_Click()
{
    const bool noName = txtUsernamee.text().trimmed().isEmpty();
    if (noName || txtPasswordd.text().trimmed().isEmpty()) {
        messageBox(box::Refusal, Refused, u"  لطفاْ نام كاربري و پسورد را بصورت كامل وارد نمائيد "_s);
        (noName ? txtUsernamee : txtPasswordd).setFocus();
        return;
    }
    // What kept it from being taken over at the start may be mended by now.
    takeOverOldStore(m_platform);
    refuseDamagedStore(m_program);
    bool known = false;
    {
        const Connection connection(m_program.StoreConnectionString);
        const Recordset user(connection, u"SELECT * FROM User_Defination"_s + u" WHERE Usernamee = "_s
                                             + quoted(txtUsernamee.text()) + u" AND Passwordd  = "_s
                                             + quoted(txtPasswordd.text()));
        known = !user.eof();
        if (known) {
            const QString name = user.value(u"Name").toText();
            const QString family = user.value(u"Family").toText();
            lbDFamily.setCaption(family);
            lbDName.setCaption(name);
            m_program.UserFullName = name + u" "_s + family;
            m_program.IsSupervisor = user.value(u"Access_Level").toText() == "1"_L1;
            lbDAccess_Level.setCaption(m_program.IsSupervisor ? u"سوپروايزر"_s : u"كــــاربر"_s);
        }
    }
    if (known) {
        DisableContainer(u"FramKey", *this);
        EnableContainer(u"framAll", *this);
        cmdDataOk.setEnabled(true);
        cmdDataOk.setFocus();
    } else {
        messageBox(box::Refusal, Refused, u"  نام كاربري و پسورد صحيح نميباشد "_s);
        txtUsernamee.setFocus();
    }
    cmdKeyOk.setDefault(false);
    cmdDataReturn.setCancel(true);
}

void frmEnterance_Door::cmdDataOk_Click()
{
    openScreen(u"frmMain"_s);
}

void frmEnterance_Door::cmdDataReturn_Click()
{
    ClearContainer(u"FramData", *this);
    DisableContainer(u"framAll", *this);
    ClearContainer(u"FramKey", *this);
    cmdDataOk.setEnabled(false);
    EnableContainer(u"FramKey", *this);
    cmdKeyReturn.setCancel(true);
    txtUsernamee.setFocus();
}

} // namespace zrv
