// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/split_walk.h"

#include "core/basic/run_time_error.h"

#include <algorithm>
#include <string>
#include <system_error>

namespace zrv {
namespace {

constexpr std::size_t MostFindings = 16384; ///< kept of a share
constexpr std::size_t MostLetters = 262144; ///< of their values
constexpr qint64 LookBack = 4096;           ///< bytes before a share that tell its state; some lines
constexpr qint64 SharesAThread = 2;

/// A share begins behind the payer's line and a payee's, so that no line of it has rules of its own.
constexpr qint64 RecordsBefore = 2;

/// Thrown inside this file when more is wrong in a share than is kept.
struct TooMuch {};

class Silence : public CheckEvents {
public:
    [[nodiscard]] bool wantsErrorsAlone() const override { return true; }
    void finding(const Finding & /*finding*/) override {}
};

} // namespace

/// What was found in a share.
struct SplitWalk::Share {
    bool isReady = false;
    bool isUsable = false;
    qint64 offset = 0; ///< of its first line
    CheckState before; ///< records count from RecordsBefore, errors from 0
    CheckState after;
    qint64 end = 0; ///< where the line behind its last one begins
    WalkResult result;
    std::vector<Finding> findings;
    std::u16string letters; ///< of the findings' values; never grows beyond its first capacity
    std::vector<PassedLine> passed;
    /// A line that was looked at, and how much was found and passed over before it.
    struct Looked {
        CheckPlace place;
        std::size_t findings;
        std::size_t passed;
    };
    std::vector<Looked> looked; ///< where somebody wants to hear of them
};

/// Keeps the findings of a share.
class SplitWalk::Recorder : public CheckEvents {
public:
    Recorder(Share &share, bool wantsPassedLines)
        : m_share(share)
        , m_wantsPassedLines(wantsPassedLines)
    {
        m_share.findings.clear();
        m_share.letters.clear();
        m_share.letters.reserve(MostLetters);
        m_share.passed.clear();
        m_share.looked.clear();
    }

