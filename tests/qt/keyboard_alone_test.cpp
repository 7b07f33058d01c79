// SPDX-License-Identifier: GPL-3.0-or-later
// Every screen and stage by keyboard alone: Tab reaches whatever can be used, in the order in which it is read, is held
// by nothing, and comes round, and F6 reaches what it passes by; F1 opens the screen's page of the guide and Escape closes it.
#include "qt/guide_viewer.h"
#include "tests/print_text.h"
#include "tests/qt/opened_screen.h"

#include <QTextBrowser>
#include <QTimer>

#include <algorithm>
#include <set>

namespace zrv::test {

namespace {

class KeyboardAlone : public testing::TestWithParam<ScreenCase> {
protected:
    OpenedScreen opened{GetParam()};
    FormWindow &window = opened.window;
    Form &form = *opened.screen;

    void press(int key, Qt::KeyboardModifiers held = {})
    {
        QWidget *const focused = window.focusWidget();
        pressKey(focused ? *focused : window, key, {}, held);
    }

    /// The controls that get the focus from here on until the first of them has it again.
    std::vector<Control *> round(int key, Qt::KeyboardModifiers held = {})
    {
        std::vector<Control *> seen;
        const size_t most = form.controls().size() + 1;
        while (seen.size() <= most) {
            Control *const active = form.activeControl();
            if (!active || (!seen.empty() && active == seen.front()))
                break;
            EXPECT_EQ(window.focusWidget(), window.inputFor(*active)) << qPrintable(active->name());
            seen.push_back(active);
            press(key, held);
        }
        return seen;
    }

