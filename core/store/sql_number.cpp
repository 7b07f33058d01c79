// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/store/sql_number.h"

#include <QByteArray>

namespace zrv {

namespace {

bool isBlank(char c)
{
    return c == ' ' || c == '\t' || c == '\n' || c == '\r';
}

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

/// A number in its pieces; the fraction is without its closing zeros.
struct Decimal {
    bool negative = false;
    QByteArray whole;
    QByteArray fraction;
};

Decimal decimalAtStart(std::string_view text)
{
    Decimal decimal;
    bool started = false;
    bool inFraction = false;
    for (const char c : text) {
        if (isBlank(c))
            continue;
        if (!started && (c == '-' || c == '+'))
            decimal.negative = c == '-';
        else if (isDigit(c))
            (inFraction ? decimal.fraction : decimal.whole).append(c);
        else if (c == '.' && !inFraction)
            inFraction = true;
        else
            break;
        started = true;
    }
    while (decimal.fraction.endsWith('0'))
        decimal.fraction.chop(1);
    return decimal;
}

} // namespace

SqlNumber leadingNumber(std::string_view utf8)
{
    // The common case, an amount of plain digits, needs no pieces.
    constexpr std::size_t AlwaysFits = 18;
    qint64 number = 0;
    std::size_t at = 0;
    while (at < utf8.size() && at < AlwaysFits && isDigit(utf8[at]))
        number = number * 10 + (utf8[at++] - '0');
    if (at == utf8.size())
        return number;

    const Decimal decimal = decimalAtStart(utf8);
    QByteArray digits(decimal.negative ? "-" : "");
    digits.append(decimal.whole.isEmpty() ? QByteArrayLiteral("0") : decimal.whole);
    bool fits = false;
    const qint64 whole = digits.toLongLong(&fits);
    if (fits && decimal.fraction.isEmpty())
        return whole;
    return digits.append('.').append(decimal.fraction).append('0').toDouble();
}

} // namespace zrv
