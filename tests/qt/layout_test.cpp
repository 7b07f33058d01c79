// SPDX-License-Identifier: GPL-3.0-or-later
// A layout and its screen name the same things: no control without a place, no named widget without a control.
#include "core/screen.h"
#include "qt/layouts/wrap_layout.h"
#include "tests/qt/catalogue_fixture.h"

#include <QAbstractButton>
#include <QHeaderView>
#include <QLayout>
#include <QMenu>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabBar>
#include <QTabWidget>
#include <QTableView>

#include <array>
#include <set>

namespace zrv::test {

namespace {

void collect(const QLayout *layout, std::set<const QWidget *> &placed)
{
    for (int place = 0; layout && place < layout->count(); ++place) {
        QLayoutItem *const item = layout->itemAt(place);
        if (item->widget()) {
            EXPECT_TRUE(placed.insert(item->widget()).second)
                << "placed twice: " << qPrintable(item->widget()->objectName());
            collect(item->widget()->layout(), placed);
        }
        collect(item->layout(), placed);
    }
}

bool isPage(const Control &control)
{
    const Control *const outer = control.container().containerControl();
    return outer && outer->kind() == ControlKind::Tabs;
}

class LayoutOf : public testing::TestWithParam<std::string>, protected CatalogueWindow {
protected:
    LayoutOf()
        : CatalogueWindow(QString::fromStdString(GetParam()))
    {
    }
};

} // namespace

INSTANTIATE_TEST_SUITE_P(Screens, LayoutOf, testing::ValuesIn(screenNames()),
                         [](const auto &screen) { return screen.param; });

TEST_P(LayoutOf, EveryControlHasAPlace)
{
    std::set<const QWidget *> placed;
    collect(window->ground()->layout(), placed);
    for (Control *control : screen->controls()) {
        if (control->kind() == ControlKind::Timer)
            continue;
        if (control->kind() == ControlKind::MenuItem) {
            EXPECT_TRUE(window->actionFor(*control)) << qPrintable(control->name());
            continue;
        }
        QWidget *const widget = window->widgetFor(*control);
        ASSERT_TRUE(widget) << qPrintable(control->name());
        EXPECT_EQ(widget->objectName(), control->name());
        if (isPage(*control)) {
            collect(widget->layout(), placed);
        } else if (control->kind() != ControlKind::StatusPanel) {
            EXPECT_TRUE(placed.contains(widget)) << qPrintable(control->name()) << " lies in no layout";
        }
        Control *const outer = control->container().containerControl();
        if (outer && outer->kind() != ControlKind::Tabs) {
            EXPECT_EQ(widget->parentWidget(), window->widgetFor(*outer)) << qPrintable(control->name());
        }
    }
}

TEST_P(LayoutOf, EveryNamedWidgetIsAControl)
{
    for (const QWidget *widget : window->findChildren<QWidget *>()) {
        const QString name = widget->objectName();
        // The buttons that scroll a row of tabs have names that Qt gave them.
        const bool isQts = name.startsWith(u"qt_") || qobject_cast<QTabBar *>(widget->parentWidget());
        if (!name.isEmpty() && !isQts) {
            EXPECT_TRUE(screen->find(name)) << qPrintable(name);
        }
    }
}

TEST_P(LayoutOf, TheWindowRunsFromRightToLeftAndBearsTheScreensName)
{
    EXPECT_EQ(window->layoutDirection(), Qt::RightToLeft);
    EXPECT_EQ(window->objectName(), screen->name());
    EXPECT_EQ(window->windowTitle(), screen->caption());
}

TEST_P(LayoutOf, TheWindowStaysOnItsDisplayAndScrollsWhatIsTooHigh)
{
    window->open();
    const QRect display = window->screen()->availableGeometry();
    EXPECT_TRUE(display.contains(window->geometry())) << window->width() << "x" << window->height();
    const QSize seen = window->ground()->parentWidget()->size();
    EXPECT_TRUE(window->ground()->height() <= seen.height() || window->findChild<QScrollArea *>());
    // Opening and going again leaves nothing behind that is freed twice.
    window.reset();
}

TEST_P(LayoutOf, NothingIsCutSidewaysOnA1024PixelDisplay)
{
    // At 200 per cent half as much has room on it, and the layouts wrap.
    ASSERT_EQ(window->screen()->size() * window->devicePixelRatioF(), QSize(1024, 768));
    window->open();
    QCoreApplication::processEvents();
    const auto *const scroll = window->findChild<QScrollArea *>();
    EXPECT_FALSE(scroll && scroll->horizontalScrollBar()->isVisible());
    const QSize needed = window->ground()->minimumSizeHint();
    EXPECT_LE(needed.width(), window->ground()->width());
}

TEST_P(LayoutOf, EveryButtonBearsItsWholeCaption)
{
    for (const Control *control : screen->controls())
        if (control->kind() == ControlKind::Button) {
            EXPECT_EQ(Mnemonics::captionOf(*qobject_cast<QAbstractButton *>(window->widgetFor(*control))),
                      static_cast<const Button *>(control)->caption());
        }
}

TEST_P(LayoutOf, NoCaptionTouchesTheEdgeOfItsButton)
{
    window->open();
    constexpr int Least = 5;
    for (const Control *control : screen->controls()) {
        const auto *const button = qobject_cast<QAbstractButton *>(
            control->kind() == ControlKind::Button ? window->widgetFor(*control) : nullptr);
        if (!button || !button->isVisible())
            continue;
        const int caption = button->fontMetrics().size(Qt::TextShowMnemonic, button->text()).width();
        EXPECT_GE(button->width(), caption + 2 * Least) << qPrintable(control->name());
    }
}

TEST_P(LayoutOf, TheGridOfARecordScreenOpensWithSomeEightRowsWhereTheDisplayHasThem)
{
    window->open();
    QCoreApplication::processEvents();
    const Control *const around = screen->find(QStringLiteral("framBrows"));
    if (!around || window->height() >= KeptSize::room(*window).height())
        return;
    for (const auto *grid : window->widgetFor(*around)->findChildren<QTableView *>())
        if (grid->isVisible()) {
            EXPECT_GE(grid->viewport()->height(), 7 * grid->verticalHeader()->defaultSectionSize());
        }
}

TEST(WrappedLines, FillFromTheRightAndGoOnBelow)
{
    QWidget ground;
    ground.setLayoutDirection(Qt::RightToLeft);
    auto *const lines = new WrapLayout;
    lines->setContentsMargins(0, 0, 0, 0);
    lines->setSpacing(10);
    std::array<QWidget *, 5> cells{};
    for (QWidget *&cell : cells) {
        cell = new QWidget(&ground);
        cell->setFixedHeight(20);
        cell->setMinimumWidth(100);
    }
    for (const size_t place : {0U, 1U, 2U})
        lines->addWidget(cells[place]);
    lines->addWholeLine(cells[3]);
    lines->addWidget(cells[4]);
    cells[1]->hide();
    ground.setLayout(lines);
    ground.resize(215, 200);
    lines->activate();
    EXPECT_EQ(cells[0]->geometry(), QRect(115, 0, 100, 20));
    EXPECT_EQ(cells[2]->geometry(), QRect(5, 0, 100, 20));
    EXPECT_EQ(cells[3]->geometry(), QRect(0, 30, 215, 20));
    EXPECT_EQ(cells[4]->geometry(), QRect(115, 60, 100, 20));
    EXPECT_EQ(lines->heightForWidth(215), 80);
    EXPECT_EQ(lines->heightForWidth(105), 110);
}

} // namespace zrv::test
