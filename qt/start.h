// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// What stands before the login: the store must be there, and be this program's alone.

#include "core/platform/platform.h"
#include "core/store/store_lock.h"

namespace zrv {

/// Whether nothing was ever kept here: of a program that is installed for all, the user has no folder yet; a portable
/// folder, which PortableSign tells, holds neither store nor copies. Elsewhere, and later, a store that is missing is
/// nothing to be silent about.
[[nodiscard]] bool isFirstStart(Platform &platform, bool isInstalledForAll);

/// A file that lies beside the program in the portable folder and in no other.
extern const QString PortableSign;

/// Makes the program's folder, if it is missing, with an empty store in it, by zrvstore. False when that fails, which is
/// told.
[[nodiscard]] bool makeFirstStore(Platform &platform);

/// Says where the first store lies and how to log in. To be called when the store is this program's alone: the box may
/// stand for long, and a second start must find the first.
void tellOfFirstStore(Platform &platform);

/// One program works on a store at a time. A later start brings the first to the front, or says where it runs; false
/// when this one has nothing left to do.
[[nodiscard]] bool mayRun(Platform &platform, const QString &store, StoreLock &lock);

} // namespace zrv
