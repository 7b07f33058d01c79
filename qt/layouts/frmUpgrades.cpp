// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/layouts/layout_builder.h"
#include "qt/layouts/layouts.h"

namespace zrv {

void layOutUpgrades(LayoutBuilder &b)
{
    // clang-format off
    b.atLeast(100, 20);
    b.fill(b.column({
        b.panel(b.column({
            u"optUpgrades(0)",
            u"optUpgrades(1)",
            b.line({b.noLess(u"optUpgrades(2)", 31), b.wide(b.value(u"lblOldTFN")), u"lblNewTFN", b.wide(u"txtNewTFN")}),
            b.line({b.noLess(u"optUpgrades(3)", 31), b.wide(b.value(u"lblOldCodeShobe")), u"lblNewCodeShobe", b.wide(u"txtNewCodeShobe")}),
            u"optUpgrades(4)",
        })),
        b.wide(u"txtLog"),
        b.buttons({u"cmdUpgrades", u"cmdExit"}),
    }));
    // clang-format on
}

} // namespace zrv
