// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// How long the report of a salary list gets and where in it each line of the file is told of, without its text. Only
// files/check_report.cpp asks.

#include "files/report_writer.h"
#include "files/structure_check.h"

#include <functional>
#include <memory>
#include <unordered_map>

namespace zrv {

/// Counts lines and letters of the report; CR LF counts as two.
class ReportMeasure : public ReportSink {
public:
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

    [[nodiscard]] qint64 lines() const { return m_lines; }
    [[nodiscard]] qint64 length() const { return m_length; }
    /// Something stands behind the last CR LF.
    [[nodiscard]] bool isInLine() const { return m_isInLine; }

private:
    qint64 m_lines = 0;
    qint64 m_length = 0;
    bool m_isInLine = false;
};

/// Measures the report of a check that passes over faultless payee lines.
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

    /// Measures the line at that place, whatever it has; the check passed over those between it and the one before.
    /// Within a line of very many fields `goesOn` is asked now and then: false gives the line up, and is the answer.
    [[nodiscard]] bool measureLine(const CheckPlace &place, const std::function<bool()> &goesOn);
    /// Measures the lines that follow.
    void pass(std::span<const PassedLine> lines);

private:
    /// What the report says of the lines of a form, apart from the fields' letters and the line number's digits.
    struct Form {
        qint64 lines = 0;
        qint64 length = 0;
    };

    void count(const PassedLine &line);
    void takeForm(quint64 shape);
    [[nodiscard]] QStringView lineAt(qint64 offset);
    [[nodiscard]] ReportMeasure measured(QStringView line, qint64 records);

    const FileRules &m_rules;
    const CheckOptions &m_options;
    const QString &m_path;
    ReportMeasure &m_measure;
    OnLine m_onLine;
    std::unique_ptr<LineReader> m_reader; ///< apart from the check's, which may be anywhere
    qint64 m_ahead = 0;                   ///< bytes that it reads at once

    CheckPlace m_place; ///< of the line to come
    int m_digits = 1;   ///< of its number
    qint64 m_nextDigit = 10;
    qint64 m_numbers = 0; ///< how often the report of a line says its number; 0 before that is known

    std::unordered_map<quint64, Form> m_forms;
    quint64 m_shape = 0;
    Form m_form; ///< of lines of that shape, once m_numbers is known
};

} // namespace zrv
