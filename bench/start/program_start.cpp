// SPDX-License-Identifier: GPL-3.0-or-later
// The program as it starts, but for the end after its first paint.
#include "app/catalogue.h"
#include "bench/start/first_paint.h"
#include "qt/look.h"
#include "qt/qt_platform.h"

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    zrv::look::setUp(application);
    const zrv::bench::FirstPaint firstPaint;
    zrv::QtPlatform platform;
    zrv::runProgram(platform);
    return 0;
}
