// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/keyboard_layout.h"

#include <algorithm>
#include <array>

namespace zrv {

namespace {

constexpr quint32 UsEnglish = 0x04090409;
/// Arabic, Persian with the Arabic keyboard, Persian: activated in this order, so that the last one present stays.
constexpr std::array<quint32, 3> PersianLayouts{0x04010401, 0x04010429, 0x04290429};

} // namespace

void SwitchToPersianKeyboard(Platform &platform)
{
    if (platform.keyboardLayout() != UsEnglish)
        return;
    for (const quint32 layout : PersianLayouts)
        platform.activateKeyboardLayout(layout);
}

void SwitchToLatinKeyboard(Platform &platform)
{
    if (std::ranges::count(PersianLayouts, platform.keyboardLayout()) > 0)
        platform.activateKeyboardLayout(UsEnglish);
}

} // namespace zrv
