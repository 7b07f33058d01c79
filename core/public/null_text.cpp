// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/public/null_text.h"

#include "core/basic/text.h"
#include "core/basic/val.h"

namespace zrv {

using namespace Qt::Literals::StringLiterals;

QString NullToZero(const std::optional<QString> &text)
{
    return !text || trimBlanks(*text).isEmpty() ? u"0"_s : *text;
}

QString NullToEmpty(const std::optional<QString> &text)
{
    return text ? Trim(*text) : QString();
}

QString NegativeToZero(const QString &text)
{
    return Val(text) < 0 ? u"0"_s : text;
}

} // namespace zrv
