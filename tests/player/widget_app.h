// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

namespace zrv::player {

class Stage;

/// Plays on real windows: makes the application with the program's look and a stage of windows, and hands that to
/// `play`. Raises ScenarioError when there is no display to show windows on.
int withWindows(int &argc, char **argv, const std::function<int(Stage &)> &play);

} // namespace zrv::player
