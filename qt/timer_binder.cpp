// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/timer_binder.h"

#include "qt/form_window.h"
#include "qt/qt_platform.h"

namespace zrv {

TimerBinder::TimerBinder(Timer &timer, FormWindow &window)
    : Binder(timer, window)
    , m_timer(timer)
{
    m_clock.setObjectName(timer.name());
    // Not through the window's enter: a tick is no user's action and must not fetch the focus from an open menu.
    QObject::connect(&m_clock, &QTimer::timeout, &m_clock,
                     [this] { m_window.platform().enter([this] { form().tick(m_timer); }); });
}

void TimerBinder::refresh(Aspect aspect)
{
    if (aspect != Aspect::Interval && aspect != Aspect::Enabled)
        return;
    m_clock.setInterval(m_timer.interval());
    if (!m_timer.isEnabled() || m_timer.interval() == 0)
        m_clock.stop();
    else if (!m_clock.isActive())
        m_clock.start();
}

} // namespace zrv
