// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// Numbers in the pictures that screens, files and reports show them in: "0" for plain digits, "#,##0" for
// amounts, "00" and "0000" for parts of dates, "####/##/##" for a stored date.

#include <QString>
#include <QStringView>

#include <concepts>

namespace zrv {

/// The whole number in a picture. In it "0" is a place that shows a zero when the number has no digit for it,
/// "#" a place that then stays empty; a comma groups the digits by threes; any other letter is itself.
/// Digits beyond the places stand before the first. A minus sign goes in front, unless a second picture behind a
/// semicolon shows negative numbers in its own way, as "#,##0;(#,##0)" does. There is never an exponent.
[[nodiscard]] QString Format(qint64 value, QStringView picture);

/// The number rounded to a whole one, halves away from zero.
[[nodiscard]] QString Format(double value, QStringView picture);

/// The number that the text is by IsNumeric(), commas and all; digits alone are taken as they are, at any
/// length. Any other text comes back unchanged, so the empty text stays empty in every picture.
[[nodiscard]] QString Format(QStringView text, QStringView picture);

template <std::integral Whole>
[[nodiscard]] QString Format(Whole value, QStringView picture)
{
    return Format(static_cast<qint64>(value), picture);
}

} // namespace zrv
