// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/gauge_thread.h"

#include <chrono>
#include <utility>

namespace zrv {
namespace {

constexpr std::size_t Handful = 64;
constexpr qint64 LinesOfHandful = 256; ///< of the file
constexpr std::size_t MostWaiting = 4096;

} // namespace

GaugeThread::GaugeThread(ReportGauge &gauge, std::function<bool()> goesOn)
    : m_gauge(gauge)
    , m_goesOn(std::move(goesOn))
    , m_thread([this] { work(); })
{
}

GaugeThread::~GaugeThread()
{
    m_gauge.giveUpLongLines();
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
        await(lock, [this] { return m_waiting.size() < MostWaiting; });
        m_waiting.insert(m_waiting.end(), m_gathered.begin(), m_gathered.end());
    }
    m_changed.notify_all();
    m_gathered.clear();
}

template <typename Reached>
void GaugeThread::await(std::unique_lock<std::mutex> &lock, Reached isReached)
{
    constexpr std::chrono::milliseconds BetweenQuestions(20);
    while (!m_changed.wait_for(lock, BetweenQuestions, isReached)) {
        lock.unlock();
        if (!m_goesOn())
            m_gauge.giveUpLongLines();
        lock.lock();
    }
}

bool GaugeThread::finish()
{
    handOver();
    {
        std::unique_lock lock(m_mutex);
        m_isOver = true;
        m_changed.notify_all();
        await(lock, [this] { return m_isDone; });
    }
    m_thread.join();
    if (m_failure)
        std::rethrow_exception(m_failure);
    return !m_hasGivenUp;
}

void GaugeThread::work()
{
    std::vector<CheckPlace> places;
    for (;;) {
        {
            std::unique_lock lock(m_mutex);
            m_changed.wait(lock, [this] { return m_isOver || !m_waiting.empty(); });
            if (m_waiting.empty() || m_isLeft) {
                m_isDone = true;
                break;
            }
            places.clear();
            std::swap(places, m_waiting);
        }
        m_changed.notify_all();
        measure(places);
    }
    m_changed.notify_all();
}

/// Behind a failure or a line that was given up, what comes is taken and left.
void GaugeThread::measure(const std::vector<CheckPlace> &places)
{
    try {
        for (const CheckPlace &place : places) {
            if (m_failure || m_hasGivenUp)
                return;
            m_gauge.passTo(place);
            m_hasGivenUp = !m_gauge.measureLine(place);
        }
    } catch (...) {
        m_failure = std::current_exception();
    }
}

} // namespace zrv
