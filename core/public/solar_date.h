// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The only calendar work of the program: Gregorian dates into Solar Hijri texts, by arithmetic that the stored
// data have always been written with. It departs from the astronomical calendar on some days around the turn
// of the year; those results are kept, since today's texts must compare with those already in the store.

#include <QDate>
#include <QString>

namespace zrv {

/// The day as "1389/03/03", or as "13890303" with noSeparators.
/// Raises TypeMismatch for an invalid date and for one before the year 622, where the calendar begins.
[[nodiscard]] QString SolarDate(QDate date, bool noSeparators = false);

/// The day for display alone: the weekday of today (whatever the date), day, month name and year, with two
/// blanks before day and year; with monthAsNumber its eight digits instead. It reckons otherwise than
/// SolarDate() and may be a day off from it. Raises TypeMismatch for an invalid date.
[[nodiscard]] QString LongSolarDate(QDate date, QDate today, bool monthAsNumber = false);

/// A year typed short: "13" is put before a trimmed text of one to three letters; others come back trimmed.
[[nodiscard]] QString FullYear(QStringView year);

} // namespace zrv
