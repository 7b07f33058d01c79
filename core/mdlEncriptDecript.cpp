// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/mdlEncriptDecript.h"

#include "core/basic/ansi.h"
#include "core/basic/text.h"

#include <algorithm>
#include <array>

namespace zrv {
namespace {

using namespace Qt::Literals::StringLiterals;

constexpr char Alphabet[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
constexpr int LettersPerGroup = 4;
constexpr int CodesPerGroup = 3;

/// The six bits of each letter of the alphabet; -1 for all other letters.
constexpr auto SixBits = [] {
    std::array<qint8, 128> bits{};
    bits.fill(-1);
    for (int i = 0; i < 64; ++i)
        bits[uchar(Alphabet[i])] = qint8(i);
    bits['='] = 0;
    return bits;
}();

int sixBits(QChar letter)
{
    return letter.unicode() < SixBits.size() ? SixBits[letter.unicode()] : -1;
}

/// A letter that the code page lacks is written as a question mark, as on every way into that code page.
char ansiByte(QChar letter)
{
    const int code = ansiCode(letter);
    return static_cast<char>(code < 0 ? '?' : code);
}

} // namespace

QString EncodeBase64(QStringView text)
{
    QByteArray bytes(text.size(), Qt::Uninitialized);
    std::ranges::transform(text, bytes.begin(), ansiByte);
    return QString::fromLatin1(bytes.toBase64());
}

QString DecodeBase64(QStringView text)
{
    const QString packed = text.toString().remove(u"\r\n"_s).remove(u'\t').remove(u' ');
    if (packed.size() % LettersPerGroup != 0)
        return InvalidBase64Length.toString();

    QString decoded;
    decoded.reserve(packed.size() / LettersPerGroup * CodesPerGroup);
    for (qsizetype group = 0; group < packed.size(); group += LettersPerGroup) {
        int codes = 0;
        int kept = CodesPerGroup;
        for (const QChar letter : QStringView(packed).sliced(group, LettersPerGroup)) {
            const int bits = sixBits(letter);
            if (bits < 0)
                return InvalidBase64Letter.toString();
            codes = codes << 6 | bits;
            // No place is asked of it: a group may even hold four, and then gives nothing.
            if (letter == u'=')
                --kept;
        }
        for (int shift = 16; kept > 0; --kept, shift -= 8)
            decoded += ansiLetter(codes >> shift & 0xFF);
    }
    return decoded;
}

} // namespace zrv
