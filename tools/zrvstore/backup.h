// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace zrv::storetool {

/// Copies a store into a file, also while programs read and write it. The copy is one moment's store as a whole: it is
/// built under a temporary name beside its own, checked, flushed to the disk and then named. A file of that name is
/// replaced only with `force`, and never by less than a whole copy. Raises Failure.
void backup(const QString &store, const QString &copy, bool force);

} // namespace zrv::storetool
