// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringView>

namespace zrv {

/// A text as searches see it: without case, with one yeh and one kaf whatever keyboard typed them, and without
/// zero-width non-joiners.
[[nodiscard]] QString searchForm(QStringView text);

/// True if the text fits the pattern, both in search form: `%` stands for any letters or none and `_` for one
/// letter; every other sign stands for itself.
[[nodiscard]] bool matches(QStringView pattern, QStringView text);

} // namespace zrv
