// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/platform/platform.h"

namespace zrv {

/// From US English to the last Persian or Arabic layout that the machine has; from any other layout, nothing.
void SwitchToPersianKeyboard(Platform &platform);

/// From a Persian or Arabic layout to US English.
void SwitchToLatinKeyboard(Platform &platform);

} // namespace zrv
