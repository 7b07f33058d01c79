// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>

#include <string_view>

namespace zrv::storetool {

/// The amount that a stored text means: its digits, whatever separates them, as far as 18 go; 0 where there is none.
/// What isn't an amount at all is reported by the column's form, so nothing is refused here.
[[nodiscard]] constexpr qint64 amountOf(std::string_view value)
{
    qint64 amount = 0;
    int digits = 0;
    for (const char letter : value) {
        if (letter == ' ' || letter == ',')
            continue;
        if (letter < '0' || letter > '9' || ++digits > 18)
            break;
        amount = amount * 10 + (letter - '0');
    }
    return amount;
}

} // namespace zrv::storetool
