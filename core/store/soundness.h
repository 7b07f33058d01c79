// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace zrv {

enum class Soundness {
    Sound,
    Damaged, ///< another kind of file, or one whose pages or rows do not hold together
    Unknown, ///< no file, or one that can't be read just now
};

/// How a store's file fares. Reads it through; what a crash left half done in it is undone first, as by every program that
/// opens it. A value that breaks a rule of its column is no damage.
[[nodiscard]] Soundness soundnessOf(const QString &path);

} // namespace zrv
