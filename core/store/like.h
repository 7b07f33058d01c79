// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringView>

namespace zrv {

/// True if the text fits the pattern, both as searchKey() of core/basic/letter_fold.h gives them: `%` stands for any letters or none and `_` for one
/// letter; every other sign stands for itself.
[[nodiscard]] bool matches(QStringView pattern, QStringView text);

} // namespace zrv
