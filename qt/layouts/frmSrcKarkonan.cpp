// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/layouts/layout_builder.h"
#include "qt/layouts/layouts.h"

namespace zrv {

void layOutSrcKarkonan(LayoutBuilder &b)
{
    // clang-format off
    b.atLeast(118, 22);
    b.fill(b.column({b.wide(b.around(u"framAll", b.column({
        b.heading(u"lblForm"),
        b.inside(u"framSearch", b.column({
            b.fields({
                {u"lblMelliCode", b.searching(u"txtMelliCode")}, {u"lblName", b.searching(u"txtName")},
                {u"lblFamily", b.searching(u"txtFamily")}, {u"lblFatherName", b.searching(u"txtFatherName")},
                {u"lblPostCode", u"txtPostCode"}, {u"lblInsuNo", u"txtInsuNo"},
            }, 3),
            b.line({b.inside(u"fraSettings", b.line({u"optExactSearch", u"optLikeSearch", u"chkAutoSearch"})), b.room(),
                    b.buttons({u"cmdComboSearch"})}),
        })),
        b.wide(b.browse(u"dbgLetter_Topic")),
        b.around(u"picButtons", b.buttons({u"cmdExit"})),
    })))}));
    // clang-format on
}

} // namespace zrv
