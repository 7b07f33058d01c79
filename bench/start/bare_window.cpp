// SPDX-License-Identifier: GPL-3.0-or-later
// What a start is measured against: Qt with one window and one label.
#include "bench/start/first_paint.h"

#include <QLabel>
#include <QVBoxLayout>

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    const zrv::bench::FirstPaint firstPaint;
    QWidget window;
    QVBoxLayout column(&window);
    column.addWidget(new QLabel(QStringLiteral("window")));
    window.show();
    return QApplication::exec();
}
