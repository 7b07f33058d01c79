// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/platform/tool_process.h"

#include <QDir>
#include <QFileInfo>
#include <QProcess>

namespace zrv {

namespace {

constexpr int LongestMs = 120'000;

} // namespace

ToolEnd runToolIn(const QString &folder, const QString &tool, const QStringList &words)
{
    QProcess process;
    process.setStandardInputFile(QProcess::nullDevice());
    // A branch's folder holds the program alone: the tool is then the installed one.
    const QString beside = QDir(folder).filePath(tool);
    process.start(QFileInfo(beside).isExecutable() ? beside : tool, words);
    if (!process.waitForFinished(LongestMs)) {
        process.kill();
        process.waitForFinished();
        return {};
    }
    if (process.exitStatus() != QProcess::NormalExit)
        return {};
    return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
}

} // namespace zrv
