// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/layouts/layout_builder.h"
#include "qt/layouts/layouts.h"

namespace zrv {

void layOutCreatTextFiles(LayoutBuilder &b)
{
    // clang-format off
    b.atLeast(95, 0);
    b.fill(b.column({
        b.inside(u"framKey", b.fields({{u"lblTaxYear", u"txtTaxYear"}, {u"lblTaxMonth", u"dcbTaxMonth"}}, 2)),
        b.values({{u"lblHogogPath", u"LabelHogogPath"}, {u"lblKholPath", u"LabelKholPath"},
                  {u"lblHogogRecordsCount", u"LabelHogogRecordsCount"}}),
        b.inside(u"PPICWaitingMessage", b.column({b.note(u"LabelWaitingMessage")})),
        b.room(),
        b.table(2, {b.tile(u"cmdCreatTextFiles"), b.tile(u"cmdShowFiles"),
                    b.tile(u"cmdTextFilesConfig"), b.tile(u"cmdExit")}),
    }));
    // clang-format on
}

} // namespace zrv
