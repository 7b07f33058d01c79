// SPDX-License-Identifier: GPL-3.0-or-later
// Combo boxes, lists, grids and tabs.
#include "qt/look.h"
#include "tests/qt/window_fixture.h"

#include <QComboBox>
#include <QHeaderView>
#include <QListView>
#include <QScrollBar>
#include <QTabWidget>
#include <QTableView>
#include <QToolTip>

namespace zrv::test {

namespace {

/// Counts the cells that are really asked for.
class CountingRows : public RowSource {
public:
    explicit CountingRows(int count)
        : m_count(count)
    {
    }
    [[nodiscard]] int rowCount() const override { return m_count; }
    [[nodiscard]] QString cell(int row, int column) const override
    {
        ++asked;
        return QString::number(row * 10 + column);
    }
    mutable int asked = 0;

private:
    int m_count;
};

std::vector<GridColumn> manyColumns()
{
    std::vector<GridColumn> columns;
    for (int column = 0; column < 30; ++column)
        columns.push_back({QString::number(column), QString(12, u'ع') + QString::number(column)});
    return columns;
}

class ListForm : public TestForm {
public:
    DataCombo combo{*this, u"combo"_s};
    ListBox list{*this, u"list"_s, {.checkBoxes = true}};
    Grid grid{*this, u"grid"_s};
    Tabs tabs{*this, u"tabs"_s, {u"one"_s, u"two"_s}};
    Frame pageOne{tabs, u"pageOne"_s};
    TextBox onOne{pageOne, u"onOne"_s};
    Frame pageTwo{tabs, u"pageTwo"_s};
    TextBox onTwo{pageTwo, u"onTwo"_s};
    Grid gridOnTwo{pageTwo, u"gridOnTwo"_s};

