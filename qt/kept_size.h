// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

class QSize;
class QWidget;

namespace zrv {

class QtPlatform;

/// The size that a user gives a window, kept in the user's settings under the window's name until it is opened again.
/// Made when the window has the size at which it would open, before it is shown; it lives no longer than the window.
class KeptSize {
public:
    /// Gives the window the size in which its user left it, unless its display has no room for that.
    KeptSize(QWidget &window, QtPlatform &platform, QString name);
    /// Keeps the size if the user changed it.
    ~KeptSize();
    KeptSize(const KeptSize &) = delete;
    KeptSize &operator=(const KeptSize &) = delete;

    /// How large a window may be on its display, without what a window manager draws around it.
    [[nodiscard]] static QSize room(const QWidget &window);

private:
    QWidget &m_window;
    QtPlatform &m_platform;
    QString m_name;
    QString m_opened; ///< as it would be kept
};

} // namespace zrv
