// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/layouts/layout_builder.h"
#include "qt/layouts/layouts.h"

namespace zrv {

void layOutAbout(LayoutBuilder &b)
{
    b.atLeast(60, 0);
    b.fill(b.column({
        b.heading(u"LabelFormHeader"),
        b.wide(u"picLogo"),
        b.note(u"lblOwner"),
        b.note(u"lblVersion"),
        b.buttons({u"cmdExit"}),
    }));
}

} // namespace zrv
