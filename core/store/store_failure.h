// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/basic/run_time_error.h"

struct sqlite3;

namespace zrv {

/// The failure that SQLite reported last on a connection, under the store's number and in words for the user.
/// `path` is the store's file; a failure to prepare a statement is one of its syntax.
[[nodiscard]] RunTimeError storeFailure(sqlite3 *database, const QString &path, bool whilePreparing);

/// The check that SQLite names when a value is too long for its column.
[[nodiscard]] QString widthCheck(const QString &column, int width);

} // namespace zrv
