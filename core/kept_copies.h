// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/program.h"

namespace zrv {

/// Keeps a dated copy of the store before a step that changes many rows. Where none can be made it asks whether to go on
/// without; false when the user would rather not.
[[nodiscard]] bool keepCopyBeforeStep(const Program &program);

/// Keeps a dated copy when the program is left, and tells if it can't. Nothing happens in a run without a login.
void keepCopyAtLeaving(const Program &program);

} // namespace zrv
