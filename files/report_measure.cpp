// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/report_measure.h"

#include <algorithm>

namespace zrv {
namespace {

constexpr std::size_t Fields = 34;
constexpr std::size_t MostForms = 4096;

/// Lines of one shape have their report in one form.
quint64 shapeOf(const PassedLine &line)
{
    return line.empty | quint64(line.national) << Fields | quint64(line.otherInsurance) << (Fields + 1);
}

} // namespace

ReportGauge::ReportGauge(const FileRules &rules, const CheckOptions &options, const QString &path,
                         ReportMeasure &measure, OnLine onLine)
    : m_rules(rules)
    , m_options(options)
    , m_path(path)
    , m_measure(measure)
    , m_onLine(std::move(onLine))
{
}

bool ReportGauge::measureLine(const CheckPlace &place, const std::function<bool()> &goesOn)
{
    m_onLine(place);
    const QStringView line = lineAt(place.offset);
    m_place = place;
    const ReportClock noClock;
    const ReportMeasure before = m_measure;
    ReportWriter writer(m_rules, m_options, noClock, m_measure);
    LineCheck check(m_rules, m_options.programVersion, m_place.state, writer);
    check.askInLongLines(goesOn);
    if (check.check(line, place.offset) == LineCheck::GivenUp) {
        m_measure = before;
        return false;
    }
    m_place.state.records = place.state.records + 1;
    m_place.offset += (line.size() + 2) * qint64(sizeof(QChar));
    return true;
}

void ReportGauge::pass(std::span<const PassedLine> lines)
{
    for (const PassedLine &line : lines)
        count(line);
}

void ReportGauge::count(const PassedLine &line)
{
    m_onLine(m_place);
    if (m_place.state.records + 1 >= m_nextDigit) {
        for (m_digits = 1, m_nextDigit = 10; m_place.state.records + 1 >= m_nextDigit; ++m_digits)
            m_nextDigit *= 10;
    }
    const quint64 shape = shapeOf(line);
    if (shape != m_shape || m_numbers == 0)
        takeForm(shape);
    m_measure.addLines(m_form.lines, m_form.length + line.units + m_numbers * m_digits);
    m_place.offset += (line.units + 2) * qint64(sizeof(QChar));
    ++m_place.state.records;
    m_place.state.national = line.national;
    m_place.state.otherInsurance = line.otherInsurance;
}

/// Takes the form of the line at which the gauge stands.
void ReportGauge::takeForm(quint64 shape)
{
    constexpr qint64 RecordsBeforeLineOfOneDigit = 1;
    constexpr qint64 RecordsBeforeLineOfTwoDigits = 9;
    auto known = m_forms.find(shape);
    if (known == m_forms.end()) {
        // A file of nothing but odd lines is no reason to keep them all.
        if (m_forms.size() >= MostForms)
            m_forms.clear();
        const QStringView line = lineAt(m_place.offset);
        const ReportMeasure one = measured(line, RecordsBeforeLineOfOneDigit);
        m_numbers = measured(line, RecordsBeforeLineOfTwoDigits).length() - one.length();
        known = m_forms.emplace(shape, Form{one.lines(), one.length() - line.size() - m_numbers}).first;
    }
    m_shape = shape;
    m_form = known->second;
}

/// The line that begins there. Of lines that follow each other more and more are read at once.
QStringView ReportGauge::lineAt(qint64 offset)
{
    constexpr qint64 LeastAhead = 2;
    constexpr qint64 MostAhead = 1 << 20;
    if (!m_reader)
        m_reader = std::make_unique<LineReader>(m_path, m_options.blockUnits);
    QStringView line;
    const bool follows = m_reader->position() == offset;
    if (follows && m_reader->next(line))
        return line;
    m_ahead = follows ? std::min(std::max(m_ahead, LeastAhead) * 8, MostAhead) : LeastAhead;
    m_reader->seek(offset, offset + m_ahead);
    (void)m_reader->next(line);
    return line;
}

/// What the report says of a line that comes behind so many others.
ReportMeasure ReportGauge::measured(QStringView line, qint64 records)
{
    ReportMeasure measure;
    const ReportClock noClock;
    ReportWriter writer(m_rules, m_options, noClock, measure);
    CheckState state{.records = records};
    (void)LineCheck(m_rules, m_options.programVersion, state, writer).check(line, 0);
    return measure;
}

} // namespace zrv
