// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/layouts/layout_builder.h"
#include "qt/layouts/layouts.h"

namespace zrv {

void layOutUpgradeDatabaseStructureAndUpdateUserRecords(LayoutBuilder &b)
{
    b.atLeast(115, 24);
    b.fill(b.column({
        b.tile(u"cmdUpgradeStructure"),
        u"chkDelete",
        b.inside(u"PPICWaitingMessage", b.column({b.paragraph(u"LabelWaitingMessage", 2)})),
        b.wide(u"txtLog"),
        b.buttons({u"cmdExit"}),
    }));
}

} // namespace zrv
