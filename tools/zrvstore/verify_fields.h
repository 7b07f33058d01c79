// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/zrvstore/field_rules.h"
#include "tools/zrvstore/findings.h"
#include "tools/zrvstore/table_reader.h"

#include <map>
#include <set>
#include <string>
#include <vector>

namespace zrv::storetool {

/// The codes of each list, by the list's number.
using CodeLists = std::map<std::string, std::set<std::string, std::less<>>, std::less<>>;

/// Reads the code lists and checks them as lists: one name each, none empty that a column needs, months of two digits.
[[nodiscard]] CodeLists checkCodeLists(const Database &database, const FoundTable &table, Findings &findings);

/// Checks each value of a row by itself: its width, its form, its code.
class FieldCheck {
public:
    FieldCheck(const FoundTable &table, const CodeLists &lists);

    void check(const TableReader &row, Findings &findings) const;

private:
    struct Field {
        std::size_t place;
        int width;
        const FieldRule *rule;                           ///< null if any text will do
        const std::set<std::string, std::less<>> *codes; ///< null if no list is asked
        bool isTrimmed;
    };
    void checkValue(const TableReader &row, const Field &field, Findings &findings) const;

    std::vector<Field> m_fields;
};

/// Checks each value of each row of a table that has no rules beyond those of its fields.
void checkFields(const Database &database, const FoundTable &table, const CodeLists &lists, Findings &findings);

/// Two rows with one key, in a table whose key the file doesn't keep unique.
void checkKeys(const Database &database, const FoundTable &table, Findings &findings);

} // namespace zrv::storetool
