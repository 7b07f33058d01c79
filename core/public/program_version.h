// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringView>

namespace zrv {

/// This program's version, as titles show it and as the first line of a WH file names it, in Base64.
inline constexpr QStringView CurrentProgramVersion = u"( نسخه 1.1.38 - 89/03/03 )";

} // namespace zrv
