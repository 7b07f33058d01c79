// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/public/digit_codes.h"

#include "core/basic/ansi.h"
#include "core/basic/text.h"
#include "core/basic/val.h"

#include <algorithm>

namespace zrv {
namespace {

QString firstCode(QStringView text, bool digitSought)
{
    const auto found =
        std::ranges::find_if(text, [digitSought](QChar letter) { return isAsciiDigit(letter) == digitSought; });
    if (found == text.end())
        return numberText(-1);
    const int code = ansiCode(*found);
    return strText(code < 0 ? u'?' : code);
}

} // namespace

QString FirstDigitCode(QStringView text)
{
    return firstCode(text, true);
}

QString FirstNonDigitCode(QStringView text)
{
    return firstCode(text, false);
}

} // namespace zrv
