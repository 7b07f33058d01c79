// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/store/sql_number.h"

#include "core/basic/text.h"
#include "core/basic/val.h"

#include <cmath>

namespace zrv {

SqlNumber leadingNumber(std::string_view utf8)
{
    // The common case, an amount of plain digits, is read in place.
    constexpr std::size_t AlwaysFits = 18;
    qint64 number = 0;
    std::size_t at = 0;
    while (at < utf8.size() && at < AlwaysFits && isAsciiDigit(QLatin1Char(utf8[at])))
        number = number * 10 + (utf8[at++] - '0');
    if (at == utf8.size())
        return number;

    constexpr double BeyondWhole = 9223372036854775808.0; // 2 to the 63rd
    const QString text = QString::fromUtf8(utf8.data(), qsizetype(utf8.size()));
    const double value = Val(text);
    if (std::trunc(value) == value && std::abs(value) < BeyondWhole)
        return wholeVal(text);
    return value;
}

} // namespace zrv
