// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// Ways to make a disk fail for real, for as long as one of these lives.

#include <QtGlobal>

#include <csignal>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <unistd.h>

namespace zrv {

/// Root may write anywhere, so a test run by root goes on as nobody for a while.
class AsOrdinaryUser {
public:
    AsOrdinaryUser()
    {
        constexpr uid_t Nobody = 65534;
        if (geteuid() == 0) {
            EXPECT_EQ(seteuid(Nobody), 0);
        }
    }
    ~AsOrdinaryUser() { EXPECT_EQ(seteuid(getuid()), 0); }
    Q_DISABLE_COPY_MOVE(AsOrdinaryUser)
};

/// No file grows beyond so many bytes: the system refuses to write more, as it does on a full disk.
class FilesNoLargerThan {
public:
    explicit FilesNoLargerThan(rlim_t bytes)
        : m_handler(std::signal(SIGXFSZ, SIG_IGN))
    {
        getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit limited{bytes, m_before.rlim_max};
        EXPECT_EQ(setrlimit(RLIMIT_FSIZE, &limited), 0);
    }
    ~FilesNoLargerThan()
    {
        setrlimit(RLIMIT_FSIZE, &m_before);
        (void)std::signal(SIGXFSZ, m_handler);
    }
    Q_DISABLE_COPY_MOVE(FilesNoLargerThan)

private:
    rlimit m_before{};
    void (*m_handler)(int);
};

} // namespace zrv
