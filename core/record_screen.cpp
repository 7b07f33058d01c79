// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/record_screen.h"

#include "core/containers.h"
#include "core/mdlPublic.h"

namespace zrv {

using namespace Qt::Literals::StringLiterals;

void RecordScreen::Form_KeyPress(int &keyAscii)
{
    if (activeControl())
        keyAscii = FilterKey(activeControl()->tag(), keyAscii);
    if (keyAscii == '\r') {
        keyAscii = 0;
        moveFocus(1);
    }
}

bool RecordScreen::requiredAreFilled(QStringView container)
{
    const RequiredFields fields = CheckRequired(container, *this);
    if (fields.allFilled())
        return true;
    messageBox(box::Refusal, u" اخطار  "_s, u"  مقداردهي مواردي که با رنگ زمينه متمايز گرديده اند الزامي ميباشد "_s);
    fields.firstEmpty->setFocus();
    return false;
}

} // namespace zrv
