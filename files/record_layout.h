// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// What a field of an electronic file is: one row of a table that the writer, the structure check and the
// display all read. The tables themselves are files/wh_layout.cpp and files/wk_layout.cpp.

#include <QStringView>

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

/// One field. Widths count UTF-16 units. The writer's width and the limits of the check (files/check_rules.h) are
/// two numbers on purpose: where they differ, a file of this program can fail its own check.
struct Field {
    int number;        ///< its place in the line, from 1
    QStringView name;  ///< also the name of the column in the writer's rows
    QStringView table; ///< where the column comes from; empty when it comes from no table
    Fill fill;
    int width;         ///< the writer's; 0 for as long as it is
    int list;          ///< the code list of which it holds a code; 0 for none
    QStringView label; ///< how the check names it
};

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
