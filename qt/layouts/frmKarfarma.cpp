// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/layouts/layout_builder.h"
#include "qt/layouts/layouts.h"

namespace zrv {

void layOutKarfarma(LayoutBuilder &b)
{
    // clang-format off
    b.atLeast(122, 0);
    b.fill(b.column({
        b.wide(b.around(u"framAll", b.column({
            b.inside(u"framKey", b.line({
                b.fields({{u"lblTFN", u"txtTFN"}, {u"lblCodeShobe", u"txtCodeShobe"}}, 2),
                b.buttons({u"cmdKeyOk", u"cmdKeyReturn"}),
            })),
            b.inside(u"framData", b.column({
                b.fields({
                    {u"lblMMoadiType", b.line({u"dcbMMoadiType", u"dcbSMoadiType"})}, {u"lblMohasebeType", u"dcbMohasebeType"},
                    {u"llblLTDescription", u"txtName"}, {u"lblFamily", u"txtFamily"},
                    {u"lblShobeName", u"txtShobeName"}, {u"lblEdareName", u"txtEdareName"},
                }, 2),
                b.fields({{u"LabelTIN_CodeMelli", u"txtTin"}, {u"lblPostCode", u"txtPostCode"},
                          {u"lblCodeHozeh", u"txtCodeHozeh"}, {u"lblTelNo", u"txtTelNo"}}, 4),
                b.fields({{u"lblAddress", u"txtAddress"}}),
                b.line({
                    b.inside(u"fraEmza1", b.fields({{u"lblMelliCode1", u"txtMelliCode1"}, {u"lblEmzaName1", u"txtEmzaName1"},
                                              {u"lblEmzaFamily1", u"txtEmzaFamily1"}, {u"lblEmzaSemat1", u"txtEmzaSemat1"}}, 2)),
                    b.inside(u"fraEmza2", b.fields({{u"lblMelliCode2", u"txtMelliCode2"}, {u"lblEmzaName2", u"txtEmzaName2"},
                                              {u"lblEmzaFamily2", u"txtEmzaFamily2"}, {u"lblEmzaSemat2", u"txtEmzaSemat2"}}, 2)),
                }),
                b.buttons({u"cmdDataOk", u"cmdDataReturn"}),
            })),
            b.wide(b.browse(u"dbgLetter_Topic", {u"chkAutoSearch"})),
            b.around(u"picButtons", b.buttons({u"cmdDelete", u"cmdHelp", u"cmdExit"})),
        }))),
        b.wide(b.inside(u"frmHelp", b.column({b.wide(u"txtHelpMessage"), b.buttons({u"cmdExitHelp"})}))),
    }));
    // clang-format on
}

} // namespace zrv
