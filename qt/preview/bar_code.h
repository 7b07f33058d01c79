// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <vector>

namespace zrv {

/// The modules of a text in Code 128, from left to right, true where a bar is. Without quiet zones. Empty for a text
/// that has no such bar code: an empty one, one too long, or one with letters beyond Latin-1.
[[nodiscard]] std::vector<bool> code128(const QString &text);

} // namespace zrv
