// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/program.h"

namespace zrv {

/// Puts every screen of the program into the catalogue. The one place that knows them all; the window side and the
/// player of scenarios start from it alike.
void fillCatalogue(Catalogue &catalogue);

/// Runs the program from its login screen to its end. Returns when a screen has ended the program, or when the
/// login screen was closed.
void runProgram(Platform &platform);

} // namespace zrv
