// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The two questions on letters that every rule asks, answered without regard to script or locale.

#include <QString>
#include <QStringView>

namespace zrv {

/// 0 to 9 and no digit of any other script: stored texts and files hold these alone.
[[nodiscard]] constexpr bool isAsciiDigit(QChar letter)
{
    return letter.unicode() >= u'0' && letter.unicode() <= u'9';
}

/// The text without the blanks (U+0020) at its two ends. Tabs, line ends and no-break blanks stay, unlike
/// with QString::trimmed(): in a file's field they are content, which the checks must see.
[[nodiscard]] constexpr QStringView trimBlanks(QStringView text)
{
    while (!text.isEmpty() && text.front() == u' ')
        text = text.sliced(1);
    while (!text.isEmpty() && text.back() == u' ')
        text.chop(1);
    return text;
}

/// trimBlanks() as a text of its own.
[[nodiscard]] inline QString Trim(QStringView text)
{
    return trimBlanks(text).toString();
}

} // namespace zrv
