// SPDX-License-Identifier: GPL-3.0-or-later
#include <QGuiApplication>

/// zrvdisplay: connects to the display and leaves. ./run asks it whether a window can be opened at all; where the
/// display is gone or refuses us, Qt ends the process with a signal.
int main(int argc, char *argv[])
{
    const QGuiApplication application(argc, argv);
    return 0;
}
