// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// Where a field of an electronic file stops being digits: the structure checks ask with these whether it is
// all digits or holds any, and print the answer in their report.

#include <QString>
#include <QStringView>

namespace zrv {

/// The ANSI code of the text's first digit 0 to 9 as " 48" to " 57", the blank being the place of a sign;
/// "-1" when it has none.
[[nodiscard]] QString FirstDigitCode(QStringView text);

/// The ANSI code of the text's first letter that is no digit 0 to 9, likewise with a blank before it; "-1"
/// when there is none. A letter that the code page lacks has the code of the question mark, " 63".
[[nodiscard]] QString FirstNonDigitCode(QStringView text);

} // namespace zrv
