// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// A structure check's report that is made where it is looked at. The report of 50,000 payees has some 400 million
// letters; nobody keeps them. The report is a function of the file, so it is enough to know where in it each line of the
// file begins to be reported; any part is made again from there.

#include "files/report_writer.h"

#include <vector>

namespace zrv {

class ReportMeasure;

/// Counted from 1 as in the file; 0 where the report speaks of neither.
struct ReportPlace {
    qint64 record = 0;
    int field = 0;
};

/// Memory: some 6 MB at most, whatever the file's length. To be used from one thread. Keeps the file open; once somebody
/// writes to the file, whatever makes text of it raises DeviceIo.
class CheckReport {
public:
    /// The clock is asked at the beginning and the end of run().
    CheckReport(FileKind kind, const QString &path, const CheckOptions &options, ReportClock clock);

    /// Checks the file. Called once, before all else.
    CheckOutcome run(const BeforeLine &beforeLine = {});

    /// Letters of the report (UTF-16 units), CR LF counted as two.
    [[nodiscard]] qint64 length() const { return m_end.length; }
    /// A text behind the last CR LF is a line too.
    [[nodiscard]] qint64 lineCount() const { return m_end.lines; }
    [[nodiscard]] qint64 errorCount() const { return m_outcome.errors; }
    /// Of the file, in bytes; 0 before it was opened.
    [[nodiscard]] qint64 fileSize() const { return m_check.fileSize(); }

    /// The lines from `first` on (from 0), as many as there are up to `count`, joined by CR LF without one at the end.
    [[nodiscard]] QString lines(qint64 first, qint64 count);

    /// The next line behind `line` that tells an error; -1 when there is none. With -1 the first of all.
    [[nodiscard]] qint64 nextError(qint64 line);

    /// Which line of the file, and which field of it, a line of the report speaks of.
    [[nodiscard]] ReportPlace placeOf(qint64 line);

    /// The whole report, in any length, piece by piece. False if `goOn`, called now and then, wanted to stop.
    bool write(ReportSink &sink, const std::function<bool()> &goOn = {});

private:
    /// Where a line of the file begins to be reported.
    struct Mark {
        CheckPlace place;
        qint64 line = 0;   ///< of the report
        qint64 length = 0; ///< of the report before it
    };
    struct End {
        qint64 lines = 0;
        qint64 length = 0;
    };
    /// Lines that were asked for last, and some behind them.
    struct Window {
        qint64 first = 0;
        QString text;
        std::vector<qsizetype> begins; ///< of each line in the text, and of what would follow
        std::vector<qint64> errors;    ///< lines that tell one
        [[nodiscard]] qint64 end() const { return first + static_cast<qint64>(begins.size()) - 1; }
    };
    struct Sought {
        qint64 behind = -1;
        qint64 found = -1;
    };
    class FileEvents;
    class Excerpt;
    class ExcerptWriter;
    class ErrorSearch;
    class PlaceSearch;

    void runTelling(ReportWriter &writer, ReportMeasure &measure, const BeforeLine &beforeLine);
    void runPassingOver(ReportWriter &writer, ReportMeasure &measure, const BeforeLine &beforeLine);
    void addMark(const CheckPlace &place, const ReportMeasure &measure);
    void make(ReportWriter &writer, const std::vector<Mark>::const_iterator &from, const BeforeLine &beforeLine);
    [[nodiscard]] std::vector<Mark>::const_iterator markBefore(qint64 line) const;
    void makeWindow(qint64 first, qint64 end);
    [[nodiscard]] qint64 findError(qint64 line);

    QString m_path;
    StructureCheck m_check;
    QString m_started;
    QString m_finished;
    ReportClock m_clock;
    CheckOutcome m_outcome;
    std::vector<Mark> m_marks;
    qint64 m_stride = 1; ///< a mark for each so many lines of the file
    qint64 m_nextMark = 0;
    End m_end;
    Window m_window;
    std::optional<Sought> m_sought; ///< the error search before this one
};

} // namespace zrv
