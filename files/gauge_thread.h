// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// Measures a report beside the check of its file, on a thread of its own. Only files/check_report.cpp asks.

#include "files/report_measure.h"

#include <condition_variable>
#include <exception>
#include <mutex>
#include <thread>
#include <vector>

namespace zrv {

class GaugeThread {
public:
    /// Nobody else may use the gauge and what it measures into before finish() is over.
    explicit GaugeThread(ReportGauge &gauge);
    GaugeThread(const GaugeThread &) = delete;
    GaugeThread &operator=(const GaugeThread &) = delete;
    /// Leaves unmeasured what is not done yet.
    ~GaugeThread();

    /// The check looks at the line at that place, and has passed over those between it and the one before. Waits while
    /// the gauge lags far behind.
    void look(const CheckPlace &place);
    /// Waits until all of it is measured; raises what the gauge has raised.
    void finish();

private:
    void handOver();
    void work();

    ReportGauge &m_gauge;
    std::vector<CheckPlace> m_gathered; ///< not handed over yet; of the check's thread
    qint64 m_handedOver = 0;            ///< lines

    std::mutex m_mutex; ///< for what follows
    std::condition_variable m_changed;
    std::vector<CheckPlace> m_waiting;
    bool m_isOver = false;
    bool m_isLeft = false;
    std::exception_ptr m_failure;

    std::jthread m_thread;
};

} // namespace zrv
