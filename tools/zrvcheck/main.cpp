// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/basic/file_thread.h"
#include "core/public/solar_date.h"
#include "tools/terminal/failure.h"
#include "tools/terminal/terminal.h"
#include "tools/zrvcheck/check_files.h"
#include "tools/zrvcheck/file_list.h"

#include <QDateTime>
#include <QFileInfo>

#include <algorithm>
#include <cstdio>
#include <optional>
#include <thread>

namespace {

using namespace zrv;
using namespace zrv::checktool;

/// Raises Failure where the text doesn't arrive: nothing more has to be checked then.
void printSurely(std::FILE *stream, QByteArrayView utf8)
{
    print(stream, utf8);
    expectWritten(stream);
}

QString now()
{
    const QDateTime moment = QDateTime::currentDateTime();
    return SolarDate(moment.date()) + u" - " + moment.time().toString(u"HH:mm:ss");
}

/// A slip on the command line must not cost a file that is handed in.
void refuseReportInPlaceOf(const QStringList &files, const QString &report)
{
    const QFileInfo place(report);
    const auto isPlace = [&](const QString &file) { return QFileInfo(file) == place; };
    if (place.exists() && std::ranges::any_of(files, isPlace))
        throw Failure(u"the report would take the place of a file that is to be checked: " + report);
}

int check(const Request &request)
{
    const QStringList files = filesOf(request.paths);
    if (files.isEmpty())
        throw Failure(QStringLiteral("no file named WH or WK, year, month and .TXT lies there"));
    const bool reportsToOutput = request.report == u"-";
    std::optional<SafeFile> file;
    if (!request.report.isEmpty() && !reportsToOutput) {
        refuseReportInPlaceOf(files, request.report);
        file.emplace(request.report);
    }
    std::optional<FileThread> fileThread;
    if (file)
        fileThread.emplace(*file);

    // What isn't a report goes to standard error where reports take standard output.
    OrderedOutput list([&](QByteArrayView text) { printSurely(reportsToOutput ? stderr : stdout, text); });
    OrderedOutput reports([&](QByteArrayView text) {
        if (fileThread)
            fileThread->write(text);
        else
            printSurely(stdout, text);
    });
    const CheckJob job{files, request, now, std::thread::hardware_concurrency()};
    const std::vector<FileResult> results = checkFiles(job, list, request.report.isEmpty() ? nullptr : &reports);
    list.finish();
    reports.finish();
    if (file) {
        fileThread->finish();
        file->commit();
    }
    if (!reportsToOutput)
        print(stdout, tableText(results));
    return exitStatus(results);
}

int run(const QStringList &words)
{
    const Request request = readCommandLine(words);
    switch (request.command) {
    case Command::Help:
        print(stdout, helpText());
        return 0;
    case Command::Version:
        print(stdout, versionText());
        return 0;
    case Command::Rules:
        print(stdout, rulesText());
        return 0;
    case Command::Check:
        return check(request);
    }
    return 2;
}

} // namespace

int main(int argc, char **argv)
{
    return zrv::runTool(u"zrvcheck", argc, argv, run);
}
