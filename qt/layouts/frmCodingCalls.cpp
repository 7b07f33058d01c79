// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/layouts/layout_builder.h"
#include "qt/layouts/layouts.h"

namespace zrv {

void layOutCodingCalls(LayoutBuilder &b)
{
    // clang-format off
    b.atLeast(90, 0);
    b.fill(b.column({
        b.heading(u"lblForm"),
        b.inside(u"framKey", b.line({u"lblMCode", b.wide(u"dcbMCode"), u"cmdOk"})),
        b.inside(u"framFixed", b.table(2, {b.tile(u"cmdBank"), b.tile(u"cmdEstekhdam"), b.tile(u"cmdMadrak"),
                                           b.tile(u"cmdRasteh"), b.tile(u"Command1")})),
        b.inside(u"framOwn", b.table(2, {b.tile(u"cmdSemat"), b.tile(u"cmdKeshvar"), b.tile(u"cmdMoafiat")})),
        b.remark(u"lblNote"),
        b.room(),
        b.buttons({u"cmdExit"}),
    }));
    // clang-format on
}

} // namespace zrv
