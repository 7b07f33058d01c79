// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The few things that the program does with folders and files as such. Paths are those of the machine it runs on.

#include <QString>

namespace zrv {

/// Whether there is a folder (and no file) of this path.
[[nodiscard]] bool FolderExists(const QString &path);

/// Makes the folder when it isn't there; the folder above it must be.
/// Raises PathNotFound without a folder above, PermissionDenied where nothing may be made, DiskFull, and
/// PathFileAccess for anything else, a file of that name among them. The description names the folder.
void EnsureFolder(const QString &path);

/// Copies a file with its permissions onto the target, which may be there already and is replaced only by a
/// whole copy that is on the disk. A failure is not reported, by contract: callers that need to know look at
/// the result, false when the target is as it was.
bool CopyFile(const QString &source, const QString &target);

} // namespace zrv
