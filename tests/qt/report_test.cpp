// SPDX-License-Identifier: GPL-3.0-or-later
// Reports of any length: what is asked for, and the ways through them.
#include "tests/qt/report_fixture.h"

#include <QAccessible>
#include <QScrollBar>

namespace zrv::test {

TEST_F(Reports, OnlyWhatIsInViewIsAskedForAndOnce)
{
    EXPECT_GT(view().linesInView(), 5);
    EXPECT_LE(lines->asked, view().linesInView() + 1);
    view().viewport()->repaint();
    view().viewport()->repaint();
    EXPECT_LE(lines->asked, view().linesInView() + 1);
    lines->asked = 0;
    press(Qt::Key_End, Qt::ControlModifier);
    EXPECT_EQ(report.currentLine(), Billions - 1);
    EXPECT_EQ(view().topLine(), Billions - view().linesInView());
    EXPECT_LE(lines->asked, view().linesInView() + 1);
}

TEST_F(Reports, TheScrollBarReachesBothEndsOfMoreLinesThanItHasPlaces)
{
    QScrollBar &bar = *view().verticalScrollBar();
    bar.setValue(bar.maximum());
    EXPECT_EQ(view().topLine(), Billions - view().linesInView());
    bar.setValue(bar.maximum() / 2);
    EXPECT_NEAR(double(view().topLine()), double(Billions) / 2, 10);
    bar.setValue(0);
    EXPECT_EQ(view().topLine(), 0);
}

TEST_F(Reports, TheScrollBarsArrowsGoLineByLineWhereAPlaceIsManyLines)
{
    QScrollBar &bar = *view().verticalScrollBar();
    for (int step = 0; step < 7; ++step)
        bar.triggerAction(QAbstractSlider::SliderSingleStepAdd);
    EXPECT_EQ(view().topLine(), 7);
    bar.triggerAction(QAbstractSlider::SliderPageStepAdd);
    EXPECT_EQ(view().topLine(), 7 + view().linesInView());
    bar.triggerAction(QAbstractSlider::SliderSingleStepSub);
    EXPECT_EQ(view().topLine(), 6 + view().linesInView());
}

TEST_F(Reports, EveryLineOfSeventyMillionHasAPlaceOnTheBar)
{
    show(70'000'000);
    view().verticalScrollBar()->setValue(69'000'001);
    EXPECT_EQ(view().topLine(), 69'000'001);
    view().verticalScrollBar()->triggerAction(QAbstractSlider::SliderSingleStepAdd);
    EXPECT_EQ(view().topLine(), 69'000'002);
}

TEST_F(Reports, TheWheelMovesAFewLines)
{
    wheel(-120);
    EXPECT_EQ(view().topLine(), QApplication::wheelScrollLines());
    EXPECT_EQ(report.currentLine(), 0) << "only the view moves";
}

TEST_F(Reports, AWheelThatTurnsFinelyMovesAsFarInAll)
{
    for (int step = 0; step < 12; ++step)
        wheel(-50);
    EXPECT_EQ(view().topLine(), 5 * QApplication::wheelScrollLines());
}

TEST_F(Reports, TheWheelStopsAtTheEnds)
{
    show(100);
    wheel(120);
    EXPECT_EQ(view().topLine(), 0);
    wheel(-120 * 100);
    EXPECT_EQ(view().topLine(), 100 - view().linesInView());
}

TEST_F(Reports, TheWheelWithShiftTurnsPages)
{
    show(100);
    wheel(-120, Qt::ShiftModifier);
    EXPECT_EQ(view().topLine(), view().linesInView());
}

TEST_F(Reports, AnotherHeightOfTheWindowOrOfTheLettersIsAnotherPage)
{
    show(100);
    const qint64 before = view().linesInView();
    const auto expectFit = [this] {
        EXPECT_EQ(view().verticalScrollBar()->maximum(), 100 - view().linesInView());
        EXPECT_EQ(view().verticalScrollBar()->pageStep(), view().linesInView());
    };
    // Not the window's: a window manager has its own mind about that.
    view().setFixedHeight(view().height() / 2);
    QCoreApplication::processEvents();
    const qint64 low = view().linesInView();
    EXPECT_LT(low, before);
    expectFit();
    QFont font = view().font();
    font.setPointSizeF(font.pointSizeF() * 2);
    view().setFont(font);
    EXPECT_LT(view().linesInView(), low);
    expectFit();
}

TEST_F(Reports, KeysGoThroughTheLinesAndTheViewFollows)
{
    press(Qt::Key_Down);
    EXPECT_EQ(report.currentLine(), 1);
    EXPECT_EQ(view().topLine(), 0);
    press(Qt::Key_PageDown);
    EXPECT_EQ(report.currentLine(), 1 + view().linesInView());
    EXPECT_EQ(view().topLine(), 2);
    press(Qt::Key_Home, Qt::ControlModifier);
    EXPECT_EQ(report.currentLine(), 0);
    EXPECT_EQ(view().topLine(), 0);
    press(Qt::Key_F8);
    EXPECT_EQ(report.currentLine(), 1000);
}

TEST_F(Reports, ShiftMarksOnTheWayThatAKeyGoes)
{
    const qint64 page = view().linesInView();
    report.setCurrentLine(100);
    press(Qt::Key_PageDown, Qt::ShiftModifier);
    EXPECT_EQ(report.currentLine(), 100 + page);
    press(Qt::Key_PageUp, Qt::ShiftModifier);
    press(Qt::Key_Up, Qt::ShiftModifier);
    EXPECT_EQ(report.currentLine(), 99);
    press(Qt::Key_End, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(report.currentLine(), Billions - 1);
    EXPECT_EQ(report.anchorLine(), 100);
    press(Qt::Key_Home, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(report.currentLine(), 0);
    EXPECT_EQ(report.anchorLine(), 100);
}

TEST_F(Reports, LinesAreMarkedByShiftAndByMouseAndCopied)
{
    press(Qt::Key_Down, Qt::ShiftModifier);
    press(Qt::Key_Down, Qt::ShiftModifier);
    press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), u"خط 0\r\nخط 1\r\nخط 2\r\n"_s);
    mouse(QEvent::MouseButtonPress, 4);
    mouse(QEvent::MouseMove, 5);
    mouse(QEvent::MouseButtonRelease, 5);
    EXPECT_EQ(report.anchorLine(), 4);
    EXPECT_EQ(report.currentLine(), 5);
    mouse(QEvent::MouseButtonPress, 2, Qt::ShiftModifier);
    mouse(QEvent::MouseButtonRelease, 2);
    EXPECT_EQ(report.anchorLine(), 4);
    EXPECT_EQ(report.currentLine(), 2);
    chooseFromContextMenu(view(), u"copy"_s);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), u"خط 2\r\nخط 3\r\nخط 4\r\n"_s);
}

