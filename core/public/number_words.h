// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// Amounts in Persian words, as the final tax on the salary list and the amount on the printed summary show them.

#include <QString>
#include <QStringView>

#include <concepts>

namespace zrv {

/// 0 to 999 in words; 0 gives the empty text. Raises SubscriptOutOfRange for any other amount.
[[nodiscard]] QString ThreeDigitWords(qint64 amount);

/// The amount in words, a blank and the unit. Words reach to 999,999,999,999; a greater amount gives 27
/// asterisks, a negative one no words, so that only blank and unit remain. Millions and milliards bring a blank
/// of their own, hence two blanks behind them.
[[nodiscard]] QString NumberToWords(qint64 amount, QStringView unit);

/// The same for a value that need not be whole: between 0 and 1 it has no words either, above that its
/// fraction is dropped.
[[nodiscard]] QString NumberToWords(double amount, QStringView unit);

template <std::integral Whole>
[[nodiscard]] QString NumberToWords(Whole amount, QStringView unit)
{
    return NumberToWords(static_cast<qint64>(amount), unit);
}

} // namespace zrv
