// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/forms/controls.h"
#include "core/program.h"

namespace zrv {

// The questions that all screens put to the store, bound to their combos. Each opens and drops a connection of its
// own and raises the store's errors.

/// True if a complete SELECT returns a row.
[[nodiscard]] bool RecordExists(Program &program, const QString &select);

/// The rows of a code list in the text order of their codes.
void FillCodeList(Program &program, const QString &list, Combo &combo);

/// The rows of a code list in the order of their codes as numbers. An empty list is told in a box.
void FillCodeListByValue(Program &program, const QString &list, Combo &combo, bool descending = false);

/// Two columns of any query as shown text and bound code. With `showFirst` the first row's text is shown.
void FillFromQuery(Program &program, const QString &select, Combo &combo, QStringView listField, QStringView boundField,
                   bool showFirst = false);

/// All code lists, description and number. An empty table is told in a box.
void FillMasterList(Program &program, Combo &combo);

/// What a code of a list means: empty for a blank code, "کد نامعتبر" for one that the list lacks.
[[nodiscard]] QString CodeDescription(Program &program, const QString &list, const QString &code);

} // namespace zrv
