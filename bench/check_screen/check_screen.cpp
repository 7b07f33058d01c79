// SPDX-License-Identifier: GPL-3.0-or-later

// How long a user waits for the report of a structure check with all its details, up to its last page on the display:
//
//     bench_check_screen FILE    checks a WH file, shows its report and goes to its end; prints milliseconds and lines
//
// bench/check_screen/run.py makes the file and sets the time beside that of zrvcheck.

#include "core/basic/run_time_error.h"
#include "files/checked_lines.h"
#include "qt/binder.h"
#include "qt/form_window.h"
#include "qt/look.h"
#include "qt/qt_platform.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>

#include <cstdio>
#include <ctime>
#include <thread>

namespace {

using namespace Qt::Literals::StringLiterals;
using namespace zrv;

class ReportForm : public Form {
public:
    ReportForm()
        : Form(u"frmReport"_s)
    {
    }
    ReportBox report{*this, u"txtReport"_s};

protected:
    void failed(const RunTimeError &failure) override { std::fprintf(stderr, "%s\n", failure.what()); }
};

/// Tells when a widget is painted.
class PaintWatch : public QObject {
public:
    explicit PaintWatch(QWidget &widget) { widget.installEventFilter(this); }
    void wait()
    {
        for (m_isPainted = false; !m_isPainted;)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }

protected:
    bool eventFilter(QObject *object, QEvent *event) override
    {
        m_isPainted = m_isPainted || event->type() == QEvent::Paint;
        return QObject::eventFilter(object, event);
    }

private:
    bool m_isPainted = false;
};

void press(QWidget &widget, Qt::Key key, Qt::KeyboardModifiers held)
{
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, key, held);
        QCoreApplication::sendEvent(&widget, &event);
    }
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    look::setUp(application);
    if (argc != 2) {
        std::fputs("usage: bench_check_screen FILE\n", stderr);
        return 2;
    }
    QtPlatform platform;
    ReportForm form;
    FormWindow window(form, platform, nullptr);
    form.load();
    window.resize(1000, 700);
    window.show();
    form.activate();
    form.userFocus(form.report);
    QWidget &view = *window.inputFor(form.report);
    PaintWatch painted(*window.binderOf(form.report).target());
    QCoreApplication::processEvents();

    const std::clock_t processor = std::clock();
    QElapsedTimer clock;
    clock.start();
    const ReportClock now = [] { return u"1389/03/03 - 10:30:00"_s; };
    const CheckOptions options{.programVersion = u"( نسخه 1.1.38 - 89/03/03 )"_s, // that of the file
                               .threads = std::thread::hardware_concurrency()};
    auto report = std::make_unique<CheckReport>(FileKind::Wh, QString::fromLocal8Bit(argv[1]), options, now);
    constexpr qint64 Interval = 50; // milliseconds
    qint64 due = Interval;
    const CheckOutcome outcome = report->run([&](const CheckPlace &) {
        if (clock.elapsed() >= due) {
            platform.yield();
            due = clock.elapsed() + Interval;
        }
        return true;
    });
    if (outcome.end != CheckEnd::Finished) {
        std::fputs("the file could not be checked\n", stderr);
        return 1;
    }
    form.report.setLines(std::make_shared<CheckedLines>(std::move(report)));
    const double checked = double(clock.nsecsElapsed()) / 1e6;
    painted.wait();
    press(view, Qt::Key_End, Qt::ControlModifier);
    painted.wait();
    const double shown = double(clock.nsecsElapsed()) / 1e6;
    std::printf("%.1f ms, of the processor %.1f; the check took %.1f; %lld lines, %lld errors\n", shown,
                static_cast<double>(std::clock() - processor) * 1e3 / CLOCKS_PER_SEC, checked,
                static_cast<long long>(form.report.lineCount()), static_cast<long long>(outcome.errors));
    return form.report.currentLine() == form.report.lineCount() - 1 ? 0 : 1;
}
