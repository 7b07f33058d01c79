// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "upkeep/upgrade_run.h"

#include <array>
#include <span>

namespace zrv {

enum class Change { Added, Dropped };

/// A statement that fills a new column for the payer's rows, and the line that tells of it.
struct Filling {
    QStringView statement;
    QStringView logged;
};

/// A column that a version of the program added or dropped. The log names table and column in the user's words.
struct ColumnStep {
    QStringView table;
    Change change;
    QStringView statement;
    QStringView field;
    std::array<Filling, 2> fillings = {};
    QStringView fieldWhenDone = {};    ///< where the line of a column that was done before words it otherwise
    QStringView fieldWhenUnknown = {}; ///< where the line of any other failure does
};

/// The columns of payer and payee, in the order of the run.
[[nodiscard]] std::span<const ColumnStep> partyColumns();
/// The columns of the salary list. The order counts: what a step fills may stand on the columns of steps before it.
[[nodiscard]] std::span<const ColumnStep> salaryColumns();
/// Two columns of the summary list. They are not on the run's path.
[[nodiscard]] std::span<const ColumnStep> summaryColumns();

/// Runs the statement and what fills the column behind it, and logs how it went. A failure ends this step alone.
void runStep(UpgradeRun &run, const ColumnStep &step);

} // namespace zrv
