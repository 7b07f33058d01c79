// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace zrv {

/// Where a file is built before it takes its name: beside it, and with this process's number behind it. What
/// processes that were killed left there is removed.
[[nodiscard]] QString temporaryName(const QString &path);

/// Makes an empty file that its owner alone can read and write, whatever the process's mask. False if a file of that
/// name exists or none can be made.
[[nodiscard]] bool createPrivateFile(const QString &path);

/// Gives a finished file its name for good: flushed to the disk first, and never over a file of that name.
[[nodiscard]] bool giveName(const QString &temporary, const QString &path);

/// The same over a file of that name, which is there whole until the new one is.
[[nodiscard]] bool replaceFile(const QString &temporary, const QString &path);

} // namespace zrv
