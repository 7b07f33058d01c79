// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/sample/plan.h"

#include <string>

namespace zrv::sample {

class Dice;

/// The identifying numbers of the sample. None begins with 0, which the screens would lose.

/// The valid national code of a payee; no two payees of a sample have the same. Numbers from Plan::MostPayees on are
/// free for the payer's people.
[[nodiscard]] std::string nationalCode(const Plan &plan, int number);

/// A letter and eight digits, as no other payee of the sample has.
[[nodiscard]] std::string passportNumber(const Plan &plan, int number);

/// So many digits, the first of them from `firstLow` to `firstHigh`.
[[nodiscard]] std::string digits(Dice &dice, int count, int firstLow = 1, int firstHigh = 9);

/// "yyyymmdd", month and day with two digits.
[[nodiscard]] std::string dateText(int year, int month, int day);

/// "01" to "12".
[[nodiscard]] std::string monthText(int month);

/// A day that the month has in every year: 29 in the last one.
[[nodiscard]] int dayOf(Dice &dice, int month);

} // namespace zrv::sample
