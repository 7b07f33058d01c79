// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/layouts/layout_builder.h"
#include "qt/layouts/layouts.h"

namespace zrv {

void layOutTransferData(LayoutBuilder &b)
{
    // clang-format off
    b.atLeast(95, 0);
    b.fill(b.column({
        b.inside(u"framKey", b.fields({{u"lblSourceYear", u"dcbSourceYear"}, {u"lblSourceMonth", u"dcbSourceMonth"},
                                       {u"lblDestinationYear", u"txtDestinationYear"},
                                       {u"lblDestinationMonth", u"dcbDestinationMonth"}}, 2)),
        b.tile(u"cmdDisplayInformation"),
        b.inside(u"framData", b.figures({u"lblSource", u"lblTarget"}, {
            {u"lblTedadKarkonan", {u"txtSourceTedadKarkonan", u"txtTargetTedadKarkonan"}},
            {u"lblSumNaghdi", {u"txtSourceSumNaghdi", u"txtTargetSumNaghdi"}},
            {u"lblMoaf", {u"txtSourceMoaf", u"txtTargetMoaf"}},
            {u"lblSumTax", {u"txtSourceSumTax", u"txtTargetSumTax"}},
        })),
        b.inside(u"PPICWaitingMessage", b.column({b.note(u"LabelWaitingMessage")})),
        b.room(),
        b.line({b.wide(b.tile(u"cmdTransferData")), b.tile(u"cmdExit")}),
    }));
    // clang-format on
}

} // namespace zrv
