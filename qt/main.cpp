// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/catalogue.h"
#include "qt/look.h"
#include "qt/qt_platform.h"

#include <QApplication>

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    zrv::look::setUp(application);
    zrv::QtPlatform platform;
    zrv::runProgram(platform);
    return 0;
}
