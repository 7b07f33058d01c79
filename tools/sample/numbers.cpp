// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/sample/numbers.h"

#include "core/public/check_digit.h"
#include "tools/sample/dice.h"

#include <QString>

namespace zrv::sample {

namespace {

constexpr quint64 LeastNine = 100'000'000; ///< the least number of nine digits
constexpr quint64 NinesCount = 900'000'000;

/// True for 111111111, 222222222 and so on: a code of ten equal digits is none.
bool hasEqualDigits(quint64 nine)
{
    constexpr quint64 Ones = 111'111'111;
    return nine % Ones == 0;
}

std::string padded(int number, std::size_t width)
{
    std::string text = std::to_string(number);
    if (text.size() < width)
        text.insert(0, width - text.size(), '0');
    return text;
}

} // namespace

std::string nationalCode(const Plan &plan, int number)
{
    // Where the order falls on a number that can't be used, it is followed from there: still no number comes twice.
    quint64 place = quint64(number);
    do {
        place = shuffled(place, NinesCount, plan.rng);
    } while (hasEqualDigits(LeastNine + place));
    std::string code = std::to_string(LeastNine + place);
    code += char('0' + nationalCheckDigit(QString::fromLatin1(code.data(), qsizetype(code.size()))));
    return code;
}

std::string passportNumber(const Plan &plan, int number)
{
    constexpr quint64 Least = 10'000'000;
    constexpr quint64 Count = 90'000'000;
    Dice dice(plan.rng, "passport", quint64(number));
    std::string text(1, char('A' + dice.below(26)));
    return text += std::to_string(Least + shuffled(quint64(number), Count, plan.rng));
}

std::string digits(Dice &dice, int count, int firstLow, int firstHigh)
{
    std::string text(1, char('0' + dice.between(firstLow, firstHigh)));
    while (text.size() < std::size_t(count))
        text += char('0' + dice.below(10));
    return text;
}

std::string dateText(int year, int month, int day)
{
    return padded(year, 4) + padded(month, 2) + padded(day, 2);
}

std::string monthText(int month)
{
    return padded(month, 2);
}

int dayOf(Dice &dice, int month)
{
    return dice.between(1, month <= 6 ? 31 : month < 12 ? 30 : 29);
}

} // namespace zrv::sample
