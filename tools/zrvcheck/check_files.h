// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The work of zrvcheck: checks files on several cores and writes what the person at the terminal asked for.

#include "files/report_writer.h"
#include "tools/zrvcheck/command_line.h"
#include "tools/zrvcheck/ordered_output.h"

#include <vector>

namespace zrv::checktool {

/// One row of the table.
struct FileResult {
    QString path;
    qint64 records = 0;
    qint64 errors = 0;
    QString firstError;        ///< line, field and name
    bool isStopped = false;    ///< a failure ended the check before the file's end
    bool isUnreadable = false; ///< it could not be read to its end
};

struct CheckJob {
    QStringList files;
    Request request;
    ReportClock clock;
    unsigned threads = 1;
};

/// Checks the files. The lines of errors, and of failures, go to `list` unless the table alone is wanted; the reports
/// to `reports` where there are any to be made.
[[nodiscard]] std::vector<FileResult> checkFiles(const CheckJob &job, OrderedOutput &list, OrderedOutput *reports);

/// The table of all files, a line each under a line of heads.
[[nodiscard]] QString tableText(const std::vector<FileResult> &results);

/// 0, 1 or 2, as the help tells.
[[nodiscard]] int exitStatus(const std::vector<FileResult> &results);

} // namespace zrv::checktool
