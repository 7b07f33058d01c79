// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// One line of an electronic file held against its rules (files/check_rules.h): the routine that walks the tables.
// It forms no text: what it meets it tells to CheckEvents, and those who write reports or lists make their words.

#include "files/check_rules.h"

#include <array>
#include <functional>

namespace zrv {

enum class FindingKind {
    Rule,          ///< a field breaks a rule of the tables
    FieldCount,    ///< the line has too few or too many fields
    OtherVersion,  ///< line 1 names another version of the program
    MissingField,  ///< the line ends before this field
    ExtraComma,    ///< an empty field behind the last
    ExtraField,    ///< a field behind the last
    TooFewRecords, ///< a WH file ends, or has an empty line, before its third line
    EmptyFile,
    NoFile,    ///< nothing was chosen
    WrongName, ///< the name isn't that of such a file
};

/// One error. The views live as long as the call that brings it.
struct Finding {
    FindingKind kind;
    qint64 number = 1;               ///< from 1 within the run
    qint64 line = 0;                 ///< from 1; 0 for the file itself
    int field = 0;                   ///< its place in the line, from 1; 0 for the line itself
    qint64 offset = 0;               ///< of the field or the line, in bytes from the file's beginning
    const CheckRule *rule = nullptr; ///< of Rule
    QStringView value = {};          ///< the field's content
    int counted = 0;                 ///< fields of the line, of FieldCount and OtherVersion
    QStringView version = {};        ///< the version that line 1 names, of OtherVersion
};

/// Fields of a line, bit 0 the first one.
using FieldSet = std::uint64_t;

/// A payee line that is passed over: it has all its fields, and nothing is wrong in them.
struct PassedLine {
    FieldSet empty = 0;
    std::uint32_t units = 0; ///< without its CR LF
    bool national = false;
    bool otherInsurance = false;
};

/// Hears what the check meets, in the order of the report. Who wants the errors alone leaves the rest as it is.
class CheckEvents {
public:
    virtual ~CheckEvents() = default;

    virtual void finding(const Finding &finding) = 0;
    /// True leaves the check free to pass over faultless lines without a word.
    [[nodiscard]] virtual bool wantsErrorsAlone() const { return false; }
    /// Who asks for it is told which lines these are, many at once, before the line that comes behind them.
    [[nodiscard]] virtual bool wantsPassedLines() const { return false; }
    virtual void passedOver(std::span<const PassedLine> /*lines*/) {}

    virtual void started() {}
    virtual void nameAccepted() {}
    virtual void lineBegins(qint64 /*line*/) {}
    virtual void countPassed(qint64 /*line*/) {}
    virtual void fieldBegins(const Field & /*field*/) {}
    virtual void fieldRead(qint64 /*line*/, const Field & /*field*/, QStringView /*value*/) {}
    virtual void fieldMissing() {}
    virtual void passed(QStringView /*words*/) {}
    /// The number is the one that the report gives the field, one more than its place in most lines.
    virtual void surplusBegins(qint64 /*line*/, int /*number*/) {}
    virtual void finished() {}
};

/// What goes over from line to line.
struct CheckState {
    qint64 records = 0; ///< lines passed
    qint64 errors = 0;
    // Each is set by its own field and stays as it was where that field is missing.
    bool legalPerson = false;
    bool national = false;
    bool otherInsurance = false;
};

/// What is known of a line before it is looked at.
struct KnownLine {
    /// Fields that break no rule. Only a line that has all its fields and none behind them has any.
    FieldSet sound = 0;
    /// Where all its fields end, and where it begins, from some place on; of a line with sound fields.
    std::span<const std::uint16_t> ends = {};
    std::size_t begin = 0;
};

class LineCheck {
public:
    LineCheck(const FileRules &rules, QStringView programVersion, CheckState &state, CheckEvents &events);

    /// Asked now and then within a line of very many fields; false gives the line up.
    void askInLongLines(std::function<bool()> goesOn) { m_goesOn = std::move(goesOn); }

    static constexpr int GivenUp = -1;
    /// Checks the line, which lies so many bytes behind the file's beginning, and counts it as passed. The number of a
    /// field is returned where the run must end in a type mismatch, since it holds no number but is compared with one;
    /// GivenUp, without the line being counted, where it was not to go on; else 0. Of fields that are known to break no
    /// rule nothing is told.
    int check(QStringView line, qint64 offset, const KnownLine &known = {});

private:
    static constexpr int MostKept = 36; ///< fields: all that any rule looks at
    using RulesByField = std::array<std::span<const CheckRule>, MostKept>;

    [[nodiscard]] static RulesByField rulesByField(const LineRules &line);
    void split(QStringView line);
    void split(QStringView line, const KnownLine &known);
    void checkCount();
    [[nodiscard]] QString controlVersion() const;
    int checkFields(FieldSet sound);
    int checkField(const Field &field, QStringView value, std::span<const CheckRule> rules);
    void askRule(const CheckRule &rule, QStringView value, int field);
    [[nodiscard]] bool applies(const CheckRule &rule) const;
    void readNationalityAhead();
    [[nodiscard]] int comparedField(int field) const;
    void setFlags(int field, QStringView value);
    [[nodiscard]] bool checkSurplus();
    void fail(Finding finding);

    const FileRules &m_rules;
    const RulesByField m_ofFirst;
    const RulesByField m_ofRest;
    QStringView m_programVersion;
    CheckState &m_state;
    CheckEvents &m_events;
    std::function<bool()> m_goesOn;

    const LineRules *m_line = nullptr;
    QStringView m_text;
    qint64 m_offset = 0;
    std::array<QStringView, MostKept> m_fields;
    int m_count = 0; ///< fields of the line
    bool m_fieldPresent = true;
    bool m_nationalAhead = false;
    double m_compared = 0; ///< the number in the field that a condition compares
};

/// The number that a text compared with a number stands for; nothing where the comparison is a type mismatch.
[[nodiscard]] bool comparesAsNumber(QStringView text, double &number);

} // namespace zrv
