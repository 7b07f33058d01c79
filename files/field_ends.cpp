// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/field_ends.h"

#include <bit>

#ifdef __x86_64__
#include <immintrin.h>
#endif

namespace zrv {
namespace {

constexpr std::size_t UnitsPerStep = FieldEnds::UnitsPerStep;

/// Where letters stand in the units of a step: bit i tells of unit i.
struct UnitMasks {
    std::uint64_t comma = 0;
    std::uint64_t ofLine = 0; ///< CR and LF
    std::uint64_t digit = 0;  ///< 0 to 9
};

/// One way of looking at a step; the others are measured by it.
struct Plain {
    static UnitMasks masks(const char16_t *units)
    {
        UnitMasks masks;
        for (std::size_t i = 0; i < UnitsPerStep; ++i) {
            const char16_t unit = units[i];
            masks.comma |= std::uint64_t(unit == u',') << i;
            masks.ofLine |= std::uint64_t(unit == u'\r' || unit == u'\n') << i;
            masks.digit |= std::uint64_t(unit >= u'0' && unit <= u'9') << i;
        }
        return masks;
    }

    /// The bits of those places, side by side.
    static std::uint64_t packed(std::uint64_t bits, std::uint64_t places)
    {
        std::uint64_t packed = 0;
        for (unsigned i = 0; places != 0; ++i, places &= places - 1)
            packed |= (bits >> std::countr_zero(places) & 1U) << i;
        return packed;
    }
};

#ifdef __x86_64__

// Units are packed into bytes with saturation: whatever lies above U+00FF becomes 00 or FF, none of the letters sought.

struct Sse2 {
    static UnitMasks masks(const char16_t *units)
    {
        constexpr std::size_t Step = 16;
        UnitMasks masks;
        for (std::size_t i = 0; i < UnitsPerStep; i += Step) {
            const auto *const at = reinterpret_cast<const __m128i *>(units + i);
            const __m128i bytes = _mm_packus_epi16(_mm_loadu_si128(at), _mm_loadu_si128(at + 1));
            const auto where = [i](__m128i equal) { return std::uint64_t(unsigned(_mm_movemask_epi8(equal))) << i; };
            masks.comma |= where(_mm_cmpeq_epi8(bytes, _mm_set1_epi8(',')));
            masks.ofLine |= where(
                _mm_or_si128(_mm_cmpeq_epi8(bytes, _mm_set1_epi8('\r')), _mm_cmpeq_epi8(bytes, _mm_set1_epi8('\n'))));
            const __m128i value = _mm_sub_epi8(bytes, _mm_set1_epi8('0'));
            masks.digit |= where(_mm_cmpeq_epi8(_mm_min_epu8(value, _mm_set1_epi8('9' - '0')), value));
        }
        return masks;
    }

    static std::uint64_t packed(std::uint64_t bits, std::uint64_t places) { return Plain::packed(bits, places); }
};

struct Avx2 {
    /// 32 units as bytes.
    [[gnu::target("avx2,bmi,bmi2,popcnt")]] static __m256i bytes(const char16_t *units)
    {
        const auto *const at = reinterpret_cast<const __m256i *>(units);
        const __m256i mixed = _mm256_packus_epi16(_mm256_loadu_si256(at), _mm256_loadu_si256(at + 1));
        constexpr int Unmix = 0xD8; // the pack works on halves: quarters 0, 2, 1, 3
        return _mm256_permute4x64_epi64(mixed, Unmix);
    }

    [[gnu::target("avx2,bmi,bmi2,popcnt")]] static std::uint64_t where(__m256i low, __m256i high)
    {
        return std::uint64_t(unsigned(_mm256_movemask_epi8(high))) << 32U | unsigned(_mm256_movemask_epi8(low));
    }

    [[gnu::target("avx2,bmi,bmi2,popcnt")]] static __m256i isDigit(__m256i letters)
    {
        const __m256i value = _mm256_sub_epi8(letters, _mm256_set1_epi8('0'));
        return _mm256_cmpeq_epi8(_mm256_min_epu8(value, _mm256_set1_epi8('9' - '0')), value);
    }

    [[gnu::target("avx2,bmi,bmi2,popcnt")]] static __m256i isOfLine(__m256i letters)
    {
        return _mm256_or_si256(_mm256_cmpeq_epi8(letters, _mm256_set1_epi8('\r')),
                               _mm256_cmpeq_epi8(letters, _mm256_set1_epi8('\n')));
    }