TEST_F(Reports, TheRightButtonLeavesWhatIsMarkedAndChoosesWhatIsNot)
{
    report.select(2, 4);
    mouse(QEvent::MouseButtonPress, 3, {}, Qt::RightButton);
    EXPECT_EQ(report.anchorLine(), 2);
    EXPECT_EQ(report.currentLine(), 4);
    mouse(QEvent::MouseButtonPress, 6, {}, Qt::RightButton);
    EXPECT_EQ(report.anchorLine(), 6);
    EXPECT_EQ(report.currentLine(), 6);
}

TEST_F(Reports, OnlyTheLeftButtonMarksOnItsWay)
{
    mouse(QEvent::MouseButtonPress, 2);
    mouse(QEvent::MouseButtonRelease, 2);
    mouse(QEvent::MouseMove, 5, {}, Qt::RightButton);
    EXPECT_EQ(report.currentLine(), 2);
}

TEST_F(Reports, AMouseHeldBelowTheViewMarksOnTillItIsReleased)
{
    const QPoint below = view().viewport()->mapToGlobal(QPoint(20, view().viewport()->height() + 5));
    mouse(QEvent::MouseButtonPress, 3);
    QCursor::setPos(below);
    mouse(QEvent::MouseMove, view().linesInView() + 2);
    EXPECT_TRUE(QTest::qWaitFor([this] { return view().topLine() > 2 || report.currentLine() < 3; }));
    EXPECT_EQ(report.anchorLine(), 3);
    EXPECT_EQ(view().topLine(), report.currentLine() - view().linesInView() + 1);
    mouse(QEvent::MouseButtonRelease, report.currentLine());
    const qint64 reached = report.currentLine();
    QTest::qWait(120);
    EXPECT_EQ(report.currentLine(), reached);
}

TEST_F(Reports, BehindTheLastLineThereIsNothingToChoose)
{
    QList<qint64> told;
    report.onLineDoubleClick = [&](qint64 line) { told += line; };
    show(3);
    mouse(QEvent::MouseButtonPress, 4);
    mouse(QEvent::MouseButtonDblClick, 4);
    EXPECT_EQ(report.currentLine(), 0);
    EXPECT_EQ(told, QList<qint64>());
}

