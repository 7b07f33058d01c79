// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/zrvstore/old_store.h"
#include "tools/zrvstore/takeover_report.h"

namespace zrv::storetool {

/// Reads every row of a table and tells the report what is wrong with it: texts that are too long for their columns, of
/// letters that are none, of an old code page, or that no screen writes; keys that are NULL or stand twice. Texts of an old code page are faults unless they are taken
/// over as they stand. Raises jet::Refused for damage.
void checkOldRows(const OldTable &table, bool asStored, TakeoverReport &report);

} // namespace zrv::storetool
