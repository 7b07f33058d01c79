// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/browse_panel.h"

// The list of payees that the payee screen and the payee search show alike: every payee of the store, whatever the
// payer's number, with each code replaced by its description.

namespace zrv {

/// The statement without condition and order; the payees' columns go by their bare names in both.
[[nodiscard]] QString payeeSelect();

/// The columns of the list in order; what stands over the first one is the screen's own.
[[nodiscard]] std::vector<BrowseColumn> payeeColumns(const QString &codeCaption);

/// What the nationality column shows for a foreigner.
inline constexpr QStringView ForeignNationality = u"خارجي";

} // namespace zrv
