// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>

namespace zrv {

/// A colour as 0xRRGGBB.
using Color = quint32;

namespace color {

inline constexpr Color Window = 0xECEBE6; ///< what the screens lie on
inline constexpr Color Field = 0xFFFFFF;  ///< a field before its container gave it a colour
inline constexpr Color Text = 0x000000;
inline constexpr Color Disabled = 0xE3E2DD; ///< a field that is switched off by a rule of its screen
inline constexpr Color KeyField = 0xFFFFC0; ///< light yellow: fields of a Key container
inline constexpr Color DataField =
    0xFDFCD2; ///< cream: fields of any other container, enabled grids, filled required fields
inline constexpr Color FramedCombo = 0xEAF9D7;   ///< light green: a combo box inside a frame inside the container
inline constexpr Color RequiredEmpty = 0xFFC080; ///< orange: a required field left empty

} // namespace color

} // namespace zrv
