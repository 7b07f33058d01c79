// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/line_walk.h"

#include "files/faultless_lines.h"

namespace zrv {
namespace {

constexpr qint64 FewestRecords = 2;
constexpr qint64 RecordsOfShortCheck = 2;

} // namespace

LineWalk::LineWalk(const FileRules &rules, const CheckOptions &options, LineReader &reader, CheckEvents &events)
    : m_rules(rules)
    , m_options(options)
    , m_reader(reader)
    , m_events(events)
{
}

WalkResult LineWalk::walk(CheckState &state, const BeforeLine &beforeLine)
{
    const bool isWh = m_rules.kind == FileKind::Wh;
    LineCheck lines(m_rules, m_options.programVersion, state, m_events);
    CheckState before;
    if (beforeLine)
        lines.askInLongLines([&] { return beforeLine({m_reader.offset(), before}); });
    FaultlessLines suspects(m_rules.rest, m_options.instructions, m_reader);
    const bool passesOver = isWh && m_events.wantsErrorsAlone() && !m_options.firstTwoLines;
    std::vector<PassedLine> passed;
    if (m_events.wantsPassedLines())
        suspects.tellPassed(passed);
    const auto tellPassed = [&] {
        if (!passed.empty())
            m_events.passedOver(passed);
        passed.clear();
    };
    QStringView line;
    while (passesOver && state.records > 0 ? suspects.next(line, state) : m_reader.next(line)) {
        tellPassed();
        if (line.isEmpty()) {
            if (isWh && state.records < FewestRecords)
                m_events.finding({.kind = FindingKind::TooFewRecords,
                                  .number = ++state.errors,
                                  .line = state.records + 1,
                                  .offset = m_reader.offset()});
            return {};
        }
        if (isWh && m_options.firstTwoLines && state.records == RecordsOfShortCheck)
            return {};
        if (beforeLine && !beforeLine({m_reader.offset(), state}))
            return {.end = WalkEnd::Cancelled};
        before = state;
        const int field = lines.check(line, m_reader.offset(), suspects.known());
        if (field == LineCheck::GivenUp) {
            state = before;
            return {.end = WalkEnd::Cancelled};
        }
        if (field > 0)
            return {.end = WalkEnd::Mismatch, .field = field};
    }
    tellPassed();
    return {.end = m_reader.isAtEnd() ? WalkEnd::Finished : WalkEnd::Stopped};
}

} // namespace zrv
