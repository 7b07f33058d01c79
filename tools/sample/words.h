// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace zrv::sample {

class Dice;

/// The words of the sample: names, places and jobs in the letters that the store holds (Arabic yeh, keheh). They are
/// invented or everyday; nobody in particular is meant.

[[nodiscard]] std::string firstName(Dice &dice);
[[nodiscard]] std::string fatherName(Dice &dice);
[[nodiscard]] std::string familyName(Dice &dice);
[[nodiscard]] std::string foreignFirstName(Dice &dice);
[[nodiscard]] std::string foreignFamilyName(Dice &dice);
/// A town, a street and a number.
[[nodiscard]] std::string address(Dice &dice);

} // namespace zrv::sample
