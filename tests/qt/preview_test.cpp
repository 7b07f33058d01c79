// SPDX-License-Identifier: GPL-3.0-or-later
// The preview's tools, keys, search and pages.
#include "core/store/store_error.h"
#include "qt/preview/page_view.h"
#include "qt/preview/preview_window.h"
#include "tests/qt/window_fixture.h"

#include <QFile>
#include <QFileDialog>
#include <QImage>
#include <QPrintDialog>
#include <QPrinter>
#include <QProcess>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTimer>
#include <QToolBar>

namespace zrv::test {

namespace {

/// Pages with their number in the middle, and a word that only one of them has.
class NumberedPages : public Report {
public:
    explicit NumberedPages(int count)
        : Report(u"rptNumbers"_s, u"  پيش  نمايش "_s, A4Landscape)
        , m_count(count)
    {
    }
    [[nodiscard]] int pageCount() const override { return m_count; }
    [[nodiscard]] report::Page page(int number) const override
    {
        made.push_back(number);
        if (number == failing)
            throw RunTimeError(store_error::General, u"gone"_s);
        report::Page page;
        page.items.push_back(report::Text{.box = {100, 100, 50, 10}, .text = QString::number(number + 1)});
        if (number == m_count - 2)
            page.items.push_back(report::Text{.box = {10, 190, 60, 8}, .text = u"كريمي"_s});
        return page;
    }
    mutable std::vector<int> made;
    int failing = -1;

private:
    int m_count;
};

class Preview : public testing::Test {
protected:
    Preview() { open(); }

    void open()
    {
        window.resize(900, 600);
        window.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
        window.view().setFocus();
    }
    void press(int key, Qt::KeyboardModifiers modifiers = {}) { pressKey(window.view(), key, {}, modifiers); }
    void find(const QString &text)
    {
        window.sought().setText(text);
        pressKey(window.sought(), Qt::Key_Return);
    }

