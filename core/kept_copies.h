// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/program.h"

namespace zrv {

/// Keeps a dated copy of the store before a step that changes many rows. Where none can be made it asks whether to go on
/// without; false when the user would rather not.
[[nodiscard]] bool keepCopyBeforeStep(const Program &program);

/// The same for a step that makes a copy of its own, and tells and asks of that one: says nothing when it can't.
void keepCopyBesideAnother(const Program &program);

/// Keeps a dated copy when the program is left, and tells if it can't. Nothing happens in a run without a login.
void keepCopyAtLeaving(const Program &program);

/// Raises store_error::General for a damaged store, with the name of the newest copy that is whole; for a large store it
/// takes a while. One that is missing or busy is left to who opens it.
void refuseDamagedStore(const Program &program);

} // namespace zrv
