// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/frmUser_Defination.h"

#include "core/basic/run_time_error.h"
#include "core/containers.h"
#include "core/store/recordset.h"

namespace zrv {

namespace {

const QString Refused = u" اخطار  "_s;
const QString LevelInWords = u"IIf(Access_Level,\"سوپروايزر\",\"کاربر\")"_s;
const QString AllUsers = u"SELECT UserNamee,Name,Family,"_s + LevelInWords + u" FROM User_Defination"_s;
const QString ByName = u" ORDER BY UserNamee"_s;
const QString Supervisor = u"1"_s;
const QString Operator = u"0"_s;

} // namespace

frmUser_Defination::frmUser_Defination(Program &program)
    : RecordScreen(program, u"frmUser_Defination"_s)
{
    setCaption(lblForm.caption());
    browse.setUp({.all = [] { return AllUsers; },
                  .order = ByName,
                  .search = [](const QString &condition) { return QString(AllUsers + u" WHERE "_s + condition); },
                  .report = FailureReport::ErrorBox},
                 {
                     {u"UserNamee"_s, u" نام کاربري "_s, {}, true},
                     {u"Name"_s, u" نام کاربر "_s},
                     {u"Family"_s, u" نام خانوادگي کاربر"_s},
                     {u"Access_Level"_s, u" سطح دسترسي "_s, {}, false, LevelInWords},
                 });
    browse.onPick = [this] { pickRow(); };
    browse.onDelete = [this] {
        if (!txtUserNamee.isReachable())
            return;
        pickRow();
        if (cmdDelete.isEnabled())
            cmdDelete_Click();
    };
    cmdKeyOk.onClick = [this] { cmdKeyOk_Click(); };
    cmdKeyReturn.onClick = [this] { leaveKeyStage(cmdContinue); };
    cmdDataOk.onClick = [this] { cmdDataOk_Click(); };
    cmdDataReturn.onClick = [this] { backToKey(); };
    cmdContinue.onClick = [this] { takeUpKeyStage(cmdContinue, txtUserNamee); };
    cmdChangePassword.onClick = [this] { cmdChangePassword_Click(); };
    cmdSavePassword.onClick = [this] { cmdSavePassword_Click(); };
    cmdCancelPassword.onClick = [this] { cmdCancelPassword_Click(); };
    cmdDelete.onClick = [this] { cmdDelete_Click(); };
    cmdExit.onClick = [this] { unload(); };
    wireKeys();
}

void frmUser_Defination::wireKeys()
{
    for (OptionButton *option : {&optSupervisor, &optOperator})
        option->onKeyDown = [this](Key key) {
            if (key == Key::Enter)
                cmdDataOk.setFocus();
            return key == Key::Enter;
        };
}

void frmUser_Defination::Form_Load()
{
    EnableContainer(u"framBrows", *this);
    openKeyStage(false);
    ApplyModeButtons(u"StartProgram", *this);
    cmdChangePassword.setEnabled(false);
    cmdKeyOk.setDefault(true);
    browse.reset();
    browse.fill();
}

bool frmUser_Defination::goBack()
{
    if (!framChangPassword.isVisible())
        return RecordScreen::goBack();
    cmdCancelPassword_Click();
    return true;
}

// Key stage --------------------------------------------------------------------------------------------------

/// The grid shows no password: the row gives the name, and the user the password, typed before or after.
void frmUser_Defination::pickRow()
{
    if (!txtUserNamee.isReachable())
        return;
    txtUserNamee.setText(browse.grid.currentCell(u"UserNamee"));
    cmdKeyOk_Click();
}

void frmUser_Defination::cmdKeyOk_Click()
{
    if (!requiredAreFilled(u"framKey"))
        return;
    cmdKeyOk.setDefault(false);
    openDataStage();
    txtName.setFocus();
    m_storedPassword = txtPasswordd.text().trimmed();
    const Connection connection(m_program.StoreConnectionString);
    const Recordset user(connection, u"SELECT * FROM User_Defination"_s + u" WHERE UserNamee = "_s
                                         + quoted(txtUserNamee.text().trimmed()) + u" AND Passwordd = "_s
                                         + quoted(m_storedPassword));
    m_recordExists = !user.eof();
    cmdDelete.setEnabled(m_recordExists);
    cmdChangePassword.setEnabled(m_recordExists);
    // A new user starts with the lesser level.
    const bool supervisor = m_recordExists && user.value(u"Access_Level").toText() == Supervisor;
    (supervisor ? optSupervisor : optOperator).setChecked(true);
    if (!m_recordExists)
        return;
    txtName.setText(user.value(u"Name").toText());
    txtName.selectAll();
    txtFamily.setText(user.value(u"Family").toText());
}

void frmUser_Defination::backToKey()
{
    cmdDelete.setEnabled(false);
    cmdChangePassword.setEnabled(false);
    openKeyStage();
    cmdKeyOk.setDefault(true);
    txtUserNamee.setFocus();
    browse.fill();
}

// Saving and deleting ----------------------------------------------------------------------------------------

void frmUser_Defination::cmdDataOk_Click()
{
    if (!requiredAreFilled(u"framData"))
        return;
    if (m_recordExists)
        UpdateRoutine();
    else
        AddRoutine();
    backToKey();
}

QString frmUser_Defination::accessLevel() const
{
    return quoted(optSupervisor.isChecked() ? Supervisor : Operator);
}

QString frmUser_Defination::storedKey() const
{
    return u" WHERE UserNamee  = "_s + quoted(txtUserNamee.text().trimmed()) + u" AND Passwordd  = "_s
           + quoted(m_storedPassword);
}

void frmUser_Defination::AddRoutine()
{
    Connection(m_program.StoreConnectionString)
        .execute(u"INSERT INTO User_Defination VALUES "_s + u"("_s + quoted(txtUserNamee.text().trimmed()) + u","_s
                 + quoted(txtPasswordd.text().trimmed()) + u","_s + quoted(txtName.text().trimmed()) + u","_s
                 + quoted(txtFamily.text().trimmed()) + u","_s + accessLevel() + u")"_s);
}

void frmUser_Defination::UpdateRoutine()
{
    Connection(m_program.StoreConnectionString)
        .execute(u"UPDATE User_Defination Set"_s + u" Name = "_s + quoted(txtName.text().trimmed()) + u","_s
                 + u" Family = "_s + quoted(txtFamily.text().trimmed()) + u","_s + u" Access_Level = "_s + accessLevel()
                 + storedKey());
}

void frmUser_Defination::cmdDelete_Click()
{
    if (confirmDelete())
        DeleteRoutine();
    backToKey();
}

void frmUser_Defination::DeleteRoutine()
{
    Connection(m_program.StoreConnectionString).execute(u" DELETE FROM User_Defination"_s + storedKey());
}

// Changing a password ----------------------------------------------------------------------------------------

/// Shows the password stage above everything else, or goes back under it. The other stages are closed and opened as
/// frames, so that they come back with the fields open that were.
void frmUser_Defination::showPasswordStage(bool shown)
{
    for (Frame *stage : {&framAll, &framKey, &framData})
        stage->setEnabled(!shown);
    ClearContainer(u"framChangPassword", *this);
    EnableContainer(u"framChangPassword", *this);
    framChangPassword.setVisible(shown);
}

void frmUser_Defination::cmdChangePassword_Click()
{
    showPasswordStage(true);
    txtOldPassword.setFocus();
}

void frmUser_Defination::cmdCancelPassword_Click()
{
    showPasswordStage(false);
    cmdChangePassword.setFocus();
}

void frmUser_Defination::refusePasswords(const QString &text)
{
    messageBox(box::Refusal, Refused, text);
    ClearContainer(u"framChangPassword", *this);
    txtOldPassword.setFocus();
}

void frmUser_Defination::cmdSavePassword_Click()
{
    if (!requiredAreFilled(u"framChangPassword"))
        return;
    if (txtOldPassword.text() != txtPasswordd.text()) {
        refusePasswords(u"مقدار وارد شده جهت رمز عبور فعلي صحيح نميباشند.لطفا اصلاح نماييد."_s);
        return;
    }
    if (txtNewPassword.text() != txtConfirmNewPassword.text()) {
        refusePasswords(u"مقادير وارد شده جهت رمز عبور جديد يکسان نميباشند.لطفا اصلاح نماييد."_s);
        return;
    }
    if (!changePassword()) {
        messageBox(box::Warning, u"Update"_s, u"تغيير رمز عبور با خطا مواجه گرديد"_s);
        return;
    }
    messageBox(box::Notice, u"توجه"_s, u"رمز عبور تغيير يافت "_s);
    ClearContainer(u"framChangPassword", *this);
    cmdCancelPassword.setFocus();
}

/// False when the store refused it, or holds no user of this name and password any more.
bool frmUser_Defination::changePassword()
{
    try {
        const int changed =
            Connection(m_program.StoreConnectionString)
                .execute(u"UPDATE User_Defination Set"_s + u" Passwordd = "_s + quoted(txtNewPassword.text())
                         + u" WHERE UserNamee  = "_s + quoted(txtUserNamee.text().trimmed()) + u" AND Passwordd  = "_s
                         + quoted(txtOldPassword.text()));
        if (changed == 0)
            return false;
    } catch (const RunTimeError &) {
        return false;
    }
    m_storedPassword = txtNewPassword.text();
    return true;
}

} // namespace zrv
