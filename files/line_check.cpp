// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/line_check.h"

#include "core/basic/text.h"
#include "core/basic/val.h"
#include "core/mdlEncriptDecript.h"
#include "core/public/check_digit.h"

#include <algorithm>
#include <utility>

namespace zrv {
namespace {

constexpr QChar Separator = u',';
constexpr int ControlField = 22;
constexpr int FieldsBetweenQuestions = 16384;

// Fields that other fields' rules look at.
constexpr int PayerKind = 5;
constexpr int Nationality = 12;
constexpr int InsuranceKind = 14;
constexpr int InsuranceNumber = 16;
constexpr int MannerOfPayment = 19;

constexpr double LegalPersonCode = 2;
constexpr double NationalCodeOfNationality = 1;
constexpr double OtherInsuranceCode = 0;
constexpr double ChequeCode = 2;

bool isOneOfDecodersFailures(QStringView text)
{
    return text == InvalidBase64Length || text == InvalidBase64Letter;
}

QStringView passingWords(Asks asks)
{
    switch (asks) {
    case Asks::Exactly:
    case Asks::UpTo:
    case Asks::AtMost:
        return passing::Length;
    case Asks::Empty:
        return passing::Empty;
    case Asks::NationalCode:
        return passing::NationalCode;
    default:
        return passing::Characters;
    }
}

bool looksAtEmptyFields(Asks asks)
{
    return asks != Asks::Digits && asks != Asks::NoNumber;
}

bool passes(const CheckRule &rule, QStringView value)
{
    switch (rule.asks) {
    case Asks::Exactly:
        return value.size() == rule.limit;
    case Asks::UpTo:
        return !value.isEmpty() && value.size() <= rule.limit;
    case Asks::AtMost:
        return value.size() <= rule.limit;
    case Asks::Empty:
        return value.isEmpty();
    case Asks::Digits:
    case Asks::DigitsAlways:
        return IsNumeric(value);
    case Asks::NoNumber:
    case Asks::NoNumberAlways:
        return !IsNumeric(value);
    case Asks::NationalCode:
        return isValidNationalCode(trimBlanks(value));
    }
    return true;
}

} // namespace

bool comparesAsNumber(QStringView text, double &number)
{
    if (!IsNumeric(text))
        return false;
    // IsNumeric() takes more kinds of white space round a number than Val() skips.
    while (!isAsciiDigit(text.front()) && text.front() != u'-' && text.front() != u'+' && text.front() != u'.')
        text = text.sliced(1);
    number = Val(text);
    return true;
}

LineCheck::LineCheck(const FileRules &rules, QStringView programVersion, CheckState &state, CheckEvents &events)
    : m_rules(rules)
    , m_ofFirst(rulesByField(rules.first))
    , m_ofRest(rulesByField(rules.rest))
    , m_programVersion(programVersion)
    , m_state(state)
    , m_events(events)
{
}

/// The tables have the rules of a field one behind the other.
LineCheck::RulesByField LineCheck::rulesByField(const LineRules &line)
{
    RulesByField found;
    for (auto rule = line.rules.begin(); rule != line.rules.end();) {
        const auto isAnothers = [&](const CheckRule &other) { return other.field != rule->field; };
        const auto end = std::find_if(rule, line.rules.end(), isAnothers);
        found[static_cast<std::size_t>(rule->field) - 1] = std::span(rule, end);
        rule = end;
    }
    return found;
}

int LineCheck::check(QStringView line, qint64 offset, const KnownLine &known)
{
    m_line = m_state.records == 0 ? &m_rules.first : &m_rules.rest;
    m_text = line;
    m_offset = offset;
    m_fieldPresent = true;
    if (known.sound != 0)
        split(line, known);
    else
        split(line);

    m_events.lineBegins(m_state.records + 1);
    checkCount();
    if (m_line->kind != LineKind::Counted) {
        if (const int mismatch = checkFields(known.sound))
            return mismatch;
    }
    if (!checkSurplus())
        return GivenUp;
    ++m_state.records;
    return 0;
}

/// Finds the fields that rules look at and counts all of them.
void LineCheck::split(QStringView line)
{
    m_count = 0;
    const QChar *begin = line.begin();
    for (const QChar *letter = begin; letter != line.end(); ++letter) {
        if (*letter != Separator)
            continue;
        m_fields[static_cast<std::size_t>(m_count++)] = QStringView(begin, letter);
        begin = letter + 1;
        if (m_count == MostKept) {
            m_count += 1 + static_cast<int>(QStringView(begin, line.end()).count(Separator));
            return;
        }
    }
    m_fields[static_cast<std::size_t>(m_count++)] = QStringView(begin, line.end());
}

void LineCheck::split(QStringView line, const KnownLine &known)
{
    m_count = 0;
    std::size_t begin = 0;
    for (const std::uint16_t end : known.ends) {
        const std::size_t length = end - known.begin - begin;
        m_fields[static_cast<std::size_t>(m_count++)] =
            line.sliced(static_cast<qsizetype>(begin), static_cast<qsizetype>(length));
        begin += length + 1;
    }
}

void LineCheck::checkCount()
{
    const auto expected = static_cast<int>(m_line->fields.size());
    if (m_count == expected)
        return m_events.countPassed(m_state.records + 1);
    if (m_line->kind != LineKind::Payer || m_count != ControlField)
        return fail({.kind = FindingKind::FieldCount, .counted = m_count});

    const QString version = controlVersion();
    if (version == m_programVersion)
        m_events.countPassed(m_state.records + 1);
    else if (isOneOfDecodersFailures(version))
        fail({.kind = FindingKind::FieldCount, .counted = m_count});
    else
        fail({.kind = FindingKind::OtherVersion, .counted = m_count, .version = version});
}

QString LineCheck::controlVersion() const
{
    return DecodeBase64(trimBlanks(m_fields[ControlField - 1]));
}

/// 0, or the field whose comparison is a type mismatch.
int LineCheck::checkFields(FieldSet sound)
{
    const RulesByField &rules = m_state.records == 0 ? m_ofFirst : m_ofRest;
    for (const Field &field : m_line->fields) {
        const auto place = static_cast<std::size_t>(field.number) - 1;
        if ((sound >> place & 1U) != 0) {
            setFlags(field.number, m_fields[place]);
            continue;
        }
        m_events.fieldBegins(field);
        if (field.number > m_count)
            m_fieldPresent = false;
        if (std::exchange(m_fieldPresent, true)) {
            const QStringView value = m_fields[place];
            m_events.fieldRead(m_state.records + 1, field, value);
            if (const int mismatch = checkField(field, value, rules[place]))
                return mismatch;
        } else {
            m_events.fieldMissing();
            fail({.kind = FindingKind::MissingField, .field = field.number});
        }
    }
    return 0;
}

int LineCheck::checkField(const Field &field, QStringView value, std::span<const CheckRule> rules)
{
    if (value.isEmpty()) {
        for (const OptionalFields &optional : m_line->optional) {
            if (field.number >= optional.first && field.number <= optional.last) {
                m_events.passed(optional.passing);
                return 0;
            }
        }
    }
    if (m_line->kind == LineKind::Payee && field.number == 1)
        readNationalityAhead();
    if (const int compared = comparedField(field.number)) {
        if (!comparesAsNumber(m_fields[static_cast<std::size_t>(compared) - 1], m_compared))
            return compared;
    }
    for (const CheckRule &rule : rules) {
        if (applies(rule))
            askRule(rule, value, field.number);
    }
    setFlags(field.number, value);
    return 0;
}

void LineCheck::askRule(const CheckRule &rule, QStringView value, int field)
{
    if (value.isEmpty() && !looksAtEmptyFields(rule.asks))
        return;
    if (passes(rule, value))
        m_events.passed(passingWords(rule.asks));
    else
        fail({.kind = FindingKind::Rule, .field = field, .rule = &rule, .value = value});
}

bool LineCheck::applies(const CheckRule &rule) const
{
    switch (rule.when) {
    case When::Always:
        return true;
    case When::LegalPerson:
        return m_state.legalPerson;
    case When::NaturalPerson:
        return !m_state.legalPerson;
    case When::NationalAhead:
        return m_nationalAhead;
    case When::ForeignAhead:
        return !m_nationalAhead;
    case When::National:
        return m_state.national;
    case When::Foreign:
        return !m_state.national;
    case When::OtherInsurance:
        return m_state.otherInsurance;
    case When::KnownInsurance:
        return !m_state.otherInsurance;
    case When::InsuNoNotZero:
        return m_compared != 0;
    case When::InsuNoZero:
        return m_compared == 0;
    case When::Cheque:
        return m_compared == ChequeCode;
    case When::NoCheque:
        return m_compared != ChequeCode;
    }
    return false;
}

/// A line that ends before its nationality fails in the very question for it. The failure is passed over: what goes on
/// is the branch for nationals, and the next field finds the flag cleared and counts as missing, even if it is there.
void LineCheck::readNationalityAhead()
{
    m_fieldPresent = m_count >= Nationality;
    m_nationalAhead =
        !m_fieldPresent || Val(m_fields[static_cast<std::size_t>(Nationality) - 1]) == NationalCodeOfNationality;
}

/// The field whose text the rules of this field compare with a number; 0 for none.
int LineCheck::comparedField(int field) const
{
    if (m_line->kind == LineKind::Payee && field == InsuranceNumber)
        return InsuranceNumber;
    if (m_line->kind == LineKind::Summary && field > MannerOfPayment && field < static_cast<int>(m_line->fields.size()))
        return MannerOfPayment;
    return 0;
}

void LineCheck::setFlags(int field, QStringView value)
{
    if (m_line->kind == LineKind::Payer && field == PayerKind)
        m_state.legalPerson = Val(value) == LegalPersonCode;
    if (m_line->kind != LineKind::Payee)
        return;
    if (field == Nationality)
        m_state.national = Val(value) == NationalCodeOfNationality;
    if (field == InsuranceKind)
        m_state.otherInsurance = Val(value) == OtherInsuranceCode;
}

/// False where the line is given up.
bool LineCheck::checkSurplus()
{
    const auto expected = static_cast<int>(m_line->fields.size());
    if (m_count <= expected)
        return true;
    // A line whose fields aren't checked still has the number of its first one.
    int number = m_line->kind == LineKind::Counted ? 1 : expected + 1;
    const QStringView last = m_fields[static_cast<std::size_t>(expected) - 1];
    QStringView rest(last.end() + 1, m_text.end());
    for (int place = expected + 1; place <= m_count; ++place) {
        if (place % FieldsBetweenQuestions == 0 && m_goesOn && !m_goesOn())
            return false;
        const qsizetype comma = rest.indexOf(Separator);
        const QStringView value = rest.first(comma < 0 ? rest.size() : comma);
        rest = rest.sliced(comma < 0 ? rest.size() : comma + 1);
        if (m_line->kind == LineKind::Payer && place == ControlField && !isOneOfDecodersFailures(controlVersion()))
            continue;
        m_events.surplusBegins(m_state.records + 1, ++number);
        fail({.kind = value.isEmpty() ? FindingKind::ExtraComma : FindingKind::ExtraField,
              .field = place,
              .value = value});
    }
    return true;
}

void LineCheck::fail(Finding finding)
{
    finding.number = ++m_state.errors;
    finding.line = m_state.records + 1;
    const QStringView at = finding.field > 0 && finding.field <= MostKept && finding.field <= m_count
                               ? m_fields[static_cast<std::size_t>(finding.field) - 1]
                               : finding.value;
    const qint64 units = at.data() ? at.data() - m_text.data() : 0;
    finding.offset = m_offset + units * static_cast<qint64>(sizeof(QChar));
    m_events.finding(finding);
}

} // namespace zrv
