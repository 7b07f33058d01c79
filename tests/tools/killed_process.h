// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/sample/dice.h"

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <exception>
#include <functional>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

namespace zrv {

/// What the processes that are to be killed do, again and again.
using Work = std::function<void(int turn)>;

/// Runs work in a process of its own and kills it after so many microseconds of it. False if the work failed.
inline bool killDuring(const Work &work, int microseconds)
{
    int pipe[2];
    EXPECT_EQ(::pipe(pipe), 0);
    const pid_t child = ::fork();
    if (child == 0) {
        const char begun = 1;
        if (::write(pipe[1], &begun, 1) != 1)
            ::_exit(2);
        try {
            for (int turn = 0;; ++turn)
                work(turn);
        } catch (const std::exception &error) {
            (void)std::fprintf(stderr, "%s\n", error.what());
        }
        ::_exit(1);
    }
    char begun = 0;
    EXPECT_EQ(::read(pipe[0], &begun, 1), 1);
    ::usleep(useconds_t(microseconds));
    ::kill(child, SIGKILL);
    int status = 0;
    EXPECT_EQ(::waitpid(child, &status, 0), child);
    ::close(pipe[0]);
    ::close(pipe[1]);
    return WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL;
}

/// The moments of the kills, in microseconds from the beginning of the work: spread evenly up to a limit. Where the
/// work has an end, the limit grows with each kill that came before it and shrinks with each that came after it, so
/// that both happen however fast the machine is and whatever else it does.
class KillMoments {
public:
    /// `number` tells these moments from those of other tests.
    KillMoments(quint64 number, int limit)
        : m_dice(number, "moment", 0)
        , m_limit(limit)
    {
    }

    [[nodiscard]] int next() { return m_dice.below(m_limit); }
    void cameBeforeTheEnd() { m_limit = std::min(m_limit + m_limit / 4, Longest); }
    void cameAfterTheEnd() { m_limit = std::max(m_limit - m_limit / 4, Shortest); }

private:
    static constexpr int Shortest = 1'000;
    static constexpr int Longest = 10'000'000;

    sample::Dice m_dice;
    int m_limit;
};

} // namespace zrv
