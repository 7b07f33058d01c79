// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringView>

#include <span>

namespace zrv {

/// A version of the program and what it brought, a line each.
struct VersionChanges {
    QStringView header; ///< names the version as the program's titles do
    std::span<const QStringView> lines;
};

/// All versions, the oldest first. The last is this program's: a new version adds itself at the end.
[[nodiscard]] std::span<const VersionChanges> versionHistory();

} // namespace zrv
