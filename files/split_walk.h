// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The structure check's way through a WH file on several cores, where errors alone are wanted. What is found, and in
// which order it is told, is what LineWalk finds and tells; files/structure_check.cpp chooses between the two.

#include "files/line_walk.h"

#include <condition_variable>
#include <mutex>
#include <thread>
#include <vector>

namespace zrv {

/// The file is cut into shares of some bytes. Threads take share after share and check the lines that begin in it, from
/// what the lines just before it tell of the state. The thread that asked hands over what they found in the file's
/// order. Where a share can't be used, since the state was another one after all, or too much is wrong in it to be
/// kept, that thread checks its lines anew from the state as it is. Memory: some 5 MB a thread at most.
class SplitWalk {
public:
    /// All must outlive it. The events, and `beforeLine`, are called from the thread that walks alone.
    SplitWalk(const FileRules &rules, const CheckOptions &options, LineReader &reader, CheckEvents &events,
              const BeforeLine &beforeLine);
    ~SplitWalk();
    SplitWalk(const SplitWalk &) = delete;
    SplitWalk &operator=(const SplitWalk &) = delete;

    /// From where the reader stands to the file's end, as LineWalk::walk() does.
    WalkResult walk(CheckState &state);

private:
    struct Share;
    class Recorder;

    void help();
    [[nodiscard]] bool mayTake() const;
    void takeShare(std::unique_lock<std::mutex> &lock, LineReader &reader);
    void checkShare(qint64 number, Share &share, LineReader &reader) const;
    [[nodiscard]] const Share *readyShare(qint64 number, LineReader &spare);
    [[nodiscard]] static bool fits(const Share &share, qint64 offset, const CheckState &state);
    [[nodiscard]] bool handOver(const Share &share, CheckState &state);
    void release(qint64 number);
    [[nodiscard]] Share &shareOf(qint64 number);
    [[nodiscard]] qint64 beginOf(qint64 number) const { return m_begin + number * m_options.shareBytes; }
    [[nodiscard]] qint64 endOf(qint64 number) const;

    const FileRules &m_rules;
    const CheckOptions &m_options;
    LineReader &m_reader;
    CheckEvents &m_events;
    const BeforeLine &m_beforeLine;
    const qint64 m_begin;
    const qint64 m_count; ///< of shares

    std::mutex m_mutex; ///< of what follows
    std::condition_variable m_changed;
    std::vector<Share> m_shares; ///< those under way, the next place again and again
    qint64 m_untaken = 1;        ///< the lowest number that nobody took; 0, with the payer's line, is the caller's
    qint64 m_handed = 0;         ///< so many are done with
    bool m_isOver = false;
    std::vector<std::jthread> m_helpers;
};

} // namespace zrv
