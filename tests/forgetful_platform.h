// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "qt/qt_platform.h"

namespace zrv {

/// The real platform without the user's settings: windows open as if for the first time, and leave nothing behind.
class ForgetfulPlatform : public QtPlatform {
public:
    QString setting(const QString &section, const QString &key, const QString &fallback) override
    {
        Q_UNUSED(section);
        Q_UNUSED(key);
        return fallback;
    }
    void saveSetting(const QString &section, const QString &key, const QString &value) override
    {
        Q_UNUSED(section);
        Q_UNUSED(key);
        Q_UNUSED(value);
    }
};

} // namespace zrv
