// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// How long the report of a salary list gets and where in it each line of the file is told of, without its text. Only
// files/check_report.cpp asks.

#include "files/field_ends.h"
#include "files/report_writer.h"
#include "files/structure_check.h"

#include <atomic>
#include <functional>
#include <memory>
#include <unordered_map>

namespace zrv {

/// Counts lines and letters of the report; CR LF counts as two.
class ReportMeasure : public ReportSink {
public:
    explicit ReportMeasure(qint64 lines = 0, qint64 length = 0)
        : m_begin{lines, length}
        , m_lines(lines)
        , m_length(length)
    {
    }

    void add(QStringView piece) override
    {
        m_length += piece.size();
        m_isInLine = m_isInLine || !piece.isEmpty();
    }
    void endLine() override
    {
        m_length += 2;
        ++m_lines;
        m_isInLine = false;
    }
    void addLines(qint64 lines, qint64 length)
    {
        m_lines += lines;
        m_length += length;
    }
    /// What another one has measured since it began.
    void addMeasured(const ReportMeasure &other)
    {
        addLines(other.m_lines - other.m_begin.lines, other.m_length - other.m_begin.length);
        m_isInLine = m_isInLine || other.m_isInLine;
    }

    [[nodiscard]] qint64 lines() const { return m_lines; }
    [[nodiscard]] qint64 length() const { return m_length; }
    /// Something stands behind the last CR LF.
    [[nodiscard]] bool isInLine() const { return m_isInLine; }

private:
    struct {
        qint64 lines;
        qint64 length;
    } m_begin;
    qint64 m_lines;
    qint64 m_length;
    bool m_isInLine = false;
};

/// Follows a check that passes over faultless payee lines, with a reader of its own.
///
/// What the report says of a faultless line depends on the kind of payee and on which fields are empty; beyond that its
/// length has the letters of the fields and the digits of the line's number in it, each as often as any line has. So the
/// check is asked once for each form of line, and the lines of a form are counted.
class ReportGauge {
public:
    /// Told of each line of the file before it is measured.
    using OnLine = std::function<void(const CheckPlace &)>;

    /// All must outlive the gauge.
    ReportGauge(const FileRules &rules, const CheckOptions &options, const QString &path, ReportMeasure &measure,
                OnLine onLine);
    ~ReportGauge();

    /// Measures the faultless lines before the place, which is where the check stands.
    void passTo(const CheckPlace &place);
    /// Measures the line at that place, whatever it has. False where it was given up: then the gauge stands before it.
    [[nodiscard]] bool measureLine(const CheckPlace &place);
    /// Where it stands; the errors are those of the line that was looked at last.
    [[nodiscard]] const CheckPlace &place() const { return m_place; }

    /// A line of very many fields isn't measured to its end from now on; from any thread.
    void giveUpLongLines() { m_givesUp = true; }

private:
    /// What the report says of the lines of a form, apart from the fields' letters and the line number's digits.
    struct Form {
        qint64 lines = 0;
        qint64 length = 0;
    };
    struct Shape;

    bool passStretch(qint64 count);
    void passLine();
    void count(const Shape &shape, QStringView line);
    [[nodiscard]] Form formOf(QStringView line, qint64 units);
    [[nodiscard]] ReportMeasure measured(QStringView line, qint64 records);
    [[nodiscard]] static Shape shapeOf(QStringView line);

    const FileRules &m_rules;
    const CheckOptions &m_options;
    const QString &m_path;
    ReportMeasure &m_measure;
    OnLine m_onLine;
    std::unique_ptr<LineReader> m_reader;

    std::atomic<bool> m_givesUp = false;
    CheckPlace m_place; ///< of the line to come
    int m_digits = 1;   ///< of its number
    qint64 m_nextDigit = 10;
    qint64 m_numbers = 0; ///< how often the report of a line says its number; 0 before that is known

    std::unordered_map<quint64, Form> m_forms;
    quint64 m_lastShape = 0;
    Form m_lastForm;
    EndsFinder m_findEnds = endsFinder(bestInstructions());
    FieldEnds m_ends;
};

} // namespace zrv
