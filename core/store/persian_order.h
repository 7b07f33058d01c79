// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

namespace zrv {

/// The key under which a UTF-8 text stands in the order of the Persian alphabet: two texts are in the order of the
/// bytes of their keys, and of equal rank when the keys are equal. Blanks come first, then signs, digits (of any
/// keyboard by their value), Latin letters without case, and the Persian alphabet, in which the variants of a letter
/// (yeh, kaf, heh) are the same. Marks, kashida and zero-width signs don't count.
[[nodiscard]] std::string persianOrderKey(std::string_view utf8);

} // namespace zrv
