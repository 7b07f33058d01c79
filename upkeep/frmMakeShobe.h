// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/record_screen.h"

namespace zrv {

using namespace Qt::Literals::StringLiterals;

/// Lets a payer with several branches run them all on one computer. A branch is a copy of the program and of its
/// emptied store in a numbered folder of the program's own, with a shortcut on the desktop; nothing links the stores.
class frmMakeShobe : public RecordScreen {
public:
    explicit frmMakeShobe(Program &program);

    // clang-format off
    Label lblMojodShobe{*this, u"lblMojodShobe"_s, {.caption = u"تعداد شعبه هاي موجود :"_s}};
    TextBox txtMojodShobe{*this, u"txtMojodShobe"_s, {.limit = 12, .leftToRight = true}};
    Label lblNeededShoeb{*this, u"lblNeededShoeb"_s, {.caption = u"تعداد شعبه هاي جديد مورد نياز :"_s}};
    TextBox txtNeededShoeb{*this, u"txtNeededShoeb"_s, {.limit = 5, .tag = u"+DigitOnly+N"_s, .leftToRight = true}};
    Label lblTotalCountCaption{*this, u"lblTotalCountCaption"_s, {.caption = u"تعداد کل شعبه ها پس از اتمام عمليات ايجاد شعبه هاي جديد :"_s}};
    Label lblTotalCount{*this, u"lblTotalCount"_s, {.leftToRight = true}};
    Picture PPICWaitingMessage{*this, u"PPICWaitingMessage"_s, {.visible = false}};
    Label LabelWaitingMessage{PPICWaitingMessage, u"LabelWaitingMessage"_s, {.caption = u"در حال انجام عمليات ايجاد شعبه . لطفا تا پايان عمليات منتظر بمانيد ..."_s}};
    Button cmdUpgrades{*this, u"cmdUpgrades"_s, {.caption = u"شروع عمليات"_s}};
    Button cmdExit{*this, u"cmdExit"_s, {.caption = u"خروج"_s}};
    // clang-format on

protected:
    void Form_Load() override;

private:
    void cmdUpgrades_Click();
    [[nodiscard]] qint16 totalCount() const;
};

} // namespace zrv
