// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The letters that a text box takes, by its tag. Typing, pasting, dropping and input methods all ask here,
// letter by letter, after keyboardLetter() (core/basic/keyboard_letters.h) and ansiCode().

#include <QStringView>

namespace zrv {

/// The key's ANSI code when the text box with this tag takes it, else 0.
/// Backspace, Enter and Escape always pass, and everything passes an empty tag. "+DigitOnly", "+FA" and "+EN"
/// in the tag each let their letters in; a tag with none of them ("+N" alone) lets no letter in.
[[nodiscard]] int FilterKey(QStringView tag, int ansiCode);

} // namespace zrv
