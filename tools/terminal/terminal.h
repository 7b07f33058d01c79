// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// What the programs without a window have in common: the words behind their name, what they print, how they end.

#include <QByteArrayView>
#include <QStringList>

#include <cstdio>
#include <functional>

namespace zrv {

/// Whether the text arrived is asked by expectWritten().
void print(std::FILE *stream, QByteArrayView utf8);
void print(std::FILE *stream, const QString &text);

/// Raises Failure if anything printed to the stream so far could not be written.
void expectWritten(std::FILE *stream);

/// Runs a program and gives its exit status: what `run` makes of the words behind the program's name, or 2 for any
/// exception, which is told on standard error in one line, and for an output that could not be written.
[[nodiscard]] int runTool(QStringView name, int argc, char **argv,
                          const std::function<int(const QStringList &words)> &run);

} // namespace zrv
