// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// What a field of an electronic file is: one row of a table that the writer, the structure check and the
// display all read. The tables themselves are files/wh_layout.cpp and files/wk_layout.cpp.

#include <QStringView>

#include <array>
#include <cstddef>
#include <span>

namespace zrv {

/// What the writer puts into a field. All but VersionControl are cut to the field's width.
enum class Fill {
    Column,             ///< the column, trimmed of blanks
    Padded,             ///< the column with blanks behind it up to the width, never trimmed
    Amount,             ///< the column, trimmed; "0" when it is NULL or blank
    GivenMonth,         ///< year or month of the file, as its user gave it
    VersionControl,     ///< the writing program's version text in Base64
    CountryOfForeigner, ///< the column when MelliatCode is the number 2, else nothing
    InsuranceKind,      ///< the column, or "0" when it is a number above 3
    OtherInsurer,       ///< the column when BimehType is a number above 3, else nothing
};

/// Which lines a rule is for, by other fields of the file as the check reads them.
enum class When {
    Always,
    LegalPerson,    ///< payer's field 5 is 2
    NaturalPerson,  ///< payer's field 5 is not 2
    NationalAhead,  ///< the line's field 12, read before its turn, is 1
    ForeignAhead,   ///< likewise, is not 1
    National,       ///< the last field 12 that was checked is 1
    Foreign,        ///< likewise, is not 1
    OtherInsurance, ///< the last field 14 that was checked is 0
    KnownInsurance, ///< likewise, is not 0
    InsuNoNotZero,  ///< the field itself is not the number 0
    InsuNoZero,     ///< the field itself is the number 0
    Cheque,         ///< field 19 is 2
    NoCheque,       ///< field 19 is not 2
};

enum class Length {
    Any,
    Exactly,        ///< the limit
    UpTo,           ///< 1 to the limit
    AtMost,         ///< 0 to the limit
    EmptyOrExactly, ///< 0 or the limit
    Empty,
};

enum class Letters {
    AnyLetters,
    Digits,         ///< a number, unless empty
    DigitsAlways,   ///< a number; an empty field fails too
    NoNumber,       ///< anything but a number, unless empty
    NoNumberAlways, ///< anything but a number; an empty field is looked at too
    NationalCode,   ///< a number whose check digit is right
};

/// What the structure check asks of a field.
struct Rule {
    When when = When::Always;
    Length length = Length::Any;
    int limit = 0;
    Letters letters = Letters::AnyLetters;
};

/// One field. Widths and limits count UTF-16 units. The writer's width and the check's limit are two numbers
/// on purpose: where they differ, a file of this program can fail its own check.
struct Field {
    int number;        ///< its place in the line, from 1
    QStringView name;  ///< also the name of the column in the writer's rows
    QStringView table; ///< where the column comes from; empty when it comes from no table
    Fill fill;
    int width; ///< the writer's; 0 for as long as it is
    int list;  ///< the code list of which it holds a code; 0 for none
    std::array<Rule, 2> rules;
    QStringView label; ///< how the check names it
};

/// The forms in which the tables write their rules.
namespace field_rule {

constexpr Rule exactly(int length, Letters letters)
{
    return {When::Always, Length::Exactly, length, letters};
}
constexpr Rule upTo(int length, Letters letters)
{
    return {When::Always, Length::UpTo, length, letters};
}
constexpr Rule atMost(int length, Letters letters)
{
    return {When::Always, Length::AtMost, length, letters};
}
constexpr Rule emptyOrExactly(int length, Letters letters)
{
    return {When::Always, Length::EmptyOrExactly, length, letters};
}
constexpr Rule mustBeEmpty()
{
    return {When::Always, Length::Empty, 0, Letters::AnyLetters};
}
constexpr Rule when(When condition, Rule rule)
{
    rule.when = condition;
    return rule;
}

} // namespace field_rule

/// Whether a table's numbers are the places of its rows; each table asserts it.
constexpr bool isNumberedInOrder(std::span<const Field> fields)
{
    for (std::size_t i = 0; i < fields.size(); ++i) {
        if (fields[i].number != static_cast<int>(i) + 1)
            return false;
    }
    return true;
}

} // namespace zrv
