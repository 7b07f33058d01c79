// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/basic/letter_fold.h"

namespace zrv {
namespace {

constexpr QChar ZeroWidthNonJoiner = u'\u200C';

QChar folded(QChar letter)
{
    switch (letter.unicode()) {
    case u'\u06CC': // Farsi yeh
    case u'\u0649': // alef maksura, drawn like a final Farsi yeh
        return u'\u064A';
    case u'\u0643': // kaf
        return u'\u06A9';
    default:
        return letter.toCaseFolded();
    }
}

} // namespace

QString searchKey(QStringView text)
{
    QString key(text.size(), Qt::Uninitialized);
    QChar *end = key.data();
    for (const QChar letter : text) {
        if (letter != ZeroWidthNonJoiner)
            *end++ = folded(letter);
    }
    key.truncate(end - key.constData());
    return key;
}

} // namespace zrv
