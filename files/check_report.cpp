// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/check_report.h"

#include "core/basic/run_time_error.h"
#include "files/report_measure.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace zrv {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr std::size_t MostMarks = 65536;

const QString LineEnd = u"\r\n"_s;

/// The line of the report that tells an error which is met in this one.
qint64 errorLine(qint64 line, const Finding &finding)
{
    return line + (finding.kind == FindingKind::EmptyFile ? 1 : 0);
}

/// Thrown inside this file when what was sought is found: a line of the file may have millions of fields behind it.
struct Enough {};

} // namespace

/// Hears of the file itself and of the lines that are passed over; the others are measured where they are looked at.
class CheckReport::FileEvents : public CheckEvents {
public:
    FileEvents(ReportWriter &writer, ReportGauge &gauge)
        : m_writer(writer)
        , m_gauge(gauge)
    {
    }

    [[nodiscard]] bool wantsErrorsAlone() const override { return true; }
    [[nodiscard]] bool wantsPassedLines() const override { return true; }
    void passedOver(std::span<const PassedLine> lines) override { m_gauge.pass(lines); }
    void finding(const Finding &finding) override
    {
        switch (finding.kind) {
        case FindingKind::EmptyFile:
        case FindingKind::NoFile:
        case FindingKind::WrongName:
        case FindingKind::TooFewRecords:
            m_writer.finding(finding);
            break;
        default:
            break;
        }
    }
    void started() override { m_writer.started(); }
    void nameAccepted() override { m_writer.nameAccepted(); }
    void finished() override { m_writer.finished(); }

private:
    ReportWriter &m_writer;
    ReportGauge &m_gauge;
};

/// Keeps some lines of the report, and which of them tell an error.
class CheckReport::Excerpt : public ReportSink {
public:
    /// From `first` on, as many as up to `end`, and then on to so many as are cheap to have.
    Excerpt(qint64 line, qint64 first, qint64 end)
        : m_line(line)
        , m_end(end)
        , m_kept{.first = first, .begins = {0}}
    {
    }

    void add(QStringView piece) override
    {
        if (m_line >= m_kept.first)
            m_kept.text += piece;
    }
    void endLine() override
    {
        if (m_line++ < m_kept.first)
            return;
        m_kept.text += LineEnd;
        m_kept.begins.push_back(m_kept.text.size());
        if (m_line >= m_end && (m_line - m_kept.first >= CheapLines || m_kept.text.size() >= CheapLetters))
            throw Enough();
    }
    /// A piece without a line end says what kind of line it is, so the line before the first is made as well.
    [[nodiscard]] bool wantsText() const override { return m_line + 2 >= m_kept.first; }

    [[nodiscard]] qint64 line() const { return m_line; }
    void addError(qint64 line)
    {
        if (line >= m_kept.first)
            m_kept.errors.push_back(line);
    }
    [[nodiscard]] Window take()
    {
        if (m_kept.begins.back() < m_kept.text.size())
            m_kept.begins.push_back(m_kept.text.size());
        return std::move(m_kept);
    }

private:
    static constexpr qint64 CheapLines = 256;
    static constexpr qint64 CheapLetters = 65536;

    qint64 m_line;
    qint64 m_end;
    Window m_kept;
};

class CheckReport::ExcerptWriter : public ReportWriter {
public:
    ExcerptWriter(const StructureCheck &check, const ReportClock &clock, Excerpt &excerpt)
        : ReportWriter(check.rules(), check.options(), clock, excerpt)
        , m_excerpt(excerpt)
    {
    }

    void finding(const Finding &finding) override
    {
        m_excerpt.addError(errorLine(m_excerpt.line(), finding));
        ReportWriter::finding(finding);
    }

private:
    Excerpt &m_excerpt;
};

/// Counts the lines and stops at the first error behind one.
class CheckReport::ErrorSearch : private ReportSink, public ReportWriter {
public:
    ErrorSearch(const StructureCheck &check, const ReportClock &clock, qint64 line, qint64 behind)
        : ReportWriter(check.rules(), check.options(), clock, static_cast<ReportSink &>(*this))
        , m_line(line)
        , m_behind(behind)
    {
    }

