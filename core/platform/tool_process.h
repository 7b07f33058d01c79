// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/platform/platform.h"

namespace zrv {

/// How the platforms run a tool: the program of this name in a folder, in a process of its own. Nobody waits longer
/// for it than two minutes; it is ended then.
[[nodiscard]] ToolEnd runToolIn(const QString &folder, const QString &tool, const QStringList &words);

} // namespace zrv
