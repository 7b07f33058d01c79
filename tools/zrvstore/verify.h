// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/zrvstore/findings.h"

#include <QString>

namespace zrv::storetool {

class Database;

inline constexpr int MostOfAKind = 20;

/// Reads a whole store and tells `sink` what is wrong with it: the file, the shape of its tables, each value, the
/// keys, the sums. Gives the number of findings; 0 is a sound store. All is read in one view of the store: who writes
/// to it meanwhile waits. Raises Failure for a file that can't be read to its end; what was found in it by then has
/// been told. `mostOfAKind` of 0 tells every finding.
[[nodiscard]] qint64 verifyStore(const QString &path, const Findings::Sink &sink, int mostOfAKind = MostOfAKind);

/// Raises Failure if SQLite's own check of a whole file finds it damaged; tells `findings` the damage first.
void refuseDamage(Database &database, Findings &findings);

} // namespace zrv::storetool
