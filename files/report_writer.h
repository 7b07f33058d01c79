// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The running report of a structure check, piece by piece, as its readers know it.

#include "files/check_words.h"
#include "files/structure_check.h"

#include <functional>

namespace zrv {

class SafeFile;

/// Takes the report's pieces.
class ReportSink {
public:
    virtual ~ReportSink() = default;

    /// No piece has a CR LF in it.
    virtual void add(QStringView piece) = 0;
    /// CR LF.
    virtual void endLine() = 0;
    /// False while only the line ends count: costly pieces may be left out then.
    [[nodiscard]] virtual bool wantsText() const { return true; }
};

/// Today's Solar Hijri date, " - " and the time of day, as "1389/03/03 - 10:30:00".
using ReportClock = std::function<QString()>;

class ReportWriter : public CheckEvents {
public:
    /// All must outlive the writer; the clock is asked at the report's beginning and at its end.
    ReportWriter(const FileRules &rules, const CheckOptions &options, const ReportClock &clock, ReportSink &sink);

    void finding(const Finding &finding) override;
    void started() override;
    void nameAccepted() override;
    void lineBegins(qint64 line) override;
    void countPassed(qint64 line) override;
    void fieldBegins(const Field &field) override;
    void fieldRead(qint64 line, const Field &field, QStringView value) override;
    void fieldMissing() override;
    void passed(QStringView words) override;
    void surplusBegins(qint64 line, int number) override;
    void finished() override;

private:
    void add(QStringView piece) { m_sink.add(piece); }
    void add(qint64 number);
    void addLine(QStringView piece);
    void addWords(QStringView words);

    const FileRules &m_rules;
    const CheckOptions &m_options;
    const CheckWords &m_words;
    const ReportClock &m_clock;
    ReportSink &m_sink;
};

/// Writes the report into a file in UTF-16 with its mark, as the log of a check: the report and one CR LF behind it.
/// The events of a run go through events(); finish() makes the file.
class ReportLog : public ReportSink {
public:
    /// The file must outlive the log.
    explicit ReportLog(SafeFile &file);

    void add(QStringView piece) override;
    void endLine() override;
    /// The last CR LF, and everything to the disk; the file isn't committed.
    void finish();

private:
    void flush();

    SafeFile &m_file;
    QString m_block;
};

} // namespace zrv
