// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/basic/run_time_error.h"
#include "core/platform/platform.h"

namespace zrv {

/// The error box: number and description of a failure nobody foresaw. Nothing is logged, the screen keeps its state.
void ShowUnknownError(Platform &platform, const RunTimeError &failure);

/// The record screens' and grids' plain box for the same: "Unknown Error : ", number and description.
void ShowInlineError(Platform &platform, const RunTimeError &failure);

} // namespace zrv
