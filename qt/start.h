// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// What stands before the login: the store must be there, and be this program's alone.

#include "core/platform/platform.h"
#include "core/store/store_lock.h"

namespace zrv {

/// Makes the user's folder with an empty store in it, by zrvstore, and tells where. Only where there is no such folder
/// yet: a store that went missing later is nothing to be silent about. False when that fails, which is told.
[[nodiscard]] bool makeFirstStore(Platform &platform);

/// One program works on a store at a time. A later start brings the first to the front, or says where it runs; false
/// when this one has nothing left to do.
[[nodiscard]] bool mayRun(Platform &platform, const QString &store, StoreLock &lock);

} // namespace zrv