    ListForm()
    {
        combo.setItems({{u"فروردين"_s, u"01"_s}, {u"ارديبهشت"_s, u"02"_s}, {u"خرداد"_s, u"03"_s}});
        list.setItems({{u"first"_s, u"1"_s}, {u"second"_s, u"2"_s}});
        grid.setColumns({{u"code"_s, u"كد"_s, {}, true}, {u"name"_s, u"نام"_s}, {u"id"_s, u"id"_s, {}, false, false}});
    }
};

} // namespace

class Lists : public testing::Test {
protected:
    Shown<ListForm> shown;
    ListForm &form = shown.form;
    QTableView &table() { return static_cast<QTableView &>(*shown.window.widgetFor(form.grid)); }
};

TEST_F(Lists, TypingInAComboCompletesFromItsRowsWithTheRestMarked)
{
    QLineEdit &line = shown.line(form.combo);
    type(line, u"خ"_s);
    EXPECT_EQ(line.text(), u"خرداد"_s);
    EXPECT_EQ(line.selectedText(), u"رداد"_s);
    EXPECT_EQ(form.combo.boundText(), u"03"_s);
    type(line, u"\u06CC"_s);
    EXPECT_EQ(line.text(), u"خ\u064A"_s) << "no row begins so; the letters stay as typed";
    EXPECT_EQ(form.combo.boundText(), u""_s);
}

TEST_F(Lists, AnOpenListIsAsWideAsItsWidestRow)
{
    const QString widest = u"کارکنان مشمول معافيت مناطق محروم و کمتر توسعه يافته"_s;
    form.combo.setItems({{u"فروردين"_s, u"01"_s}, {widest, u"02"_s}});
    auto &box = static_cast<QComboBox &>(*shown.window.widgetFor(form.combo));
    const QAbstractItemView &list = *box.view();
    ASSERT_LT(box.width(), list.fontMetrics().horizontalAdvance(widest));
    pressKey(shown.line(form.combo), Qt::Key_F4);
    ASSERT_TRUE(list.isVisible());
    EXPECT_GE(list.viewport()->width(), list.sizeHintForColumn(0));
    box.hidePopup();
}

TEST_F(Lists, F4AndAltDownOpenTheListAndAPickIsTheRowsChoice)
{
    auto &box = static_cast<QComboBox &>(*shown.window.widgetFor(form.combo));
    for (const auto &[key, modifiers] : {std::pair(Qt::Key_F4, Qt::KeyboardModifiers()),
                                         std::pair(Qt::Key_Down, Qt::KeyboardModifiers(Qt::AltModifier))}) {
        form.combo.setText(u"خ؟"_s);
        pressKey(shown.input(form.combo), key, {}, modifiers);
        ASSERT_TRUE(box.view()->isVisible());
        EXPECT_EQ(form.combo.text(), u"خ؟"_s) << "opening the list changes nothing";
        int clicks = 0;
        form.combo.onClick = [&] { ++clicks; };
        pressKey(*box.view(), Qt::Key_Down);
        pressKey(*box.view(), Qt::Key_Return);
        EXPECT_FALSE(box.view()->isVisible());
        EXPECT_EQ(form.combo.boundText(), u"02"_s);
        EXPECT_EQ(shown.line(form.combo).text(), u"ارديبهشت"_s);
        EXPECT_EQ(clicks, 1);
    }
}

TEST_F(Lists, TheRingOfTheFocusGoesRoundACombosWholeBox)
{
    look::setUp(*qApp);
    QWidget &box = *shown.line(shown.form.combo).parentWidget();
    const auto edge = [&box] { return box.grab().toImage().pixelColor(box.width() / 2, 1); };
    const QColor ring = box.palette().color(QPalette::Highlight);
    shown.form.combo.setFocus();
    EXPECT_EQ(edge(), ring);
    shown.form.grid.setFocus();
    EXPECT_NE(edge(), ring);
}

TEST_F(Lists, ALongTextOfAComboThatIsLeftShowsHowItBegins)
{
    shown.form.combo.setItems({{QString(100, u'\u0628'), u"01"_s}});
    QLineEdit &line = shown.line(shown.form.combo);
    shown.form.combo.setFocus();
    pressKey(line, Qt::Key_Down);
    EXPECT_EQ(line.text().size(), 100);
    pressKey(line, Qt::Key_End);
    EXPECT_EQ(line.cursorPosition(), 100);
    shown.form.grid.setFocus();
    EXPECT_EQ(line.cursorPosition(), 0);
    EXPECT_EQ(shown.form.combo.selStart(), 100) << "what the form knows of the text stays";
    shown.form.combo.setText(QString(90, u'\u0628'));
    EXPECT_EQ(line.cursorPosition(), 0) << "set by the program, it begins there, too";
}

TEST_F(Lists, ALongTextOfAComboThatIsLeftEndsInDotsAndIsToldInFull)
{
    // Of tall letters, that nothing but dots stands low at the end is seen above them.
    const QString tall(100, u'\u0627');
    shown.form.combo.setItems({{tall, u"01"_s}, {u"ا"_s, u"02"_s}});
    shown.form.combo.setBoundText(u"01"_s);
    QLineEdit &line = shown.line(shown.form.combo);
    const auto endsHigh = [&line] {
        const QImage drawn = line.grab().toImage();
        const QRgb ground = drawn.pixel(drawn.width() / 2, 3);
        const int dots = line.fontMetrics().horizontalAdvance(u'…');
        for (int x = 2; x < 2 + dots; ++x)
            for (int y = 3; y < drawn.height() / 2; ++y)
                if (drawn.pixel(x, y) != ground)
                    return true;
        return false;
    };
    const auto told = [&line] {
        QHelpEvent help(QEvent::ToolTip, {5, 5}, line.mapToGlobal(QPoint(5, 5)));
        QApplication::sendEvent(&line, &help);
        const QString text = QToolTip::isVisible() ? QToolTip::text() : QString();
        QToolTip::hideText();
        while (QToolTip::isVisible())
            QTest::qWait(10);
        return text;
    };
    shown.form.combo.setFocus();
    EXPECT_TRUE(endsHigh()) << "who types sees all letters that there is room for";
    EXPECT_EQ(told(), QString());
    shown.form.grid.setFocus();
    EXPECT_FALSE(endsHigh());
    EXPECT_EQ(told(), tall);
    shown.form.combo.setToolTip(tall);
    EXPECT_EQ(told(), tall) << "once";
    shown.form.combo.setToolTip(u"شرح"_s);
    EXPECT_EQ(told(), tall + u"\nشرح"_s);
    shown.form.combo.setToolTip({});
    shown.form.combo.setBoundText(u"02"_s);
    EXPECT_EQ(told(), QString()) << "a text that is seen whole";
}

TEST_F(Lists, AWheelOverAClosedComboChangesNothing)
{
    form.combo.setBoundText(u"02"_s);
    QWidget &box = *shown.window.widgetFor(form.combo);
    QWheelEvent wheel({5, 5}, box.mapToGlobal(QPointF(5, 5)), {}, {0, -120}, Qt::NoButton, {}, Qt::NoScrollPhase,
                      false);
    QApplication::sendEvent(&box, &wheel);
    EXPECT_EQ(form.combo.boundText(), u"02"_s);
}

TEST_F(Lists, NewRowsLeaveAComboItsText)
{
    form.combo.setText(u"تير"_s);
    form.combo.setItems({{u"تير"_s, u"04"_s}});
    EXPECT_EQ(shown.line(form.combo).text(), u"تير"_s);
    EXPECT_EQ(form.combo.boundText(), u"04"_s);
}

TEST_F(Lists, SpaceTicksTheCurrentRowOfAListWithCheckBoxes)
{
    form.userFocus(form.list);
    pressKey(shown.input(form.list), Qt::Key_Down);
    EXPECT_EQ(form.list.listIndex(), 0);
    pressKey(shown.input(form.list), Qt::Key_Space, u" "_s);
    EXPECT_TRUE(form.list.items()[0].checked);
    const auto &view = static_cast<QListView &>(*shown.window.widgetFor(form.list));
    EXPECT_EQ(view.model()->index(0, 0).data(Qt::CheckStateRole).toInt(), int(Qt::Checked));
}

TEST_F(Lists, AListThatGrowsShowsItsNewRows)
{
    const auto &view = static_cast<QListView &>(*shown.window.widgetFor(form.list));
    form.list.addItem({u"third"_s, u"3"_s});
    ASSERT_EQ(view.model()->rowCount(), 3);
    EXPECT_EQ(view.model()->index(2, 0).data().toString(), u"third"_s);
    form.list.removeItem(0);
    ASSERT_EQ(view.model()->rowCount(), 2);
    EXPECT_EQ(view.model()->index(0, 0).data().toString(), u"second"_s);
}

TEST_F(Lists, AGridOfAMillionRowsAsksForNoMoreCellsThanItShows)
{
    const auto rows = std::make_shared<CountingRows>(1'000'000);
    form.grid.setRows(rows);
    table().grab();
    EXPECT_LT(rows->asked, 3000);
    EXPECT_EQ(table().model()->rowCount(), 1'000'000);
}

TEST_F(Lists, AGridHasACurrentCellWheneverItHasRows)
{
    EXPECT_FALSE(table().currentIndex().isValid());
    form.grid.setRows(std::make_shared<CountingRows>(5));
    EXPECT_EQ(table().currentIndex().row(), 0);
    form.grid.setCurrent(3, 1);
    EXPECT_EQ(table().currentIndex().row(), 3);
    form.grid.setRows(std::make_shared<CountingRows>(2));
    EXPECT_EQ(table().currentIndex().row(), 0);
    form.grid.setColumnCaption(0, u"new"_s);
    EXPECT_TRUE(table().currentIndex().isValid());
}

TEST_F(Lists, ArrowsClicksAndPagesMoveTheGridsRow)
{
    form.grid.setRows(std::make_shared<CountingRows>(500));
    form.userFocus(form.grid);
    pressKey(shown.input(form.grid), Qt::Key_Down);
    EXPECT_EQ(form.grid.currentRow(), 1);
    pressKey(shown.input(form.grid), Qt::Key_PageDown);
    EXPECT_GT(form.grid.currentRow(), 2);
    QTest::mouseClick(table().viewport(), Qt::LeftButton, {},
                      table().visualRect(table().model()->index(form.grid.currentRow(), 1)).center());
    EXPECT_EQ(form.grid.currentColumn(), 1);
    int picks = 0;
    form.grid.onDblClick = [&] { ++picks; };
    QTest::mouseDClick(table().viewport(), Qt::LeftButton, {}, table().visualRect(table().currentIndex()).center());
    EXPECT_EQ(picks, 1);
}

TEST_F(Lists, SidewaysArrowsWrapRoundTheShownColumns)
{
    form.grid.setRows(std::make_shared<CountingRows>(5));
    form.userFocus(form.grid);
    for (const int column : {1, 0, 1}) {
        pressKey(shown.input(form.grid), Qt::Key_Left);
        EXPECT_EQ(form.grid.currentColumn(), column);
        EXPECT_EQ(table().currentIndex().column(), column);
    }
    pressKey(shown.input(form.grid), Qt::Key_Right);
    EXPECT_EQ(table().currentIndex().column(), 0);
}

TEST_F(Lists, TheCurrentCellOfAGridIsOutlinedMostWhereTheFocusIs)
{
    look::setUp(*qApp);
    form.grid.setRows(std::make_shared<CountingRows>(5));
    form.grid.setCurrent(2, 1);
    const QRgb line = table().palette().color(QPalette::HighlightedText).rgb();
    const auto thickness = [&](int column) {
        const QImage drawn = table().viewport()->grab().toImage();
        const QRect cell = table().visualRect(table().model()->index(2, column));
        int count = 0;
        for (int y = cell.top(); y < cell.top() + 4; ++y)
            count += drawn.pixel(cell.center().x(), y) == line ? 1 : 0;
        return count;
    };
    form.combo.setFocus();
    EXPECT_EQ(thickness(0), 0);
    EXPECT_EQ(thickness(1), 1);
    form.grid.setFocus();
    EXPECT_EQ(thickness(0), 0);
    EXPECT_EQ(thickness(1), 2);
}

TEST_F(Lists, AGridThatIsBroughtToACellShowsItWholeAndItsBeginningIfItCan)
{
    form.grid.setColumns(manyColumns());
    form.grid.setRows(std::make_shared<CountingRows>(500));
    const QScrollBar &across = *table().horizontalScrollBar();
    const auto isSeen = [this] {
        return table().viewport()->rect().contains(table().visualRect(table().currentIndex()));
    };
    form.grid.setCurrent(300, 29);
    EXPECT_TRUE(isSeen());
    EXPECT_GT(across.value(), 0);
    form.grid.setCurrent(2, 1);
    EXPECT_TRUE(isSeen());
    EXPECT_EQ(across.value(), 0);
    form.grid.setCurrent(300, 20);
    table().scrollToTop();
    table().horizontalScrollBar()->setValue(0);
    EXPECT_FALSE(isSeen());
    form.grid.setCurrent(300, 20);
    EXPECT_TRUE(isSeen()) << "brought there again";
}

TEST_F(Lists, AGridThatIsBroughtToACellOnAHiddenPageKeepsToItsBeginning)
{
    constexpr int LastAtBeginning = 3;
    shown.window.resize(1000, 500);
    QCoreApplication::processEvents();
    form.gridOnTwo.setColumns(manyColumns());
    form.gridOnTwo.setRows(std::make_shared<CountingRows>(500));
    form.gridOnTwo.setCurrent(300, LastAtBeginning);
    form.tabs.setPage(1);
    QCoreApplication::processEvents();
    const auto &table = static_cast<const QTableView &>(*shown.window.widgetFor(form.gridOnTwo));
    EXPECT_TRUE(table.viewport()->rect().contains(table.visualRect(table.currentIndex())));
    EXPECT_EQ(table.horizontalScrollBar()->value(), 0);
}

TEST_F(Lists, AHeadsClickNamesItsColumnAndHiddenColumnsStayHidden)
{
    form.grid.setRows(std::make_shared<CountingRows>(5));
    int head = -1;
    form.grid.onHeadClick = [&](int column) { head = column; };
    const QHeaderView &header = *table().horizontalHeader();
    QTest::mouseClick(header.viewport(), Qt::LeftButton, {},
                      QPoint(header.sectionViewportPosition(1) + 4, header.height() / 2));
    EXPECT_EQ(head, 1);
    EXPECT_TRUE(table().isColumnHidden(2));
}

TEST_F(Lists, ABusyFormKeepsItsRow)
{
    form.grid.setRows(std::make_shared<CountingRows>(5));
    form.combo.onClick = [&] {
        QTest::mouseClick(table().viewport(), Qt::LeftButton, {},
                          table().visualRect(table().model()->index(3, 0)).center());
    };
    shown.window.enter([this] { form.userChoose(form.combo, 1); });
    EXPECT_EQ(form.grid.currentRow(), 0);
    EXPECT_EQ(table().currentIndex().row(), 0);
}

TEST_F(Lists, TabsShowThePageThatTheFormHas)
{
    auto &tabs = static_cast<QTabWidget &>(*shown.window.widgetFor(form.tabs));
    ASSERT_EQ(tabs.count(), 2);
    EXPECT_EQ(tabs.tabText(1), u"two"_s);
    form.tabs.setPage(1);
    EXPECT_EQ(tabs.currentIndex(), 1);
    EXPECT_TRUE(shown.window.widgetFor(form.onTwo)->isVisible());
    QTest::mouseClick(tabs.tabBar(), Qt::LeftButton, {}, tabs.tabBar()->tabRect(0).center());
    EXPECT_EQ(form.tabs.page(), 0);
    EXPECT_FALSE(form.pageTwo.isVisible());
}

} // namespace zrv::test
