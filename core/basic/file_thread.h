// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// Writes a long file on a thread of its own, while more of it is made. tools/zrvcheck writes its reports so.

#include "core/basic/safe_file.h"

#include <QByteArrayView>

#include <condition_variable>
#include <exception>
#include <mutex>
#include <string>
#include <thread>

namespace zrv {

class FileThread {
public:
    /// Nobody else may use the file before finish() is over, and it must outlive the thread.
    explicit FileThread(SafeFile &file);
    FileThread(const FileThread &) = delete;
    FileThread &operator=(const FileThread &) = delete;
    /// Leaves unwritten what was not finished.
    ~FileThread();

    /// Bytes behind those already written. Waits while the disk lags behind, with 1 MB on its way; raises what
    /// the writing of earlier ones has raised.
    void write(QByteArrayView bytes);
    /// Waits until all is written; raises what the writing has raised. The file isn't committed.
    void finish();

private:
    void handOver();
    void work();

    SafeFile &m_file;
    std::string m_gathered; ///< not handed over yet; of the maker's thread

    std::mutex m_mutex; ///< for what follows
    std::condition_variable m_changed;
    std::string m_waiting;
    bool m_isWriting = false;
    bool m_isLeft = false;
    std::exception_ptr m_failure;

    std::jthread m_thread;
};

} // namespace zrv
