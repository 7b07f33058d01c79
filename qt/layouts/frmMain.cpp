// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/layouts/layout_builder.h"
#include "qt/layouts/layouts.h"

namespace zrv {

void layOutMain(LayoutBuilder &b)
{
    // clang-format off
    b.drawGround();
    b.atLeast(110, 20);
    b.fill(b.middle(b.column({
        b.room(),
        // Who pays and who is paid; the month's lists; the files for the tax office; upkeep.
        b.panel(b.table(2, {b.tile(u"cmdKarfarma"), b.tile(u"cmdKarkonan")})),
        b.panel(b.table(2, {b.tile(u"cmdHogog"), b.tile(u"cmdKholList"),
                            b.tile(u"cmdSrcMoadi"), b.tile(u"cmdReports")})),
        b.panel(b.table(2, {b.tile(u"cmdCreatTextFiles"), b.tile(u"cmdReadTextFiles")})),
        b.panel(b.table(3, {b.tile(u"cmdUsres"), b.tile(u"cmdCodin_Semat"), b.tile(u"cmdExit")})),
        b.room(),
    })));
    // clang-format on
}

} // namespace zrv
