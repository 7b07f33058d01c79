// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/program.h"
#include "core/store/recordset.h"

namespace zrv {

// The salary rows of a month that go into another month: counted, and copied. The salary list carries a month on with
// these, the yearly transfer takes one into another year; both act on the payer of this run.

/// A month of a Solar Hijri year as the columns TaxYear and TaxMonth hold it: "1389" and "05".
struct ListMonth {
    QString year;
    QString month;

    friend bool operator==(const ListMonth &, const ListMonth &) = default;
};

/// One row with the columns KarkonanNo, SUMNGPTotalDaramadeMashmol (in spite of its name the gross amounts),
/// SUMFinalDaramadeMashmol and SUMFinalTax, the sums NULL when no row counts. Left out are rows without a payee and
/// payees whose work ended before the first day of the target month; no target month leaves out nobody.
/// Raises the store's errors.
[[nodiscard]] Recordset CountTransferable(const Program &program, const ListMonth &source,
                                          const ListMonth &target = {});

/// Copies the rows that CountTransferable counts: all of them or none. A failure is told in a box and ends here, so
/// the caller doesn't learn of it.
void CopyMonth(const Program &program, const ListMonth &source, const ListMonth &target);

} // namespace zrv
