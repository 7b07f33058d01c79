// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/zrvstore/verify_parties.h"

#include <tuple>

namespace zrv::storetool {

/// File number, year and month.
using Month = std::tuple<std::string, std::string, std::string>;

/// What a month's salary rows add up to, in whole rials.
struct MonthSums {
    qint64 payees = 0;
    qint64 paid = 0; ///< cash, other benefits and bonus before any exemption
    qint64 taxable = 0;
    qint64 tax = 0;
};
using SumsOfMonths = std::map<Month, MonthSums>;

/// Checks the salary rows: their payees, and the sums inside a row by the payee's exemption. A row that fits another
/// exemption than the payee has today is only noted, since a payee's exemption may change and its rows stay.
[[nodiscard]] SumsOfMonths checkSalaries(const Database &database, const FoundTable &salaries, const FoundTable &payees,
                                         const CodeLists &lists, const Payers &payers, Findings &findings);

/// Checks the summary rows: against the salary rows of their month, against the summary rows of the months before,
/// and their payment. A row may honestly lag behind both until it is saved again: that, too, is a finding.
void checkSummaries(const Database &database, const FoundTable &table, const CodeLists &lists, const Payers &payers,
                    const SumsOfMonths &sums, Findings &findings);

} // namespace zrv::storetool
