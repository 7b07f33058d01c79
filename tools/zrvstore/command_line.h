// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/store/fresh_rows.h"
#include "tools/sample/plan.h"

#include <QString>
#include <QStringList>

namespace zrv::storetool {

enum class Command { Help, Version, Create, Sample, TakeOver, Verify, Backup, List, Restore };

/// What the person at the terminal asks for.
struct Request {
    Command command = Command::Help;
    QString folder; ///< that holds the store, or shall
    QString file;   ///< the copy, or the database that is taken over
    FirstUser user;
    sample::Plan plan;
    bool all = false;      ///< every finding, not the first ones of each kind
    bool asStored = false; ///< take over texts of an old code page as they stand
    bool force = false;    ///< replace the copy's file
};

/// Reads the words behind the program's name. Raises Failure for what it doesn't understand.
[[nodiscard]] Request readCommandLine(const QStringList &words);

[[nodiscard]] QString helpText();
[[nodiscard]] QString versionText();

} // namespace zrv::storetool
