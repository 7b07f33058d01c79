// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

namespace zrv::checktool {

enum class Command { Help, Version, Rules, Check };

/// What the person at the terminal asks for.
struct Request {
    Command command = Command::Check;
    QStringList paths; ///< files and folders
    QString report;    ///< where the reports go: a file, "-" for standard output, empty for none
    bool onlyErrors = false;
    bool firstTwoLines = false;
    bool summary = false; ///< the table alone
};

/// Reads the words behind the program's name. Raises Failure for what it doesn't understand.
[[nodiscard]] Request readCommandLine(const QStringList &words);

[[nodiscard]] QString helpText();
[[nodiscard]] QString versionText();
/// Every finding by its name, with its meaning, its remedy and its words.
[[nodiscard]] QString rulesText();

} // namespace zrv::checktool
