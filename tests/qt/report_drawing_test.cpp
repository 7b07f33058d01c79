// SPDX-License-Identifier: GPL-3.0-or-later
// Reports as they are drawn: their grounds and rings, and what of them is in view.
#include "tests/qt/report_fixture.h"

#include <QScrollBar>

namespace zrv::test {

TEST_F(Reports, LinesThatTellAnErrorAndMarkedOnesHaveTheirOwnGround)
{
    report.setCurrentLine(2);
    QCoreApplication::processEvents();
    const QRgb plain = colorAt(1);
    EXPECT_NE(colorAt(0), plain) << "line 0 tells an error";
    EXPECT_NE(colorAt(2), plain);
    EXPECT_NE(colorAt(2), colorAt(0));
    EXPECT_EQ(colorAt(3), plain);
    report.select(3, 1);
    EXPECT_EQ(colorAt(2), colorAt(3)) << "marked from below";
    EXPECT_NE(colorAt(2), plain);
}

TEST_F(Reports, OfMarkedLinesTheCurrentOneHasARing)
{
    report.select(2, 3);
    const QImage picture = view().viewport()->grab().toImage();
    const auto leftPart = [&](qint64 line) {
        const QRect place = view().lineRect(line);
        const double scale = picture.devicePixelRatio();
        return picture.copy(QRect(0, qRound(place.top() * scale), qRound(20 * scale), qRound(place.height() * scale)));
    };
    EXPECT_NE(leftPart(3), leftPart(2));
    EXPECT_EQ(leftPart(4), leftPart(5));
}

TEST_F(Reports, TheScreensColoursAreTheViews)
{
    report.setBackColor(color::RequiredEmpty);
    show(5);
    EXPECT_EQ(colorAt(3) & 0xFFFFFF, QRgb(color::RequiredEmpty) & 0xFFFFFF);
}

TEST_F(Reports, AReportThatLosesTheFocusIsDrawnAnew)
{
    class Paints : public QObject {
    public:
        bool eventFilter(QObject *watched, QEvent *event) override
        {
            count += event->type() == QEvent::Paint ? 1 : 0;
            return QObject::eventFilter(watched, event);
        }
        int count = 0;
    } paints;
    QCoreApplication::processEvents();
    view().viewport()->installEventFilter(&paints);
    form.userFocus(form.before);
    QCoreApplication::processEvents();
    EXPECT_GT(paints.count, 0);
}

TEST_F(Reports, ALongLineScrollsSidewaysFromTheRight)
{
    show(5);
    EXPECT_EQ(view().horizontalScrollBar()->maximum(), 0);
    lines = std::make_shared<CountingLines>(5);
    lines->longLine = 4;
    report.setLines(lines);
    QCoreApplication::processEvents();
    QScrollBar &bar = *view().horizontalScrollBar();
    EXPECT_GT(bar.maximum(), 600);
    EXPECT_LT(bar.maximum(), view().fontMetrics().horizontalAdvance(QString(10'000, u'ب')))
        << "the rest is only copied";
    press(Qt::Key_Left);
    EXPECT_GT(bar.value(), 0);
    press(Qt::Key_Right);
    EXPECT_EQ(bar.value(), 0);
    press(Qt::Key_Down);
    const QImage begin = view().viewport()->grab().toImage();
    press(Qt::Key_End);
    EXPECT_EQ(bar.value(), bar.maximum());
    EXPECT_NE(view().viewport()->grab().toImage(), begin);
    press(Qt::Key_Home);
    EXPECT_EQ(bar.value(), 0);
    EXPECT_EQ(view().viewport()->grab().toImage(), begin);
    EXPECT_EQ(report.currentLine(), 1) << "only the view moves";
    report.setCurrentLine(4);
    EXPECT_LT(view().accessibleDescription().size(), 10'000);
    show(5);
    EXPECT_EQ(bar.maximum(), 0) << "the long line is gone";
}

TEST_F(Reports, ACurrentLineInViewStaysWholeThereWhenTheViewGetsLower)
{
    const auto isSeen = [this] { return view().viewport()->rect().contains(view().lineRect(report.currentLine())); };
    lines = std::make_shared<CountingLines>(100);
    lines->longLine = 50;
    report.setLines(lines);
    report.setCurrentLine(50);
    QCoreApplication::processEvents();
    QTRY_VERIFY(view().horizontalScrollBar()->isVisible());
    EXPECT_TRUE(isSeen()) << "the bar for the long line came when that line was in view";
    shown.window.resize(600, 300);
    QCoreApplication::processEvents();
    EXPECT_TRUE(isSeen());
    QFont larger = view().font();
    larger.setPointSizeF(2 * larger.pointSizeF());
    view().setFont(larger);
    QCoreApplication::processEvents();
    EXPECT_TRUE(isSeen());
    view().verticalScrollBar()->setValue(0);
    shown.window.resize(600, 250);
    QCoreApplication::processEvents();
    EXPECT_EQ(view().topLine(), 0) << "one that the user scrolled away from stays away";
}

TEST_F(Reports, AShortReportBeginsAtTheRight)
{
    show(1);
    report.setText(u"متن"_s);
    form.userFocus(form.before);
    QCoreApplication::processEvents();
    const QImage picture = view().viewport()->grab().toImage();
    const QRgb ground = picture.pixel(3, 3);
    int first = picture.width();
    for (int x = 0; x < picture.width(); ++x)
        for (int y = 2; y < view().lineRect(0).height() - 2; ++y)
            if (picture.pixel(x, y) != ground)
                first = std::min(first, x);
    EXPECT_GT(first, picture.width() / 2);
    EXPECT_LT(first, picture.width());
}

} // namespace zrv::test
