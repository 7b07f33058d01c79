// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/layouts/layout_builder.h"
#include "qt/layouts/layouts.h"

namespace zrv {

void layOutEnterance_Door(LayoutBuilder &b)
{
    // clang-format off
    b.atLeast(72, 0);
    b.fill(b.column({
        b.heading(u"LabelFormHeader"),
        b.note(u"Label1"),
        b.remark(u"Label2"),
        b.inside(u"FramKey", b.column({
            b.fields({{u"lblUsernamee", u"txtUsernamee"}, {u"lblPasswordd", u"txtPasswordd"}}),
            b.buttons({u"cmdKeyOk", u"cmdKeyReturn"}),
        })),
        b.inside(u"framAll", b.column({
            b.inside(u"FramData", b.values({
                {u"lblName", u"lbDName"}, {u"lblFamily", u"lbDFamily"}, {u"lblAccess_Level", u"lbDAccess_Level"},
            })),
            b.buttons({u"cmdDataOk", u"cmdDataReturn"}),
        })),
        b.room(),
        b.buttons({u"cmdExit"}),
        b.remark(u"lblResolotion"),
        b.remark(u"Label3"),
    }));
    // clang-format on
}

} // namespace zrv
