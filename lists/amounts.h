// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace zrv {

// Amounts in whole rials between a field, which shows them as "1,200", and the store, which holds "1200". The
// separators are taken out first, wherever an edit has left them. A blank stays blank.

[[nodiscard]] QString shownAmount(const QString &amount);
[[nodiscard]] QString plainAmount(const QString &amount);

/// The number, 0 for a blank; so limited that sums of a few can't overflow.
[[nodiscard]] qint64 amountOf(const QString &amount);

} // namespace zrv
