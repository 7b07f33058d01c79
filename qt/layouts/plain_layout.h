// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace zrv {

class FormWindow;

/// Places the widgets of a screen that has no layout of its own: containers below each other in tab order, in each of
/// them labels beside the fields that follow them, and buttons that follow each other in one line.
void layOutPlainly(FormWindow &window);

} // namespace zrv
