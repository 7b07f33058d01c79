// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The dated copies that the program keeps of its store, for the day when one is needed.

#include "tools/zrvstore/findings.h"

#include <QString>

namespace zrv::storetool {

/// Tells a line for each copy of the folder's store, newest first: its name, its length and what it holds, or that it is
/// damaged. Gives the number of damaged ones.
[[nodiscard]] qint64 listCopies(const QString &folder, const Findings::Sink &sink);

/// Puts a copy, one of the folder's by its name or any file by its path, in the place of the folder's store, in one step.
/// The copy itself is only read. The store as it was is kept before, dated with the present moment; a damaged one under
/// a name of its own. What was kept where is told. Raises Failure with the store as it was: for a copy that is damaged
/// or no store, while the program runs on the store, and if the present store can't be kept.
void restore(const QString &folder, const QString &copy, const Findings::Sink &sink);

} // namespace zrv::storetool
