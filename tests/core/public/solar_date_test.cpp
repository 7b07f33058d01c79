// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/basic/run_time_error.h"
#include "core/public/solar_date.h"
#include "tests/print_text.h"

#include <QCalendar>

#include <gtest/gtest.h>
#include <map>

namespace zrv {
namespace {

constexpr int FirstYear = 1921;
constexpr int LastYear = 2100;

/// The same day by the library's Jalali calendar, which knows nothing of our arithmetic.
QString calendarDate(QDate date)
{
    static const QCalendar calendar(QCalendar::System::Jalali);
    const auto parts = calendar.partsFromDate(date);
    return QString::asprintf("%04d/%02d/%02d", parts.year, parts.month, parts.day);
}

template <class Visitor>
void forEveryDay(int firstYear, int lastYear, Visitor visit)
{
    for (QDate date(firstYear, 1, 1); date.year() <= lastYear; date = date.addDays(1))
        visit(date);
}

// clang-format off
// By Gregorian year, the number of days on which the arithmetic and the calendar differ, as measured.
const std::map<int, int> DepartingDays = {
    {1921, 79}, {1922, 286}, {1923, 365}, {1924, 366}, {1925, 79}, {1926, 286}, {1927, 365}, {1928, 366}, {1929, 79}, {1931, 286},
    {1932, 366}, {1933, 79}, {1935, 286}, {1936, 366}, {1937, 79}, {1939, 286}, {1940, 366}, {1941, 79}, {1943, 286}, {1944, 366},
    {1945, 79}, {1947, 286}, {1948, 366}, {1949, 79}, {1951, 286}, {1952, 366}, {1953, 79}, {1955, 286}, {1956, 366}, {1957, 79},
    {1959, 286}, {1960, 366}, {1961, 79}, {1964, 287}, {1965, 79}, {1968, 287}, {1969, 79}, {1972, 287}, {1973, 79}, {1976, 287},
    {1977, 79}, {1980, 287}, {1981, 79}, {1984, 287}, {1985, 79}, {1988, 287}, {1989, 79}, {1992, 287}, {1993, 79}, {1997, 1},
    {2001, 1}, {2005, 1}, {2009, 1}, {2013, 1}, {2017, 1}, {2021, 1}, {2025, 1}, {2029, 287}, {2030, 79}, {2033, 287},
    {2034, 79}, {2037, 287}, {2038, 79}, {2041, 287}, {2042, 79}, {2045, 287}, {2046, 79}, {2049, 287}, {2050, 79}, {2053, 287},
    {2054, 79}, {2057, 287}, {2058, 365}, {2059, 79}, {2061, 287}, {2062, 365}, {2063, 79}, {2065, 287}, {2066, 365}, {2067, 79},
    {2069, 287}, {2070, 365}, {2071, 79}, {2073, 287}, {2074, 365}, {2075, 79}, {2077, 287}, {2078, 365}, {2079, 79}, {2081, 287},
    {2082, 365}, {2083, 79}, {2085, 287}, {2086, 365}, {2087, 79}, {2089, 287}, {2090, 365}, {2091, 365}, {2092, 79}, {2093, 287},
    {2094, 365}, {2095, 365}, {2096, 79}, {2097, 287}, {2098, 365}, {2099, 365}, {2100, 79},
};
// clang-format on

TEST(SolarDate, DepartsFromTheCalendarOnTheMeasuredDaysOf1921To2100AndThatIsKept)
{
    std::map<int, int> departing;
    forEveryDay(FirstYear, LastYear, [&departing](QDate date) {
        if (SolarDate(date) != calendarDate(date))
            ++departing[date.year()];
    });
    EXPECT_EQ(departing, DepartingDays);
}

TEST(SolarDate, DepartsByOneDayOrAtTheTwentiethOfMarchByAYear)
{
    forEveryDay(FirstYear, LastYear, [](QDate date) {
        const QString solar = SolarDate(date);
        const bool besideTheCalendar = solar == calendarDate(date) || solar == calendarDate(date.addDays(-1))
                                       || solar == calendarDate(date.addDays(1));
        const bool lastDayOfALeapYear = date.month() == 3 && date.day() == 20 && solar.endsWith(u"/12/30");
        ASSERT_TRUE(besideTheCalendar || lastDayOfALeapYear) << date.toString(Qt::ISODate).toStdString();
    });
}

TEST(SolarDate, From1994To2028DepartsOnlyOnTheTwentiethOfMarchAfterAGregorianLeapYear)
{
    forEveryDay(1994, 2028, [](QDate date) {
        if (date.year() % 4 == 1 && date.month() == 3 && date.day() == 20) {
            const int yearBegun = date.year() - 621;
            EXPECT_EQ(SolarDate(date), QString::number(yearBegun) + u"/12/30");
            EXPECT_EQ(calendarDate(date), QString::number(yearBegun - 1) + u"/12/30");
        } else {
            ASSERT_EQ(SolarDate(date), calendarDate(date)) << date.toString(Qt::ISODate).toStdString();
        }
    });
}

TEST(SolarDate, NeverGivesMonthOrDayZero)
{
    forEveryDay(FirstYear, LastYear, [](QDate date) {
        const QString solar = SolarDate(date, true);
        ASSERT_NE(solar.sliced(4, 2), u"00") << date.toString(Qt::ISODate).toStdString();
        ASSERT_NE(solar.sliced(6, 2), u"00") << date.toString(Qt::ISODate).toStdString();
    });
}

TEST(SolarDate, TwentiethOfMarch1992IsNewYearAsTheArithmeticHasItAndNotTheCalendar)
{
    EXPECT_EQ(SolarDate(QDate(1992, 3, 20)), u"1371/01/01");
    EXPECT_EQ(calendarDate(QDate(1992, 3, 20)), u"1370/12/30");
}

TEST(SolarDate, ThirtyFirstOfDecemberIsTheTenthOrEleventhOfDeyByTheLeapTest)
{
    // Day 365 of 2010 less 20, 30 and 29 days leaves 286; less six months of 31 and three of 30 days leaves 10.
    EXPECT_EQ(SolarDate(QDate(2010, 12, 31)), u"1389/10/10");
    EXPECT_EQ(SolarDate(QDate(2012, 12, 31)), u"1391/10/11");
    // The year after a Gregorian leap year counts one day more, and its Esfand has 30 days.
    EXPECT_EQ(SolarDate(QDate(2013, 12, 31)), u"1392/10/10");
    for (int year = FirstYear; year <= LastYear; ++year) {
        const QString solar = SolarDate(QDate(year, 12, 31)).sliced(4);
        EXPECT_TRUE(solar == u"/10/10" || solar == u"/10/11") << year;
    }
}

TEST(SolarDate, CountsADayMoreInTheYearAfterAGregorianLeapYear)
{
    EXPECT_EQ(SolarDate(QDate(2012, 1, 1)), u"1390/10/11");
    EXPECT_EQ(SolarDate(QDate(2013, 1, 1)), u"1391/10/12");
}

TEST(SolarDate, HasSlashesOrEightDigits)
{
    EXPECT_EQ(SolarDate(QDate(2010, 5, 24)), u"1389/03/03");
    EXPECT_EQ(SolarDate(QDate(2010, 5, 24), true), u"13890303");
}

TEST(SolarDate, RaisesTypeMismatchForNoDate)
{
    try {
        (void)SolarDate(QDate());
        FAIL() << "no error";
    } catch (const RunTimeError &error) {
        EXPECT_EQ(error.number(), 13);
    }
}

TEST(SolarDate, RaisesTypeMismatchBeforeTheYear622)
{
    EXPECT_EQ(SolarDate(QDate(622, 3, 22)), u"0001/01/02");
    EXPECT_THROW((void)SolarDate(QDate(621, 12, 31)), RunTimeError);
}

TEST(LongSolarDate, ShowsWeekdayDayMonthAndYearWithTwoBlanksBeforeDayAndYear)
{
    // 24 May lies behind May's last day 21: day 3 of the month after Ordibehesht.
    EXPECT_EQ(LongSolarDate(QDate(2010, 5, 24), QDate(2010, 5, 24)), u"دوشنبه  3 خرداد  1389");
}

TEST(LongSolarDate, ShowsEightDigitsWithTheMonthAsNumber)
{
    EXPECT_EQ(LongSolarDate(QDate(2010, 5, 24), QDate(2010, 5, 24), true), u"13890303");
}

TEST(LongSolarDate, TakesTheWeekdayFromTodayAndNotFromTheDate)
{
    const QDate date(2010, 5, 24);
    EXPECT_TRUE(LongSolarDate(date, QDate(2010, 5, 23)).startsWith(u"يكشنبه "));
    EXPECT_TRUE(LongSolarDate(date, QDate(2010, 5, 24)).startsWith(u"دوشنبه "));
    EXPECT_TRUE(LongSolarDate(date, QDate(2010, 5, 25)).startsWith(u"سه شنبه "));
    EXPECT_TRUE(LongSolarDate(date, QDate(2010, 5, 26)).startsWith(u"چهارشنبه "));
    EXPECT_TRUE(LongSolarDate(date, QDate(2010, 5, 27)).startsWith(u"پنجشنبه "));
    EXPECT_TRUE(LongSolarDate(date, QDate(2010, 5, 28)).startsWith(u"جمعه "));
    EXPECT_TRUE(LongSolarDate(date, QDate(2010, 5, 29)).startsWith(u"شنبه "));
}

TEST(LongSolarDate, KnowsTheMonthsByTheirNames)
{
    struct {
        QDate date;
        QStringView text;
    } const cases[] = {
        {QDate(2010, 4, 10), u"دوشنبه  21 فروردين  1389"}, {QDate(2010, 5, 10), u"دوشنبه  20 ارديبهشت  1389"},
        {QDate(2010, 6, 10), u"دوشنبه  20 خرداد  1389"},   {QDate(2010, 7, 10), u"دوشنبه  19 تير  1389"},
        {QDate(2010, 8, 10), u"دوشنبه  19 مرداد  1389"},   {QDate(2010, 9, 10), u"دوشنبه  19 شهريور  1389"},
        {QDate(2010, 10, 10), u"دوشنبه  18 مهر  1389"},    {QDate(2010, 11, 10), u"دوشنبه  19 آبان  1389"},
        {QDate(2010, 12, 10), u"دوشنبه  19 آذر  1389"},    {QDate(2011, 1, 10), u"دوشنبه  20 دي  1389"},
        {QDate(2011, 2, 10), u"دوشنبه  21 بهمن  1389"},    {QDate(2011, 3, 10), u"دوشنبه  19 اسفند  1389"},
    };
    for (const auto &[date, text] : cases)
        EXPECT_EQ(LongSolarDate(date, QDate(2010, 5, 24)), text);
}

TEST(LongSolarDate, CountsADayMoreInMarchOfAGregorianLeapYear)
{
    // 2012: G = 1; T = 1390, c = 1368 mod 33 = 15, S = 0; x = Not(-2 + Not(-2)) = Not(-1) = 0, so e = 1.
    // 1 March is 1 + 10 + 1 - 1 = 11 Esfand, 20 March 30 Esfand, 21 March 21 - 20 = 1 Farvardin.
    EXPECT_EQ(LongSolarDate(QDate(2012, 3, 1), QDate(2012, 3, 1), true), u"13901211");
    EXPECT_EQ(LongSolarDate(QDate(2012, 3, 20), QDate(2012, 3, 20), true), u"13901230");
    EXPECT_EQ(LongSolarDate(QDate(2012, 3, 21), QDate(2012, 3, 21), true), u"13910101");
    // February has no such day: 29 - 19 = 10 Esfand.
    EXPECT_EQ(LongSolarDate(QDate(2012, 2, 29), QDate(2012, 2, 29), true), u"13901210");
}

TEST(LongSolarDate, IsADayBehindSolarDateFromMarchOfALeapYearOnAndThatIsKept)
{
    EXPECT_EQ(LongSolarDate(QDate(2012, 5, 24), QDate(2012, 5, 24), true), u"13910303");
    EXPECT_EQ(SolarDate(QDate(2012, 5, 24), true), u"13910304");
    EXPECT_EQ(LongSolarDate(QDate(2012, 12, 31), QDate(2012, 12, 31), true), u"13911010");
    EXPECT_EQ(SolarDate(QDate(2012, 12, 31), true), u"13911011");
}

TEST(LongSolarDate, GoesTheCommonWayInALeapYearOfTheSolarCalendar)
{
    // 2009: G = 0; c = 1365 mod 33 = 12, S = 1; x = Not(-1 + Not(-4)) = Not(2) = -3, so e = 0.
    // 20 March is 20 + 10 - 1 = 29 Esfand (the calendar has the 30th), 21 March 1 Farvardin.
    EXPECT_EQ(LongSolarDate(QDate(2009, 3, 20), QDate(2009, 3, 20), true), u"13871229");
    EXPECT_EQ(LongSolarDate(QDate(2009, 3, 21), QDate(2009, 3, 21), true), u"13880101");
}

TEST(LongSolarDate, GoesTheCommonWayWhenBothCalendarsHaveALeapYear)
{
    // 1976: G = 1; c = 1332 mod 33 = 12, S = 1; x = Not(-1 + Not(-2)) = Not(0) = -1, so e = 0.
    EXPECT_EQ(LongSolarDate(QDate(1976, 3, 1), QDate(1976, 3, 1), true), u"13541210");
}

TEST(LongSolarDate, TakesTheLastYearOfTheCycleOf33ForNoLeapYear)
{
    // 1996: G = 1; c = 1352 mod 33 = 32, S = 0; x = 0, so e = 1 and 19 March is 19 + 10 + 1 - 1 = 29 Esfand.
    EXPECT_EQ(LongSolarDate(QDate(1996, 3, 19), QDate(1996, 3, 19), true), u"13741229");
}

TEST(LongSolarDate, TakesACenturyForALeapYearOnlyWhenItDividesBy400)
{
    // 1900: G = 0, c = 2: 1 March is 10 Esfand. 2000: G = 1, c = 3: e = 1 and it is the 11th.
    EXPECT_EQ(LongSolarDate(QDate(1900, 3, 1), QDate(1900, 3, 1), true), u"12781210");
    EXPECT_EQ(LongSolarDate(QDate(2000, 3, 1), QDate(2000, 3, 1), true), u"13781211");
}

TEST(LongSolarDate, RaisesTypeMismatchForNoDate)
{
    EXPECT_THROW((void)LongSolarDate(QDate(), QDate(2010, 5, 24)), RunTimeError);
    EXPECT_THROW((void)LongSolarDate(QDate(2010, 5, 24), QDate()), RunTimeError);
}

TEST(FullYear, PutsThirteenBeforeAYearShorterThanFourLetters)
{
    EXPECT_EQ(FullYear(u"89"), u"1389");
    EXPECT_EQ(FullYear(u" 89 "), u"1389");
    EXPECT_EQ(FullYear(u"9"), u"139");
    EXPECT_EQ(FullYear(u"389"), u"13389");
}

TEST(FullYear, LeavesAFullYearAndAnEmptyTextButForTheirBlanks)
{
    EXPECT_EQ(FullYear(u"1389"), u"1389");
    EXPECT_EQ(FullYear(u" 1389 "), u"1389");
    EXPECT_EQ(FullYear(u""), u"");
    EXPECT_EQ(FullYear(u"   "), u"");
}

} // namespace
} // namespace zrv
