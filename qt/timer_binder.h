// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "qt/binder.h"

#include <QTimer>

namespace zrv {

class TimerBinder : public Binder {
public:
    TimerBinder(Timer &timer, FormWindow &window);
    void refresh(Aspect aspect) override;

private:
    Timer &m_timer;
    QTimer m_clock;
};

} // namespace zrv
