// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/check_catalogue.h"

namespace zrv {
namespace {

using namespace Qt::Literals::StringLiterals;

struct ConditionWords {
    When when;
    QStringView name; ///< behind the rule's name
    QStringView meaning;
};

// clang-format off
constexpr ConditionWords Conditions[] = {
    {When::Always,         u"",          u""},
    {When::LegalPerson,    u".legal",    u"of a legal person (field 5 of line 1 is 2)"},
    {When::NaturalPerson,  u".natural",  u"of a natural person (field 5 of line 1 is not 2)"},
    {When::NationalAhead,  u".national", u"of a national (field 12 is 1)"},
    {When::ForeignAhead,   u".foreign",  u"of a foreigner (field 12 is not 1)"},
    {When::National,       u".national", u"of a national (field 12 is 1)"},
    {When::Foreign,        u".foreign",  u"of a foreigner (field 12 is not 1)"},
    {When::OtherInsurance, u".other",    u"with an other insurer (field 14 is 0)"},
    {When::KnownInsurance, u".known",    u"with a named insurer (field 14 is not 0)"},
    {When::InsuNoNotZero,  u".given",    u"unless it is the number 0"},
    {When::InsuNoZero,     u".zero",     u"where it is the number 0"},
    {When::Cheque,         u".cheque",   u"paid by cheque (field 19 is 2)"},
    {When::NoCheque,       u".no-cheque", u"not paid by cheque (field 19 is not 2)"},
};

struct AskedWords {
    Asks asks;
    QStringView name;
    QStringView meaning; ///< %1 is the limit
    QStringView remedy;
};

constexpr AskedWords Asked[] = {
    {Asks::Exactly,        u"length",        u"has exactly %1 characters",                   u"write it with %1 characters"},
    {Asks::UpTo,           u"length",        u"has 1 to %1 characters",                      u"fill it in, with at most %1 characters"},
    {Asks::AtMost,         u"length",        u"has at most %1 characters",                   u"shorten it to %1 characters"},
    {Asks::Empty,          u"empty",         u"is empty",                                    u"empty it, or correct the field that it goes by"},
    {Asks::Digits,         u"digits",        u"is a number, unless empty",                   u"write it in digits 0 to 9 alone"},
    {Asks::DigitsAlways,   u"digits",        u"is a number",                                 u"fill it in, in digits 0 to 9 alone"},
    {Asks::NoNumber,       u"no-number",     u"is no number, unless empty",                  u"write it in letters"},
    {Asks::NoNumberAlways, u"no-number",     u"is no number",                                u"write it in letters"},
    {Asks::NationalCode,   u"national-code", u"is a national code with the right last digit", u"correct the code; one digit is wrong"},
};

struct KindWords {
    FindingKind kind;
    QStringView name;
    QStringView meaning;
    QStringView remedy;
};

constexpr KindWords Kinds[] = {
    {FindingKind::Rule,          u"",                u"",                                                        u""},
    {FindingKind::FieldCount,    u"field-count",     u"a line has too few or too many fields",                   u"look for a comma inside a value, or for a field left out"},
    {FindingKind::OtherVersion,  u"other-version",   u"line 1 names another version of the program",             u"make the file again with this version"},
    {FindingKind::MissingField,  u"missing-field",   u"a line ends before this field",                           u"add the field, empty or not, with its comma"},
    {FindingKind::ExtraComma,    u"extra-comma",     u"an empty field stands behind the last one",               u"take away the comma"},
    {FindingKind::ExtraField,    u"extra-field",     u"a field stands behind the last one",                      u"take it away, or the comma inside a value before it"},
    {FindingKind::TooFewRecords, u"too-few-records", u"a WH file ends or has an empty line before its third line", u"take away the empty line, or add the payees"},
    {FindingKind::EmptyFile,     u"empty-file",      u"nothing is in the file",                                  u"make the file again"},
    {FindingKind::NoFile,        u"no-file",         u"no file was chosen",                                      u"choose one"},
    {FindingKind::WrongName,     u"wrong-name",      u"the name isn't WH or WK, year, month and .TXT",           u"name the file as its month asks for: WH138902.TXT"},
};
// clang-format on

const ConditionWords &conditionWords(When when)
{
    return Conditions[static_cast<std::size_t>(when)];
}

const AskedWords &askedWords(Asks asks)
{
    return Asked[static_cast<std::size_t>(asks)];
}

/// The tables are looked up by their enums' values.
constexpr bool isInOrder(const auto &table, auto member)
{
    std::size_t place = 0;
    for (const auto &words : table) {
        if (static_cast<std::size_t>(words.*member) != place++)
            return false;
    }
    return true;
}
static_assert(isInOrder(Conditions, &ConditionWords::when));
static_assert(isInOrder(Asked, &AskedWords::asks));
static_assert(isInOrder(Kinds, &KindWords::kind));

QStringView lineName(LineKind kind)
{
    switch (kind) {
    case LineKind::Payer:
        return u"wh.payer.";
    case LineKind::Payee:
        return u"wh.payee.";
    default:
        return u"wk.";
    }
}

CatalogueEntry ruleEntry(const LineRules &line, const CheckRule &rule)
{
    const Field &field = line.fields[static_cast<std::size_t>(rule.field) - 1];
    const AskedWords &asked = askedWords(rule.asks);
    const ConditionWords &condition = conditionWords(rule.when);
    const QString limit = QString::number(rule.limit);
    const QString where = condition.meaning.isEmpty() ? QString() : u' ' + condition.meaning;
    return {lineName(line.kind) + field.name + u'.' + asked.name + condition.name,
            u"field "_s + QString::number(rule.field) + where + u' ' + asked.meaning.toString().replace(u"%1"_s, limit),
            asked.remedy.toString().replace(u"%1"_s, limit), rule.message.toString()};
}

} // namespace

const FileRules &rulesOf(FileKind kind)
{
    return kind == FileKind::Wh ? whRules() : wkRules();
}

QString findingName(const FileRules &rules, const Finding &finding)
{
    if (finding.kind == FindingKind::Rule)
        return ruleEntry(finding.line == 1 ? rules.first : rules.rest, *finding.rule).name;
    return Kinds[static_cast<std::size_t>(finding.kind)].name.toString();
}

std::vector<CatalogueEntry> checkCatalogue()
{
    std::vector<CatalogueEntry> entries;
    for (const KindWords &kind : Kinds) {
        if (kind.kind != FindingKind::Rule)
            entries.push_back({kind.name.toString(), kind.meaning.toString(), kind.remedy.toString(), {}});
    }
    for (const LineRules *line : {&whRules().first, &whRules().rest, &wkRules().first}) {
        for (const CheckRule &rule : line->rules)
            entries.push_back(ruleEntry(*line, rule));
    }
    return entries;
}

} // namespace zrv
