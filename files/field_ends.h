// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// Where the fields of an electronic file end, and which hold digits alone or none, found for some thousand UTF-16 units
// at once with the widest instructions that the processor has. The only place that knows of instructions; the check asks
// (files/faultless_lines.cpp).

#include <array>
#include <cstddef>
#include <cstdint>

namespace zrv {

/// What a stretch of text has, end by end: each comma, CR and LF ends a field.
struct FieldEnds {
    static constexpr std::size_t UnitsPerStep = 64;
    static constexpr std::size_t MostUnits = 8192;
    /// A step writes its places by so many, and readers look at a line's by as many as suits them.
    static constexpr std::size_t Spare = 64;

    /// A bit for each end.
    using Bits = std::array<std::uint64_t, MostUnits / 64 + 2>;

    std::size_t count = 0;
    /// Of end i at i + 1, counted from the stretch's beginning; before the first stands the one before the stretch.
    std::array<std::uint16_t, 1 + MostUnits + Spare> places{};
    Bits digits{};   ///< nothing but digits stands before the end, in its field
    Bits noDigits{}; ///< no digit stands there
    Bits ofLine{};   ///< it is a CR or a LF

    [[nodiscard]] static std::uint64_t bitsFrom(const Bits &bits, std::size_t end)
    {
        const std::size_t word = end / 64;
        const std::size_t shift = end % 64;
        return bits[word] >> shift | bits[word + 1] << 1U << (63 - shift);
    }
};

/// Avx2 asks for the bit instructions of the processors that have it, too.
enum class Instructions { Plain, Sse2, Avx2 };

[[nodiscard]] bool hasInstructions(Instructions instructions);
/// The fastest that this machine can run.
[[nodiscard]] Instructions bestInstructions();

/// Looks at so many steps of UnitsPerStep units, MostUnits at most; the first one begins a field.
using EndsFinder = void (*)(const char16_t *units, std::size_t steps, FieldEnds &ends);

/// The machine must have the instructions.
[[nodiscard]] EndsFinder endsFinder(Instructions instructions);

} // namespace zrv
