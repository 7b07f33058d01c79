// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/platform/platform.h"

namespace zrv {

/// Makes the branch of this number, 2 and up: a folder of that name in the program's folder, with the program, the
/// emptied store, and a shortcut on the desktop. A folder that is there already, whatever it holds, is taken for a
/// branch and left alone. The folder takes its number only when all in it is whole, so a failure leaves none.
/// Raises a RunTimeError when it can't be made.
void makeBranch(Platform &platform, int number);

} // namespace zrv
