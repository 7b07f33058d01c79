// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/jet/bytes.h"

#include <QString>

namespace zrv::jet {

/// Two bytes a letter.
[[nodiscard]] QString plainText(Bytes bytes);

/// A text as it stands in a row: two bytes a letter, or with FF FE before it and stretches of one byte a letter. Gives
/// the letters as they are, whatever they are. A letter that is cut in two is damage.
[[nodiscard]] QString textOf(Bytes bytes);

} // namespace zrv::jet