    static QStringList names(const std::vector<Control *> &controls)
    {
        QStringList texts;
        for (const Control *control : controls)
            texts += control->name();
        return texts;
    }
};

} // namespace

INSTANTIATE_TEST_SUITE_P(Screens, KeyboardAlone, testing::ValuesIn(allScreensAndStages()),
                         [](const auto &screen) { return screen.param.name; });

TEST_P(KeyboardAlone, TabReachesAllThatCanBeUsedAndComesRound)
{
    // There to come to the OK button is to press it, which leads on, or back to a field that is empty.
    static const std::set<std::string> pressedByTab{"Login", "frmKholList", "SummaryKey", "SummarySearch"};
    if (pressedByTab.contains(GetParam().name))
        return;
    std::vector<Control *> expected = opened.stops();
    ASSERT_FALSE(expected.empty());
    ASSERT_TRUE(form.activeControl());
    std::ranges::rotate(expected, std::ranges::find(expected, form.activeControl()));
    EXPECT_EQ(names(round(Qt::Key_Tab)), names(expected));
    std::reverse(expected.begin() + 1, expected.end());
    EXPECT_EQ(names(round(Qt::Key_Backtab, Qt::ShiftModifier)), names(expected));
}

TEST_P(KeyboardAlone, F6ReachesWhatTabPassesBy)
{
    std::vector<Control *> passed;
    for (Control *control : form.controls()) {
        if (control->takesFocus() && control->isReachable() && !control->isTabStop())
            passed.push_back(control);
    }
    if (passed.empty())
        return;
    press(Qt::Key_F6);
    ASSERT_TRUE(form.activeControl());
    const auto first = std::ranges::find(passed, form.activeControl());
    ASSERT_NE(first, passed.end()) << qPrintable(form.activeControl()->name());
    std::ranges::rotate(passed, first);
    EXPECT_EQ(names(round(Qt::Key_F6)), names(passed));
}

namespace {

QRect placeIn(const FormWindow &window, const Control &control)
{
    const QWidget &widget = *window.widgetFor(control);
    return {widget.mapTo(&window, QPoint(0, 0)), widget.size()};
}

/// Whether whoever reads from right to left and from top to bottom comes to `later` before `first`: it lies wholly
/// above in the same column, or to the right on the same line.
bool isReadBefore(const QRect &later, const QRect &first)
{
    const int beside = std::min(later.bottom(), first.bottom()) - std::max(later.top(), first.top());
    const int over = std::min(later.right(), first.right()) - std::max(later.left(), first.left());
    if (beside > std::min(later.height(), first.height()) / 2)
        return later.left() >= first.right();
    return over > 0 && later.bottom() <= first.top();
}

/// Controls that Tab comes to before others that are read before them: `first`, and what stands above it or to its right.
struct Exception {
    QStringView first;
    QStringView readBefore;
};

// clang-format off
constexpr Exception Exceptions[] = {
    // The buttons of the record in hand come before the rows of all records, which stand above them.
    {u"picButtons", u"framBrows"},
    // What switches the search comes before the search itself.
    {u"chkAutoSearch", u"PicOperation"}, {u"chkAutoSearch", u"chkAnd"}, {u"txtSearch", u"chkAnd"},
    // How many there are comes before what they are paid.
    {u"txtKharejiNo", u"txtJariSumHogog"}, {u"txtKharejiNo", u"txtGablSumHogog"},
    // The parts of a salary come before the tax on their sum.
    {u"framPadash", u"framMohasebeh"},
    // Where somebody lives comes before his work; an exemption before the country of a foreigner.
    {u"txtHomeAddress", u"dcbRasteh"}, {u"txtHomeAddress", u"dcbEstekhdamType"}, {u"txtHomeAddress", u"txtInsuNo"},
    {u"dcbShakhsMoafCode", u"dcbKeshvarCode"},
    // The files of the month come before what is looked up.
    {u"cmdCreatTextFiles", u"cmdSrcMoadi"}, {u"cmdReadTextFiles", u"cmdReports"},
};
// clang-format on

bool isException(const Control &first, const Control &readBefore)
{
    return std::ranges::any_of(Exceptions, [&](const Exception &exception) {
        return exception.first == first.name() && exception.readBefore == readBefore.name();
    });
}

/// The parts of a date follow each other from the left, as its digits do.
bool isPartOfADate(const Control &control)
{
    return control.name().endsWith(u"_Year") || control.name().endsWith(u"_Month") || control.name().endsWith(u"_Day");
}

} // namespace

TEST_P(KeyboardAlone, TabGoesInTheOrderInWhichTheScreenIsRead)
{
    // Siblings alone: what lies in a group is read together.
    std::vector<Control *> seen;
    for (Control *control : form.controls()) {
        const bool holdsFields = dynamic_cast<Container *>(control) != nullptr;
        if (!control->isShown() || control->kind() == ControlKind::Label || control->kind() == ControlKind::MenuItem
            || control->kind() == ControlKind::Timer || control->kind() == ControlKind::StatusPanel
            || !(control->takesFocus() || holdsFields) || isPartOfADate(*control))
            continue;
        for (const Control *before : seen) {
            if (&before->container() == &control->container() && !isException(*before, *control)) {
                EXPECT_FALSE(isReadBefore(placeIn(window, *control), placeIn(window, *before)))
                    << qPrintable(control->name()) << " is read before " << qPrintable(before->name());
            }
        }
        seen.push_back(control);
    }
}

TEST_P(KeyboardAlone, F1OpensTheScreensPageAndEscapeComesBackToTheSameControl)
{
    const Control *const active = form.activeControl();
    QString page;
    QTimer::singleShot(0, qApp, [&] {
        auto *const guide = dynamic_cast<GuideViewer *>(QApplication::activeModalWidget());
        if (!guide)
            return;
        page = guide->page();
        pressKey(*guide->findChild<QTextBrowser *>(), Qt::Key_Escape);
        EXPECT_FALSE(guide->isVisible());
    });
    press(Qt::Key_F1);
    EXPECT_EQ(page, QString(form.name() + u".html"));
    EXPECT_TRUE(form.isOpen());
    EXPECT_EQ(form.activeControl(), active);
    EXPECT_EQ(window.focusWidget(), active ? window.inputFor(*active) : nullptr);
}

} // namespace zrv::test
