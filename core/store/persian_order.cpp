// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/store/persian_order.h"

#include <array>
#include <cstdint>

namespace zrv {

namespace {

// Weights of the groups. A group marked as open takes its signs in the order of their code points.
constexpr std::uint8_t Ignored = 0;
constexpr std::uint8_t Blank = 1;
constexpr std::uint8_t OpenSigns = 2;
constexpr std::uint8_t Digits = 10;
constexpr std::uint8_t Latin = 20;
constexpr std::uint8_t OpenLetters = 60; // of other scripts, Latin letters with marks
constexpr std::uint8_t Alphabet = 70;
constexpr std::uint8_t OpenArabic = 200; // letters of other languages in the Arabic script

constexpr char32_t FirstArabic = 0x0600;
constexpr char32_t LastArabic = 0x06FF;

// One entry a letter, in the order of the alphabet; the signs of an entry are of equal rank.
constexpr std::u32string_view Letters[] = {
    U"\u0622",                               // alef with madda
    U"\u0627\u0671",                         // alef
    U"\u0621\u0623\u0625\u0624\u0626",       // hamza and its seats
    U"\u0628",                               // beh
    U"\u067E",                               // peh
    U"\u062A",                               // teh
    U"\u0679",                               // tteh
    U"\u062B",                               // theh
    U"\u062C",                               // jeem
    U"\u0686",                               // tcheh
    U"\u062D",                               // hah
    U"\u062E",                               // khah
    U"\u062F",                               // dal
    U"\u0688",                               // ddal
    U"\u0630",                               // thal
    U"\u0631",                               // reh
    U"\u0691",                               // rreh
    U"\u0632",                               // zain
    U"\u0698",                               // jeh
    U"\u0633",                               // seen
    U"\u0634",                               // sheen
    U"\u0635",                               // sad
    U"\u0636",                               // dad
    U"\u0637",                               // tah
    U"\u0638",                               // zah
    U"\u0639",                               // ain
    U"\u063A",                               // ghain
    U"\u0641",                               // feh
    U"\u0642",                               // qaf
    U"\u0643\u06A9\u06AA",                   // kaf
    U"\u06AF",                               // gaf
    U"\u0644",                               // lam
    U"\u0645",                               // meem
    U"\u0646\u06BA",                         // noon
    U"\u0648",                               // waw
    U"\u0647\u0629\u06C0\u06C1\u06BE\u06D5", // heh
    U"\u064A\u06CC\u0649\u06D2\u06D0",       // yeh
};

constexpr auto arabicWeights()
{
    std::array<std::uint8_t, LastArabic - FirstArabic + 1> weights{};
    for (auto &weight : weights)
        weight = OpenArabic;
    std::uint8_t weight = Alphabet;
    for (const std::u32string_view letter : Letters) {
        for (const char32_t sign : letter)
            weights[sign - FirstArabic] = weight;
        ++weight;
    }
    for (char32_t digit = 0; digit < 10; ++digit) {
        weights[0x0660 + digit - FirstArabic] = std::uint8_t(Digits + digit);
        weights[0x06F0 + digit - FirstArabic] = std::uint8_t(Digits + digit);
    }
    for (char32_t mark = 0x064B; mark <= 0x065F; ++mark)
        weights[mark - FirstArabic] = Ignored;
    weights[0x0640 - FirstArabic] = Ignored; // kashida
    weights[0x0670 - FirstArabic] = Ignored;
    for (const char32_t sign : {0x060C, 0x061B, 0x061F, 0x066A, 0x066B, 0x066C, 0x066D, 0x06D4})
        weights[sign - FirstArabic] = OpenSigns;
    return weights;
}

constexpr auto ArabicWeights = arabicWeights();

std::uint8_t weightOf(char32_t sign)
{
    if (sign >= U'0' && sign <= U'9')
        return std::uint8_t(Digits + (sign - U'0'));
    if (sign >= U'a' && sign <= U'z')
        return std::uint8_t(Latin + (sign - U'a'));
    if (sign >= U'A' && sign <= U'Z')
        return std::uint8_t(Latin + (sign - U'A'));
    if (sign >= FirstArabic && sign <= LastArabic)
        return ArabicWeights[sign - FirstArabic];
    if (sign == U' ' || sign == 0x00A0)
        return Blank;
    if ((sign >= 0x200B && sign <= 0x200F) || (sign >= 0x202A && sign <= 0x202E) || (sign >= 0x2066 && sign <= 0x2069))
        return Ignored;
    const bool isSign = sign < 0x00C0 || (sign >= 0x2000 && sign <= 0x2BFF);
    return isSign ? OpenSigns : OpenLetters;
}

/// The next code point. A byte that doesn't fit stands for itself: the key of any bytes is defined.
char32_t takeSign(std::string_view utf8, std::size_t &at)
{
    const auto byte = [&](std::size_t i) { return std::uint8_t(i < utf8.size() ? utf8[i] : 0); };
    const std::uint8_t first = byte(at++);
    const int more = first >= 0xF0 ? 3 : first >= 0xE0 ? 2 : first >= 0xC2 ? 1 : 0;
    if (more == 0)
        return first;
    auto sign = char32_t(first & (0x3F >> more));
    for (int i = 0; i < more; ++i) {
        if ((byte(at + std::size_t(i)) & 0xC0) != 0x80)
            return first;
        sign = (sign << 6) | (byte(at + std::size_t(i)) & 0x3F);
    }
    at += std::size_t(more);
    return sign;
}

} // namespace

std::string persianOrderKey(std::string_view utf8)
{
    std::string key;
    key.reserve(utf8.size());
    for (std::size_t at = 0; at < utf8.size();) {
        const char32_t sign = takeSign(utf8, at);
        const std::uint8_t weight = weightOf(sign);
        if (weight == Ignored)
            continue;
        key += char(weight);
        if (weight == OpenSigns || weight == OpenLetters || weight == OpenArabic) {
            key += char(sign >> 16);
            key += char((sign >> 8) & 0xFF);
            key += char(sign & 0xFF);
        }
    }
    return key;
}

} // namespace zrv
