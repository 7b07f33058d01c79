// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The WK file, the electronic summary list of one payer and month: a line per summary row of the month, in the
// bytes of the WH file (files/wh_layout.h). It is named WK, year, month, ".TXT" and names no version.

#include "files/record_layout.h"

namespace zrv {

/// Every line: 25 fields.
[[nodiscard]] std::span<const Field> wkFields();

} // namespace zrv
