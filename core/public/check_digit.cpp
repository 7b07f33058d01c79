// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/public/check_digit.h"

#include "core/basic/text.h"

#include <algorithm>

namespace zrv {

int nationalCheckDigit(QStringView nineDigits)
{
    if (nineDigits.size() != 9)
        return -1;
    int sum = 0;
    int weight = 10;
    bool areDigits = true;
    for (const QChar digit : nineDigits) {
        areDigits = areDigits && isAsciiDigit(digit);
        sum += (digit.unicode() - u'0') * weight--;
    }
    if (!areDigits)
        return -1;
    const int remainder = sum % 11;
    return remainder < 2 ? remainder : 11 - remainder;
}

bool isValidNationalCode(QStringView code)
{
    if (code.size() != 10 || !isAsciiDigit(code.back()))
        return false;
    const bool allTheSame = std::all_of(code.begin(), code.end(), [&](QChar digit) { return digit == code.front(); });
    return !allTheSame && nationalCheckDigit(code.first(9)) == code.back().unicode() - u'0';
}

} // namespace zrv
