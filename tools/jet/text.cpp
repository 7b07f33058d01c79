// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/jet/text.h"

namespace zrv::jet {

using namespace Qt::Literals::StringLiterals;

QString plainText(Bytes bytes)
{
    if (bytes.size() % 2 != 0)
        damaged(u"a text ends within a letter"_s);
    QString text(qsizetype(bytes.size() / 2), Qt::Uninitialized);
    for (qsizetype i = 0; i < text.size(); ++i)
        text[i] = QChar(bytes.u16(2 * std::size_t(i)));
    return text;
}

QString textOf(Bytes bytes)
{
    if (bytes.size() < 2 || bytes.u16(0) != 0xFEFF)
        return plainText(bytes);
    QString text;
    text.reserve(qsizetype(bytes.size()));
    bool isShort = true; // one byte a letter
    for (std::size_t at = 2; at < bytes.size();) {
        if (bytes.u8(at) == 0) {
            isShort = !isShort;
            ++at;
        } else if (isShort) {
            text.append(QChar(char16_t(bytes.u8(at++))));
        } else if (at + 1 == bytes.size()) {
            damaged(u"a text ends within a letter"_s);
        } else {
            text.append(QChar(bytes.u16(at)));
            at += 2;
        }
    }
    return text;
}

} // namespace zrv::jet
