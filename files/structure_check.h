// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The structure check of WH and WK files, apart from any screen. It reads a file, whoever made it, holds every field of
// every line against the rules (files/check_rules.h) and goes on past each error.
//
// Three layers use it. zrvcheck hears the errors alone, through CheckEvents of its own. A log file is written while the
// check runs, by ReportWriter (files/report_writer.h). A screen keeps a CheckReport (files/check_report.h), which has the
// report's length, its errors and any lines of it without holding the text; it shows closingBox() behind each run:
//
//     m_report = std::make_unique<CheckReport>(FileKind::Wh, path, options, now);
//     const CheckOutcome outcome = m_report->run([&](const CheckPlace &place) {
//         LabelWaitingMessage.setCaption(progressText(place.state.records)); // not for each line: it costs time
//         platform.yield();
//         return !m_cancelled;
//     });
//     if (outcome.showsReport)
//         the text box shows m_report->lineCount() lines, each asked of m_report->lines() when it comes into view;
//     if (a log is wanted and outcome.end == CheckEnd::Finished) {
//         SafeFile file(logPath);
//         ReportLog log(file); // of report_writer.h
//         m_report->write(log);
//         log.finish();
//         file.commit();
//     }
//     if (const auto box = closingBox(FileKind::Wh, outcome))
//         platform.messageBox(box->style, box->title, box->text);

#include "files/line_walk.h"

#include <memory>
#include <optional>

namespace zrv {

enum class CheckEnd {
    Finished, ///< every line was checked, or all that the options ask for
    Refused,  ///< no file was chosen, or one of another name
    Empty,    ///< nothing in the file
    Failed,   ///< a run-time error ended the run
    Cancelled,
};

struct CheckOutcome {
    CheckEnd end = CheckEnd::Finished;
    qint64 records = 0; ///< lines checked
    qint64 errors = 0;
    /// Whether the report is put on the screen. A salary list's report is lost when its run ends early; a summary
    /// list's grows on the screen, and what it holds by then stays there.
    bool showsReport = true;
    qint32 failure = 0; ///< of Failed
    QString description;
    qint64 line = 0; ///< where a failure has a place in the file
    int field = 0;
    FileOddities oddities;
};

class StructureCheck {
public:
    /// The rules must outlive the check.
    StructureCheck(const FileRules &rules, QString path, CheckOptions options);

    /// Checks the file from its name on. Throws nothing of its own: failures are in the outcome.
    CheckOutcome run(CheckEvents &events, const BeforeLine &beforeLine = {});

    /// Checks again from a place that run() came through. Raises DeviceIo if somebody wrote to the file since.
    CheckOutcome runFrom(const CheckPlace &place, CheckEvents &events, const BeforeLine &beforeLine = {});

    /// Raises DeviceIo if somebody wrote to the file since run().
    void expectUnchanged() const;

    [[nodiscard]] const FileRules &rules() const { return m_rules; }
    [[nodiscard]] const CheckOptions &options() const { return m_options; }
    /// In bytes; 0 before a file was opened.
    [[nodiscard]] qint64 fileSize() const { return m_reader ? m_reader->fileSize() : 0; }

private:
    CheckOutcome refuse(FindingKind kind, CheckEvents &events);
    CheckOutcome reportEmpty(CheckEvents &events);
    CheckOutcome walk(const CheckPlace &from, CheckEvents &events, const BeforeLine &beforeLine);
    CheckOutcome guarded(const std::function<CheckOutcome()> &walking) const;

    const FileRules &m_rules;
    QString m_path;
    CheckOptions m_options;
    std::unique_ptr<LineReader> m_reader;
};

/// The kind that a path's name tells: of its last twelve letters the first two are WH or WK, in either case.
[[nodiscard]] std::optional<FileKind> fileKindOf(QStringView path);

/// The box behind a run; none where the report alone speaks.
struct ClosingBox {
    int style;
    QString title;
    QString text;
};
[[nodiscard]] std::optional<ClosingBox> closingBox(FileKind kind, const CheckOutcome &outcome);

/// What the wait panel says when so many lines are done.
[[nodiscard]] QString progressText(qint64 records);

} // namespace zrv
