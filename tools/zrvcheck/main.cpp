// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/basic/run_time_error.h"
#include "core/basic/safe_file.h"
#include "core/public/solar_date.h"
#include "tools/zrvcheck/check_files.h"
#include "tools/zrvcheck/file_list.h"

#include <QDateTime>
#include <QFile>

#include <cstdio>
#include <memory>
#include <optional>
#include <thread>

namespace {

using namespace zrv;
using namespace zrv::checktool;

void print(std::FILE *stream, QByteArrayView utf8)
{
    const auto size = static_cast<std::size_t>(utf8.size());
    if (std::fwrite(utf8.data(), 1, size, stream) != size)
        throw Refusal(QStringLiteral("can't write: the disk is full, or nobody reads any more"));
}

void print(std::FILE *stream, const QString &text)
{
    print(stream, QByteArrayView(text.toUtf8()));
}

QString now()
{
    const QDateTime moment = QDateTime::currentDateTime();
    return SolarDate(moment.date()) + u" - " + moment.time().toString(u"HH:mm:ss");
}

int check(const Request &request)
{
    const QStringList files = filesOf(request.paths);
    if (files.isEmpty())
        throw Refusal(QStringLiteral("no file named WH or WK, year, month and .TXT lies there"));
    const bool reportsToOutput = request.report == u"-";
    std::optional<SafeFile> file;
    if (!request.report.isEmpty() && !reportsToOutput)
        file.emplace(request.report);

    // What isn't a report goes to standard error where reports take standard output.
    OrderedOutput list([&](QByteArrayView text) { print(reportsToOutput ? stderr : stdout, text); });
    OrderedOutput reports([&](QByteArrayView text) {
        if (file)
            file->write(text.data(), static_cast<std::size_t>(text.size()));
        else
            print(stdout, text);
    });
    const CheckJob job{files, request, now, std::thread::hardware_concurrency()};
    const std::vector<FileResult> results = checkFiles(job, list, request.report.isEmpty() ? nullptr : &reports);
    list.finish();
    reports.finish();
    if (file)
        file->commit();
    if (!reportsToOutput)
        print(stdout, tableText(results));
    return exitStatus(results);
}

int run(const Request &request)
{
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
    QStringList words;
    for (int i = 1; i < argc; ++i)
        words.append(QFile::decodeName(argv[i]));
    QString failure;
    try {
        const int status = run(readCommandLine(words));
        if (std::fflush(stdout) == 0)
            return status;
        failure = QStringLiteral("can't write: the disk is full, or nobody reads any more");
    } catch (const Refusal &refusal) {
        failure = refusal.reason();
    } catch (const RunTimeError &error) {
        failure = QString(error.description()).replace(u'\n', u' ');
    } catch (const std::exception &error) {
        failure = QString::fromUtf8(error.what());
    }
    std::fputs(QString(u"zrvcheck: " + failure + u'\n').toUtf8().constData(), stderr);
    return 2;
}
