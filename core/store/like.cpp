// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/store/like.h"

namespace zrv {

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
