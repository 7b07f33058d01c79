// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/faultless_lines.h"

#include "core/public/check_digit.h"

#include <algorithm>
#include <bit>

namespace zrv {
namespace {

// Places of fields, from 0.
constexpr std::size_t NationalCodeField = 0;
constexpr std::size_t Nationality = 11;
constexpr std::size_t InsuranceKind = 13;
constexpr std::size_t InsuranceNumber = 15;

constexpr std::uint16_t Longest = 0xFFFF;
constexpr std::uint16_t NoLength = 0xFFFF;
constexpr std::uint16_t NationalCodeLength = 10;
constexpr std::uint16_t PlainNumberLength = 18; // so many digits are a number beyond doubt

std::size_t kindOf(bool national, bool otherInsurance)
{
    return (national ? 1U : 0U) + (otherInsurance ? 2U : 0U);
}

/// Whether a rule is asked of such a payee, whose insurance number is a number other than 0.
bool isFor(When when, bool national, bool otherInsurance)
{
    switch (when) {
    case When::Always:
    case When::InsuNoNotZero:
        return true;
    case When::NationalAhead:
    case When::National:
        return national;
    case When::ForeignAhead:
    case When::Foreign:
        return !national;
    case When::OtherInsurance:
        return otherInsurance;
    case When::KnownInsurance:
        return !otherInsurance;
    default:
        return false;
    }
}

/// A bit for each of the sixteen fields from there on that is empty; in numbers of one width, for the compiler's sake.
FieldSet emptyOf16(const std::uint16_t *places)
{
    constexpr std::array<std::uint16_t, 16> Bits = {0x1,   0x2,   0x4,   0x8,   0x10,   0x20,   0x40,   0x80,
                                                    0x100, 0x200, 0x400, 0x800, 0x1000, 0x2000, 0x4000, 0x8000};
    std::uint16_t empty = 0;
    for (std::size_t field = 0; field < Bits.size(); ++field) {
        const auto step = static_cast<std::uint16_t>(places[field + 1] - places[field]);
        empty = static_cast<std::uint16_t>(empty | (step == 1 ? Bits[field] : 0));
    }
    return empty;
}

} // namespace

FaultlessLines::FaultlessLines(const LineRules &payees, Instructions instructions, LineReader &reader)
    : m_reader(reader)
    , m_findEnds(endsFinder(instructions))
    , m_knowsRules(payees.kind == LineKind::Payee && payees.fields.size() == Fields)
{
    m_leftEmpty.fill(NoLength);
    for (const OptionalFields &optional : payees.optional) {
        for (int field = optional.first; field <= optional.last; ++field)
            m_leftEmpty[static_cast<std::size_t>(field) - 1] = 0;
    }
    for (const bool national : {false, true}) {
        for (const bool otherInsurance : {false, true}) {
            Limits &limits = m_limits[kindOf(national, otherInsurance)];
            limits.most.fill(Longest);
            // What is compared with a number must be one.
            limits.least[InsuranceNumber] = 1;
            limits.digits |= 1ULL << InsuranceNumber;
            for (const CheckRule &rule : payees.rules)
                takeRule(rule, national, otherInsurance, limits);
            for (std::size_t field = 0; field < Fields; ++field) {
                if ((limits.digits >> field & 1U) != 0)
                    limits.most[field] = std::min(limits.most[field], PlainNumberLength);
            }
        }
    }
}

void FaultlessLines::takeRule(const CheckRule &rule, bool national, bool otherInsurance, Limits &limits)
{
    if (!isFor(rule.when, national, otherInsurance))
        return;
    const auto field = static_cast<std::size_t>(rule.field) - 1;
    const auto limit = static_cast<std::uint16_t>(rule.limit);
    const auto within = [&](std::uint16_t least, std::uint16_t most) {
        limits.least[field] = std::max(limits.least[field], least);
        limits.most[field] = std::min(limits.most[field], most);
    };
    switch (rule.asks) {
    case Asks::Exactly:
        return within(limit, limit);
    case Asks::UpTo:
        return within(1, limit);
    case Asks::AtMost:
        return within(0, limit);
    case Asks::Empty:
        return within(0, 0);
    case Asks::DigitsAlways:
        within(1, Longest);
        [[fallthrough]];
    case Asks::Digits:
        limits.digits |= 1ULL << field;
        return;
    case Asks::NoNumber:
    case Asks::NoNumberAlways:
        // A number has a digit.
        limits.noDigits |= 1ULL << field;
        return;
    case Asks::NationalCode:
        within(NationalCodeLength, NationalCodeLength);
        limits.digits |= 1ULL << field;
        limits.hasNationalCode = true;
        m_knowsRules = m_knowsRules && field == NationalCodeField;
        return;
    }
}

bool FaultlessLines::next(QStringView &line, CheckState &state)
{
    do {
        while (findLine()) {
            if (isFaultless(state)) {
                passLine();
                continue;
            }
            m_known = {.sound = soundFields(),
                       .ends = std::span(&m_ends.places[m_line.firstEnd + 1], Fields),
                       .begin = m_line.begin};
            m_reader.pass(m_line.begin - m_passed);
            line = m_reader.take(m_ends.places[m_line.firstEnd + m_line.ends + 1] - m_line.begin);
            passLine();
            m_passed = m_line.begin;
            return true;
        }
        m_reader.pass(m_line.begin - m_passed);
    } while (look());
    m_known = {};
    return m_reader.next(line);
}

/// Looks at the stretch that comes next; false where no whole line lies in it.
bool FaultlessLines::look()
{
    const QStringView text = m_reader.ahead();
    const auto size = std::min(static_cast<std::size_t>(text.size()), FieldEnds::MostUnits);
    m_line = {};
    m_passed = 0;
    m_ends.count = 0;
    if (!m_knowsRules || size < FieldEnds::UnitsPerStep)
        return false;
    m_units = reinterpret_cast<const char16_t *>(text.utf16());
    m_findEnds(m_units, size / FieldEnds::UnitsPerStep, m_ends);
    if (findLine())
        return true;
    m_ends.count = 0;
    return false;
}

/// Finds where the line ends whose beginning is known.
bool FaultlessLines::findLine()
{
    std::size_t end = m_line.firstEnd;
    bool isPlain = true;
    while (end < m_ends.count) {
        const std::uint64_t ofLine = FieldEnds::bitsFrom(m_ends.ofLine, end);
        end += static_cast<std::size_t>(std::countr_zero(ofLine));
        if (ofLine == 0)
            continue;
        if (end + 1 >= m_ends.count)
            return false;
        const char16_t *const letters = m_units + m_ends.places[end + 1];
        if (letters[0] == u'\r' && letters[1] == u'\n') {
            m_line.ends = end - m_line.firstEnd;
            m_line.fields = isPlain ? m_line.ends + 1 : 0;
            return true;
        }
        // A CR or LF alone is a letter of its field.
        isPlain = false;
        ++end;
    }
    return false;
}

void FaultlessLines::passLine()
{
    m_line.firstEnd += m_line.ends + 2; // CR and LF
    m_line.begin = m_ends.places[m_line.firstEnd] + 1U;
}

char16_t FaultlessLines::firstLetter(std::size_t field) const
{
    return m_units[static_cast<std::uint16_t>(m_ends.places[m_line.firstEnd + field] + 1)];
}

bool FaultlessLines::isNational() const
{
    return firstLetter(Nationality) == u'1';
}

bool FaultlessLines::hasOtherInsurance() const
{
    return firstLetter(InsuranceKind) == u'0';
}

const FaultlessLines::Limits &FaultlessLines::limits() const
{
    return m_limits[kindOf(isNational(), hasOtherInsurance())];
}

/// The fields whose letters or whose lack of some is what the limits ask for.
FieldSet FaultlessLines::fieldsOfRightLetters(const Limits &limits) const
{
    const FieldSet digits = FieldEnds::bitsFrom(m_ends.digits, m_line.firstEnd);
    const FieldSet noDigits = FieldEnds::bitsFrom(m_ends.noDigits, m_line.firstEnd);
    return ~((limits.digits & ~digits) | (limits.noDigits & ~noDigits));
}

bool FaultlessLines::hasValidCode() const
{
    return isValidNationalCode(QStringView(m_units + m_line.begin, NationalCodeLength));
}

bool FaultlessLines::isFaultless(CheckState &state) const
{
    if (m_line.fields != Fields)
        return false;
    const Limits &limits = this->limits();
    if (~fieldsOfRightLetters(limits) != 0 || firstLetter(InsuranceNumber) == u'0')
        return false;
    const std::uint16_t *const places = &m_ends.places[m_line.firstEnd];
    // All in numbers of one width, so that the compiler looks at many at once.
    std::uint16_t bad = 0;
    for (std::size_t field = 0; field < Padded; ++field) {
        const auto length = static_cast<std::uint16_t>(places[field + 1] - places[field] - 1);
        const auto below = static_cast<std::uint16_t>(length < limits.least[field]);
        const auto above = static_cast<std::uint16_t>(length > limits.most[field]);
        const auto filled = static_cast<std::uint16_t>(length != m_leftEmpty[field]);
        bad = static_cast<std::uint16_t>(bad | ((below | above) & filled));
    }
    if (bad != 0 || (limits.hasNationalCode && !hasValidCode()))
        return false;
    ++state.records;
    state.national = isNational();
    state.otherInsurance = hasOtherInsurance();
    if (m_told)
        m_told->push_back({.empty = emptyFields(),
                           .units = m_ends.places[m_line.firstEnd + Fields] - std::uint32_t(m_line.begin),
                           .national = state.national,
                           .otherInsurance = state.otherInsurance});
    return true;
}

FieldSet FaultlessLines::emptyFields() const
{
    const std::uint16_t *const places = &m_ends.places[m_line.firstEnd];
    return (emptyOf16(places) | emptyOf16(places + 16) << 16U | emptyOf16(places + 32) << 32U)
           & ((FieldSet(1) << Fields) - 1);
}

FieldSet FaultlessLines::soundFields() const
{
    if (m_line.fields != Fields)
        return 0;
    const Limits &limits = this->limits();
    FieldSet sound = fieldsOfRightLetters(limits);
    const auto refuse = [&sound](std::size_t field) { sound &= ~(FieldSet(1) << field); };
    const std::uint16_t *const places = &m_ends.places[m_line.firstEnd];
    for (std::size_t field = 0; field < Fields; ++field) {
        const auto length = static_cast<std::uint16_t>(places[field + 1] - places[field] - 1);
        if ((length < limits.least[field] || length > limits.most[field]) && length != m_leftEmpty[field])
            refuse(field);
    }
    if (firstLetter(InsuranceNumber) == u'0')
        refuse(InsuranceNumber);
    if (limits.hasNationalCode && !hasValidCode())
        refuse(NationalCodeField);
    // The limits are the right ones only where these two fields hold what their first letters promise.
    constexpr FieldSet Deciding = FieldSet(1) << Nationality | FieldSet(1) << InsuranceKind;
    return (sound & Deciding) == Deciding ? sound : 0;
}

} // namespace zrv
