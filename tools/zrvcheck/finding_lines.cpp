// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/zrvcheck/finding_lines.h"

#include "core/basic/text.h"
#include "files/check_words.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <optional>

namespace zrv::checktool {

namespace {

constexpr std::size_t MostKept = 4096;

/// The letter that the words of a rule's error tell of; nothing for words without one. Where the rule asks for another
/// letter than any in the field, the code told is -1 for every field.
std::optional<char16_t> letterTold(const CheckRule &rule, QStringView value)
{
    const bool digitSought = rule.asks == Asks::NoNumber || rule.asks == Asks::NoNumberAlways;
    if (!digitSought && rule.asks != Asks::Digits && rule.asks != Asks::DigitsAlways)
        return {};
    const auto letter = std::ranges::find_if(value, [&](QChar one) { return isAsciiDigit(one) == digitSought; });
    return letter == value.end() ? std::optional<char16_t>() : letter->unicode();
}

/// Two findings of one key have the same words. 0 for words that only few have.
quint64 keyOf(const FileRules &rules, const Finding &finding)
{
    constexpr unsigned KindShift = 48;
    constexpr unsigned RuleShift = 24;
    const quint64 kind = static_cast<quint64>(finding.kind) + 1;
    switch (finding.kind) {
    case FindingKind::Rule: {
        const LineRules &line = finding.line == 1 ? rules.first : rules.rest;
        const auto rule = static_cast<quint64>(finding.rule - line.rules.data());
        const std::optional<char16_t> letter = letterTold(*finding.rule, finding.value);
        const quint64 told = letter ? *letter + 1U : 0U;
        return kind << KindShift | (rule << 1U | quint64(finding.line == 1)) << RuleShift | told;
    }
    case FindingKind::MissingField:
    case FindingKind::ExtraComma:
        return kind << KindShift;
    case FindingKind::FieldCount:
        return kind << KindShift | static_cast<quint64>(finding.counted) << 1U | quint64(finding.line == 1);
    default:
        return 0;
    }
}

void appendNumber(std::string &text, qint64 number)
{
    std::array<char, 20> digits{};
    const char *const end = std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr;
    text.append(digits.data(), static_cast<std::size_t>(end - digits.data()));
}

} // namespace

FindingLines::FindingLines(const FileRules &rules, const QString &programVersion, const QString &path)
    : m_rules(rules)
    , m_programVersion(programVersion)
    , m_path(path.toStdString())
{
}

void FindingLines::append(const Finding &finding, std::string &text)
{
    text += m_path;
    text += ':';
    appendNumber(text, finding.line);
    text += ':';
    appendNumber(text, finding.field);
    text += ": ";
    appendNumber(text, finding.number);
    text += ": ";
    if (const quint64 key = keyOf(m_rules, finding)) {
        if (m_words.size() >= MostKept)
            m_words.clear();
        const auto [words, isNew] = m_words.try_emplace(key);
        if (isNew)
            words->second = wordsOf(finding);
        text += words->second;
    } else {
        text += wordsOf(finding);
    }
    text += '\n';
}

std::string FindingLines::wordsOf(const Finding &finding) const
{
    return findingLine(m_rules, finding, m_programVersion).toStdString();
}

} // namespace zrv::checktool
