// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/report_measure.h"

#include <algorithm>

namespace zrv {
namespace {

constexpr std::size_t Fields = 34;
constexpr std::size_t MostForms = 4096;

// Places of fields, from 0.
constexpr std::size_t Nationality = 11;
constexpr std::size_t InsuranceKind = 13;

constexpr quint64 National = 1ULL << Fields;
constexpr quint64 OtherInsurance = 2ULL << Fields;

} // namespace

/// Lines of one shape have their report in one form.
struct ReportGauge::Shape {
    quint64 key = 0;  ///< a bit for each empty field, and those above
    qint64 units = 0; ///< of the line
};

ReportGauge::ReportGauge(const FileRules &rules, const CheckOptions &options, const QString &path,
                         ReportMeasure &measure, OnLine onLine)
    : m_rules(rules)
    , m_options(options)
    , m_path(path)
    , m_measure(measure)
    , m_onLine(std::move(onLine))
{
}

ReportGauge::~ReportGauge() = default;

bool ReportGauge::measureLine(const CheckPlace &place)
{
    if (!m_reader) {
        m_reader = std::make_unique<LineReader>(m_path, m_options.blockUnits);
        m_reader->seek(place.offset);
    }
    m_place = place;
    m_onLine(m_place);
    QStringView line;
    if (!m_reader->next(line))
        return true;
    const ReportClock noClock;
    const ReportMeasure before = m_measure;
    ReportWriter writer(m_rules, m_options, noClock, m_measure);
    LineCheck check(m_rules, m_options.programVersion, m_place.state, writer);
    check.askInLongLines([this] { return !m_givesUp; });
    if (check.check(line, place.offset) == LineCheck::GivenUp) {
        m_measure = before;
        m_place = place;
        return false;
    }
    m_place.state.records = place.state.records + 1;
    m_place.offset += (line.size() + 2) * qint64(sizeof(QChar));
    return true;
}

void ReportGauge::passTo(const CheckPlace &place)
{
    // The errors are those of the last line that was looked at.
    m_place.state.errors = place.state.errors;
    while (m_place.state.records < place.state.records) {
        if (!passStretch(place.state.records - m_place.state.records))
            passLine();
    }
}

/// Measures the whole lines that lie ahead in memory, up to so many. False if there is none.
bool ReportGauge::passStretch(qint64 count)
{
    const QStringView ahead = m_reader->ahead();
    const auto *const units = reinterpret_cast<const char16_t *>(ahead.utf16());
    const std::size_t room = std::min<std::size_t>(static_cast<std::size_t>(ahead.size()), FieldEnds::MostUnits);
    m_findEnds(units, room / FieldEnds::UnitsPerStep, m_ends);
    std::size_t begin = 0;
    // Behind a line's last field stand its CR and its LF.
    for (std::size_t first = 0; count > 0 && first + Fields < m_ends.count; first += Fields + 1, --count) {
        const std::uint16_t *const places = &m_ends.places[first];
        const std::size_t end = places[Fields];
        if (units[end] != u'\r' || units[end + 1] != u'\n')
            break;
        Shape shape{.units = static_cast<qint64>(end - begin)};
        for (std::size_t field = 0; field < Fields; ++field)
            shape.key |= quint64(static_cast<std::uint16_t>(places[field + 1] - places[field]) == 1) << field;
        shape.key |= units[places[Nationality] + 1] == u'1' ? National : 0;
        shape.key |= units[places[InsuranceKind] + 1] == u'0' ? OtherInsurance : 0;
        this->count(shape, ahead.sliced(qsizetype(begin), shape.units));
        begin = end + 2;
    }
    m_reader->pass(begin);
    return begin > 0;
}

void ReportGauge::passLine()
{
    QStringView line;
    if (!m_reader->next(line))
        line = {};
    count(shapeOf(line), line);
}

ReportGauge::Shape ReportGauge::shapeOf(QStringView line)
{
    Shape shape{.units = line.size()};
    std::size_t field = 0;
    for (const QStringView value : line.tokenize(u',')) {
        if (field >= Fields)
            break;
        shape.key |= quint64(value.isEmpty()) << field;
        shape.key |= field == Nationality && value.startsWith(u'1') ? National : 0;
        shape.key |= field == InsuranceKind && value.startsWith(u'0') ? OtherInsurance : 0;
        ++field;
    }
    return shape;
}

void ReportGauge::count(const Shape &shape, QStringView line)
{
    m_onLine(m_place);
    if (m_place.state.records + 1 >= m_nextDigit) {
        for (m_digits = 1, m_nextDigit = 10; m_place.state.records + 1 >= m_nextDigit; ++m_digits)
            m_nextDigit *= 10;
    }
    if (shape.key != m_lastShape || m_numbers == 0) {
        auto known = m_forms.find(shape.key);
        if (known == m_forms.end()) {
            // A file of nothing but odd lines is no reason to keep them all.
            if (m_forms.size() >= MostForms)
                m_forms.clear();
            known = m_forms.emplace(shape.key, formOf(line, shape.units)).first;
        }
        m_lastShape = shape.key;
        m_lastForm = known->second;
    }
    m_measure.addLines(m_lastForm.lines, m_lastForm.length + shape.units + m_numbers * m_digits);
    m_place.offset += (shape.units + 2) * qint64(sizeof(QChar));
    ++m_place.state.records;
    m_place.state.national = (shape.key & National) != 0;
    m_place.state.otherInsurance = (shape.key & OtherInsurance) != 0;
}

ReportGauge::Form ReportGauge::formOf(QStringView line, qint64 units)
{
    constexpr qint64 RecordsBeforeLineOfOneDigit = 1;
    constexpr qint64 RecordsBeforeLineOfTwoDigits = 9;
    const ReportMeasure one = measured(line, RecordsBeforeLineOfOneDigit);
    m_numbers = measured(line, RecordsBeforeLineOfTwoDigits).length() - one.length();
    return {one.lines(), one.length() - units - m_numbers};
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
