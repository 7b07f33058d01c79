// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/layouts/layout_builder.h"
#include "qt/layouts/layouts.h"

#include <QLayout>

namespace zrv {

namespace {

void layOutPages(LayoutBuilder &b)
{
    // clang-format off
    b.inside(u"framKholContents", b.column({b.paragraph(u"lblKhol", 1), b.wide(u"dbgKhol")}));
    b.inside(u"framHogogContents", b.column({b.paragraph(u"lblHogog", 1), b.wide(b.browse(u"dbgHogog"))}));
    b.inside(u"framKarfarma", b.column({
        b.paragraph(u"lblKarfarma", 1),
        b.values({{u"lblVersion", u"LabelVersion"}}),
        b.wide(u"dbgKarfarma"),
    }));
    b.inside(u"framHogogStructure", b.column({b.wide(u"txtHogogStructure")}));
    b.inside(u"framKholStructure", b.column({b.wide(u"txtKholStructure")}));
    // clang-format on
}

QLayout *salaryFile(LayoutBuilder &b)
{
    // clang-format off
    QLayout *const lines = b.column({
        b.line({u"cmdHogogShow", u"cmdCheckHogogStructure", b.room()}),
        b.line({u"chkTowFirstLineAreChecked", b.room()}),
        b.line({u"chkDisplayOnlyHogogErrors", b.room()}),
        b.line({u"chkCreatHogogErrorLogFile", b.wide(b.value(u"LabelHogogTextErrorLogPath")), u"cmdShowErrorLogFile"}),
    });
    // clang-format on
    // Close to their frame, so that a display of 768 lines shows the screen whole.
    lines->setContentsMargins(9, 3, 9, 3);
    return lines;
}

} // namespace

void layOutReadTextFiles(LayoutBuilder &b)
{
    layOutPages(b);
    // clang-format off
    b.atLeast(130, 0);
    b.fill(b.column({
        b.inside(u"framFiles", b.fields({
            {u"lblHogogPath", b.line({b.wide(b.value(u"LabelHogogPath")), b.small(u"cmdShowHogogTextFilePath")})},
            {u"lblKholPath", b.line({b.wide(b.value(u"LabelKholPath")), b.small(u"cmdShowKholTextFilePath")})},
        })),
        b.inside(u"framHogog", salaryFile(b)),
        b.inside(u"framKhol", b.line({u"cmdKholShow", u"cmdCheckKholStructure", u"chkDisplayOnlyKholErrors", b.room()})),
        b.wide(u"SSTab1"),
        b.inside(u"PPICWaitingMessage", b.line({b.wide(b.note(u"LabelWaitingMessage")), u"LabelWaitingShare", u"cmdCancel"})),
        b.buttons({u"cmdPrint", u"cmdExit"}),
    }));
    // clang-format on
}

} // namespace zrv
