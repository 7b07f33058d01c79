// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/layouts/layout_builder.h"
#include "qt/layouts/layouts.h"

namespace zrv {

void layOutCoding(LayoutBuilder &b)
{
    // clang-format off
    b.atLeast(100, 22);
    b.fill(b.column({b.wide(b.around(u"framAll", b.column({
        b.heading(u"lblForm"),
        b.inside(u"framKey", b.line({b.fields({{u"lblSCode", u"txtSCode"}}), b.buttons({u"cmdKeyOk", u"cmdKeyReturn"}),
                                     u"txtMCode", u"txtMDesc"})),
        b.inside(u"framData", b.line({b.fields({{u"lblSDesc", u"txtSDesc"}}),
                                      b.buttons({u"cmdDataOk", u"cmdDataReturn"})})),
        b.wide(b.browse(u"dbgBrowser")),
        b.around(u"picButtons", b.buttons({u"cmdContinue", u"cmdDelete", u"cmdExit"})),
    })))}));
    // clang-format on
}

} // namespace zrv
