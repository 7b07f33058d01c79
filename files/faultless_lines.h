// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// Reads payee lines and leaves out those in which nothing can be wrong, many at a time, so that the check need not look
// at them field by field. It never says what is wrong: a line that is any less than plainly good goes to LineCheck, which
// alone decides.

#include "files/field_ends.h"
#include "files/line_check.h"
#include "files/line_reader.h"

#include <array>
#include <vector>

namespace zrv {

class FaultlessLines {
public:
    /// The limits come from the rules. Rules of a form it doesn't know make it leave out nothing. The reader must
    /// outlive it, and go on to the next line through it alone.
    FaultlessLines(const LineRules &payees, Instructions instructions, LineReader &reader);

    /// The next line that must be looked at, as LineReader::next() gives it. The state counts the faultless ones before
    /// it as passed and has the flags that the last of them sets.
    bool next(QStringView &line, CheckState &state);

    /// From now on each faultless line is added there; who asked for it takes them out.
    void tellPassed(std::vector<PassedLine> &lines) { m_told = &lines; }

    /// What is known of the line given last, until the next call.
    [[nodiscard]] const KnownLine &known() const { return m_known; }

private:
    static constexpr std::size_t Fields = 34;
    static constexpr std::size_t Padded = 40; ///< a multiple of what the compiler looks at at once

    /// What the lines of one kind of payee must be, where nobody need look closer.
    struct Limits {
        std::array<std::uint16_t, Padded> least{};
        std::array<std::uint16_t, Padded> most{};
        FieldSet digits = 0;   ///< fields of digits alone
        FieldSet noDigits = 0; ///< fields without any
        bool hasNationalCode = false;
    };
    /// A line in the stretch that was looked at.
    struct Line {
        std::size_t firstEnd = 0; ///< of its first field, counted from the stretch's beginning
        std::size_t begin = 0;    ///< in units
        std::size_t ends = 0;     ///< before its CR
        std::size_t fields = 0;   ///< 0 where a CR or LF alone stands in one
    };

    void takeRule(const CheckRule &rule, bool national, bool otherInsurance, Limits &limits);
    [[nodiscard]] bool look();
    [[nodiscard]] bool findLine();
    void passLine();
    [[nodiscard]] char16_t firstLetter(std::size_t field) const;
    [[nodiscard]] bool isNational() const;
    [[nodiscard]] bool hasOtherInsurance() const;
    [[nodiscard]] bool hasValidCode() const;
    [[nodiscard]] const Limits &limits() const;
    [[nodiscard]] FieldSet fieldsOfRightLetters(const Limits &limits) const;
    [[nodiscard]] bool isFaultless(CheckState &state) const;
    [[nodiscard]] FieldSet emptyFields() const;
    [[nodiscard]] FieldSet soundFields() const;

    LineReader &m_reader;
    EndsFinder m_findEnds;
    bool m_knowsRules = true;
    std::array<std::uint16_t, Padded> m_leftEmpty{}; ///< 0 for a field that may be left empty, else no length at all
    std::array<Limits, 4> m_limits;                  ///< by nationality and insurance

    const char16_t *m_units = nullptr; ///< the stretch
    FieldEnds m_ends;
    Line m_line;
    std::size_t m_passed = 0; ///< where the reader stands in the stretch
    KnownLine m_known;
    std::vector<PassedLine> *m_told = nullptr;
};

} // namespace zrv
