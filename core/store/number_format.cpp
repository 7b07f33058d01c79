// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/store/number_format.h"

namespace zrv {

using namespace Qt::Literals::StringLiterals;

namespace {

struct Whole {
    bool isNumber = false;
    bool negative = false;
    QString digits; ///< without leading zeros
};

/// Adds one to a row of digits.
QString oneMore(QString digits)
{
    for (qsizetype i = digits.size(); i-- > 0;) {
        if (digits[i] != u'9') {
            digits[i] = QChar(digits[i].unicode() + 1);
            return digits;
        }
        digits[i] = u'0';
    }
    return u'1' + digits;
}

/// Reads a number and rounds it to a whole one, halves away from zero.
Whole readWhole(QStringView text)
{
    Whole whole;
    text = text.trimmed();
    if (text.startsWith(u'-') || text.startsWith(u'+')) {
        whole.negative = text.front() == u'-';
        text = text.mid(1);
    }
    const qsizetype point = text.indexOf(u'.');
    const QStringView fraction = point < 0 ? QStringView() : text.mid(point + 1);
    for (const QChar c : point < 0 ? text : text.first(point)) {
        if (c == u',')
            continue;
        if (c < u'0' || c > u'9')
            return {};
        whole.digits += c;
    }
    for (const QChar c : fraction) {
        if (c < u'0' || c > u'9')
            return {};
    }
    whole.isNumber = !whole.digits.isEmpty() || !fraction.isEmpty();
    if (!fraction.isEmpty() && fraction.front() >= u'5')
        whole.digits = oneMore(whole.digits);
    while (whole.digits.startsWith(u'0'))
        whole.digits.remove(0, 1);
    whole.negative = whole.negative && !whole.digits.isEmpty();
    return whole;
}

bool isPlace(QChar c)
{
    return c == u'0' || c == u'#';
}

QString fill(QStringView pattern, QString digits)
{
    const bool grouped = pattern.contains(u',');
    qsizetype firstPlace = 0;
    while (firstPlace < pattern.size() && !isPlace(pattern[firstPlace]))
        ++firstPlace;
    QString reversed;
    qsizetype shown = 0;
    const auto put = [&](QChar digit) {
        if (grouped && shown > 0 && shown % 3 == 0)
            reversed += u',';
        reversed += digit;
        ++shown;
    };
    const auto putLast = [&] {
        put(digits.back());
        digits.chop(1);
    };
    for (qsizetype i = pattern.size(); i-- > 0;) {
        if (!isPlace(pattern[i])) {
            if (pattern[i] != u',')
                reversed += pattern[i];
            continue;
        }
        if (!digits.isEmpty())
            putLast();
        else if (pattern[i] == u'0')
            put(u'0');
        while (i == firstPlace && !digits.isEmpty())
            putLast();
    }
    std::reverse(reversed.begin(), reversed.end());
    return reversed;
}

} // namespace

QString formatNumber(QStringView number, QStringView pattern)
{
    const Whole whole = readWhole(number);
    if (!whole.isNumber)
        return number.toString();
    const QString filled = fill(pattern, whole.digits);
    return whole.negative ? QString(u'-' + filled) : filled;
}

} // namespace zrv
