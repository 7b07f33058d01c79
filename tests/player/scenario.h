// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tests/player/command.h"

namespace zrv::player {

/// Reads a scenario file and whatever it includes; `folder` is what ${folder} stands for. Every line is checked
/// before the first is played: an unknown word, a wrong number of words, or a line in a place where it can't stand
/// raises ScenarioError with the file and the number of the line.
[[nodiscard]] std::vector<Line> readScenario(const QString &path, const QString &folder);

} // namespace zrv::player
