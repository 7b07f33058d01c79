// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/basic/number_format.h"

#include "core/basic/text.h"
#include "core/basic/val.h"

#include <algorithm>
#include <cmath>

namespace zrv {
namespace {

constexpr bool isPlace(QChar letter)
{
    return letter == u'0' || letter == u'#';
}

/// Builds a formatted number from its last letter to its first, the order in which digits find their places.
class BackwardText {
public:
    explicit BackwardText(bool grouped)
        : m_grouped(grouped)
    {
    }

    void addLiteral(QChar letter) { m_text += letter; }

    void addDigit(QChar digit)
    {
        if (m_grouped && m_digits > 0 && m_digits % 3 == 0)
            m_text += u',';
        m_text += digit;
        ++m_digits;
    }

    [[nodiscard]] QString forward() &&
    {
        std::reverse(m_text.begin(), m_text.end());
        return std::move(m_text);
    }

private:
    QString m_text;
    int m_digits = 0;
    bool m_grouped;
};

/// Digits without sign, in a picture.
QString placed(QStringView digits, bool negative, QStringView picture)
{
    if (const qsizetype second = picture.indexOf(u';'); second >= 0)
        return negative ? placed(digits, false, picture.sliced(second + 1))
                        : placed(digits, false, picture.first(second));
    while (!digits.isEmpty() && digits.front() == u'0')
        digits = digits.sliced(1);

    const auto firstPlace = std::find_if(picture.begin(), picture.end(), isPlace);
    BackwardText text(picture.contains(u','));
    for (auto letter = picture.end(); letter-- != picture.begin();) {
        if (*letter == u',')
            continue;
        if (!isPlace(*letter)) {
            text.addLiteral(*letter);
            continue;
        }
        if (!digits.isEmpty()) {
            text.addDigit(digits.back());
            digits.chop(1);
        } else if (*letter == u'0') {
            text.addDigit(u'0');
        }
        for (; letter == firstPlace && !digits.isEmpty(); digits.chop(1))
            text.addDigit(digits.back());
    }
    if (negative)
        text.addLiteral(u'-');
    return std::move(text).forward();
}

/// A whole number as QString::number gives it.
QString placed(QStringView number, QStringView picture)
{
    const bool negative = number.startsWith(u'-');
    return placed(number.sliced(negative ? 1 : 0), negative, picture);
}

} // namespace

QString Format(qint64 value, QStringView picture)
{
    return placed(QString::number(value), picture);
}

QString Format(double value, QStringView picture)
{
    return placed(QString::number(std::round(value), 'f', 0), picture);
}

QString Format(QStringView text, QStringView picture)
{
    if (!text.isEmpty() && std::ranges::all_of(text, isAsciiDigit))
        return placed(text, false, picture);
    if (!IsNumeric(text))
        return text.toString();

    QString number = text.toString().remove(u',');
    const bool whole = std::ranges::none_of(number, [](QChar letter) { return letter == u'.' || letter.isLetter(); });
    return whole ? Format(wholeVal(number), picture) : Format(Val(number), picture);
}

} // namespace zrv
