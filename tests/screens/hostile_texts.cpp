// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/screens/hostile_texts.h"

#include <array>

namespace zrv {

using namespace Qt::Literals::StringLiterals;

namespace {

struct Range {
    char16_t first;
    char16_t last;
};

// clang-format off
constexpr std::array Latin{Range{u' ', u'~'}, Range{u'A', u'Z'}, Range{u'a', u'z'}, Range{u'0', u'9'}};
constexpr std::array Persian{
    Range{0x0621, 0x064A}, Range{0x064B, 0x0652}, Range{0x0660, 0x0669}, Range{0x067E, 0x067E}, Range{0x0686, 0x0686},
    Range{0x06A9, 0x06AF}, Range{0x06CC, 0x06CC}, Range{0x06F0, 0x06F9}, Range{0x200C, 0x200C}, Range{0xFE70, 0xFEFC},
    Range{u' ', u' '},
};
constexpr std::array Controls{Range{0x0000, 0x001F}, Range{0x007F, 0x00A0}, Range{0x200B, 0x200F}, Range{0x2028, 0x202E}, Range{0xFEFF, 0xFEFF}};
constexpr std::array Quotes{
    Range{u'\'', u'\''}, Range{u'"', u'"'}, Range{u'`', u'`'}, Range{u';', u';'}, Range{u'-', u'-'}, Range{u'%', u'%'},
    Range{u'[', u']'}, Range{u'(', u'+'}, Range{0x2018, 0x201F}, Range{0xFF07, 0xFF07}, Range{u'a', u'c'}, Range{u'1', u'3'},
};
constexpr std::array Surrogates{Range{0xD800, 0xDFFF}, Range{0xFFF0, 0xFFFF}};
// clang-format on

const std::array Pieces{
    u"' OR '1'='1"_s,
    u"'; DELETE FROM ZRVtbCoding; --"_s,
    u"','x') --"_s,
    u"\" OR \"\"=\""_s,
    u"x' UNION SELECT * FROM User_Defination --"_s,
    u"\u200E1\u200F2\u202E3"_s,
    u"\U0001F600\U0001F4A9"_s,
    u"%_%"_s,
};

class Writer {
public:
    explicit Writer(std::mt19937::result_type seed)
        : m_random(seed)
    {
    }

    QString text()
    {
        if (below(8) == 0)
            return Pieces[static_cast<size_t>(below(static_cast<int>(Pieces.size())))];
        QString result;
        const int length = below(50) == 0 ? 300 + below(2000) : 1 + below(40);
        const int kind = below(6);
        while (result.size() < length)
            result += letter(kind);
        return result;
    }

private:
    int below(int limit) { return std::uniform_int_distribution<int>(0, limit - 1)(m_random); }

    template <class Ranges>
    QChar letterOf(const Ranges &ranges)
    {
        const Range range = ranges[static_cast<size_t>(below(static_cast<int>(ranges.size())))];
        return QChar(static_cast<char16_t>(range.first + below(range.last - range.first + 1)));
    }

    QChar letter(int kind)
    {
        switch (kind) {
        case 0:
            return letterOf(Latin);
        case 1:
            return letterOf(Persian);
        case 2:
            return letterOf(Controls);
        case 3:
            return letterOf(Quotes);
        case 4:
            return letterOf(Surrogates);
        default:
            return letter(below(5));
        }
    }

    std::mt19937 m_random;
};

} // namespace

std::vector<QString> hostileTexts(int count, std::mt19937::result_type seed)
{
    Writer writer(seed);
    std::vector<QString> texts;
    for (int i = 0; i < count; ++i)
        texts.push_back(writer.text());
    return texts;
}

} // namespace zrv
