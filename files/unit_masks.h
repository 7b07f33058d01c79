// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// Where in 64 UTF-16 units the letters stand that the structure of an electronic file is made of, as bit masks, with the
// widest instructions that the processor has. Only files/faultless_lines.cpp asks.

#include <cstddef>
#include <cstdint>

namespace zrv {

/// Bit i tells of unit i.
struct UnitMasks {
    std::uint64_t comma;
    std::uint64_t carriageReturn;
    std::uint64_t lineFeed;
    std::uint64_t digit; ///< 0 to 9
};

inline constexpr std::size_t UnitsPerMask = 64;

enum class Instructions { Plain, Sse2, Avx2 };

/// Looks at 64 units.
using MaskMaker = UnitMasks (*)(const char16_t *units);

/// The maker that uses these instructions; null where this machine lacks them.
[[nodiscard]] MaskMaker maskMaker(Instructions instructions);
/// The fastest that this machine can run.
[[nodiscard]] MaskMaker bestMaskMaker();

} // namespace zrv
