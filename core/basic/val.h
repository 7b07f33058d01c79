// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// Numbers out of texts and texts out of numbers, without regard to any locale. Every column of the store and
// every field of a screen or a file is a text, so all comparing and adding begins and ends here.

#include <QString>
#include <QStringView>

namespace zrv {

/// The number that the text begins with, 0 when it begins with none.
/// Read are an optional sign, digits 0 to 9, one decimal point and an exponent (E or D); blanks, tabs and line
/// feeds are skipped wherever they stand, so "1 200" is 1200. Reading ends at the first other character, a
/// thousands comma included. Prefixes of other number systems (&H, &O) are no numbers here.
/// A number beyond the range of double gives the largest double of its sign: it never fails.
[[nodiscard]] double Val(QStringView text);

/// Val() for amounts in whole rials, exact in all 64 bits where double would keep 53.
/// What follows a decimal point is dropped; a number beyond 64 bits gives the largest or smallest qint64.
[[nodiscard]] qint64 wholeVal(QStringView text);

/// Whether the whole text can be read as a number: an optional sign, digits 0 to 9 with thousands commas
/// anywhere behind the first digit, one decimal point, an exponent (E or D), white space around it.
/// The empty text is none, nor is one whose number double can't hold. A sign behind the number, brackets,
/// currency signs and &H are refused: no field of this program means them.
[[nodiscard]] bool IsNumeric(QStringView text);

/// The number as plain text, with 15 significant digits: whole numbers below 1E15 without an exponent, from
/// there on as "1E+15"; small ones from 0.0001 down as "1E-05". No number has a sign of plus or "-0".
[[nodiscard]] QString numberText(double number);

/// numberText() as it is printed in a row: a blank stands where a negative number has its sign, and a zero
/// before the decimal point is left out, so 3 gives " 3" and -0.5 gives "-.5".
[[nodiscard]] QString strText(double number);

} // namespace zrv
