// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>

#include <string_view>
#include <variant>

namespace zrv {

/// A number of a statement: whole wherever it can be, so that amounts stay exact.
using SqlNumber = std::variant<qint64, double>;

/// Val() of core/basic/val.h for the statements: exact in all 64 bits where the number is whole.
[[nodiscard]] SqlNumber leadingNumber(std::string_view utf8);

} // namespace zrv
