// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/store/table_shape.h"
#include "tools/sample/plan.h"

namespace zrv {
class NewStore;
}

namespace zrv::sample {

/// The tables that the plan's store has to have.
[[nodiscard]] const std::vector<TableShape> &schemaOf(const Plan &plan);

/// Fills a new store with the sample of a plan: the rows of a fresh store, the payer, the payees, and month by month
/// the salary rows in the order of the payees and the summary row behind them. Memory doesn't grow with the plan.
void addSampleRows(NewStore &store, const Plan &plan);

} // namespace zrv::sample
