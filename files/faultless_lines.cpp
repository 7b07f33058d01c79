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

/// Added to the letters of a kind, a field's beginning runs through as many of them as there are and stops at the first
/// other letter: the field's end has its bit in the sum if all of the field is of the kind, or nothing is in it.
std::uint64_t runThrough(std::uint64_t letters, std::uint64_t begins, bool &carry)
{
    std::uint64_t sum = 0;
    const bool isOver = __builtin_add_overflow(letters, begins, &sum);
    carry = __builtin_add_overflow(sum, std::uint64_t(carry), &sum) || isOver;
    return sum;
}

} // namespace

/// The fields of a line as the masks tell of them.
struct FaultlessLines::Line {
    std::array<std::uint32_t, Fields> ends{}; ///< of each field, counted from the text's beginning
    std::uint32_t begin = 0;
    std::uint64_t digits = 0;   ///< bit i: field i is of digits alone or empty
    std::uint64_t noDigits = 0; ///< likewise: it has no digit
    std::size_t count = 0;

    [[nodiscard]] std::uint32_t beginOf(std::size_t field) const { return field == 0 ? begin : ends[field - 1] + 1; }
};

FaultlessLines::FaultlessLines(const LineRules &payees, MaskMaker masks)
    : m_masks(masks)
    , m_knowsRules(payees.kind == LineKind::Payee && payees.fields.size() == Fields)
{
    for (const OptionalFields &optional : payees.optional) {
        for (int field = optional.first; field <= optional.last; ++field)
            m_mayBeEmpty[static_cast<std::size_t>(field) - 1] = 1;
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

std::size_t FaultlessLines::skip(QStringView text, CheckState &state) const
{
    if (!m_knowsRules)
        return 0;
    const auto *const units = reinterpret_cast<const char16_t *>(text.utf16());
    const auto size = static_cast<std::size_t>(std::min<qsizetype>(text.size(), 1 << 24));
    Line line;
    std::uint64_t fieldBegins = 1; // in the next 64 units the first one begins a field
    bool digitCarry = false;
    bool otherCarry = false;
    for (std::size_t block = 0; block + UnitsPerMask <= size; block += UnitsPerMask) {
        const UnitMasks masks = m_masks(units + block);
        std::uint64_t ends = masks.comma | masks.carriageReturn | masks.lineFeed;
        const std::uint64_t begins = ends << 1U | fieldBegins;
        fieldBegins = ends >> 63U;
        const std::uint64_t digitSum = runThrough(masks.digit, begins, digitCarry);
        const std::uint64_t otherSum = runThrough(~(masks.digit | ends), begins, otherCarry);
        for (; ends != 0; ends &= ends - 1) {
            const auto bit = static_cast<unsigned>(std::countr_zero(ends));
            const auto place = static_cast<std::uint32_t>(block + bit);
            if ((masks.lineFeed >> bit & 1U) != 0) {
                // Behind a line's CR it has been seen; anywhere else it is a letter of a field.
                if (line.count != 0 || place + 1 != line.begin)
                    return line.begin;
                continue;
            }
            if (line.count == Fields)
                return line.begin;
            line.ends[line.count] = place;
            line.digits |= (digitSum >> bit & 1U) << line.count;
            line.noDigits |= (otherSum >> bit & 1U) << line.count;
            ++line.count;
            if ((masks.carriageReturn >> bit & 1U) == 0)
                continue;
            if (line.count != Fields || place + 1 >= size || units[place + 1] != u'\n'
                || !isFaultless(line, units, state))
                return line.begin;
            line = {.begin = place + 2};
        }
    }
    return line.begin;
}

bool FaultlessLines::isFaultless(const Line &line, const char16_t *text, CheckState &state) const
{
    if (line.ends[Fields - 1] - line.begin >= Longest)
        return false;
    const bool national = text[line.beginOf(Nationality)] == u'1';
    const bool otherInsurance = text[line.beginOf(InsuranceKind)] == u'0';
    const Limits &limits = m_limits[kindOf(national, otherInsurance)];
    if ((limits.digits & ~line.digits) != 0 || (limits.noDigits & ~line.noDigits) != 0)
        return false;
    std::array<std::uint16_t, Padded> lengths{};
    for (std::size_t field = 0; field < Fields; ++field)
        lengths[field] = static_cast<std::uint16_t>(line.ends[field] - line.beginOf(field));
    unsigned bad = 0;
    for (std::size_t field = 0; field < Padded; ++field) {
        const bool isWithin = lengths[field] >= limits.least[field] && lengths[field] <= limits.most[field];
        const bool isLeftEmpty = lengths[field] == 0 && m_mayBeEmpty[field] != 0;
        bad |= isWithin || isLeftEmpty ? 0U : 1U;
    }
    if (bad != 0 || text[line.beginOf(InsuranceNumber)] == u'0')
        return false;
    if (limits.hasNationalCode && !isValidNationalCode(QStringView(text + line.begin, NationalCodeLength)))
        return false;
    ++state.records;
    state.national = national;
    state.otherInsurance = otherInsurance;
    return true;
}

} // namespace zrv
