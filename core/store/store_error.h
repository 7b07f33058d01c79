// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/basic/run_time_error.h"

/// The numbers under which the store reports failures; the screens test for some of them.
namespace zrv::store_error {

inline constexpr qint32 General =
    static_cast<qint32>(0x80004005); ///< key clash, row already present, file missing or busy
inline constexpr qint32 TypeMismatch = static_cast<qint32>(0x80040E07);  ///< a text compared with a number
inline constexpr qint32 MissingColumn = static_cast<qint32>(0x80040E10); ///< a name that no table of the statement has
inline constexpr qint32 Syntax = static_cast<qint32>(0x80040E14);        ///< the statement can't be read
inline constexpr qint32 ColumnChange = static_cast<qint32>(0x80040E21);  ///< a column already added, or already dropped
inline constexpr qint32 MissingTable = static_cast<qint32>(0x80040E37);  ///< a table that the store lacks
inline constexpr qint32 ValueTooLong = static_cast<qint32>(0x80040E57);  ///< a text longer than its column

} // namespace zrv::store_error
