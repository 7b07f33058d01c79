// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/public/number_words.h"

#include "core/basic/run_time_error.h"

#include <QStringList>

#include <array>

namespace zrv {
namespace {

using namespace Qt::Literals::StringLiterals;

// clang-format off
constexpr std::array<QStringView, 20> Ones = {
    u"",
    u"يك", u"دو", u"سه", u"چهار", u"پنج", u"شش", u"هفت", u"هشت", u"نه",
    u"ده", u"يازده", u"دوازده", u"سيزده", u"چهارده",
    u"پانزده", u"شانزده", u"هفده", u"هيجده", u"نوزده",
};

constexpr std::array<QStringView, 10> Tens = {
    u"",
    u"ده", u"بيست", u"سي", u"چهل", u"پنجاه", u"شصت", u"هفتاد", u"هشتاد", u"نود",
};

constexpr std::array<QStringView, 10> Hundreds = {
    u"",
    u"يكصد", u"دويست", u"سيصد", u"چهارصد", u"پانصد",
    u"ششصد", u"هفتصد", u"هشتصد", u"نهصد",
};

struct Group {
    qint64 size;
    QStringView name;
};

constexpr std::array<Group, 4> Groups = {{
    {1'000'000'000, u" ميليارد "},
    {    1'000'000, u" ميليون "},
    {        1'000, u" هزار"},
    {            1, u""},
}};
// clang-format on

constexpr QStringView And = u" و ";
constexpr qint64 LargestInWords = 999'999'999'999;

QString words(qint64 amount)
{
    if (amount < 0)
        return {};
    if (amount == 0)
        return u"صفر"_s;
    if (amount > LargestInWords)
        return QString(27, u'*');

    QStringList parts;
    for (const Group &group : Groups) {
        const qint64 digits = amount / group.size % 1000;
        if (digits != 0)
            parts += ThreeDigitWords(digits) + group.name;
    }
    return parts.join(And);
}

} // namespace

QString ThreeDigitWords(qint64 amount)
{
    if (amount < 0 || amount > 999)
        throw RunTimeError(error::SubscriptOutOfRange, u"عدد سه رقمي مورد انتظار بود: "_s + QString::number(amount));

    const qint64 rest = amount % 100;
    QStringList parts;
    const auto add = [&parts](QStringView word) {
        if (!word.isEmpty())
            parts += word.toString();
    };
    add(Hundreds[amount / 100]);
    if (rest < 20) {
        add(Ones[rest]);
    } else {
        add(Tens[rest / 10]);
        add(Ones[rest % 10]);
    }
    return parts.join(And);
}

QString NumberToWords(qint64 amount, QStringView unit)
{
    return words(amount) + u' ' + unit;
}

QString NumberToWords(double amount, QStringView unit)
{
    if (amount > double(LargestInWords))
        return NumberToWords(LargestInWords + 1, unit);
    const bool wordless = amount < 0 || (amount > 0 && amount < 1);
    return NumberToWords(wordless ? qint64(-1) : qint64(amount), unit);
}

} // namespace zrv
