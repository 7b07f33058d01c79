// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/look.h"

#include <QApplication>
#include <QFontDatabase>
#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <cstdio>
#include <gtest/gtest.h>

/// The tests of windows run without a display, with the program's own look, and touch no user's settings.
int main(int argc, char *argv[])
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" ZRV_SOURCE_DIR "/tests/qt/display_1024.json");
    testing::InitGoogleTest(&argc, argv);
    QStandardPaths::setTestModeEnabled(true);
    const QTemporaryDir settings;
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, settings.path());
    QApplication application(argc, argv);
    zrv::look::setUp(application);
    if (!QFontDatabase::families(QFontDatabase::Arabic).contains(QStringLiteral("Noto Sans Arabic"))) {
        std::fputs("the program's Persian font is missing (package fonts-noto-core)\n", stderr);
        return 1;
    }
    return RUN_ALL_TESTS();
}
