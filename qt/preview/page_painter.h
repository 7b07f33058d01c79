// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/report/report.h"

class QPainter;

namespace zrv {

/// The one routine that puts a page on the screen, on paper and into a PDF, so that all three are the same. The
/// painter's origin is the paper's upper left corner. Letters are measured in hundredths of a millimetre, whatever the
/// device, so that lines break at the same places on each; bars of a bar code are whole pixels of the device.
void paintPage(QPainter &painter, const report::Page &page, double pixelsPerMillimetre);

} // namespace zrv
