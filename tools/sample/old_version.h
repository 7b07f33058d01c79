// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/store/table_shape.h"
#include "core/store/value.h"
#include "tools/sample/months.h"

#include <vector>

namespace zrv::sample {

// The sample as the program's oldest version would have stored it: its tables, its code lists, and the codes that the
// same people had in them.

[[nodiscard]] const std::vector<TableShape> &oldSchema();
/// What stands in a column that only old tables have; NULL for all others.
[[nodiscard]] Value oldValue(const QString &column);

[[nodiscard]] std::vector<CodeRow> oldCodes();
[[nodiscard]] Payer asOld(Payer payer);
[[nodiscard]] Payee asOld(Payee payee);
[[nodiscard]] Summary asOld(Summary summary);

} // namespace zrv::sample
