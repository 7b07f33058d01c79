// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/report/report.h"

#include <functional>

class QIODevice;
class QPagedPaintDevice;

namespace zrv {

/// Asked before each page is painted; false ends the output.
using GoesOn = std::function<bool(int page)>;

/// Paints the pages from first to last, from 0, on a device of that resolution in dots an inch. False when `goesOn`
/// said no, or the device took no more.
[[nodiscard]] bool paintPages(const Report &report, QPagedPaintDevice &device, int resolution, int first, int last,
                              const GoesOn &goesOn);

/// Writes the report as a PDF, page by page; needs no printer. False when `goesOn` said no, or nothing was written.
[[nodiscard]] bool writePdf(
    const Report &report, QIODevice &device, const GoesOn &goesOn = [](int) { return true; });

} // namespace zrv
