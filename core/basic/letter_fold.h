// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The one notion of "the same word" that searches use: people type a name with whichever yeh or kaf their
// keyboard has, and old stores hold both.

#include <QString>
#include <QStringView>

namespace zrv {

/// The text as a search compares it; both the words sought and the text searched go through here.
/// Farsi yeh U+06CC and alef maksura U+0649 become the Arabic yeh U+064A, kaf U+0643 becomes keheh U+06A9,
/// zero-width non-joiners U+200C go, letters lose their case. Blanks, digits and the wildcards % and _ stay.
/// The key is for comparing only and is never shown or stored in place of the text.
[[nodiscard]] QString searchKey(QStringView text);

} // namespace zrv
