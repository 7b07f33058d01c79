// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/browse_panel.h"

namespace zrv {

using namespace Qt::Literals::StringLiterals;

/// One code list: its codes and what they mean. The list chooser opens it, and the payee screen drives it without
/// showing it, to add a row to a list.
class frmCoding : public RecordScreen {
public:
    /// The list in hand, by number and name.
    frmCoding(Program &program, QString list, QString listName);

    // clang-format off
    Frame framAll{*this, u"framAll"_s};
    Label lblForm{framAll, u"lblForm"_s};

    Frame framKey{framAll, u"framKey"_s};
    TextBox txtMCode{framKey, u"txtMCode"_s, {.limit = 5, .visible = false}};
    TextBox txtMDesc{framKey, u"txtMDesc"_s, {.limit = 50, .visible = false}};
    Label lblSCode{framKey, u"lblSCode"_s, {.caption = u"كـد :"_s}};
    TextBox txtSCode{framKey, u"txtSCode"_s, {.limit = 4, .tag = u"+DigitOnly"_s, .toolTip = u" لطفاْ براي ورود اطلاعات جديد از كليد اينتر و يا دابل كليك ماوس استفاده نمائيد "_s, .leftToRight = true}};
    Button cmdKeyOk{framKey, u"cmdKeyOk"_s, {.caption = u"تاييد"_s}};
    Button cmdKeyReturn{framKey, u"cmdKeyReturn"_s, {.caption = u"انصراف"_s}};

    Frame framData{framAll, u"framData"_s};
    Label lblSDesc{framData, u"lblSDesc"_s, {.caption = u"شرح کـــــد :"_s}};
    TextBox txtSDesc{framData, u"txtSDesc"_s, {.limit = 50, .tag = u"+FA+DigitOnly+N"_s}};
    Button cmdDataOk{framData, u"cmdDataOk"_s, {.caption = u" &ذخيره"_s}};
    Button cmdDataReturn{framData, u"cmdDataReturn"_s, {.caption = u"&انصراف"_s}};

    Frame picButtons{framAll, u"picButtons"_s};
    Button cmdContinue{picButtons, u"cmdContinue"_s, {.caption = u"&ادامه"_s, .enabled = false}};
    Button cmdDelete{picButtons, u"cmdDelete"_s, {.caption = u" &حذف"_s}};
    Button cmdExit{picButtons, u"cmdExit"_s, {.caption = u"&خروج"_s}};

    Frame framBrows{framAll, u"framBrows"_s};
    BrowsePanel browse{*this, framBrows, u"dbgBrowser"_s};
    // clang-format on

    /// Proposes the next free code of the list.
    void txtSCode_DblClick();
    /// Adds the code and description on the screen to the list.
    void AddRoutine();
    void cmdKeyOk_Click();
    void cmdDataOk_Click();
    /// The code saved last; empty before the first save.
    [[nodiscard]] const QString &lastCode() const { return m_lastCode; }

protected:
    void Form_Load() override;

private:
    void txtSCode_Change();
    void cmdDelete_Click();
    void UpdateRoutine();
    void DeleteRoutine();
    [[nodiscard]] bool RecordIsDuplicate();
    [[nodiscard]] bool deletionIsRefused();
    void backToKey();
    [[nodiscard]] QString searchStatement(const QString &condition) const;

    QString m_list;
    QString m_listName;
    QString m_lastCode;
    bool m_recordExists = false;
};

} // namespace zrv
