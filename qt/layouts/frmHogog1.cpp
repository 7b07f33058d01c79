// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/layouts/layout_builder.h"
#include "qt/layouts/layouts.h"

#include <QLayout>

namespace zrv {

namespace {

constexpr int CaptionLetters = 36;

/// Cells close to each other: on the narrowest display of one line, a payee's name takes what they leave.
QLayout *closeLine(LayoutBuilder &b, const std::vector<LayoutBuilder::Cell> &cells)
{
    QLayout *const line = b.line(cells);
    line->setContentsMargins(3, 9, 3, 9);
    line->setSpacing(4);
    return line;
}

QLayout *keys(LayoutBuilder &b)
{
    // clang-format off
    return b.line({
        b.inside(u"framKey", closeLine(b, {
            u"lblTaxYear", b.narrow(u"txtTaxYear", 5), u"lblTaxMonth", b.narrow(u"dcbTaxMonth", 12),
            b.narrow(u"cmdKeyOk", 7), b.narrow(u"cmdKeyReturn", 9),
        })),
        b.wide(b.inside(u"framKey1", closeLine(b, {
            u"lblMelliCode", b.wide(b.noLess(u"dcbMelliCode", 16)), b.narrow(u"textMelliCode", 11),
            b.narrow(u"cmdSearchMoadi", 3), b.narrow(u"cmdKeyOk1", 7), b.narrow(u"cmdKeyReturn1", 9),
        }))),
    });
    // clang-format on
}

/// What was paid in cash, and below it what is worked out of everything.
QLayout *paidAndTaxed(LayoutBuilder &b)
{
    // clang-format off
    return b.column({
        b.inside(u"framNagdy", b.amounts({
            {u"lblNJariHogog", u"txtNJariHogog"}, {u"lblJariEzafeKar", u"txtJariEzafeKar"},
            {u"lblNJariSayerPardakhtiha", u"txtNJariSayerPardakhtiha"}, {u"lblNTotalDaramad", u"txtNTotalDaramad"},
            {u"lblNJariMoafiate91", u"txtNJariMoafiate91"}, {u"lblNDaramadeMashmol", u"txtNDaramadeMashmol"},
        }, CaptionLetters)),
        b.inside(u"framMohasebeh", b.amounts({
            {u"lblNGPTotalDaramadeMashmol", u"txtNGPTotalDaramadeMashmol"}, {u"lblSayereMoafiatha", u"txtSayereMoafiatha"},
            {u"lblFinalDaramadeMashmol", u"txtFinalDaramadeMashmol"}, {u"lblJariTax", u"txtJariTax"},
            {u"lblFinalTaxCaption", u"txtFinalTax"},
        }, CaptionLetters)),
    });
    // clang-format on
}

QLayout *givenAndSaved(LayoutBuilder &b)
{
    // clang-format off
    return b.column({
        b.inside(u"framGNagdy", b.amounts({
            {u"lblGJariHogog", u"txtGJariHogog"}, {u"lblMaskanStatus", u"dcbMaskanStatus"},
            {u"lblMaskanMablagh", u"txtMaskanMablagh"}, {u"lblOtomobilStatus", u"dcbOtomobilStatus"},
            {u"lblOtomobilMablagh", u"txtOtomobilMablagh"}, {u"lblGTotalDaramad", u"txtGTotalDaramad"},
            {u"lblGDaramadeMashmol", u"txtGDaramadeMashmol"},
        }, CaptionLetters)),
        b.inside(u"framPadash", b.amounts({
            {u"lblPJariHogog", u"txtPJariHogog"}, {u"lblPDaramadeMashmol", u"txtPDaramadeMashmol"},
        }, CaptionLetters)),
        b.room(),
        b.words(u"lblFinalTax", CaptionLetters),
        u"lbDVaziateMoafiat",
        b.buttons({u"cmdDataOk", u"cmdDataReturn"}),
    });
    // clang-format on
}

} // namespace

void layOutHogog1(LayoutBuilder &b)
{
    b.atLeast(145, 0);
    QLayout *const amounts = b.line({b.wide(paidAndTaxed(b)), b.wide(givenAndSaved(b))});
    amounts->setContentsMargins(6, 6, 6, 6);
    // clang-format off
    b.fill(b.column({b.wide(b.around(u"framAll", b.column({
        keys(b),
        b.inside(u"framData", amounts),
        b.wide(b.browse(u"dbgLetter_Topic")),
        b.around(u"picButtons", b.line({u"cmdPrintHogh", u"cmdDelete", u"cmdExit", b.room()})),
    }))), b.inside(u"PPICWaitingMessage", b.column({b.note(u"LabelWaitingMessage")}))}));
    // clang-format on
}

} // namespace zrv
