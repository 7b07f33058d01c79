// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/browse_panel.h"

namespace zrv {

using namespace Qt::Literals::StringLiterals;

/// Who may log in. A record's key is the pair of name and password, so a user is changed only by someone who knows
/// that user's password; a third stage, above the two of every record screen, changes the password.
class frmUser_Defination : public RecordScreen {
public:
    explicit frmUser_Defination(Program &program);

    // clang-format off
    Frame framAll{*this, u"framAll"_s};
    Label lblForm{framAll, u"lblForm"_s, {.caption = u"تعريف كاربران  سيستم "_s}};

    Frame framKey{framAll, u"framKey"_s};
    Label lblUserNamee{framKey, u"lblUserNamee"_s, {.caption = u"نـام كــاربري :"_s}};
    TextBox txtUserNamee{framKey, u"txtUserNamee"_s, {.limit = 10, .tag = u"+N+EN+DigitOnly"_s, .leftToRight = true}};
    Label lblPasswordd{framKey, u"lblPasswordd"_s, {.caption = u"رمــــز عبــور :"_s}};
    TextBox txtPasswordd{framKey, u"txtPasswordd"_s, {.limit = 10, .tag = u"+N+EN+DigitOnly"_s, .password = u'*', .leftToRight = true}};
    Button cmdKeyOk{framKey, u"cmdKeyOk"_s, {.caption = u"تاييد"_s}};
    Button cmdKeyReturn{framKey, u"cmdKeyReturn"_s, {.caption = u"انصراف"_s}};

    Frame framData{framAll, u"framData"_s};
    Label lblName{framData, u"lblName"_s, {.caption = u"نام :"_s}};
    TextBox txtName{framData, u"txtName"_s, {.limit = 15, .tag = u"+N+FA+EN+DigitOnly"_s}};
    Label lblFamily{framData, u"lblFamily"_s, {.caption = u"نام خانوادگي :"_s}};
    TextBox txtFamily{framData, u"txtFamily"_s, {.limit = 20, .tag = u"+N+FA+EN+DigitOnly"_s}};
    OptionButton optSupervisor{framData, u"optSupervisor"_s, {.caption = u"سوپروايزر"_s}};
    OptionButton optOperator{framData, u"optOperator"_s, {.caption = u"كـــــــاربر"_s, .checked = true}};
    Button cmdDataOk{framData, u"cmdDataOk"_s, {.caption = u" &ذخيره"_s}};
    Button cmdDataReturn{framData, u"cmdDataReturn"_s, {.caption = u"&انصراف"_s}};

    Frame picButtons{framAll, u"picButtons"_s};
    Button cmdContinue{picButtons, u"cmdContinue"_s, {.caption = u"&ادامه"_s, .enabled = false}};
    Button cmdChangePassword{picButtons, u"cmdChangePassword"_s, {.caption = u"تغيير رمز عبور"_s}};
    Button cmdDelete{picButtons, u"cmdDelete"_s, {.caption = u" &حذف"_s}};
    Button cmdExit{picButtons, u"cmdExit"_s, {.caption = u"&خروج"_s}};

    Frame framBrows{framAll, u"framBrows"_s};
    BrowsePanel browse{*this, framBrows, u"dbgBrowser"_s};

    Frame framChangPassword{*this, u"framChangPassword"_s, {.visible = false}};
    Label lblOldPassword{framChangPassword, u"lblOldPassword"_s, {.caption = u"رمــــز عبــور فعلي :"_s}};
    TextBox txtOldPassword{framChangPassword, u"txtOldPassword"_s, {.limit = 15, .tag = u"+N+FA+EN+DigitOnly"_s, .password = u'*', .leftToRight = true}};
    Label lblNewPassword{framChangPassword, u"lblNewPassword"_s, {.caption = u"رمــــز عبــور جديد :"_s}};
    TextBox txtNewPassword{framChangPassword, u"txtNewPassword"_s, {.limit = 20, .tag = u"+N+FA+EN+DigitOnly"_s, .password = u'*', .leftToRight = true}};
    Label lblConfirmNewPassword{framChangPassword, u"lblConfirmNewPassword"_s, {.caption = u"تکرار رمــــز عبــور جديد :"_s}};
    TextBox txtConfirmNewPassword{framChangPassword, u"txtConfirmNewPassword"_s, {.limit = 20, .tag = u"+N+FA+EN+DigitOnly"_s, .password = u'*', .leftToRight = true}};
    Button cmdSavePassword{framChangPassword, u"cmdSavePassword"_s, {.caption = u" &ذخيره"_s}};
    Button cmdCancelPassword{framChangPassword, u"cmdCancelPassword"_s, {.caption = u"&انصراف"_s}};
    // clang-format on

    void cmdKeyOk_Click();
    void cmdDataOk_Click();

protected:
    void Form_Load() override;
    bool goBack() override;

private:
    void wireKeys();
    void pickRow();
    void backToKey();
    void cmdDelete_Click();
    void AddRoutine();
    void UpdateRoutine();
    void DeleteRoutine();
    void cmdChangePassword_Click();
    void cmdSavePassword_Click();
    void cmdCancelPassword_Click();
    void showPasswordStage(bool shown);
    [[nodiscard]] bool changePassword();
    void refusePasswords(const QString &text);
    [[nodiscard]] QString accessLevel() const;
    [[nodiscard]] QString storedKey() const;

    bool m_recordExists = false;
    QString m_storedPassword; ///< of the record in hand; the key field keeps what was typed there
};

} // namespace zrv
