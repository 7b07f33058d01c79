// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/basic/val.h"

#include "core/basic/text.h"

#include <QVarLengthArray>

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>

namespace zrv {
namespace {

/// A number as found in a text, reduced to what every converter reads: [-]digits[.digits][e[sign]digits].
using PlainNumber = QVarLengthArray<char16_t, 48>;

constexpr bool isStrewnBlank(QChar letter)
{
    return letter == u' ' || letter == u'\t' || letter == u'\n';
}

constexpr bool isWhiteSpace(QChar letter)
{
    return letter == u' ' || (letter >= u'\t' && letter <= u'\r');
}

constexpr bool isExponentMark(char16_t letter)
{
    return letter == u'E' || letter == u'e' || letter == u'D' || letter == u'd';
}

enum class Blanks { AreLetters, AreSkipped };

class Letters {
public:
    Letters(QStringView text, Blanks blanks)
        : m_text(text)
        , m_blanks(blanks)
    {
        skip();
    }

    /// 0 at the end of the text.
    [[nodiscard]] char16_t current() const { return m_text.isEmpty() ? u'\0' : m_text.front().unicode(); }
    [[nodiscard]] bool atEnd() const { return m_text.isEmpty(); }

    void next()
    {
        m_text = m_text.sliced(1);
        skip();
    }

private:
    void skip()
    {
        while (m_blanks == Blanks::AreSkipped && !m_text.isEmpty() && isStrewnBlank(m_text.front()))
            m_text = m_text.sliced(1);
    }

    QStringView m_text;
    Blanks m_blanks;
};

void takeSign(Letters &letters, PlainNumber &number)
{
    if (letters.current() == u'-')
        number.append(u'-');
    if (letters.current() == u'-' || letters.current() == u'+')
        letters.next();
}

enum class Commas { EndTheNumber, DivideIt };

/// The number of digits taken. Commas that divide them stand behind the first.
qsizetype takeDigits(Letters &letters, PlainNumber &number, Commas commas = Commas::EndTheNumber)
{
    qsizetype taken = 0;
    for (;; letters.next()) {
        const char16_t letter = letters.current();
        if (isAsciiDigit(letter)) {
            number.append(letter);
            ++taken;
        } else if (letter != u',' || commas == Commas::EndTheNumber || taken == 0) {
            return taken;
        }
    }
}

/// Leaves the letters where they are when the mark is followed by no digit: then it belongs to another text.
void takeExponent(Letters &letters, PlainNumber &number)
{
    if (!isExponentMark(letters.current()))
        return;
    Letters ahead = letters;
    ahead.next();
    PlainNumber exponent;
    exponent.append(u'e');
    takeSign(ahead, exponent);
    if (takeDigits(ahead, exponent) == 0)
        return;
    number.append(exponent.constData(), exponent.size());
    letters = ahead;
}

/// Empty when the letters begin with no number.
PlainNumber takeNumber(Letters &letters, Commas commas)
{
    PlainNumber number;
    takeSign(letters, number);
    qsizetype digits = takeDigits(letters, number, commas);
    if (letters.current() == u'.') {
        letters.next();
        if (digits == 0)
            number.append(u'0');
        number.append(u'.');
        const qsizetype decimals = takeDigits(letters, number);
        if (decimals == 0)
            number.removeLast();
        digits += decimals;
    }
    if (digits == 0)
        return {};
    takeExponent(letters, number);
    return number;
}

/// Infinite beyond the range of double.
double toDouble(const PlainNumber &number)
{
    return QStringView(number).toDouble();
}

PlainNumber leadingNumber(QStringView text)
{
    Letters letters(text, Blanks::AreSkipped);
    return takeNumber(letters, Commas::EndTheNumber);
}

/// What nearly every text is: digits alone, few enough for 64 bits.
std::optional<qint64> shortWhole(QStringView text)
{
    constexpr qsizetype SafeDigits = 18;
    if (text.isEmpty() || text.size() > SafeDigits)
        return {};
    qint64 whole = 0;
    for (const QChar letter : text) {
        if (!isAsciiDigit(letter))
            return {};
        whole = whole * 10 + (letter.unicode() - u'0');
    }
    return whole;
}

qint64 saturated(double number)
{
    // 2 to the 63rd is the first double that no longer fits.
    constexpr double Limit = 9223372036854775808.0;
    if (number >= Limit)
        return std::numeric_limits<qint64>::max();
    if (number < -Limit)
        return std::numeric_limits<qint64>::min();
    return static_cast<qint64>(number);
}

} // namespace

double Val(QStringView text)
{
    if (const auto whole = shortWhole(text))
        return static_cast<double>(*whole);
    const PlainNumber number = leadingNumber(text);
    if (number.isEmpty())
        return 0;
    constexpr double Largest = std::numeric_limits<double>::max();
    return std::clamp(toDouble(number), -Largest, Largest);
}

qint64 wholeVal(QStringView text)
{
    if (const auto whole = shortWhole(text))
        return *whole;
    const PlainNumber number = leadingNumber(text);
    if (std::find(number.cbegin(), number.cend(), u'e') != number.cend())
        return saturated(toDouble(number));

    const bool negative = !number.isEmpty() && number.front() == u'-';
    constexpr qint64 Largest = std::numeric_limits<qint64>::max();
    qint64 whole = 0;
    for (qsizetype i = negative ? 1 : 0; i < number.size() && number[i] != u'.'; ++i) {
        const qint64 digit = number[i] - u'0';
        if (whole > (Largest - digit) / 10)
            return negative ? std::numeric_limits<qint64>::min() : Largest;
        whole = whole * 10 + digit;
    }
    return negative ? -whole : whole;
}

bool IsNumeric(QStringView text)
{
    if (shortWhole(text))
        return true;
    while (!text.isEmpty() && isWhiteSpace(text.front()))
        text = text.sliced(1);
    while (!text.isEmpty() && isWhiteSpace(text.back()))
        text.chop(1);

    Letters letters(text, Blanks::AreLetters);
    const PlainNumber number = takeNumber(letters, Commas::DivideIt);
    return !number.isEmpty() && letters.atEnd() && std::isfinite(toDouble(number));
}

QString numberText(double number)
{
    constexpr int SignificantDigits = 15;
    return QString::number(number, 'G', SignificantDigits);
}

QString strText(double number)
{
    QString text = numberText(std::abs(number));
    if (text.startsWith(u"0."))
        text.remove(0, 1);
    return (number < 0 ? u'-' : u' ') + text;
}

} // namespace zrv
