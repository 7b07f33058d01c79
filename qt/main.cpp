// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/catalogue.h"
#include "qt/first_window.h"
#include "qt/look.h"
#include "qt/qt_platform.h"
#include "qt/start.h"

#include <QApplication>

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
    if (!mayRun(platform, store, lock))
        return 0;
    const FirstWindow first(store, raiseWindows);
    if (isFirst)
        tellOfFirstStore(platform);
    runProgram(platform);
    return 0;
}
