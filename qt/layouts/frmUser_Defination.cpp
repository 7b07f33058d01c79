// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/layouts/layout_builder.h"
#include "qt/layouts/layouts.h"

namespace zrv {

void layOutUser_Defination(LayoutBuilder &b)
{
    // clang-format off
    b.atLeast(115, 22);
    b.fill(b.over(
        b.around(u"framAll", b.column({
            b.heading(u"lblForm"),
            b.inside(u"framKey", b.line({
                b.fields({{u"lblUserNamee", u"txtUserNamee"}, {u"lblPasswordd", u"txtPasswordd"}}, 2),
                b.buttons({u"cmdKeyOk", u"cmdKeyReturn"}),
            })),
            b.inside(u"framData", b.column({
                b.fields({{u"lblName", u"txtName"}, {u"lblFamily", u"txtFamily"}}, 2),
                b.line({u"optSupervisor", u"optOperator", b.room(), b.buttons({u"cmdDataOk", u"cmdDataReturn"})}),
            })),
            b.wide(b.browse(u"dbgBrowser")),
            b.around(u"picButtons", b.buttons({u"cmdContinue", u"cmdChangePassword", u"cmdDelete", u"cmdExit"})),
        })),
        b.inside(u"framChangPassword", b.column({
            b.fields({{u"lblOldPassword", u"txtOldPassword"}, {u"lblNewPassword", u"txtNewPassword"},
                      {u"lblConfirmNewPassword", u"txtConfirmNewPassword"}}),
            b.buttons({u"cmdSavePassword", u"cmdCancelPassword"}),
        }))));
    // clang-format on
}

} // namespace zrv
