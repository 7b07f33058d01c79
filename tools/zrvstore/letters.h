// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringView>

namespace zrv::storetool {

/// What the letters of a text say about it, the worst last.
enum class Letters {
    Sound,
    Odd,         ///< of scripts that no screen takes
    OldCodePage, ///< of the upper half of Latin-1: a Persian text that was stored as that of another code page
    Damaged,     ///< controls, halves of a letter, marks of a letter that was lost
};

[[nodiscard]] Letters lettersOf(QStringView text);

} // namespace zrv::storetool
