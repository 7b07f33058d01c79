// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/layouts/layout_builder.h"
#include "qt/layouts/layouts.h"

namespace zrv {

void layOutKholList(LayoutBuilder &b)
{
    // clang-format off
    b.atLeast(124, 0);
    b.fill(b.column({b.wide(b.around(u"framAll", b.column({
        b.inside(u"framKey", b.line({
            u"lblTaxYear", b.narrow(u"txtTaxYear", 6), u"lblTaxMonth", b.narrow(u"dcbTaxMonth", 13),
            u"lblKholListType", b.wide(b.noLess(u"dcbKholListType", 12)), u"lblTFN", b.narrow(u"TextTFN", 14),
            b.small(u"cmdKeyOk", u"cmdKeyReturn"), b.small(u"cmdKeyReturn"),
        })),
        b.inside(u"framData", b.column({
            b.line({
                b.wide(b.figures({u"lblJari", u"lblGabl"}, {
                    {u"lblSumHogog",   {u"txtJariSumHogog",   u"txtGablSumHogog"}},
                    {u"lblSumMashmol", {u"txtJariSumMashmol", u"txtGablSumMashmol"}},
                    {u"lblTax",        {u"txtJariTax",        u"txtGablTax"}},
                    {u"lblJarimeDo",   {u"txtJariJarimeDo",   u"txtGablJarimeDo"}},
                    {u"lblJarimeBist", {u"txtJariJarimeBist", u"txtGablJarimeBist"}},
                    {u"lblBedehiTax",  {u"txtJariBedehiTax",  u"txtGablBedehiTax"}},
                }), 3),
                b.wide(b.column({
                    b.fields({{u"lblKarkonanNo", u"txtKarkonanNo"}, {u"lblKharejiNo", u"txtKharejiNo"}}),
                    u"lblNahveyePardakht", u"dcbNahveyePardakht",
                    b.fields({{u"lblMablagPardakhti", u"txtMablagPardakhti"}}),
                    u"lblRoznameDate", b.line({b.around(u"picRoznameDate", b.date(u"txtRozname")), b.room()}),
                }), 1),
            }),
            b.line({
                b.wide(b.inside(u"framCheque", b.fields({
                    {u"lblChequeSeriNo", b.narrow(u"txtChequeSeriNo", 12)},
                    {u"lblBankName", b.line({b.wide(u"cmbBankName"), b.small(u"cmdSearchBankName")})},
                    {u"lblHesabNo", b.narrow(u"txtHesabNo", 14)},
                    {u"lblChequeDate", b.around(u"picChequeDate", b.date(u"txtCheque"))},
                    {u"lblShobeName", u"txtShobeName"},
                }, 3))),
                b.column({b.room(), b.small(u"cmdDataOk", u"cmdDataReturn"), b.small(u"cmdDataReturn")}),
            }),
        })),
        b.wide(b.browse(u"dbgLetter_Topic", {u"chkAutoSearch"})),
        b.around(u"picButtons", b.buttons({u"cmdPrintKhol", u"cmdDelete", u"cmdExit"})),
    })))}));
    // clang-format on
}

} // namespace zrv
