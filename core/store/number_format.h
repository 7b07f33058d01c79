// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringView>

namespace zrv {

/// A number in one of the store's patterns for whole numbers: `0` is a digit that is always shown, `#` one that is
/// shown if there is one, `,` among them asks for groups of three, and any other sign is shown as it is, with the
/// digits filled in from the right: "#,##0", "0000", "####/##/##".
/// The number may have separators between its digits; a text that is no number comes back unchanged.
[[nodiscard]] QString formatNumber(QStringView number, QStringView pattern);

} // namespace zrv
