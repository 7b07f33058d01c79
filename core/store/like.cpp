// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/store/like.h"

namespace zrv {

namespace {

constexpr char16_t ZeroWidthNonJoiner = 0x200C;
constexpr char16_t ArabicYeh = 0x064A;
constexpr char16_t Keheh = 0x06A9;

char16_t searchLetter(char16_t letter)
{
    switch (letter) {
    case 0x06CC: // Farsi yeh
    case 0x0649: // alef maksura, which old layouts type for a final yeh
        return ArabicYeh;
    case 0x0643: // Arabic kaf
        return Keheh;
    default:
        return char16_t(QChar::toCaseFolded(letter));
    }
}

} // namespace

QString searchForm(QStringView text)
{
    QString form(text.size(), Qt::Uninitialized);
    QChar *out = form.data();
    for (const QChar c : text) {
        if (c != ZeroWidthNonJoiner)
            *out++ = searchLetter(c.unicode());
    }
    form.truncate(out - form.constData());
    return form;
}

bool matches(QStringView pattern, QStringView text)
{
    // On a mismatch the last `%` takes one letter more: no pattern costs more than its length times the text's.
    qsizetype at = 0;
    qsizetype star = -1;
    qsizetype taken = 0;
    for (qsizetype i = 0; i < text.size();) {
        if (at < pattern.size() && pattern[at] == u'%') {
            star = at++;
            taken = i;
        } else if (at < pattern.size() && (pattern[at] == u'_' || pattern[at] == text[i])) {
            ++at;
            ++i;
        } else if (star >= 0) {
            at = star + 1;
            i = ++taken;
        } else {
            return false;
        }
    }
    while (at < pattern.size() && pattern[at] == u'%')
        ++at;
    return at == pattern.size();
}

} // namespace zrv
