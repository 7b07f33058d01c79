// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/unit_masks.h"

#include <initializer_list>

#ifdef __x86_64__
#include <immintrin.h>
#endif

namespace zrv {
namespace {

UnitMasks plainMasks(const char16_t *units)
{
    UnitMasks masks{};
    for (std::size_t i = 0; i < UnitsPerMask; ++i) {
        const char16_t unit = units[i];
        masks.comma |= std::uint64_t(unit == u',') << i;
        masks.carriageReturn |= std::uint64_t(unit == u'\r') << i;
        masks.lineFeed |= std::uint64_t(unit == u'\n') << i;
        masks.digit |= std::uint64_t(unit >= u'0' && unit <= u'9') << i;
    }
    return masks;
}

#ifdef __x86_64__

// Units are packed into bytes with saturation: whatever lies above U+00FF becomes 00 or FF, none of the letters sought.

__m128i packed16(const char16_t *units)
{
    const auto *const at = reinterpret_cast<const __m128i *>(units);
    return _mm_packus_epi16(_mm_loadu_si128(at), _mm_loadu_si128(at + 1));
}

UnitMasks sse2Masks(const char16_t *units)
{
    constexpr int Step = 16;
    constexpr char BelowNine = '9' - '0';
    UnitMasks masks{};
    for (int i = 0; i < int(UnitsPerMask); i += Step) {
        const __m128i bytes = packed16(units + i);
        const auto where = [i](__m128i equal) { return std::uint64_t(unsigned(_mm_movemask_epi8(equal))) << i; };
        masks.comma |= where(_mm_cmpeq_epi8(bytes, _mm_set1_epi8(',')));
        masks.carriageReturn |= where(_mm_cmpeq_epi8(bytes, _mm_set1_epi8('\r')));
        masks.lineFeed |= where(_mm_cmpeq_epi8(bytes, _mm_set1_epi8('\n')));
        const __m128i value = _mm_sub_epi8(bytes, _mm_set1_epi8('0'));
        masks.digit |= where(_mm_cmpeq_epi8(_mm_min_epu8(value, _mm_set1_epi8(BelowNine)), value));
    }
    return masks;
}

[[gnu::target("avx2")]] __m256i packed32(const char16_t *units)
{
    const auto *const at = reinterpret_cast<const __m256i *>(units);
    const __m256i mixed = _mm256_packus_epi16(_mm256_loadu_si256(at), _mm256_loadu_si256(at + 1));
    constexpr int Unmix = 0xD8; // the pack works on halves: quarters 0, 2, 1, 3
    return _mm256_permute4x64_epi64(mixed, Unmix);
}

[[gnu::target("avx2")]] std::uint64_t equalBits(__m256i low, __m256i high, char letter)
{
    const __m256i sought = _mm256_set1_epi8(letter);
    const auto first = unsigned(_mm256_movemask_epi8(_mm256_cmpeq_epi8(low, sought)));
    const auto second = unsigned(_mm256_movemask_epi8(_mm256_cmpeq_epi8(high, sought)));
    return std::uint64_t(second) << 32U | first;
}

[[gnu::target("avx2")]] unsigned digitBits(__m256i bytes)
{
    const __m256i value = _mm256_sub_epi8(bytes, _mm256_set1_epi8('0'));
    return unsigned(
        _mm256_movemask_epi8(_mm256_cmpeq_epi8(_mm256_min_epu8(value, _mm256_set1_epi8('9' - '0')), value)));
}

[[gnu::target("avx2")]] UnitMasks avx2Masks(const char16_t *units)
{
    const __m256i low = packed32(units);
    const __m256i high = packed32(units + UnitsPerMask / 2);
    return {equalBits(low, high, ','), equalBits(low, high, '\r'), equalBits(low, high, '\n'),
            std::uint64_t(digitBits(high)) << 32U | digitBits(low)};
}

#endif

} // namespace

MaskMaker maskMaker(Instructions instructions)
{
    switch (instructions) {
#ifdef __x86_64__
    case Instructions::Avx2:
        return __builtin_cpu_supports("avx2") ? avx2Masks : nullptr;
    case Instructions::Sse2:
        return sse2Masks;
#endif
    case Instructions::Plain:
        return plainMasks;
    default:
        return nullptr;
    }
}

MaskMaker bestMaskMaker()
{
    for (const Instructions instructions : {Instructions::Avx2, Instructions::Sse2}) {
        if (MaskMaker const maker = maskMaker(instructions))
            return maker;
    }
    return plainMasks;
}

} // namespace zrv
