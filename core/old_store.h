// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/platform/platform.h"

namespace zrv {

/// Whoever comes from an older version of the program has its database under the store's name in the program's folder.
/// If one lies there, takes it over, which zrvstore does in a process of its own: no byte of such a file is believed
/// here. The old file stays beside the store under another name, and a box says so. Does nothing else.
///
/// Raises store_error::General if it can't be taken over; the file is as it was then, and the description says why.
void takeOverOldStore(Platform &platform);

} // namespace zrv
