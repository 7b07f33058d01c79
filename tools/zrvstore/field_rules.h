// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <span>
#include <string_view>

namespace zrv::storetool {

/// The forms in which the screens write a column.
enum class Form {
    Text,    ///< anything that fits the width
    Digits,  ///< digits; `number` of them, or any number where that is 0
    Number,  ///< digits, perhaps with separators between thousands
    Date,    ///< eight digits that are a day of the calendar
    Letters, ///< Latin letters and digits
    Tfn,     ///< 12 digits, the first of which is neither 4 nor 5
    Code,    ///< a code of list `number`
};

/// What one column of a table must look like. `isRequired`: it is neither NULL nor blank in any row.
struct FieldRule {
    std::string_view table;
    std::string_view column;
    Form form = Form::Text;
    int number = 0;
    bool isRequired = false;
};

/// Every column that has a rule, table by table. A column without one may hold any text of its width.
[[nodiscard]] std::span<const FieldRule> fieldRules();

/// What is wrong with a value that isn't blank; empty if nothing is. Codes are looked up elsewhere.
[[nodiscard]] QString complaint(const FieldRule &rule, std::string_view value);

[[nodiscard]] bool isDigits(std::string_view value);
[[nodiscard]] bool isBlank(std::string_view value);

} // namespace zrv::storetool
