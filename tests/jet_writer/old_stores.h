// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tests/jet_writer/jet_writer.h"

namespace zrv::jettest {

/// The tables of a store as an older version kept it, or, with its upgrade done, as this version's.
enum class Age { Old, Upgraded, Current };

/// The rows of the sample store: one payer, so many payees with so many months each, code lists, the user ADMIN.
[[nodiscard]] std::vector<Table> oldStore(Age age, int payees = 12, int months = 2);

/// The same of the oldest version, with the code lists of its time.
[[nodiscard]] std::vector<Table> oldestStore(int payees = 12, int months = 2);

/// The table of this name among them.
[[nodiscard]] Table &tableOf(std::vector<Table> &tables, QStringView name);
/// The cell of a row, from 0, under this column. A row that is too short grows.
[[nodiscard]] Cell &cellOf(Table &table, int row, QStringView column);

} // namespace zrv::jettest
