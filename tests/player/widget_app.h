// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

class QString;

namespace zrv {
class Report;
}

namespace zrv::player {

class Stage;

/// Plays on real windows: makes the application with the program's look and a stage of windows, and hands that to
/// `play`. Raises ScenarioError when there is no display to show windows on.
int withWindows(int &argc, char **argv, const std::function<int(Stage &)> &play);

/// Plays without windows, but with the fonts that painting a PDF needs; no display is touched.
int withFonts(int &argc, char **argv, const std::function<int()> &play);

/// False when the file can't be written. Needs one of the above.
bool writePdfFile(const Report &report, const QString &path);

} // namespace zrv::player
