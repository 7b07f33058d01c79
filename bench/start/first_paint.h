// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QApplication>
#include <QEvent>
#include <QTimer>
#include <QWidget>

#include <cstdlib>

namespace zrv::bench {

/// Ends the process when the first window has been painted and what it painted has been handed to the display.
class FirstPaint : public QObject {
public:
    FirstPaint() { qApp->installEventFilter(this); }

protected:
    bool eventFilter(QObject *object, QEvent *event) override
    {
        const auto *const widget = event->type() == QEvent::Paint ? qobject_cast<QWidget *>(object) : nullptr;
        if (widget && !std::exchange(m_seen, true))
            QTimer::singleShot(0, [] { std::_Exit(0); });
        return false;
    }

private:
    bool m_seen = false;
};

} // namespace zrv::bench
