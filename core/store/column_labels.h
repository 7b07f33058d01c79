// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace zrv {

/// What the screens call a column, so that a failure of the store can name it in the user's words; empty for a
/// column that no screen names, or that several name differently.
[[nodiscard]] QString columnLabel(QStringView column);

} // namespace zrv
