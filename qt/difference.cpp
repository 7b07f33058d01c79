// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/difference.h"

#include <QString>

#include <algorithm>

namespace zrv {

Difference difference(QStringView before, QStringView after)
{
    const qsizetype shorter = std::min(before.size(), after.size());
    qsizetype start = 0;
    while (start < shorter && before[start] == after[start])
        ++start;
    if (start > 0 && before[start - 1].isHighSurrogate())
        --start;
    qsizetype tail = 0;
    while (tail < shorter - start && before[before.size() - 1 - tail] == after[after.size() - 1 - tail])
        ++tail;
    if (tail > 0 && before[before.size() - tail].isLowSurrogate())
        --tail;
    return {start, before.size() - start - tail, after.mid(start, after.size() - start - tail).toString()};
}

} // namespace zrv
