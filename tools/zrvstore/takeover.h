// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/zrvstore/findings.h"

#include <QString>

namespace zrv::storetool {

/// Makes a store in a folder out of the database that an older version of the program kept: the same tables, columns,
/// widths and rows. Everything is read and checked first, and taken over as a whole or not at all; Failure says why not,
/// with the name of the reason in brackets behind it.
///
/// The folder's own store may be such a database: the new store then replaces it in one stroke, and it stays beside it
/// under another name. Any other store of the folder stays, and Failure is raised.
///
/// Tells `sink` table by table what was taken over, and what is doubtful in it. Gives the number of doubts.
/// `asStored` takes over texts of an old code page as they stand; else they are a reason not to.
[[nodiscard]] qint64 takeOver(const QString &file, const QString &folder, bool asStored, const Findings::Sink &sink);

} // namespace zrv::storetool