    void finding(const Finding &finding) override
    {
        const qint64 line = errorLine(m_line, finding);
        if (line > m_behind) {
            m_found = line;
            throw Enough();
        }
        ReportWriter::finding(finding);
    }

    [[nodiscard]] qint64 found() const { return m_found; }

private:
    void add(QStringView) override {}
    void endLine() override { ++m_line; }
    [[nodiscard]] bool wantsText() const override { return false; }

    qint64 m_line;
    qint64 m_behind;
    qint64 m_found = -1;
};

/// Counts the lines and stops behind one with what it speaks of.
class CheckReport::PlaceSearch : private ReportSink, public ReportWriter {
public:
    PlaceSearch(const StructureCheck &check, const ReportClock &clock, qint64 line, qint64 sought)
        : ReportWriter(check.rules(), check.options(), clock, static_cast<ReportSink &>(*this))
        , m_line(line)
        , m_sought(sought)
    {
    }

    void finding(const Finding &finding) override
    {
        // Too few records are told behind the last of them.
        if (finding.kind == FindingKind::TooFewRecords)
            begin({});
        ReportWriter::finding(finding);
    }
    void lineBegins(qint64 line) override
    {
        begin({line, 0});
        ReportWriter::lineBegins(line);
    }
    void fieldBegins(const Field &field) override
    {
        begin({m_place.record, field.number});
        ReportWriter::fieldBegins(field);
    }
    void surplusBegins(qint64 line, int number) override
    {
        begin({line, number});
        ReportWriter::surplusBegins(line, number);
    }
    void finished() override
    {
        begin({});
        ReportWriter::finished();
    }

    [[nodiscard]] ReportPlace place() const { return m_place; }

private:
    /// What the report says next is of that place.
    void begin(const ReportPlace &place)
    {
        if (m_line > m_sought)
            throw Enough();
        m_place = place;
    }

    void add(QStringView) override {}
    void endLine() override { ++m_line; }
    [[nodiscard]] bool wantsText() const override { return false; }

    qint64 m_line;
    qint64 m_sought;
    ReportPlace m_place;
};

CheckReport::CheckReport(FileKind kind, const QString &path, const CheckOptions &options, ReportClock clock)
    : m_path(path)
    , m_check(rulesOf(kind), path, options)
    , m_clock(std::move(clock))
{
}

CheckOutcome CheckReport::run(const BeforeLine &beforeLine)
{
    ReportMeasure measure;
    bool isStarted = false;
    const ReportClock clock = [&] {
        QString now = m_clock();
        (std::exchange(isStarted, true) ? m_finished : m_started) = now;
        return now;
    };
    ReportWriter writer(m_check.rules(), m_check.options(), clock, measure);
    const bool passesOver = m_check.rules().kind == FileKind::Wh && !m_check.options().firstTwoLines;
    if (passesOver)
        runPassingOver(writer, measure, beforeLine);
    else
        runTelling(writer, measure, beforeLine);
    m_end = {measure.lines() + (measure.isInLine() ? 1 : 0), measure.length()};
    return m_outcome;
}

void CheckReport::runTelling(ReportWriter &writer, ReportMeasure &measure, const BeforeLine &beforeLine)
{
    ReportMeasure before; // the line that is looked at
    qint64 line = -1;
    m_outcome = m_check.run(writer, [&](const CheckPlace &place) {
        if (std::exchange(line, place.offset) != place.offset) {
            before = measure;
            addMark(place, measure);
        }
        return !beforeLine || beforeLine(place);
    });
    // A line in which the run ended isn't told of.
    if (m_outcome.end == CheckEnd::Cancelled)
        measure = before;
}