    QuietPlatform platform;
    NumberedPages report{50};
    PreviewWindow window{report, platform, nullptr};
};

} // namespace

TEST_F(Preview, ItsToolsBearTheirNamesAndNumbers)
{
    const std::vector<std::pair<int, QString>> expected{
        {2, u" چاپ "_s},       {6, u"جستجو"_s},     {8, u"تک صفحه"_s},   {9, u"چند صفحه"_s},  {11, u"کوچک نمايي"_s},
        {12, u"بزرگ نمايي"_s}, {15, u"صفحه قبل"_s}, {16, u"صفحه بعد"_s}, {110, u"F9 خروج"_s},
    };
    for (const auto &[number, caption] : expected) {
        QAction *const action = toolAction(window.toolBar(), PreviewTool(number));
        ASSERT_TRUE(action) << number;
        EXPECT_EQ(action->text(), caption);
        EXPECT_EQ(action->toolTip(), caption);
        EXPECT_TRUE(window.toolBar().widgetForAction(action)->focusPolicy() & Qt::TabFocus) << number;
    }
    const QList<QAction *> all = window.toolBar().actions();
    EXPECT_EQ(all.constLast()->data(), 110);
    EXPECT_TRUE(all[all.size() - 2]->isSeparator());
    EXPECT_EQ(window.windowTitle(), u"  پيش  نمايش "_s);
}

TEST_F(Preview, EveryToolIsSeenOnTheLeastDisplay)
{
    window.resize(1024, 700);
    QCoreApplication::processEvents();
    for (QAction *action : window.toolBar().actions())
        EXPECT_TRUE(window.toolBar().widgetForAction(action)->isVisible()) << action->text().toStdString();
}

TEST_F(Preview, F9AndItsToolLeave)
{
    press(Qt::Key_F9);
    EXPECT_FALSE(window.isVisible());
    open();
    pressKey(window.sought(), Qt::Key_F9);
    EXPECT_FALSE(window.isVisible());
    open();
    toolAction(window.toolBar(), PreviewTool::Leave)->trigger();
    EXPECT_FALSE(window.isVisible());
}

TEST_F(Preview, ToolsAndKeysTurnThePages)
{
    EXPECT_EQ(window.pageText(), u"صفحه 1 از 50");
    press(Qt::Key_PageDown);
    EXPECT_EQ(window.view().currentPage(), 1);
    EXPECT_EQ(window.pageText(), u"صفحه 2 از 50");
    press(Qt::Key_End);
    EXPECT_EQ(window.view().currentPage(), 49);
    press(Qt::Key_PageDown);
    EXPECT_EQ(window.view().currentPage(), 49);
    toolAction(window.toolBar(), PreviewTool::PreviousPage)->trigger();
    EXPECT_EQ(window.view().currentPage(), 48);
    toolAction(window.toolBar(), PreviewTool::FirstPage)->trigger();
    EXPECT_EQ(window.view().currentPage(), 0);
    press(Qt::Key_PageUp);
    EXPECT_EQ(window.view().currentPage(), 0);
    toolAction(window.toolBar(), PreviewTool::LastPage)->trigger();
    EXPECT_EQ(window.view().currentPage(), 49);
}

TEST_F(Preview, ScrollingTellsWhichPageIsRead)
{
    window.view().verticalScrollBar()->setValue(window.view().verticalScrollBar()->maximum());
    EXPECT_EQ(window.view().currentPage(), 49);
    window.view().verticalScrollBar()->setValue(0);
    EXPECT_EQ(window.pageText(), u"صفحه 1 از 50");
}

TEST_F(Preview, SearchMarksTheTextAndBringsItIntoView)
{
    find(u"کریمی"_s);
    ASSERT_TRUE(window.view().marked());
    EXPECT_EQ(*window.view().marked(), (report::Place{48, 1}));
    EXPECT_EQ(window.view().currentPage(), 48);
    const QRect place = window.view().placeOf({48, 1});
    EXPECT_TRUE(window.view().viewport()->rect().contains(place));
    const QColor there = window.view().viewport()->grab().toImage().pixelColor(place.left() + 2, place.top() + 2);
    EXPECT_LT(there.blue(), 200) << "the mark is yellow";
    EXPECT_GT(there.red(), 230);
}

TEST_F(Preview, SearchGoesOnWithF3AndTellsWhenThereIsNothing)
{
    find(u"1"_s);
    EXPECT_EQ(*window.view().marked(), (report::Place{0, 0}));
    press(Qt::Key_F3);
    EXPECT_EQ(*window.view().marked(), (report::Place{9, 0}));
    EXPECT_EQ(window.searchText(), QString());
    find(u"nowhere"_s);
    EXPECT_FALSE(window.view().marked());
    EXPECT_FALSE(window.searchText().isEmpty());
    find(u"50"_s);
    EXPECT_EQ(window.searchText(), QString());
}

TEST_F(Preview, SearchWithoutATextAsksForOne)
{
    press(Qt::Key_F3);
    EXPECT_EQ(window.focusWidget(), &window.sought());
    EXPECT_FALSE(window.view().marked());
}

TEST_F(Preview, KeysThatWriteBelongToTheSearchFieldWhileItHasTheFocus)
{
    press(Qt::Key_End);
    window.sought().setFocus();
    pressKey(window.sought(), Qt::Key_Home);
    type(window.sought(), u"+-"_s);
    EXPECT_EQ(window.sought().text(), u"+-"_s);
    EXPECT_EQ(window.view().currentPage(), 49);
}

TEST_F(Preview, SeveralPagesStandSideBySideFromTheRight)
{
    toolAction(window.toolBar(), PreviewTool::SeveralPages)->trigger();
    const QRect first = window.view().placeOf({0, 0});
    const QRect second = window.view().placeOf({1, 0});
    EXPECT_LT(second.right(), first.left());
    EXPECT_EQ(second.top(), first.top());
    EXPECT_GT(window.view().placeOf({3, 0}).top(), first.top());
    toolAction(window.toolBar(), PreviewTool::OnePage)->trigger();
    EXPECT_GT(window.view().placeOf({1, 0}).top(), window.view().viewport()->height() / 2);
}

TEST_F(Preview, ZoomGoesBothWaysAndHasItsEnds)
{
    const int width = window.view().placeOf({0, 0}).width();
    press(Qt::Key_Plus);
    const int larger = window.view().placeOf({0, 0}).width();
    EXPECT_GT(larger, width);
    toolAction(window.toolBar(), PreviewTool::ZoomOut)->trigger();
    EXPECT_NEAR(window.view().placeOf({0, 0}).width(), width, 2);
    for (int step = 0; step < 30; ++step)
        press(Qt::Key_Plus);
    EXPECT_LE(window.view().placeOf({0, 0}).width(), 50 * 8 + 2);
    for (int step = 0; step < 60; ++step)
        press(Qt::Key_Minus);
    EXPECT_GE(window.view().placeOf({0, 0}).width(), 50 / 2);
}

TEST_F(Preview, APageWiderThanTheViewIsSeenFromItsRightEdge)
{
    for (int step = 0; step < 5; ++step)
        press(Qt::Key_Plus);
    QScrollBar &bar = *window.view().horizontalScrollBar();
    ASSERT_GT(bar.maximum(), 0);
    const int atRight = window.view().placeOf({0, 0}).left();
    bar.setValue(bar.maximum());
    EXPECT_EQ(window.view().placeOf({0, 0}).left(), atRight + bar.maximum());
    find(u"50"_s);
    EXPECT_TRUE(window.view().viewport()->rect().contains(window.view().placeOf({49, 0})));
}

TEST_F(Preview, OnlyThePagesThatAreSeenAreMade)
{
    window.view().viewport()->grab();
    EXPECT_LE(report.made.size(), 3u);
    report.made.clear();
    press(Qt::Key_End);
    window.view().viewport()->grab();
    EXPECT_LE(report.made.size(), 3u);
    EXPECT_TRUE(std::ranges::all_of(report.made, [](int page) { return page >= 47; }));
}

TEST_F(Preview, ThePageThatIsReadIsMadeFirstAndItsNeighboursFollow)
{
    window.view().setFit(PageView::Fit::SeveralPages);
    window.view().showPage(25);
    report.made.clear();
    window.view().zoom(1.01);
    window.view().setFit(PageView::Fit::SeveralPages);
    window.view().viewport()->grab();
    EXPECT_EQ(report.made, std::vector<int>{25});
    EXPECT_TRUE(QTest::qWaitFor([this] { return report.made.size() >= 6; }));
}

TEST_F(Preview, APageThatCannotBeMadeIsToldAndEndsThePreview)
{
    report.failing = 49;
    press(Qt::Key_End);
    window.view().viewport()->grab();
    EXPECT_TRUE(QTest::qWaitFor([this] { return !platform.boxes.empty(); }));
    ASSERT_EQ(platform.boxes.size(), 1u);
    EXPECT_TRUE(platform.boxes[0].text.contains(u"gone"));
    EXPECT_FALSE(window.isVisible());
}

TEST_F(Preview, PdfIsSavedWithNoPrinterAtHand)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"ليست.pdf"_s);
    ASSERT_TRUE(window.saveAs(path));
    QProcess reader;
    reader.start(u"pdftotext"_s, {path, u"-"_s});
    ASSERT_TRUE(reader.waitForFinished());
    const QString text = QString::fromUtf8(reader.readAllStandardOutput());
    EXPECT_EQ(text.count(u'\f'), 50);
    EXPECT_TRUE(text.contains(u"37"));
    EXPECT_TRUE(platform.boxes.empty());
}

