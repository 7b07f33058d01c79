// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// Measures a report beside the check of its file, on a thread of its own. Only files/check_report.cpp asks.

#include "files/report_measure.h"

#include <condition_variable>
#include <exception>
#include <functional>
#include <mutex>
#include <thread>
#include <vector>

namespace zrv {

class GaugeThread {
public:
    /// Nobody else may use the gauge and what it measures into before finish() is over. While the check has to wait,
    /// `goesOn` is asked now and then; false gives up a line of very many fields.
    GaugeThread(ReportGauge &gauge, std::function<bool()> goesOn);
    GaugeThread(const GaugeThread &) = delete;
    GaugeThread &operator=(const GaugeThread &) = delete;
    /// Leaves unmeasured what is not done yet.
    ~GaugeThread();

    /// The check looks at the line at that place, and has passed over those between it and the one before. Waits while
    /// the gauge lags far behind.
    void look(const CheckPlace &place);
    /// Waits until all of it is measured; raises what the gauge has raised. False where a line was given up: then the
    /// gauge stands before it, and nothing behind it is measured.
    [[nodiscard]] bool finish();

private:
    void handOver();
    template <typename Reached>
    void await(std::unique_lock<std::mutex> &lock, Reached isReached);
    void work();
    void measure(const std::vector<CheckPlace> &places);

    ReportGauge &m_gauge;
    const std::function<bool()> m_goesOn;
    std::vector<CheckPlace> m_gathered; ///< not handed over yet; of the check's thread
    qint64 m_handedOver = 0;            ///< lines

    std::mutex m_mutex; ///< for what follows
    std::condition_variable m_changed;
    std::vector<CheckPlace> m_waiting;
    bool m_isOver = false;
    bool m_isLeft = false;
    bool m_isDone = false;

    // Of the gauge's thread, until it is done.
    bool m_hasGivenUp = false;
    std::exception_ptr m_failure;

    std::jthread m_thread;
};

} // namespace zrv
