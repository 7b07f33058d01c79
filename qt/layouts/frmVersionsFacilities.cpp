// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/layouts/layout_builder.h"
#include "qt/layouts/layouts.h"

namespace zrv {

void layOutVersionsFacilities(LayoutBuilder &b)
{
    b.atLeast(100, 24);
    b.fill(b.column({
        b.fields({{u"lblVersionsList", u"cmbVersionsList"}}),
        b.wide(u"txtLog"),
        b.buttons({u"cmdExit"}),
    }));
}

} // namespace zrv
