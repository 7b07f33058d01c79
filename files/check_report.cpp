// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/check_report.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace zrv {
namespace {

constexpr std::size_t MostMarks = 65536;

/// Thrown inside this file when what was sought is found: a line of the file may have millions of fields behind it.
struct Enough {};

} // namespace

/// Counts lines and letters of the report.
class CheckReport::Measure : public ReportSink {
public:
    explicit Measure(const Mark &from = {})
        : m_lines(from.line)
        , m_length(from.length)
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

    [[nodiscard]] qint64 lines() const { return m_lines; }
    [[nodiscard]] qint64 length() const { return m_length; }
    [[nodiscard]] bool isInLine() const { return m_isInLine; }

private:
    qint64 m_lines;
    qint64 m_length;
    bool m_isInLine = false;
};

/// Keeps some lines of the report.
class CheckReport::Excerpt : public ReportSink {
public:
    Excerpt(qint64 line, qint64 first, qint64 end)
        : m_line(line)
        , m_first(first)
        , m_end(end)
    {
    }

    void add(QStringView piece) override
    {
        if (m_line >= m_first)
            m_text += piece;
    }
    void endLine() override
    {
        if (++m_line == m_end)
            throw Enough();
        if (m_line > m_first)
            m_text += u"\r\n";
    }

    [[nodiscard]] QString text() const { return m_text; }

private:
    QString m_text;
    qint64 m_line;
    qint64 m_first;
    qint64 m_end;
};

/// Makes no text, and stops at the first error behind a line.
class CheckReport::ErrorSearch : public ReportWriter {
public:
    ErrorSearch(const StructureCheck &check, const ReportClock &clock, Measure &measure, qint64 behind)
        : ReportWriter(check.rules(), check.options(), clock, measure)
        , m_measure(measure)
        , m_behind(behind)
    {
    }

    void finding(const Finding &finding) override
    {
        const qint64 line = m_measure.lines() + (finding.kind == FindingKind::EmptyFile ? 1 : 0);
        if (line > m_behind) {
            m_found = line;
            throw Enough();
        }
        ReportWriter::finding(finding);
    }

    [[nodiscard]] qint64 found() const { return m_found; }

private:
    Measure &m_measure;
    qint64 m_behind;
    qint64 m_found = -1;
};

CheckReport::CheckReport(FileKind kind, const QString &path, const CheckOptions &options, ReportClock clock)
    : m_check(rulesOf(kind), path, options)
    , m_clock(std::move(clock))
{
}

CheckOutcome CheckReport::run(const BeforeLine &beforeLine)
{
    Measure measure;
    bool isStarted = false;
    const ReportClock clock = [&] {
        QString now = m_clock();
        (std::exchange(isStarted, true) ? m_finished : m_started) = now;
        return now;
    };
    ReportWriter writer(m_check.rules(), m_check.options(), clock, measure);
    m_outcome = m_check.run(writer, [&](const CheckPlace &place) {
        if (place.state.records % m_stride == 0)
            addMark({place, measure.lines(), measure.length()});
        return !beforeLine || beforeLine(place);
    });
    m_end = {measure.lines() + (measure.isInLine() ? 1 : 0), measure.length()};
    return m_outcome;
}

void CheckReport::addMark(const Mark &mark)
{
    if (m_marks.size() == MostMarks) {
        // Every other mark goes; the one to come, the 65,537th, stays in the new measure.
        m_stride *= 2;
        for (std::size_t i = 0; i < MostMarks / 2; ++i)
            m_marks[i] = m_marks[2 * i];
        m_marks.resize(MostMarks / 2);
    }
    m_marks.push_back(mark);
}

/// Makes the report from a mark on, from its very beginning with the first one, up to where the run ended.
void CheckReport::make(ReportWriter &writer, const std::vector<Mark>::const_iterator &from,
                       const BeforeLine &beforeLine)
{
    const auto goesOn = [&](const CheckPlace &place) {
        const bool wasCancelled = m_outcome.end == CheckEnd::Cancelled && place.state.records == m_outcome.records;
        return !wasCancelled && (!beforeLine || beforeLine(place));
    };
    if (m_marks.empty()) {
        m_check.run(writer);
        return;
    }
    if (from == m_marks.begin()) {
        writer.started();
        writer.nameAccepted();
    }
    m_check.runFrom(from->place, writer, goesOn);
}

/// The last mark that lies before the line or at it; the first one for the report's head.
std::vector<CheckReport::Mark>::const_iterator CheckReport::markBefore(qint64 line) const
{
    const auto behind = std::ranges::upper_bound(m_marks, line, {}, &Mark::line);
    return behind == m_marks.begin() ? behind : std::prev(behind);
}

QString CheckReport::lines(qint64 first, qint64 count)
{
    const qint64 end = std::min(m_end.lines, first + count);
    if (first < 0 || first >= end)
        return {};
    const auto from = markBefore(first);
    bool isStarted = !m_marks.empty() && from != m_marks.begin();
    const ReportClock clock = [&] { return std::exchange(isStarted, true) ? m_finished : m_started; };
    Excerpt excerpt(isStarted ? from->line : 0, first, end);
    ReportWriter writer(m_check.rules(), m_check.options(), clock, excerpt);
    try {
        make(writer, from, {});
    } catch (const Enough &) {
        return excerpt.text();
    }
    return excerpt.text();
}

qint64 CheckReport::nextError(qint64 line)
{
    const ReportClock clock = [this] { return m_started; };
    auto from = markBefore(line + 1);
    for (;;) {
        const bool isFirst = m_marks.empty() || from == m_marks.begin();
        const auto next = m_marks.empty() ? from : std::next(from);
        Measure measure(isFirst ? Mark() : *from);
        ErrorSearch search(m_check, clock, measure, line);
        try {
            make(search, from,
                 [&](const CheckPlace &place) { return next == m_marks.end() || place.offset != next->place.offset; });
        } catch (const Enough &) {
            return search.found();
        }
        if (next == m_marks.end())
            return -1;
        // The errors between two marks are the difference of their numbers.
        const auto behind = std::ranges::upper_bound(next, m_marks.cend(), next->place.state.errors, {},
                                                     [](const Mark &mark) { return mark.place.state.errors; });
        from = std::prev(behind);
    }
}

bool CheckReport::write(ReportSink &sink, const std::function<bool()> &goOn)
{
    bool isStarted = false;
    const ReportClock clock = [&] { return std::exchange(isStarted, true) ? m_finished : m_started; };
    ReportWriter writer(m_check.rules(), m_check.options(), clock, sink);
    bool isWhole = true;
    make(writer, m_marks.cbegin(), [&](const CheckPlace &) { return isWhole = !goOn || goOn(); });
    return isWhole;
}

} // namespace zrv
