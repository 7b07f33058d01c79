// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/player/widget_app.h"

#include "qt/look.h"
#include "tests/player/widget_stage.h"
#include "tests/player/word.h"

#include <QApplication>

#include <cstdio>
#include <cstdlib>

namespace zrv::player {

using namespace Qt::Literals::StringLiterals;

namespace {

/// Qt's own words on their way to standard error. A display that is named but does not answer is found out by Qt,
/// which gives up the process; that the offscreen platform knows no limits of size is no news.
void tell(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    if (message.startsWith("This plugin does not support"_L1))
        return;
    std::fprintf(stderr, "%s\n", qPrintable(message));
    if (type != QtFatalMsg)
        return;
    std::fputs("zrvplay: no window can be shown; set QT_QPA_PLATFORM=offscreen to play without a display\n", stderr);
    std::_Exit(2);
}

} // namespace

int withWindows(int &argc, char **argv, const std::function<int(Stage &)> &play)
{
    const auto isSet = [](const char *name) { return !qEnvironmentVariableIsEmpty(name); };
    if (!isSet("QT_QPA_PLATFORM") && !isSet("DISPLAY") && !isSet("WAYLAND_DISPLAY"))
        throw ScenarioError(
            u"zrvplay: there is no display; set QT_QPA_PLATFORM=offscreen to play on the windows without one"_s);
    qInstallMessageHandler(tell);
    QApplication application(argc, argv);
    look::setUp(application);
    WidgetStage stage;
    return play(stage);
}

int withFonts(int &argc, char **argv, const std::function<int()> &play)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    return play();
}

} // namespace zrv::player
