// SPDX-License-Identifier: GPL-3.0-or-later
// The keyboard layout as the program asks for it.
//
// On Windows the layouts are the system's. An X11 or Wayland desktop lets no program switch its layout: there the
// wanted one is remembered and told back. The fields take either layout as it comes: keyboardLetter understands both
// layouts' yeh and digits, and fields of codes read the letters of a Persian layout by their keys (qt/keyboard.h).
#include "qt/qt_platform.h"

#include <QGuiApplication>
#include <QInputMethod>

#ifdef Q_OS_WIN
#include <windows.h>
#endif

namespace zrv {

namespace {

constexpr quint32 UsEnglish = 0x04090409;
constexpr quint32 Arabic = 0x04010401;
constexpr quint32 Persian = 0x04290429;

#ifndef Q_OS_WIN
quint32 layoutOfDesktop()
{
    switch (QGuiApplication::inputMethod()->locale().language()) {
    case QLocale::Persian:
        return Persian;
    case QLocale::Arabic:
        return Arabic;
    default:
        return UsEnglish;
    }
}
#endif

} // namespace

#ifdef Q_OS_WIN

quint32 QtPlatform::keyboardLayout()
{
    return static_cast<quint32>(reinterpret_cast<quintptr>(GetKeyboardLayout(0)));
}

void QtPlatform::activateKeyboardLayout(quint32 layout)
{
    ActivateKeyboardLayout(reinterpret_cast<HKL>(static_cast<quintptr>(layout)), 0);
}

#else

quint32 QtPlatform::keyboardLayout()
{
    return m_layout ? m_layout : layoutOfDesktop();
}

void QtPlatform::activateKeyboardLayout(quint32 layout)
{
    m_layout = layout;
}

#endif

} // namespace zrv