TEST_F(Reports, TheMenuHasOnlyWhatLeavesTheTextAsItIs)
{
    const auto isOffered = [this](const QString &name) {
        QContextMenuEvent open(QContextMenuEvent::Keyboard, {}, view().mapToGlobal(QPoint(2, 2)));
        QApplication::sendEvent(&view(), &open);
        const auto *const action = view().findChild<QAction *>(name);
        const bool isIt = action && action->isEnabled();
        if (QWidget *const menu = QApplication::activePopupWidget())
            menu->close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return isIt;
    };
    EXPECT_TRUE(isOffered(u"copy"_s));
    for (const QString &name : {u"cut"_s, u"paste"_s, u"delete"_s})
        EXPECT_FALSE(isOffered(name)) << qPrintable(name);
    report.setText({});
    EXPECT_FALSE(isOffered(u"copy"_s));
}

TEST_F(Reports, AllThatIsTooMuchToCopyIsRefusedInABox)
{
    QGuiApplication::clipboard()->setText(u"before"_s);
    press(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(report.anchorLine(), 0);
    EXPECT_EQ(report.currentLine(), Billions - 1);
    EXPECT_EQ(view().topLine(), 0) << "marking all moves nothing";
    lines->asked = 0;
    press(Qt::Key_C, Qt::ControlModifier);
    ASSERT_EQ(shown.platform.boxes.size(), 1U);
    EXPECT_EQ(shown.platform.boxes[0].style, box::RefusalRtl);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), u"before"_s);
    EXPECT_LE(lines->asked, view().linesInView() + 1);

    show(100'000);
    chooseFromContextMenu(view(), u"selectAll"_s);
    press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text().count(u'\n'), 100'000);
}

TEST_F(Reports, ADoubleClickAndEnterTellTheScreenOfTheLine)
{
    QList<qint64> told;
    report.onLineDoubleClick = [&](qint64 line) { told += line; };
    mouse(QEvent::MouseButtonPress, 3);
    mouse(QEvent::MouseButtonRelease, 3);
    mouse(QEvent::MouseButtonDblClick, 3);
    mouse(QEvent::MouseButtonDblClick, 3, {}, Qt::RightButton);
    press(Qt::Key_Down);
    press(Qt::Key_Return, {}, u"\r"_s);
    EXPECT_EQ(told, (QList<qint64>{3, 4}));
}

TEST_F(Reports, CtrlFOpensAFieldBelowThatSeeksAndEscapeLeadsBack)
{
    QWidget *const bar = shown.window.findChild<QWidget *>(u"report_FindBar"_s);
    ASSERT_TRUE(bar);
    EXPECT_FALSE(bar->isVisible());
    press(Qt::Key_F, Qt::ControlModifier, u"\u0006"_s);
    EXPECT_TRUE(bar->isVisible());
    auto *const word = qobject_cast<QLineEdit *>(shown.window.focusWidget());
    ASSERT_TRUE(word);
    EXPECT_EQ(word->objectName(), u"report_Find"_s);
    EXPECT_GE(bar->geometry().top(), view().geometry().bottom());
    type(*word, u"خط 14"_s);
    pressKey(*word, Qt::Key_Return, u"\r"_s);
    EXPECT_EQ(report.currentLine(), 14);
    pressKey(*word, Qt::Key_F3);
    EXPECT_EQ(report.currentLine(), 140);
    pressKey(*word, Qt::Key_Escape, u"\u001B"_s);
    EXPECT_FALSE(bar->isVisible());
    EXPECT_EQ(shown.window.focusWidget(), &view());
}

TEST_F(Reports, AReportThatIsGoneShowsTheErrorsWords)
{
    lines->isGone = true;
    press(Qt::Key_End, Qt::ControlModifier);
    view().viewport()->repaint();
    EXPECT_EQ(report.text(), u"فايل تغيير کرده است"_s);
    EXPECT_EQ(view().topLine(), 0);
    EXPECT_EQ(view().accessibleDescription(), u"فايل تغيير کرده است"_s);
    EXPECT_EQ(form.failures, 0);
}

TEST_F(Reports, AScreenReaderHearsTheNameAndTheCurrentLine)
{
    EXPECT_EQ(view().accessibleName(), u"گزارش"_s);
    press(Qt::Key_Down);
    EXPECT_EQ(view().accessibleDescription(), u"خط 1"_s);
    press(Qt::Key_End, Qt::ControlModifier);
    EXPECT_EQ(view().accessibleDescription(), u"خط "_s + QString::number(Billions - 1));
    EXPECT_TRUE(QAccessible::queryAccessibleInterface(&view())->state().focusable);
}

TEST_F(Reports, TheTabKeyLeavesAReport)
{
    press(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_TRUE(form.before.hasFocus());
}

} // namespace zrv::test
