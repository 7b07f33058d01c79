// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/layouts/layout_builder.h"
#include "qt/layouts/layouts.h"

namespace zrv {

void layOutUpgradeZRVtbKarkonan(LayoutBuilder &b)
{
    // clang-format off
    b.atLeast(115, 26);
    b.fill(b.column({
        u"lstJobs",
        b.heading(u"lblForm"),
        b.remark(u"lblMessage"),
        b.wide(u"dbgLetter_Topic", 2),
        b.line({u"LabelGridCountCaption", u"LabelGridCount", b.room()}),
        b.tile(u"cmdDeleteAndUpdate"),
        b.tile(u"cmdOnlyDelete"),
        b.buttons({u"cmdExit"}),
    }));
    // clang-format on
}

} // namespace zrv
