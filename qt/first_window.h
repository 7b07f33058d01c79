// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLocalServer>
#include <QString>

#include <functional>

namespace zrv {

/// What the first program on a store answers later starts with: it comes to the front, and they end. To be made by the
/// program that holds the store's lock.
class FirstWindow {
public:
    /// `raise` is called in the event loop, once for each later start.
    FirstWindow(const QString &store, std::function<void()> raise);

    /// Asks the program on this store to come to the front; false if none answers within two seconds.
    [[nodiscard]] static bool comesToTheFront(const QString &store);

private:
    void answer();

    QLocalServer m_server;
    std::function<void()> m_raise;
};

/// Brings all windows of this program to the front, the one the user works in above the others.
void raiseWindows();

} // namespace zrv