    [[nodiscard]] bool wantsErrorsAlone() const override { return true; }
    [[nodiscard]] bool wantsPassedLines() const override { return m_wantsPassedLines; }
    void passedOver(std::span<const PassedLine> lines) override
    {
        m_share.passed.insert(m_share.passed.end(), lines.begin(), lines.end());
    }
    void lookAt(const CheckPlace &place)
    {
        if (m_share.looked.empty() || m_share.looked.back().place.offset != place.offset)
            m_share.looked.push_back({place, m_share.findings.size(), m_share.passed.size()});
    }
    void finding(const Finding &finding) override
    {
        const auto size = static_cast<std::size_t>(finding.value.size());
        if (m_share.findings.size() == MostFindings || size > MostLetters - m_share.letters.size())
            throw TooMuch();
        const std::size_t begin = m_share.letters.size();
        m_share.letters.append(reinterpret_cast<const char16_t *>(finding.value.utf16()), size);
        m_share.findings.push_back(finding);
        m_share.findings.back().value = QStringView(m_share.letters.data() + begin, finding.value.size());
    }

private:
    Share &m_share;
    const bool m_wantsPassedLines;
};

SplitWalk::SplitWalk(const FileRules &rules, const CheckOptions &options, LineReader &reader, CheckEvents &events,
                     const BeforeLine &beforeLine)
    : m_rules(rules)
    , m_options(options)
    , m_reader(reader)
    , m_events(events)
    , m_beforeLine(beforeLine)
    , m_begin(reader.position())
    , m_count(std::max<qint64>(1, (reader.fileSize() - m_begin) / options.shareBytes))
    , m_shares(static_cast<std::size_t>(std::min<qint64>(m_count, SharesAThread * options.threads)))
{
    const qint64 threads = std::min<qint64>(options.threads, m_count);
    try {
        for (qint64 i = 1; i < threads; ++i)
            m_helpers.emplace_back([this] { help(); });
    } catch (const std::system_error &) {
        // The system has no thread more to give: fewer do it, too.
    }
}

SplitWalk::~SplitWalk()
{
    const std::scoped_lock lock(m_mutex);
    m_isOver = true;
    m_changed.notify_all();
}

SplitWalk::Share &SplitWalk::shareOf(qint64 number)
{
    return m_shares[static_cast<std::size_t>(number) % m_shares.size()];
}

/// The last share goes on to the file's end.
qint64 SplitWalk::endOf(qint64 number) const
{
    return number + 1 == m_count ? LineReader::Everything : beginOf(number + 1);
}

bool SplitWalk::mayTake() const
{
    return m_untaken < m_count && m_untaken < m_handed + static_cast<qint64>(m_shares.size());
}

/// Checks the next share that nobody took. The mutex is held before and behind it.
void SplitWalk::takeShare(std::unique_lock<std::mutex> &lock, LineReader &reader)
{
    const qint64 number = m_untaken++;
    Share &share = shareOf(number);
    lock.unlock();
    share.isUsable = false;
    try {
        checkShare(number, share, reader);
    } catch (...) {
        // Whatever it is, the thread that hands over meets it at its place.
    }
    lock.lock();
    share.isReady = true;
    m_changed.notify_all();
}

void SplitWalk::help()
{
    std::unique_ptr<LineReader> reader;
    try {
        reader = m_reader.another();
    } catch (const RunTimeError &) {
        return;
    }
    std::unique_lock lock(m_mutex);
    for (;;) {
        m_changed.wait(lock, [this] { return m_isOver || mayTake(); });
        if (m_isOver)
            return;
        takeShare(lock, *reader);
    }
}

void SplitWalk::checkShare(qint64 number, Share &share, LineReader &reader) const
{
    Silence silence;
    CheckState state{.records = RecordsBefore};
    QStringView cutLine;
    reader.seek(std::max(m_begin, beginOf(number) - LookBack), beginOf(number));
    if (!reader.next(cutLine) || LineWalk(m_rules, m_options, reader, silence).walk(state).end != WalkEnd::Stopped)
        return;
    share.offset = reader.position();
    state.records = RecordsBefore;
    state.errors = 0;
    share.before = state;
    reader.seek(share.offset, endOf(number));
    Recorder recorder(share, m_events.wantsPassedLines());
    const BeforeLine look = [&](const CheckPlace &place) {
        recorder.lookAt(place);
        return true;
    };
    share.result = LineWalk(m_rules, m_options, reader, recorder).walk(state, m_beforeLine ? look : BeforeLine());
    share.after = state;
    share.end = reader.position();
    share.isUsable = true;
}

WalkResult SplitWalk::walk(CheckState &state)
{
    const std::unique_ptr<LineReader> spare = m_reader.another();
    qint64 offset = m_begin;
    WalkResult result;
    for (qint64 number = 0; number < m_count; ++number) {
        const Share *const share = number == 0 ? nullptr : readyShare(number, *spare);
        if (share && fits(*share, offset, state)) {
            if (!handOver(*share, state))
                return {.end = WalkEnd::Cancelled};
            result = share->result;
            offset = share->end;
        } else {
            m_reader.seek(offset, endOf(number));
            result = LineWalk(m_rules, m_options, m_reader, m_events).walk(state, m_beforeLine);
            offset = m_reader.position();
        }
        if (result.end != WalkEnd::Stopped)
            break;
        release(number);
    }
    return result;
}

/// The share when it is checked; none where it is still to be done by the caller. While others check it the caller
/// checks one of those behind it.
const SplitWalk::Share *SplitWalk::readyShare(qint64 number, LineReader &spare)
{
    std::unique_lock lock(m_mutex);
    const Share &share = shareOf(number);
    while (!share.isReady) {
        if (m_untaken == number) {
            ++m_untaken;
            return nullptr;
        }
        if (mayTake())
            takeShare(lock, spare);
        else
            m_changed.wait(lock);
    }
    return &share;
}

bool SplitWalk::fits(const Share &share, qint64 offset, const CheckState &state)
{
    return share.isUsable && share.offset == offset && state.records >= RecordsBefore
           && share.before.national == state.national && share.before.otherInsurance == state.otherInsurance;
}

/// Tells what was found in the share as if it were met now. False where a line of it is not to be looked at any more,
/// with the state before that line.
bool SplitWalk::handOver(const Share &share, CheckState &state)
{
    std::size_t findings = 0;
    std::size_t passed = 0;
    const auto tellUpTo = [&](std::size_t findingsEnd, std::size_t passedEnd) {
        for (; findings < findingsEnd; ++findings) {
            Finding finding = share.findings[findings];
            finding.number += state.errors;
            finding.line += state.records - RecordsBefore;
            m_events.finding(finding);
        }
        if (passed < passedEnd)
            m_events.passedOver(std::span(share.passed).subspan(passed, passedEnd - passed));
        passed = passedEnd;
    };
    for (const Share::Looked &looked : share.looked) {
        tellUpTo(looked.findings, looked.passed);
        CheckPlace place = looked.place;
        place.state.records += state.records - RecordsBefore;
        place.state.errors += state.errors;
        place.state.legalPerson = state.legalPerson;
        if (!m_beforeLine(place)) {
            state = place.state;
            return false;
        }
    }
    tellUpTo(share.findings.size(), share.passed.size());
    state.records += share.after.records - RecordsBefore;
    state.errors += share.after.errors;
    state.national = share.after.national;
    state.otherInsurance = share.after.otherInsurance;
    return true;
}

void SplitWalk::release(qint64 number)
{
    const std::scoped_lock lock(m_mutex);
    shareOf(number).isReady = false;
    m_handed = number + 1;
    m_changed.notify_all();
}

} // namespace zrv
