// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/zrvstore/letters.h"

#include <QChar>

#include <algorithm>
#include <iterator>

namespace zrv::storetool {

namespace {

struct Range {
    char32_t first;
    char32_t last;
    Letters meaning;
};

// What isn't named here is odd.
// clang-format off
constexpr Range Ranges[] = {
    {0x0000, 0x001F, Letters::Damaged},
    {0x0020, 0x007E, Letters::Sound},
    {0x007F, 0x007F, Letters::Damaged},
    {0x0080, 0x009F, Letters::OldCodePage},
    {0x00A0, 0x00A9, Letters::Sound},       // signs, and the first of the Persian quotation marks
    {0x00AA, 0x00AA, Letters::OldCodePage},
    {0x00AB, 0x00B4, Letters::Sound},
    {0x00B5, 0x00B5, Letters::OldCodePage},
    {0x00B6, 0x00B9, Letters::Sound},
    {0x00BA, 0x00BA, Letters::OldCodePage},
    {0x00BB, 0x00BF, Letters::Sound},
    {0x00C0, 0x00D6, Letters::OldCodePage},
    {0x00D7, 0x00D7, Letters::Sound},       // times
    {0x00D8, 0x00F6, Letters::OldCodePage},
    {0x00F7, 0x00F7, Letters::Sound},       // divided by
    {0x00F8, 0x00FF, Letters::OldCodePage},
    {0x060C, 0x060C, Letters::Sound},       // the comma
    {0x061B, 0x061B, Letters::Sound},
    {0x061F, 0x061F, Letters::Sound},
    {0x0621, 0x063A, Letters::Sound},
    {0x0640, 0x0655, Letters::Sound},       // letters, and the vowels above and below them
    {0x0660, 0x066C, Letters::Sound},       // digits and their signs
    {0x0670, 0x06D5, Letters::Sound},
    {0x06EE, 0x06FF, Letters::Sound},
    {0x200B, 0x2027, Letters::Sound},       // joiners, direction marks, dashes, quotation marks
    {0x202A, 0x205E, Letters::Sound},
    {0x2066, 0x2069, Letters::Sound},
    {0x20A0, 0x20CF, Letters::Sound},       // currencies
    {0x2100, 0x214F, Letters::Sound},
    {0xD800, 0xDFFF, Letters::Damaged},     // halves of letters
    {0xFB50, 0xFDCF, Letters::Sound},       // forms of Arabic letters
    {0xFDD0, 0xFDEF, Letters::Damaged},     // no letters
    {0xFDF0, 0xFDFF, Letters::Sound},
    {0xFE70, 0xFEFC, Letters::Sound},
    {0xFFFD, 0xFFFF, Letters::Damaged},     // stands for a lost letter, or no letters
};
// clang-format on

Letters meaningOf(char32_t letter)
{
    const auto range =
        std::ranges::lower_bound(Ranges, letter, {}, [](const Range &candidate) { return candidate.last; });
    return range != std::end(Ranges) && range->first <= letter ? range->meaning : Letters::Odd;
}

} // namespace

Letters lettersOf(QStringView text)
{
    Letters worst = Letters::Sound;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const bool isPair = text[i].isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate();
        worst = std::max(worst, isPair ? Letters::Odd : meaningOf(text[i].unicode()));
        i += isPair;
    }
    return worst;
}

} // namespace zrv::storetool
