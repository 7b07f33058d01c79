// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

namespace zrv::checktool {

/// The files behind the paths, in their order: a folder stands for all regular files in and below it that are named WH
/// or WK, year, month and .TXT in either case, sorted; any other path for itself, and so does a folder that can't be
/// read. Links to folders are not followed.
[[nodiscard]] QStringList filesOf(const QStringList &paths);

} // namespace zrv::checktool
