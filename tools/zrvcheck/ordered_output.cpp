// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/zrvcheck/ordered_output.h"

namespace zrv::checktool {

namespace {

constexpr std::size_t MostKept = 8U << 20U;

} // namespace

void OrderedOutput::add(std::size_t place, QByteArrayView text)
{
    std::unique_lock lock(m_mutex);
    m_turned.wait(lock, [&] { return m_turn == place || m_kept < MostKept; });
    if (m_turn == place) {
        giveOut(m_waiting[place].text);
        write(text);
        return;
    }
    m_waiting[place].text.append(text.data(), static_cast<std::size_t>(text.size()));
    m_kept += static_cast<std::size_t>(text.size());
}

void OrderedOutput::close(std::size_t place)
{
    const std::scoped_lock lock(m_mutex);
    m_waiting[place].isClosed = true;
    for (auto next = m_waiting.find(m_turn); next != m_waiting.end() && next->second.isClosed;
         next = m_waiting.find(m_turn)) {
        giveOut(next->second.text);
        m_waiting.erase(next);
        ++m_turn;
    }
    // Whoever's turn it is now goes on by itself; what it kept goes out with what it writes next.
    m_turned.notify_all();
}

void OrderedOutput::finish() const
{
    if (m_failure)
        std::rethrow_exception(m_failure);
}

void OrderedOutput::write(QByteArrayView text)
{
    if (m_failure)
        return;
    try {
        m_write(text);
    } catch (...) {
        // Whoever writes is one of many threads; the one that began them hears of it.
        m_failure = std::current_exception();
    }
}

void OrderedOutput::giveOut(std::string &text)
{
    if (text.empty())
        return;
    write({text.data(), static_cast<qsizetype>(text.size())});
    m_kept -= text.size();
    text.clear();
}

} // namespace zrv::checktool
