// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <random>
#include <vector>

namespace zrv {

/// Random texts of the kinds that break programs: Latin, Persian of every keyboard, controls and marks of direction,
/// quotes and pieces of statements, whole and halved surrogate pairs, all of these mixed, and now and then a very
/// long one. The same seed gives the same texts.
[[nodiscard]] std::vector<QString> hostileTexts(int count, std::mt19937::result_type seed);

} // namespace zrv
