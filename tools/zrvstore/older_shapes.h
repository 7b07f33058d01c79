// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// How the stores of older versions differ from one of this version, column by column. Names go without regard to case.

#include <QStringView>

namespace zrv::storetool {

/// Came with a later version; the program's upgrade adds it to an older store.
[[nodiscard]] bool isAdded(QStringView table, QStringView column);
/// Went with a later version; the upgrade drops it.
[[nodiscard]] bool isDropped(QStringView table, QStringView column);
/// No screen writes it, and a store does well without.
[[nodiscard]] bool isOptional(QStringView table, QStringView column);
/// Was narrower once; the program's repair widens it.
[[nodiscard]] bool isWidened(QStringView table, QStringView column);

/// Older versions had it so wide, which holds every number; this one's width has room for a separator as well.
[[nodiscard]] bool isOlderWidth(QStringView table, QStringView column, int width);

} // namespace zrv::storetool