/// Most lines of a salary list have nothing wrong in them: these are measured without being told of.
void CheckReport::runPassingOver(ReportWriter &writer, ReportMeasure &measure, const BeforeLine &beforeLine)
{
    ReportGauge gauge(m_check.rules(), m_check.options(), m_path, measure,
                      [&](const CheckPlace &place) { addMark(place, measure); });
    FileEvents events(writer, gauge);
    ReportMeasure before; // the line that was measured last
    qint64 measured = -1;
    m_outcome = m_check.run(events, [&](const CheckPlace &place) {
        const auto goesOn = [&] { return !beforeLine || beforeLine(place); };
        if (!goesOn())
            return false;
        if (measured == place.state.records)
            return true;
        before = measure;
        if (!gauge.measureLine(place, goesOn))
            return false;
        measured = place.state.records;
        return true;
    });
    // A line in which the run was given up isn't told of.
    if (m_outcome.end == CheckEnd::Cancelled && measured == m_outcome.records)
        measure = before;
}

void CheckReport::addMark(const CheckPlace &place, const ReportMeasure &measure)
{
    if (place.state.records < m_nextMark)
        return;
    if (m_marks.size() == MostMarks) {
        // Every other mark goes; the one to come, the 65,537th, stays in the new measure.
        m_stride *= 2;
        for (std::size_t i = 0; i < MostMarks / 2; ++i)
            m_marks[i] = m_marks[2 * i];
        m_marks.resize(MostMarks / 2);
    }
    m_marks.push_back({place, measure.lines(), measure.length()});
    m_nextMark = place.state.records + m_stride;
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
    m_check.expectUnchanged();
    if (first < m_window.first || end > m_window.end())
        makeWindow(first, end);
    const auto at = [this](qint64 line) { return m_window.begins.at(static_cast<std::size_t>(line - m_window.first)); };
    // A file that lies elsewhere by now may have become shorter.
    if (end > m_window.end())
        return m_window.text;
    QStringView text = QStringView(m_window.text).sliced(at(first), at(end) - at(first));
    if (text.endsWith(LineEnd))
        text.chop(LineEnd.size());
    return text.toString();
}

void CheckReport::makeWindow(qint64 first, qint64 end)
{
    m_window = {};
    const auto from = markBefore(first);
    bool isStarted = !m_marks.empty() && from != m_marks.begin();
    const ReportClock clock = [&] { return std::exchange(isStarted, true) ? m_finished : m_started; };
    Excerpt excerpt(isStarted ? from->line : 0, first, end);
    ExcerptWriter writer(m_check, clock, excerpt);
    try {
        make(writer, from, {});
    } catch (const Enough &) {
        m_window = excerpt.take();
        return;
    }
    m_window = excerpt.take();
}

qint64 CheckReport::nextError(qint64 line)
{
    m_check.expectUnchanged();
    if (line + 1 >= m_window.first && line + 1 < m_window.end()) {
        const auto next = std::ranges::upper_bound(m_window.errors, line);
        if (next != m_window.errors.end())
            return *next;
        line = m_window.end() - 1;
    }
    const bool isKnown = m_sought && line >= m_sought->behind && (m_sought->found < 0 || line < m_sought->found);
    if (!isKnown)
        m_sought = {.behind = line, .found = findError(line)};
    return m_sought->found;
}

qint64 CheckReport::findError(qint64 line)
{
    const ReportClock clock = [this] { return m_started; };
    auto from = markBefore(line + 1);
    for (;;) {
        const bool isFirst = m_marks.empty() || from == m_marks.begin();
        const auto next = m_marks.empty() ? from : std::next(from);
        ErrorSearch search(m_check, clock, isFirst ? 0 : from->line, line);
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

ReportPlace CheckReport::placeOf(qint64 line)
{
    const ReportClock clock = [this] { return m_started; };
    const auto from = markBefore(line);
    PlaceSearch search(m_check, clock, m_marks.empty() || from == m_marks.begin() ? 0 : from->line, line);
    try {
        make(search, from, {});
    } catch (const Enough &) {
        return search.place();
    }
    return search.place();
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
