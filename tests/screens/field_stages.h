// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tests/screens/screen_stage.h"

namespace zrv {

/// The stages of all screens in which fields are open. A new screen joins with a line.
[[nodiscard]] const std::vector<Stage> &fieldStages();

} // namespace zrv
