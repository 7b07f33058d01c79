// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// A report of any length in a real window.

#include "qt/report_view.h"
#include "tests/qt/window_fixture.h"

namespace zrv::test {

/// Made when asked for, and counted; every thousandth line tells an error.
class CountingLines : public ReportLines {
public:
    explicit CountingLines(qint64 count)
        : m_count(count)
    {
    }
    [[nodiscard]] qint64 lineCount() override { return m_count; }
    [[nodiscard]] qint64 length() override { return 14 * m_count; }
    [[nodiscard]] QString lines(qint64 first, qint64 count) override
    {
        if (isGone)
            throw RunTimeError(error::DeviceIo, u"فايل تغيير کرده است"_s);
        QStringList made;
        for (qint64 line = first; line < std::min(m_count, first + count); ++line)
            made += (line == longLine ? QString(30'000, u'ب') : u"خط "_s) + QString::number(line);
        asked += made.size();
        return made.join(u"\r\n"_s);
    }
    [[nodiscard]] qint64 nextError(qint64 line) override
    {
        const qint64 next = (line / 1000 + (line < 0 ? 0 : 1)) * 1000;
        return next < m_count ? next : -1;
    }

    qint64 asked = 0;
    qint64 longLine = -1;
    bool isGone = false;

private:
    qint64 m_count;
};

class ReportForm : public TestForm {
public:
    TextBox before{*this, u"before"_s};
    ReportBox report{*this, u"report"_s, {.spokenName = u"گزارش"_s}};
};

inline constexpr qint64 Billions = 3'000'000'000;

class Reports : public testing::Test {
protected:
    Reports()
    {
        shown.window.resize(600, 400);
        show(Billions);
        form.userFocus(report);
        QCoreApplication::processEvents();
    }
    void show(qint64 count)
    {
        lines = std::make_shared<CountingLines>(count);
        report.setLines(lines);
        QCoreApplication::processEvents();
    }
    void press(int key, Qt::KeyboardModifiers held = {}, const QString &text = {})
    {
        pressKey(view(), key, text, held);
        QCoreApplication::processEvents();
    }
    void mouse(QEvent::Type type, qint64 line, Qt::KeyboardModifiers held = {}, Qt::MouseButton button = Qt::LeftButton)
    {
        const QPointF place = QRectF(view().lineRect(line)).center();
        const bool isRelease = type == QEvent::MouseButtonRelease;
        QMouseEvent event(type, place, view().viewport()->mapToGlobal(place),
                          type == QEvent::MouseMove ? Qt::NoButton : button, isRelease ? Qt::NoButton : button, held);
        QApplication::sendEvent(view().viewport(), &event);
    }
    void wheel(int turned, Qt::KeyboardModifiers held = {})
    {
        QWheelEvent event({5, 5}, view().mapToGlobal(QPointF(5, 5)), {}, {0, turned}, Qt::NoButton, held,
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(view().viewport(), &event);
    }
    ReportView &view() { return static_cast<ReportView &>(*shown.window.inputFor(report)); }
    QRgb colorAt(qint64 line)
    {
        const QImage picture = view().viewport()->grab().toImage().convertToFormat(QImage::Format_RGB32);
        const QRect place = view().lineRect(line);
        return picture.pixel(QPoint(3, place.center().y()) * picture.devicePixelRatio());
    }

    std::shared_ptr<CountingLines> lines;
    Shown<ReportForm> shown;
    ReportForm &form = shown.form;
    ReportBox &report = form.report;
};

} // namespace zrv::test
