// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// CheckDigit, the one judge of national codes: the payer's and the payee's screens, the structure check of salary
// files, the store's verification and its sample all ask here.

#include <QStringView>

namespace zrv {

/// The digit that completes the first nine of a national code: the nine are weighted by 10 down to 2 and summed; the
/// sum's remainder by 11 is the digit where it is below 2, else 11 less it. -1 for anything but nine digits 0 to 9.
[[nodiscard]] int nationalCheckDigit(QStringView nineDigits);

/// True for a valid national code: ten digits 0 to 9, not all the same, the last being the check digit of the others.
/// The text is judged as it stands: blanks around it, a code short of its leading zeros and digits of another script
/// are not valid.
[[nodiscard]] bool isValidNationalCode(QStringView code);

} // namespace zrv
