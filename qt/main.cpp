// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/catalogue.h"
#include "qt/first_window.h"
#include "qt/look.h"
#include "qt/qt_platform.h"
#include "qt/start.h"

#include <QApplication>

#include <optional>

int main(int argc, char *argv[])
{
    using namespace zrv;
    QApplication application(argc, argv);
    look::setUp(application);
    QtPlatform platform;
    const bool isFirst = isFirstStart(platform, QtPlatform::isInstalledForAll());
    if (isFirst && !makeFirstStore(platform))
        return 1;
    const QString store = platform.programFolder() + u"/DBZorvan.mdb";
    StoreLock lock(store);
    std::optional<FirstWindow> first;
    if (mayRun(platform, store, lock))
        first.emplace(store, raiseWindows);
    // Whoever made the store tells how to get in, even if another one, started at the same moment, was quicker to open it.
    if (isFirst)
        tellOfFirstStore(platform);
    if (first)
        runProgram(platform);
    return 0;
}
