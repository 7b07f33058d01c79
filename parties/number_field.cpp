// SPDX-License-Identifier: GPL-3.0-or-later
#include "parties/number_field.h"

#include "core/basic/val.h"

namespace zrv {

void normalizeNumber(Edit &field)
{
    qsizetype digits = 0;
    const QString text = field.text().trimmed();
    while (digits < text.size() && text.at(digits) >= u'0' && text.at(digits) <= u'9')
        ++digits;
    const double value = Val(QStringView(text).first(digits));
    field.setText(value > 0 ? numberText(value) : QString());
}

} // namespace zrv
