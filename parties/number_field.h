// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/forms/edit.h"

namespace zrv {

/// What becomes of a number field when it is left: its text is replaced by its value. Leading zeros go, and nothing
/// but zeros becomes empty.
void normalizeNumber(Edit &field);

} // namespace zrv
