// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace zrv::storetool {

/// The store's path in a folder.
[[nodiscard]] QString storeIn(const QString &folder);

/// Raises Failure where a journal lies beside a database file that isn't there: a new file under that name would be
/// taken for the one that the journal belongs to, and overwritten with its pages.
void refuseForeignJournal(const QString &path);

} // namespace zrv::storetool
