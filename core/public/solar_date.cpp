// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/public/solar_date.h"

#include "core/basic/number_format.h"
#include "core/basic/run_time_error.h"
#include "core/basic/text.h"
#include "core/basic/val.h"

#include <array>

namespace zrv {
namespace {

using namespace Qt::Literals::StringLiterals;

constexpr int FirstYear = 622;

// clang-format off
constexpr std::array<QStringView, 7> WeekdayNames = { // from Sunday on
    u"يكشنبه", u"دوشنبه", u"سه شنبه", u"چهارشنبه",
    u"پنجشنبه", u"جمعه", u"شنبه",
};

constexpr std::array<QStringView, 12> MonthNames = {
    u"فروردين", u"ارديبهشت", u"خرداد", u"تير", u"مرداد", u"شهريور",
    u"مهر", u"آبان", u"آذر", u"دي", u"بهمن", u"اسفند",
};

// The last day of a Gregorian month that lies in the solar month begun in the month before, and the solar day
// on which the month's first day falls.
constexpr std::array<int, 12> LastDay  = {20, 19, 20, 20, 21, 21, 22, 22, 22, 22, 21, 21};
constexpr std::array<int, 12> FirstDay = {11, 12, 10, 12, 11, 11, 10, 10, 10,  9, 10, 10};
// clang-format on

void requireDate(QDate date)
{
    if (!date.isValid())
        throw RunTimeError(error::TypeMismatch, u"تاريخ معتبر نيست."_s);
}

struct SolarDay {
    int year = 0;
    int month = 0;
    int day = 0;
};

/// Month and day for a day of the solar year that is counted from 10 Dey of the year before.
SolarDay solarDay(int solarYear, int n)
{
    if (n < 21)
        return {solarYear, 10, n + 10};
    int d = n - 20;
    if (d < 31)
        return {solarYear, 11, d};
    d -= 30;
    const int leap = (solarYear - 1) % 4 == 3 ? 1 : 0;
    if (d < 30 + leap)
        return {solarYear, 12, d};
    d -= 29 + leap;
    for (int month = 1; month <= 6; ++month, d -= 31) {
        if (d < 32)
            return {solarYear, month, d};
    }
    for (int month = 7; month <= 9; ++month, d -= 30) {
        if (d < 31)
            return {solarYear, month, d};
    }
    if (d < 12)
        return {solarYear, 10, d};
    return {solarYear, 0, 0};
}

/// The bitwise complement of a 16-bit whole number, which is what Not is to this arithmetic.
qint16 complement(int number)
{
    return static_cast<qint16>(~number);
}

/// The correction for leap years, by whether the Gregorian and the solar year are some: -2, -3, 0 or -1.
int leapCorrection(int year)
{
    int gregorianLeap = year % 4 == 0 ? 1 : 0;
    if (year % 100 == 0 && year % 400 != 0)
        gregorianLeap = 0;
    const int cycle = (year - FirstYear - 22) % 33;
    const int solarLeap = cycle % 4 == 0 && cycle != 32 ? 1 : 0;
    return complement((solarLeap - 2) + complement(2 * (gregorianLeap - 2)));
}

/// Solar day, month and year as the long text shows them.
SolarDay displayedDay(QDate date)
{
    const int gregorianMonth = date.month();
    int correction = leapCorrection(date.year());
    const int extraDay = correction == 0 && gregorianMonth == 3 ? 1 : 0;
    if (correction == 0)
        correction = 3;

    int month = (gregorianMonth + 9) % 13;
    if (month < 10)
        ++month;
    // The correction is never 1 or 2, so that neither table is ever shifted and the text of a leap year may be
    // a day off. It has always shown so.
    int lastDay = LastDay[gregorianMonth - 1];
    if ((correction == 1 && gregorianMonth > 2) || (correction == 2 && gregorianMonth < 3))
        --lastDay;
    int firstDay = FirstDay[gregorianMonth - 1];
    if ((correction == 1 && gregorianMonth > 2) || (correction == 2 && gregorianMonth < 4))
        ++firstDay;

    const bool inFirstPart = date.day() <= lastDay;
    const int day = inFirstPart ? date.day() + firstDay + extraDay - 1 : date.day() - lastDay;
    if (!inFirstPart)
        month = month % 12 + 1;

    int year = date.year() - FirstYear;
    if ((!inFirstPart && gregorianMonth == 3) || gregorianMonth > 3)
        ++year;
    return {year, month, day};
}

} // namespace

QString SolarDate(QDate date, bool noSeparators)
{
    requireDate(date);
    const int year = date.year();
    if (year < FirstYear)
        throw RunTimeError(error::TypeMismatch, u"تاريخ پيش از آغاز تقويم هجري شمسي است."_s);

    int n = date.dayOfYear();
    if ((year - 1) % 4 == 0)
        ++n;
    const SolarDay solar = solarDay(n >= 80 ? year - 621 : year - 622, n);
    const QStringView separator = noSeparators ? u"" : u"/";
    return Format(solar.year, u"0000") + separator + Format(solar.month, u"00") + separator + Format(solar.day, u"00");
}

QString LongSolarDate(QDate date, QDate today, bool monthAsNumber)
{
    requireDate(date);
    requireDate(today);
    const SolarDay solar = displayedDay(date);
    if (monthAsNumber)
        return numberText(solar.year) + Format(solar.month, u"00") + Format(solar.day, u"00");

    const QStringView weekday = WeekdayNames[today.dayOfWeek() % 7];
    return weekday + u' ' + strText(solar.day) + u' ' + MonthNames[solar.month - 1] + u' ' + strText(solar.year);
}

QString FullYear(QStringView year)
{
    const QStringView trimmed = trimBlanks(year);
    if (!trimmed.isEmpty() && trimmed.size() < 4)
        return u"13" + trimmed;
    return trimmed.toString();
}

} // namespace zrv
