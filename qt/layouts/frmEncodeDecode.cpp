// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/layouts/layout_builder.h"
#include "qt/layouts/layouts.h"

namespace zrv {

void layOutEncodeDecode(LayoutBuilder &b)
{
    b.atLeast(70, 0);
    b.fill(b.column({
        b.line({b.wide(u"txtEncode"), u"cmdEncode"}),
        b.line({b.wide(u"txtDecode"), u"cmdDecode"}),
        b.value(u"lblResult"),
        b.room(),
    }));
}

} // namespace zrv
