// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tests/core/screens/quiet_platform.h"

#include <set>
#include <vector>

namespace zrv {

namespace layout {
inline constexpr quint32 UsEnglish = 0x04090409;
inline constexpr quint32 Arabic = 0x04010401;
inline constexpr quint32 PersianArabic = 0x04010429;
inline constexpr quint32 Persian = 0x04290429;
inline constexpr quint32 German = 0x04070407;
} // namespace layout

/// A machine with some keyboard layouts, which writes down those that it was asked for.
struct Keyboards : QuietPlatform {
    quint32 current = layout::UsEnglish;
    std::set<quint32> present{layout::UsEnglish, layout::Arabic, layout::PersianArabic, layout::Persian};
    std::vector<quint32> tried;

    quint32 keyboardLayout() override { return current; }
    void activateKeyboardLayout(quint32 wanted) override
    {
        tried.push_back(wanted);
        if (present.contains(wanted))
            current = wanted;
    }
};

} // namespace zrv
