// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// What a desktop's keyboard, clipboard or input method delivers, turned into the letters that the rules, the
// store and the files are written in. Every letter goes through here before a key filter sees it.

#include <QChar>

namespace zrv {

/// The letter that the rules see for a letter that was typed or pasted:
/// - digits of any script, Persian (U+06F0…) and Arabic (U+0660…) among them, are 0 to 9: they are the same
///   keys, and the store and the files hold no other digits;
/// - the Farsi yeh U+06CC, which a Persian layout types, is the Arabic yeh U+064A: the code page has no other,
///   and all stored texts are written with it;
/// - a presentation form of a single letter, as texts copied out of PDF files hold them, is that letter;
/// - everything else stays. Keheh U+06A9 and kaf U+0643 are two letters of the code page and both stay as
///   typed, alef maksura U+0649 likewise; a search finds one by the other (letter_fold.h).
[[nodiscard]] QChar keyboardLetter(QChar typed);

} // namespace zrv
