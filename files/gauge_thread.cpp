// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/gauge_thread.h"

#include <utility>

namespace zrv {
namespace {

constexpr std::size_t Handful = 64;
constexpr qint64 LinesOfHandful = 256; ///< of the file
constexpr std::size_t MostWaiting = 4096;

} // namespace

GaugeThread::GaugeThread(ReportGauge &gauge)
    : m_gauge(gauge)
    , m_thread([this] { work(); })
{
}

GaugeThread::~GaugeThread()
{
    {
        const std::lock_guard lock(m_mutex);
        m_isOver = m_isLeft = true;
    }
    m_changed.notify_all();
}

void GaugeThread::look(const CheckPlace &place)
{
    m_gathered.push_back(place);
    if (m_gathered.size() >= Handful || place.state.records >= m_handedOver + LinesOfHandful)
        handOver();
}

void GaugeThread::handOver()
{
    if (m_gathered.empty())
        return;
    m_handedOver = m_gathered.back().state.records;
    {
        std::unique_lock lock(m_mutex);
        m_changed.wait(lock, [this] { return m_waiting.size() < MostWaiting; });
        m_waiting.insert(m_waiting.end(), m_gathered.begin(), m_gathered.end());
    }
    m_changed.notify_all();
    m_gathered.clear();
}

void GaugeThread::finish()
{
    handOver();
    {
        const std::lock_guard lock(m_mutex);
        m_isOver = true;
    }
    m_changed.notify_all();
    m_thread.join();
    if (m_failure)
        std::rethrow_exception(m_failure);
}

void GaugeThread::work()
{
    std::vector<CheckPlace> places;
    for (;;) {
        {
            std::unique_lock lock(m_mutex);
            m_changed.wait(lock, [this] { return m_isOver || !m_waiting.empty(); });
            if (m_waiting.empty() || m_isLeft)
                return;
            places.clear();
            std::swap(places, m_waiting);
        }
        m_changed.notify_all();
        try {
            for (const CheckPlace &place : places) {
                if (m_failure)
                    break;
                m_gauge.passTo(place);
                m_gauge.measureLine(place);
            }
        } catch (...) {
            m_failure = std::current_exception();
        }
    }
}

} // namespace zrv
