// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// Writes the two electronic files of a month from rows of the store, by the tables of their layouts.
// Values go out as they stand: nothing is checked here, only cut to the fields' widths.

#include <QString>

#include <functional>

namespace zrv {

class Recordset;

/// Where the two files of a month lie, as paths of the machine it runs on.
struct MonthFiles {
    /// `year` of four digits and `month` of two, as the screen has them.
    MonthFiles(const QString &programFolder, const QString &year, const QString &month);

    QString ersal;  ///< the folder of all months
    QString folder; ///< the folder of this month
    QString wh;
    QString wk;

    /// Makes the two folders where they are missing; raises EnsureFolder's errors.
    void ensureFolders() const;
};

/// Writes the summary list, a line per row, in place of an older file of that path.
void writeWkFile(const QString &path, Recordset &rows);

/// What the salary list's first line holds besides the payer's row.
struct WhHeading {
    QString taxYear;
    QString taxMonth;
    QString programVersion;
};

/// Writes the salary list: the payer's row, then a line per payee, at any number of payees in fixed memory.
/// `written` is called behind each payee with their number so far. Returns that number; the file takes the place
/// of an older one only if it is `expected`, so that a month is filed with all its payees or not at all.
int writeWhFile(const QString &path, const WhHeading &heading, const Recordset &payer, Recordset &payees, int expected,
                const std::function<void(int)> &written);

} // namespace zrv