TEST_F(Preview, ItsToolAsksWhereToSaveThePdf)
{
    const QTemporaryDir folder;
    QTimer::singleShot(0, qApp, [&] {
        auto *const dialog = window.findChild<QFileDialog *>(u"fileDialog"_s);
        ASSERT_TRUE(dialog);
        EXPECT_TRUE(dialog->selectedFiles().constFirst().endsWith(u"/rptNumbers.pdf"));
        dialog->selectFile(folder.filePath(u"chosen"_s));
        QMetaObject::invokeMethod(dialog, "accept");
    });
    toolAction(window.toolBar(), PreviewTool::SavePdf)->trigger();
    EXPECT_TRUE(QFile::exists(folder.filePath(u"chosen.pdf"_s)));
    EXPECT_TRUE(platform.boxes.empty());
}

TEST_F(Preview, PrintingAsksFirstAndCanBeCalledOff)
{
    bool asked = false;
    report.made.clear();
    QTimer::singleShot(0, qApp, [&] {
        auto *const dialog = window.findChild<QPrintDialog *>();
        ASSERT_TRUE(dialog);
        asked = true;
        EXPECT_EQ(dialog->maxPage(), 50);
        dialog->reject();
    });
    press(Qt::Key_P, Qt::ControlModifier);
    EXPECT_TRUE(asked);
    EXPECT_TRUE(report.made.empty());
    EXPECT_TRUE(platform.boxes.empty());
}

TEST_F(Preview, PrintingToAFileMakesTheChosenPages)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"out.pdf"_s);
    QTimer::singleShot(0, qApp, [&] {
        auto *const dialog = window.findChild<QPrintDialog *>();
        ASSERT_TRUE(dialog);
        dialog->printer()->setOutputFileName(path);
        dialog->printer()->setPrintRange(QPrinter::PageRange);
        dialog->printer()->setFromTo(2, 4);
        dialog->done(QDialog::Accepted);
    });
    report.made.clear();
    toolAction(window.toolBar(), PreviewTool::Print)->trigger();
    ASSERT_TRUE(QFile::exists(path));
    EXPECT_EQ(report.made, (std::vector<int>{1, 2, 3}));
    QProcess reader;
    reader.start(u"pdfinfo"_s, {path});
    ASSERT_TRUE(reader.waitForFinished());
    const QString facts = QString::fromUtf8(reader.readAllStandardOutput());
    EXPECT_TRUE(facts.contains(QRegularExpression(u"Pages: +3\\b"_s))) << facts.toStdString();
    EXPECT_TRUE(facts.contains(QRegularExpression(u"Page size: +84[12][.0-9]* x 59[56]"_s))) << facts.toStdString();
}

TEST_F(Preview, APdfThatCannotBeWrittenIsTold)
{
    EXPECT_FALSE(window.saveAs(u"/no/such/folder/x.pdf"_s));
    ASSERT_EQ(platform.boxes.size(), 1u);
    EXPECT_EQ(platform.boxes[0].title, u" اخطار  "_s);
}

TEST_F(Preview, ThePlatformShowsItUntilItIsLeft)
{
    window.close();
    bool shown = false;
    QTimer::singleShot(0, qApp, [&] {
        ASSERT_TRUE(platform.previewWindow());
        shown = platform.previewWindow()->isVisible();
        pressKey(*platform.previewWindow(), Qt::Key_F9);
    });
    platform.preview(report);
    EXPECT_TRUE(shown);
    EXPECT_EQ(platform.previewWindow(), nullptr);
}

} // namespace zrv::test
