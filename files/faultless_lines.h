// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// Finds payee lines in which nothing can be wrong, many at a time, so that the check need not look at them field by
// field. It never says what is wrong: a line that is any less than plainly good goes to LineCheck, which alone decides.

#include "files/line_check.h"
#include "files/unit_masks.h"

#include <array>

namespace zrv {

class FaultlessLines {
public:
    /// The limits come from the rules. Rules of a form it doesn't know make it find nothing.
    explicit FaultlessLines(const LineRules &payees, MaskMaker masks = bestMaskMaker());

    /// The number of units of whole faultless payee lines, CR LF included, with which the text begins; the state counts
    /// them as passed and has the flags that the last one sets. The text must begin with a line.
    std::size_t skip(QStringView text, CheckState &state) const;

private:
    static constexpr int Fields = 34;
    static constexpr int Padded = 40; ///< a multiple of what the compiler looks at at once

    /// What the lines of one kind of payee must be, where nobody need look closer.
    struct Limits {
        std::array<std::uint16_t, Padded> least{};
        std::array<std::uint16_t, Padded> most{};
        std::uint64_t digits = 0;   ///< fields of digits alone
        std::uint64_t noDigits = 0; ///< fields without any
        bool hasNationalCode = false;
    };
    struct Line;

    void takeRule(const CheckRule &rule, bool national, bool otherInsurance, Limits &limits);
    [[nodiscard]] bool isFaultless(const Line &line, const char16_t *text, CheckState &state) const;

    MaskMaker m_masks;
    bool m_knowsRules = true;
    std::array<std::uint16_t, Padded> m_mayBeEmpty{};
    std::array<Limits, 4> m_limits; ///< by nationality and insurance
};

} // namespace zrv
