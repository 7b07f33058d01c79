// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The ANSI code page of a Persian desktop, Windows-1256: the codes by which key filters, Base64 texts and
// character reports know a letter. A table of our own, since Qt knows the code page only where it was built
// with ICU.

#include <QChar>

namespace zrv {

/// The letter's code, 0 to 255, or -1 when the code page has none: the Farsi yeh U+06CC and the digits of
/// Persian and Arabic have none, keheh U+06A9 (152), kaf U+0643 (223) and Arabic yeh U+064A (237) have.
[[nodiscard]] int ansiCode(QChar letter);

/// The letter of a code. Every code from 0 to 255 has one; the code must lie there.
[[nodiscard]] QChar ansiLetter(int code);

} // namespace zrv
