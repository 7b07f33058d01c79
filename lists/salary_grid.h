// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/browse_panel.h"

// The saved rows of the salary list as they are shown: with the payee's particulars, and each code replaced by its
// description. The printed list reads the same rows.

namespace zrv {

/// The statement without condition and order. A row whose payee is gone stays, with empty particulars.
[[nodiscard]] QString salarySelect();

/// The columns of the grid in order.
[[nodiscard]] std::vector<BrowseColumn> salaryGridColumns();

} // namespace zrv
