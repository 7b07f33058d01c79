// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/forms/control.h"

#include <optional>

class QKeyEvent;
class QString;

namespace zrv {

/// The named key of a key press; none for letters and for keys that no screen knows.
std::optional<Key> namedKey(const QKeyEvent &event);

/// The letters that a key press types, empty for keys that type none. AltGr letters count, Ctrl and Alt do not.
///
/// In a field of codes (`intoCodes`) a letter of a Persian or Arabic layout becomes the Latin letter of the same key:
/// where the program can't switch the desktop's layout, a user can still type a name at the login without switching it
/// by hand. Only keys whose place on the keyboard the system tells are read this way.
QString typedLetters(const QKeyEvent &event, bool intoCodes);

} // namespace zrv
