// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/platform/tool_process.h"

#include <QDir>
#include <QProcess>

namespace zrv {

namespace {

constexpr int LongestMs = 120'000;

} // namespace

ToolEnd runToolIn(const QString &folder, const QString &tool, const QStringList &words)
{
    QProcess process;
    process.setStandardInputFile(QProcess::nullDevice());
    process.start(QDir(folder).filePath(tool), words);
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
