// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The WH file, the electronic salary list of one payer and month: a payer line, then a line per payee.
//
// UTF-16, little-endian, with a mark; every line ends in CR LF; fields are separated by commas, without quoting,
// so a comma in a value shifts the fields behind it. The file is named WH, year, month, ".TXT".

#include "files/record_layout.h"

namespace zrv {

/// Line 1: 21 fields and the control field. Files of the first version lack the control field.
[[nodiscard]] std::span<const Field> whPayerFields();

/// Lines 2 onward: 34 fields.
[[nodiscard]] std::span<const Field> whPayeeFields();

} // namespace zrv
