// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/basic/file_thread.h"

#include <cstddef>

namespace zrv {
namespace {

constexpr std::size_t BlockBytes = 1U << 19U;

} // namespace

FileThread::FileThread(SafeFile &file)
    : m_file(file)
    , m_thread([this] { work(); })
{
}

FileThread::~FileThread()
{
    const std::scoped_lock lock(m_mutex);
    m_isLeft = true;
    m_changed.notify_all();
}

void FileThread::write(QByteArrayView bytes)
{
    m_gathered.append(bytes.data(), static_cast<std::size_t>(bytes.size()));
    if (m_gathered.size() >= BlockBytes)
        handOver();
}

void FileThread::finish()
{
    handOver();
    std::unique_lock lock(m_mutex);
    m_changed.wait(lock, [this] { return m_failure || (m_waiting.empty() && !m_isWriting); });
    if (m_failure)
        std::rethrow_exception(m_failure);
}

void FileThread::handOver()
{
    std::unique_lock lock(m_mutex);
    m_changed.wait(lock, [this] { return m_failure || m_waiting.empty(); });
    if (m_failure)
        std::rethrow_exception(m_failure);
    m_waiting.swap(m_gathered);
    m_changed.notify_all();
}

void FileThread::work()
{
    std::string block;
    std::unique_lock lock(m_mutex);
    while (!m_failure) {
        m_changed.wait(lock, [this] { return m_isLeft || !m_waiting.empty(); });
        if (m_isLeft)
            return;
        block.swap(m_waiting);
        m_isWriting = true;
        m_changed.notify_all();
        lock.unlock();
        std::exception_ptr failure;
        try {
            m_file.write(block.data(), block.size());
        } catch (...) {
            failure = std::current_exception();
        }
        block.clear();
        lock.lock();
        m_failure = failure;
        m_isWriting = false;
        m_changed.notify_all();
    }
}

} // namespace zrv
