// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// What several threads write at once about file after file, brought out in the files' order.

#include <QByteArrayView>

#include <condition_variable>
#include <cstddef>
#include <exception>
#include <functional>
#include <map>
#include <mutex>
#include <string>

namespace zrv::checktool {

/// Files have places from 0 on, and whoever takes a place takes the lowest that is free: so the one whose turn it is
/// is always at work, and nobody waits for ever. Text of others is kept until their turn, some 8 MB of it at most;
/// then they wait.
class OrderedOutput {
public:
    /// Takes the text, always from one thread at a time. Once it throws it is not called again.
    using Write = std::function<void(QByteArrayView)>;

    explicit OrderedOutput(Write write)
        : m_write(std::move(write))
    {
    }

    /// Text of the file with this place.
    void add(std::size_t place, QByteArrayView text);
    /// Nothing more comes from this place.
    void close(std::size_t place);

    /// Behind all else: throws what the writing threw, if it did.
    void finish() const;

private:
    void write(QByteArrayView text);
    void giveOut(std::string &text);

    Write m_write;
    std::mutex m_mutex;
    std::condition_variable m_turned;
    std::exception_ptr m_failure;
    std::size_t m_turn = 0;
    std::size_t m_kept = 0;
    struct Waiting {
        std::string text;
        bool isClosed = false;
    };
    std::map<std::size_t, Waiting> m_waiting;
};

} // namespace zrv::checktool
