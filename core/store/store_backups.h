// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The dated copies of a store. They lie in the folder Backups beside it, each a store of its own that is named after the
// moment it was made at. The program makes them, zrvstore lists them and puts one back.

#include <QString>
#include <QStringList>

namespace zrv {

inline constexpr qsizetype MostBackups = 30;

/// The folder of a store's copies, there or not.
[[nodiscard]] QString backupFolder(const QString &store);

/// The names of a store's copies in that folder, newest first. Other files there are none of them.
[[nodiscard]] QStringList backupNames(const QString &store);

/// Makes a verified copy, unless nobody wrote to the store since the newest one was made; then lets go of the oldest
/// beyond MostBackups. The moment is eight digits of the Solar Hijri date, a hyphen and six of the time of day.
/// Raises store_error::General, with a description for the user, when there is no such copy; nothing is lost by that.
void backUpStore(const QString &store, const QString &moment);

/// The name of the newest copy that is whole; empty when there is none. Reads it through.
[[nodiscard]] QString newestSoundBackup(const QString &store);

} // namespace zrv