    [[gnu::target("avx2,bmi,bmi2,popcnt")]] static UnitMasks masks(const char16_t *units)
    {
        const __m256i low = bytes(units);
        const __m256i high = bytes(units + UnitsPerStep / 2);
        const __m256i comma = _mm256_set1_epi8(',');
        return {where(_mm256_cmpeq_epi8(low, comma), _mm256_cmpeq_epi8(high, comma)),
                where(isOfLine(low), isOfLine(high)), where(isDigit(low), isDigit(high))};
    }

    [[gnu::target("avx2,bmi,bmi2,popcnt")]] static std::uint64_t packed(std::uint64_t bits, std::uint64_t places)
    {
        return _pext_u64(bits, places);
    }
};

#endif

/// Added to the letters of a kind, a field's beginning runs through as many of them as there are and stops at the first
/// other letter: the field's end has its bit in the sum if all of the field is of the kind, or nothing is in it.
[[gnu::always_inline]] inline std::uint64_t runThrough(std::uint64_t letters, std::uint64_t begins, bool &carry)
{
    std::uint64_t sum = 0;
    const bool isOver = __builtin_add_overflow(letters, begins, &sum);
    carry = __builtin_add_overflow(sum, std::uint64_t(carry), &sum) || isOver;
    return sum;
}

/// Puts the bits of a step behind those that are there.
[[gnu::always_inline]] inline void append(FieldEnds::Bits &bits, std::size_t count, std::uint64_t step)
{
    bits[count / 64] |= step << count % 64;
    bits[count / 64 + 1] = step >> 1U >> (63 - count % 64);
}

/// Writes the place of each bit. Loops of one length are easier to foresee than one of each length.
[[gnu::always_inline]] inline void appendPlaces(std::uint16_t *places, std::size_t first, std::uint64_t ends)
{
    constexpr int AtOnce = 8;
    while (ends != 0) {
        for (int i = 0; i < AtOnce; ++i, ends &= ends - 1)
            *places++ = static_cast<std::uint16_t>(first + static_cast<std::size_t>(std::countr_zero(ends)));
    }
}

template <typename Way>
[[gnu::always_inline]] inline void findEnds(const char16_t *units, std::size_t steps, FieldEnds &found)
{
    std::uint64_t fieldBegins = 1; // in the step to come its first unit begins a field
    bool digitCarry = false;
    bool otherCarry = false;
    std::size_t count = 0;
    found.places[0] = 0xFFFF;
    found.digits[0] = found.noDigits[0] = found.ofLine[0] = 0;
    for (std::size_t step = 0; step < steps; ++step) {
        const UnitMasks masks = Way::masks(units + step * UnitsPerStep);
        const std::uint64_t ends = masks.comma | masks.ofLine;
        const std::uint64_t begins = ends << 1U | fieldBegins;
        fieldBegins = ends >> 63U;
        const std::uint64_t digitSum = runThrough(masks.digit, begins, digitCarry);
        const std::uint64_t otherSum = runThrough(~(masks.digit | ends), begins, otherCarry);
        append(found.digits, count, Way::packed(digitSum, ends));
        append(found.noDigits, count, Way::packed(otherSum, ends));
        append(found.ofLine, count, Way::packed(masks.ofLine, ends));
        appendPlaces(&found.places[1 + count], step * UnitsPerStep, ends);
        count += static_cast<std::size_t>(std::popcount(ends));
    }
    found.count = count;
}

void findPlain(const char16_t *units, std::size_t steps, FieldEnds &found)
{
    findEnds<Plain>(units, steps, found);
}

#ifdef __x86_64__

void findSse2(const char16_t *units, std::size_t steps, FieldEnds &found)
{
    findEnds<Sse2>(units, steps, found);
}

[[gnu::target("avx2,bmi,bmi2,popcnt")]] void findAvx2(const char16_t *units, std::size_t steps, FieldEnds &found)
{
    findEnds<Avx2>(units, steps, found);
}

#endif

} // namespace

bool hasInstructions(Instructions instructions)
{
    switch (instructions) {
#ifdef __x86_64__
    case Instructions::Avx2:
        return __builtin_cpu_supports("avx2") && __builtin_cpu_supports("bmi") && __builtin_cpu_supports("bmi2")
               && __builtin_cpu_supports("popcnt");
    case Instructions::Sse2:
        return true;
#endif
    default:
        return instructions == Instructions::Plain;
    }
}

Instructions bestInstructions()
{
    for (const Instructions instructions : {Instructions::Avx2, Instructions::Sse2}) {
        if (hasInstructions(instructions))
            return instructions;
    }
    return Instructions::Plain;
}

EndsFinder endsFinder(Instructions instructions)
{
    switch (instructions) {
#ifdef __x86_64__
    case Instructions::Avx2:
        return findAvx2;
    case Instructions::Sse2:
        return findSse2;
#endif
    default:
        return findPlain;
    }
}

} // namespace zrv
