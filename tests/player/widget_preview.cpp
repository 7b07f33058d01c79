// SPDX-License-Identifier: GPL-3.0-or-later
// The real preview: shown, compared with the report, and left by its key.
#include "qt/preview/preview_window.h"
#include "qt/preview/report_pdf.h"
#include "tests/player/player.h"
#include "tests/player/widget_app.h"
#include "tests/player/widget_stage.h"

#include <QApplication>
#include <QKeyEvent>
#include <QSaveFile>
#include <QTimer>

namespace zrv::player {

using namespace Qt::Literals::StringLiterals;

void WindowPlatform::showReport(const Report &report)
{
    QString wrong = u"it never came up"_s;
    QTimer untilShown;
    QObject::connect(&untilShown, &QTimer::timeout, &untilShown, [&] {
        PreviewWindow *const window = previewWindow();
        if (!window || !window->isVisible())
            return;
        untilShown.stop();
        wrong.clear();
        if (window->windowTitle() != report.title())
            wrong = u"its title is "_s + quotedWord(window->windowTitle());
        else if (!window->pageText().endsWith(u' ' + QString::number(report.pageCount())))
            wrong = u"it shows "_s + quotedWord(window->pageText());
        // Painted once, as it is for a user.
        lastPreview = window->grab();
        QKeyEvent leave(QEvent::KeyPress, Qt::Key_F9, Qt::NoModifier);
        QCoreApplication::sendEvent(window->focusWidget() ? window->focusWidget() : window, &leave);
        if (window->isVisible()) {
            wrong = u"F9 does not leave it"_s;
            window->close();
        }
    });
    untilShown.start(0);
    QtPlatform::preview(report);
    if (!wrong.isEmpty())
        failLine(u"the preview of "_s + report.name() + u" is not shown so: "_s + wrong);
}

bool writePdfFile(const Report &report, const QString &path)
{
    QSaveFile file(path);
    return file.open(QIODevice::WriteOnly) && writePdf(report, file) && file.commit();
}

bool WidgetStage::picturePrint(const QString &path)
{
    return m_platform.lastPreview.save(path, "PNG");
}

bool WidgetStage::savePdf(const Report &report, const QString &path)
{
    return writePdfFile(report, path);
}

} // namespace zrv::player
