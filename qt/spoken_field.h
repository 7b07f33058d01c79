// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace zrv {

/// From here on screen readers are told of every line in which something is typed by this program itself. Qt 6.4
/// never comes back from some questions for a word or a sentence, among them every one for the word behind the last
/// letter, which is where the cursor stands after typing: a reader would hang the program, and what was typed would be
/// lost.
void speakForFields();

} // namespace zrv
