// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/public/filter_key.h"

#include "core/basic/text.h"

#include <algorithm>
#include <array>
#include <span>

namespace zrv {
namespace {

struct CodeRange {
    int first;
    int last;
};

// clang-format off
constexpr std::array AlwaysPassing = {CodeRange{8, 8}, CodeRange{13, 13}, CodeRange{27, 27}};

constexpr std::array Digits = {CodeRange{'0', '9'}};

constexpr std::array PersianLetters = { // codes of Windows-1256
    CodeRange{32, 32},   CodeRange{129, 129}, CodeRange{141, 142}, CodeRange{144, 144}, CodeRange{152, 152},
    CodeRange{193, 214}, CodeRange{216, 219}, CodeRange{221, 223}, CodeRange{225, 225}, CodeRange{227, 230},
    CodeRange{236, 237}, CodeRange{45, 45},   CodeRange{47, 47},
};

constexpr std::array LatinLetters = {CodeRange{' ', ' '}, CodeRange{'A', 'Z'}, CodeRange{'a', 'z'}};

struct TagWord {
    QStringView word;
    std::span<const CodeRange> codes;
};

constexpr std::array<TagWord, 3> TagWords = {{
    {u"+DigitOnly", Digits},
    {u"+FA",        PersianLetters},
    {u"+EN",        LatinLetters},
}};
// clang-format on

bool holds(std::span<const CodeRange> codes, int code)
{
    return std::ranges::any_of(codes, [code](CodeRange range) { return range.first <= code && code <= range.last; });
}

} // namespace

int FilterKey(QStringView tag, int ansiCode)
{
    if (holds(AlwaysPassing, ansiCode) || trimBlanks(tag).isEmpty())
        return ansiCode;
    const bool passes = std::ranges::any_of(TagWords, [tag, ansiCode](const TagWord &tagWord) {
        return tag.contains(tagWord.word) && holds(tagWord.codes, ansiCode);
    });
    return passes ? ansiCode : 0;
}

} // namespace zrv
