// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/layouts/layout_builder.h"
#include "qt/layouts/layouts.h"

namespace zrv {

void layOutMakeShobe(LayoutBuilder &b)
{
    // clang-format off
    b.atLeast(80, 0);
    b.fill(b.column({
        b.fields({{u"lblMojodShobe", u"txtMojodShobe"}, {u"lblNeededShoeb", u"txtNeededShoeb"}}),
        b.line({b.wide(b.paragraph(u"lblTotalCountCaption", 1)), b.value(u"lblTotalCount")}),
        b.inside(u"PPICWaitingMessage", b.column({b.paragraph(u"LabelWaitingMessage", 2)})),
        b.room(),
        b.buttons({u"cmdUpgrades", u"cmdExit"}),
    }));
    // clang-format on
}

} // namespace zrv
