// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// A shortcut to a program in a folder of the desktop's own, made for the branches of a payer.

#include <QString>

namespace zrv {

/// Puts a shortcut of the given name into specialFolder (a path; its caller knows where the desktop lies),
/// replacing one of that name. An empty working directory leaves that choice to the desktop.
/// On Windows it is a link "NAME.lnk", elsewhere a starter file "NAME.desktop". Window style and icon number
/// are what the callers have to say; neither kind of shortcut made here can hold them.
/// Raises PathFileAccess when it can't be written; the description names the file.
void MakeShortcut(const QString &targetPath, const QString &specialFolder, const QString &shortcutName,
                  const QString &workingDirectory, int windowStyle, int iconNumber);

} // namespace zrv
