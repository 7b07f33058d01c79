// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/layouts/layout_builder.h"
#include "qt/layouts/layouts.h"

namespace zrv {

void layOutKarkonan(LayoutBuilder &b)
{
    // clang-format off
    b.atLeast(120, 0);
    b.fill(b.column({b.wide(b.around(u"framAll", b.column({
        b.inside(u"framKey", b.column({
            b.line({u"lblTabeiat", u"optIrani", u"optKhareji", b.fields({{u"lblMelliCode", u"txtMelliCode"}}),
                    b.buttons({u"cmdKeyOk", u"cmdKeyReturn"})}),
            b.remark(u"lblKeyNote"),
        })),
        b.inside(u"framData", b.column({
            b.fields({
                {u"lblName", b.searching(u"txtName")}, {u"lblFamily", b.searching(u"txtFamily")}, {u"lblFatherName", u"txtFatherName"},
                {u"lblPostCode", u"txtPostCode"}, {u"lblSemat", u"dcbSemat"}, {u"lblSematSayer", u"txtSematSayer"},
                {u"lblRasteh", u"dcbRasteh"}, {u"lblSabege", u"txtSabege"}, {u"lblMadrak", u"dcbMadrak"},
                {u"lblEstekhdamType", u"dcbEstekhdamType"}, {u"lblBimehType", u"dcbBimehType"}, {u"lblBimehSayer", u"txtBimehSayer"},
                {u"LabelBimeNO", u"txtInsuNo"}, {u"lblMelliatCode", u"dcbMelliatCode"}, {u"lblKeshvarCode", u"dcbKeshvarCode"},
            }, 3),
            b.fields({{u"lblHomeAddress", u"txtHomeAddress"}, {u"lblShakhsMoafCode", u"dcbShakhsMoafCode"}}, 2),
            b.line({u"lblBeginDate", b.date(u"txtBeginDate"), u"lblEndDate", b.date(u"txtEndDate"), b.room(),
                    b.buttons({u"cmdDataOk", u"cmdDataReturn"})}),
            b.line({u"txtRastehSayer", u"txtMoafiatTozih"}),
        })),
        b.wide(b.browse(u"dbgLetter_Topic", {u"chkAutoSearch"})),
        b.around(u"picButtons", b.buttons({u"cmdDelete", u"cmdExit"})),
    })))}));
    // clang-format on
}

} // namespace zrv
