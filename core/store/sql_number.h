// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>

#include <string_view>
#include <variant>

namespace zrv {

/// A number of a statement: whole wherever it can be, so that amounts stay exact.
using SqlNumber = std::variant<qint64, double>;

/// The number that a text begins with: blanks are skipped, a sign and one decimal point are read, and the rest of the
/// text doesn't count. 0 where there is no number.
[[nodiscard]] SqlNumber leadingNumber(std::string_view utf8);

} // namespace zrv
