// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "upkeep/upgrade_run.h"

#include <QStringList>

#include <span>

namespace zrv {

/// A code list to which older versions let users add rows, and what hangs on its codes. The new lists give those
/// numbers a meaning of their own, so rows that hang on one above the list's old end have to move.
struct ExtendedList {
    QStringView item;        ///< the list's number in two digits, with which the line of a job ends
    QStringView list;        ///< the list's number as it is stored
    QStringView column;      ///< that holds its codes: a payee's, or the summary list's bank
    QStringView highest;     ///< code of the old list
    QStringView replacement; ///< code to which rows above it move
    QStringView condition;   ///< of the rows above it
    QStringView job;         ///< the line of the dialogue, before the item
    QStringView moved;       ///< logged when the rows have moved
    QStringView deleted;     ///< logged when the list's rows are gone
};

[[nodiscard]] std::span<const ExtendedList> extendedLists();
/// The list of an item of the dialogue, by the last two characters of its line.
[[nodiscard]] const ExtendedList &extendedList(QStringView job);

/// A line for each list on whose codes above its old end rows hang. Banks that are NULL are parked by it under the
/// code -1, until bringBackBanks.
[[nodiscard]] QStringList parkBanksAndFindJobs(const UpgradeRun &run);
void bringBackBanks(const UpgradeRun &run);

/// Gives the exemption of every payee its new number: 1 and 3 change places, 5 becomes 4, 6 becomes 5, 11 becomes 6,
/// and 7 to 10 are none. Run twice, it does so twice.
void renumberExemptions(const UpgradeRun &run);

// The numbers come as texts, as they stand in the statements. Failures are told in a box and go no further.

/// Removes the rows of a list above a code.
void DeleteZRVtbCodingUserAddedRecords(UpgradeRun &run, const QString &list, const QString &highest);
/// Moves the payer's payees off codes of a list above its highest.
void UpdateZRVtbKarkonan(UpgradeRun &run, const QString &list, const QString &highest, const QString &replacement);
/// Moves the payer's summary rows off banks that the list no longer has.
void UpdateZRVtbKholList(UpgradeRun &run);

} // namespace zrv
