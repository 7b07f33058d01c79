// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/layouts/layout_builder.h"
#include "qt/layouts/layouts.h"

namespace zrv {

void layOutUpgradeZRVtbKarkonan(LayoutBuilder &b)
{
    // clang-format off
    b.atLeast(115, 0);
    b.fill(b.column({
        b.rows(u"lstJobs", 5),
        b.heading(u"lblForm"),
        b.paragraph(u"lblMessage", 3),
        b.wide(u"dbgLetter_Topic"),
        b.line({u"LabelGridCountCaption", u"LabelGridCount", b.room()}),
        u"cmdDeleteAndUpdate",
        u"cmdOnlyDelete",
        b.buttons({u"cmdExit"}),
    }));
    // clang-format on
}

} // namespace zrv
