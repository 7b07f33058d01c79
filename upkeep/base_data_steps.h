// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "upkeep/upgrade_run.h"

#include <array>
#include <span>

namespace zrv {

/// A step from the base data of older versions to this version's: a row that comes into a list, or a statement that
/// changes or deletes rows.
struct BaseDataStep {
    std::array<QStringView, 4> row = {}; ///< as it stands in the statement, quotes included; else empty
    QStringView list = {};               ///< the row's list, as the log names it
    QStringView statement = {};
    bool ofThePayer = false; ///< the statement changes the payer's own row
    QStringView success = {};
};

/// In the order of the run.
[[nodiscard]] std::span<const BaseDataStep> baseDataSteps();

/// Runs a step and logs it. A row that fails is logged too; of a statement that fails nobody hears.
void runStep(UpgradeRun &run, const BaseDataStep &step);

} // namespace zrv
