// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "qt/binder.h"

namespace zrv {

/// A line or, for a text box of several lines, an area.
std::unique_ptr<Binder> makeTextBinder(TextBox &box, FormWindow &window);

} // namespace zrv
