// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace zrv {

/// The one run of letters in which a text differs from an earlier one.
struct Difference {
    qsizetype start = 0;
    qsizetype removed = 0; ///< length of what stood there before
    QString inserted;      ///< what stands there now
};

/// Lengths and places count UTF-16 units; a surrogate pair is never cut in two.
[[nodiscard]] Difference difference(QStringView before, QStringView after);

} // namespace zrv
