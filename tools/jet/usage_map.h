// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/jet/page_file.h"

#include <vector>

namespace zrv::jet {

/// The numbers of the pages that a usage map names, ascending. Pages that it doesn't name may still look like pages of
/// the table: they are free, and hold rows of days gone by. Raises Refused, also for a page beyond the file.
[[nodiscard]] std::vector<quint32> pagesOf(const PageFile &file, RowPlace usageMap);

} // namespace zrv::jet
