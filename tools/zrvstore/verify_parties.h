// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/zrvstore/verify_fields.h"

namespace zrv::storetool {

/// The file numbers of the payers, to which all data rows must belong.
using Payers = std::set<std::string, std::less<>>;

/// The payer's row: one at the most, with the fields of its kind (1 a natural person, 2 a legal one).
[[nodiscard]] Payers checkPayers(const Database &database, const FoundTable &table, const CodeLists &lists,
                                 Findings &findings);

/// The payees: national codes by their check digit, countries and insurance numbers by what they go with.
void checkPayees(const Database &database, const FoundTable &table, const CodeLists &lists, const Payers &payers,
                 Findings &findings);

/// The users: one of them at least must be a supervisor, who alone can add others.
void checkUsers(const Database &database, const FoundTable &table, const CodeLists &lists, Findings &findings);

/// A data row of a payer that isn't there.
void checkOrphan(const TableReader &row, std::string_view tfn, const Payers &payers, Findings &findings);

} // namespace zrv::storetool
