// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// What the structure check asks of the fields of WH and WK files: one row a rule, with the words of its error. The
// tables are files/wh_rules.cpp and files/wk_rules.cpp, files/line_check.cpp walks them in their order.

#include "files/record_layout.h"

namespace zrv {

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
    Cheque,         ///< field 19 is the number 2
    NoCheque,       ///< field 19 is another number
};

/// What a rule asks. Lengths count UTF-16 units; numbers are those of IsNumeric().
enum class Asks {
    Exactly,        ///< a length of the limit
    UpTo,           ///< a length of 1 to the limit
    AtMost,         ///< a length of 0 to the limit
    Empty,          ///< nothing in the field
    Digits,         ///< a number, unless empty
    DigitsAlways,   ///< a number; an empty field fails too
    NoNumber,       ///< anything but a number, unless empty
    NoNumberAlways, ///< anything but a number; an empty field is looked at too
    NationalCode,   ///< a valid national code, blanks around it aside; an empty field fails
};

struct CheckRule {
    int field; ///< its number in the line, from 1
    When when;
    Asks asks;
    int limit;           ///< of lengths; else 0
    QStringView message; ///< the error's words, blanks at its ends included
};

/// Fields that may stay empty: then no rule of theirs is asked, and the report says this instead.
struct OptionalFields {
    int first; ///< field numbers, both included
    int last;
    QStringView passing;
};

enum class LineKind {
    Payer,   ///< line 1 of a WH file
    Payee,   ///< its other lines
    Summary, ///< line 1 of a WK file
    Counted, ///< its other lines: their fields are counted and no more
};

/// The rules of one kind of line.
struct LineRules {
    LineKind kind;
    std::span<const Field> fields; ///< those that a line must have; whatever stands behind them is surplus
    std::span<const CheckRule> rules;
    std::span<const OptionalFields> optional;
};

enum class FileKind { Wh, Wk };

/// The rules of one kind of file.
struct FileRules {
    FileKind kind;
    LineRules first; ///< line 1
    LineRules rest;  ///< the lines behind it
};

/// 21 fields in line 1, a control field behind them aside, and 34 in the others.
[[nodiscard]] const FileRules &whRules();
/// 25 fields in every line.
[[nodiscard]] const FileRules &wkRules();
[[nodiscard]] const FileRules &rulesOf(FileKind kind);

/// The passing lines of the report that more than one table names.
namespace passing {

inline constexpr QStringView Length = u"  =====>  طول اين فيلد صحيح است";
inline constexpr QStringView Characters = u"  =====>  نوع کاراکترهاي موجود در محتوي اين فيلد صحيح است";
inline constexpr QStringView LengthAndCharacters = u"  =====>  طول و نوع کاراکترهاي موجود در محتوي اين فيلد صحيح است";
inline constexpr QStringView Empty = u"  =====>  طول و نوع اين فيلد صحيح است";
inline constexpr QStringView NationalCode = u"  =====> شماره ملي دريافت کننده حقوق معتبر است";

} // namespace passing

} // namespace zrv
