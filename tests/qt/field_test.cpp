// SPDX-License-Identifier: GPL-3.0-or-later
// Whatever way a text comes into a field, it goes through the form's key filter, letter by letter.
#include "tests/qt/window_fixture.h"

namespace zrv::test {

namespace {

/// Admits digits, as the screens do for a field of numbers.
class FieldForm : public TestForm {
public:
    TextBox digits{*this, u"digits"_s, {.limit = 5, .tag = u"+DigitOnly"_s}};
    TextBox free{*this, u"free"_s, {.limit = 20}};
    TextBox locked{*this, u"locked"_s, {.locked = true}};
    TextBox area{*this, u"area"_s, {.limit = 8, .multiLine = true}};
    int changes = 0;

    FieldForm()
    {
        digits.onChange = [this] { ++changes; };
        digits.onKeyPress = area.onKeyPress = [](int &key) {
            if (key >= ' ' && (key < '0' || key > '9'))
                key = 0;
        };
    }
};

using Way = void (*)(QWidget &, const QString &);

struct NamedWay {
    const char *name;
    Way enter;
};

void pasteByMenu(QWidget &widget, const QString &text)
{
    QGuiApplication::clipboard()->setText(text);
    chooseFromContextMenu(widget, u"paste"_s);
}

} // namespace

class WayIntoAField : public testing::TestWithParam<NamedWay> {
protected:
    Shown<FieldForm> shown;
};

INSTANTIATE_TEST_SUITE_P(All, WayIntoAField,
                         testing::Values(NamedWay{"Keys", type}, NamedWay{"CtrlV", pasteByKey},
                                         NamedWay{"ShiftInsert", pasteByShiftInsert},
                                         NamedWay{"ContextMenu", pasteByMenu}, NamedWay{"Drop", drop},
                                         NamedWay{"InputMethod", commit}),
                         [](const auto &way) { return std::string(way.param.name); });

TEST_P(WayIntoAField, LettersThatTheFilterDropsNeverArrive)
{
    GetParam().enter(shown.line(shown.form.digits), u"a1' OR 2=2"_s);
    EXPECT_EQ(shown.form.digits.text(), u"122"_s);
    EXPECT_EQ(shown.line(shown.form.digits).text(), u"122"_s);
}

TEST_P(WayIntoAField, DigitsOfAnyScriptAreTheDigitsOfTheKeyboard)
{
    GetParam().enter(shown.line(shown.form.digits), u"۱٢3"_s);
    EXPECT_EQ(shown.form.digits.text(), u"123"_s);
    EXPECT_EQ(shown.line(shown.form.digits).text(), u"123"_s);
}

TEST_P(WayIntoAField, TheFarsiYehIsTheCodePagesYeh)
{
    QWidget &field = shown.input(shown.form.free);
    shown.form.userFocus(shown.form.free);
    GetParam().enter(field, u"\u0639\u0644\u06CC"_s);
    EXPECT_EQ(shown.form.free.text(), u"\u0639\u0644\u064A"_s);
    EXPECT_EQ(shown.line(shown.form.free).text(), u"\u0639\u0644\u064A"_s);
}

TEST_P(WayIntoAField, TheLimitCutsOnlyWhatTheFilterLetsIn)
{
    GetParam().enter(shown.line(shown.form.digits), u"1a2b3c4d5e6f7"_s);
    EXPECT_EQ(shown.form.digits.text(), u"12345"_s);
}

TEST_P(WayIntoAField, LineEndsAndTabsNeverArrive)
{
    shown.form.userFocus(shown.form.free);
    GetParam().enter(shown.input(shown.form.free), u"ab\tc\r\nd"_s);
    EXPECT_EQ(shown.form.free.text(), u"abcd"_s);
}

TEST_P(WayIntoAField, ALockedFieldStaysAsItIs)
{
    shown.form.locked.setText(u"held"_s);
    shown.form.userFocus(shown.form.locked);
    if (std::string(GetParam().name) != "ContextMenu") // whose paste is greyed there
        GetParam().enter(shown.input(shown.form.locked), u"12"_s);
    EXPECT_EQ(shown.form.locked.text(), u"held"_s);
    EXPECT_EQ(shown.line(shown.form.locked).text(), u"held"_s);
}

TEST_P(WayIntoAField, ABusyFormTakesNothing)
{
    auto &form = shown.form;
    form.locked.onGotFocus = [&] {
        ASSERT_TRUE(form.isBusy());
        GetParam().enter(shown.line(form.digits), u"12"_s);
    };
    if (std::string(GetParam().name) != "ContextMenu") // which does not open then
        form.userFocus(form.locked);
    EXPECT_EQ(form.digits.text(), u""_s);
    EXPECT_EQ(shown.line(form.digits).text(), u""_s);
}

TEST_P(WayIntoAField, UndoTakesItBackAndRedoBringsItAgain)
{
    QLineEdit &line = shown.line(shown.form.free);
    shown.form.userFocus(shown.form.free);
    GetParam().enter(line, u"\u0639\u0644\u06CC"_s);
    pressKey(line, Qt::Key_Z, {}, Qt::ControlModifier);
    EXPECT_EQ(shown.form.free.text(), u""_s);
    pressKey(line, Qt::Key_Z, {}, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(shown.form.free.text(), u"\u0639\u0644\u064A"_s);
    EXPECT_EQ(line.text(), u"\u0639\u0644\u064A"_s);
}

TEST(FieldEdit, ADropOnAFieldWithoutFocusBringsItTheFocus)
{
    Shown<FieldForm> shown;
    ASSERT_TRUE(shown.form.digits.hasFocus());
    drop(shown.input(shown.form.free), u"abc"_s);
    EXPECT_TRUE(shown.form.free.hasFocus());
    EXPECT_EQ(shown.form.free.text(), u"abc"_s);
}

TEST(FieldEdit, AMiddleClickBringsTheSelectionThroughTheFilter)
{
    if (!QGuiApplication::clipboard()->supportsSelection())
        GTEST_SKIP() << "this platform has no selection to paste from";
    Shown<FieldForm> shown;
    QLineEdit &line = shown.line(shown.form.digits);
    QGuiApplication::clipboard()->setText(u"a1b2"_s, QClipboard::Selection);
    QTest::mouseClick(&line, Qt::MiddleButton);
    EXPECT_EQ(shown.form.digits.text(), u"12"_s);
    EXPECT_EQ(line.text(), u"12"_s);
}

TEST(FieldEdit, AnAreaFiltersWhatIsTypedPastedAndDropped)
{
    Shown<FieldForm> shown;
    QWidget &area = shown.input(shown.form.area);
    shown.form.userFocus(shown.form.area);
    type(area, u"a1"_s);
    pasteByKey(area, u"b2\nc"_s);
    commit(area, u"d3"_s);
    EXPECT_EQ(shown.form.area.text(), u"123"_s);
}

TEST(FieldEdit, TextThatArrivesPastAllEventsIsFilteredToo)
{
    Shown<FieldForm> shown;
    // As a screen reader's software sets a text.
    shown.line(shown.form.digits).setText(u"x9y8"_s);
    EXPECT_EQ(shown.form.digits.text(), u"98"_s);
    EXPECT_EQ(shown.line(shown.form.digits).text(), u"98"_s);
}

TEST(FieldEdit, TypingReplacesTheSelectionAndTheFormHearsEachLetter)
{
    Shown<FieldForm> shown;
    QLineEdit &line = shown.line(shown.form.digits);
    type(line, u"123"_s);
    EXPECT_EQ(shown.form.changes, 3);
    line.selectAll();
    type(line, u"7"_s);
    EXPECT_EQ(shown.form.digits.text(), u"7"_s);
}

TEST(FieldEdit, BackspaceDeleteAndCutReachTheForm)
{
    Shown<FieldForm> shown;
    QLineEdit &line = shown.line(shown.form.digits);
    type(line, u"12345"_s);
    pressKey(line, Qt::Key_Backspace);
    EXPECT_EQ(shown.form.digits.text(), u"1234"_s);
    pressKey(line, Qt::Key_Home);
    pressKey(line, Qt::Key_Delete);
    EXPECT_EQ(shown.form.digits.text(), u"234"_s);
    line.setSelection(0, 2);
    pressKey(line, Qt::Key_X, {}, Qt::ControlModifier);
    EXPECT_EQ(shown.form.digits.text(), u"4"_s);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), u"23"_s);
}

TEST(FieldEdit, WhatTheProgramSetsCanNotBeUndoneByTheUser)
{
    Shown<FieldForm> shown;
    QLineEdit &line = shown.line(shown.form.digits);
    type(line, u"12"_s);
    shown.form.digits.setText(u"999"_s);
    pressKey(line, Qt::Key_Z, {}, Qt::ControlModifier);
    EXPECT_EQ(shown.form.digits.text(), u"999"_s);
}

TEST(FieldEdit, TheProgramMaySetALongerTextThanTheUserMayType)
{
    Shown<FieldForm> shown;
    shown.form.digits.setText(u"1234567890"_s);
    EXPECT_EQ(shown.line(shown.form.digits).text(), u"1234567890"_s);
}

TEST(FieldEdit, ArrowsMoveTheWayTheyPointInBothDirections)
{
    Shown<FieldForm> shown;
    QLineEdit &digits = shown.line(shown.form.digits);
    type(digits, u"123"_s);
    pressKey(digits, Qt::Key_Left);
    type(digits, u"9"_s);
    EXPECT_EQ(shown.form.digits.text(), u"1293"_s) << "digits run from left to right";
    QLineEdit &persian = shown.line(shown.form.free);
    shown.form.userFocus(shown.form.free);
    type(persian, u"\u0627\u0628"_s);
    pressKey(persian, Qt::Key_Right);
    type(persian, u"\u062C"_s);
    EXPECT_EQ(shown.form.free.text(), u"\u0627\u062C\u0628"_s) << "Persian runs from right to left";
}

TEST(FieldEdit, AClickPutsTheCaretWhereItFellAndTabMarksTheWholeText)
{
    Shown<FieldForm> shown;
    shown.form.free.setText(u"\u0627\u0628\u062C\u062F"_s);
    pressKey(shown.input(shown.form.digits), Qt::Key_Tab);
    EXPECT_EQ(shown.line(shown.form.free).selectedText(), u"\u0627\u0628\u062C\u062F"_s);
    pressKey(shown.input(shown.form.free), Qt::Key_Backtab, {}, Qt::ShiftModifier);
    QLineEdit &line = shown.line(shown.form.free);
    QCoreApplication::processEvents(); // the line places its letters when it is painted
    QTest::mouseClick(&line, Qt::LeftButton, {}, QPoint(line.width() - 6, line.height() / 2));
    EXPECT_TRUE(shown.form.free.hasFocus());
    EXPECT_FALSE(line.hasSelectedText());
    EXPECT_EQ(shown.form.free.selStart(), line.cursorPosition());
    EXPECT_LE(shown.form.free.selStart(), 1) << "the text begins at the right";
}

TEST(FieldEdit, AFieldOfCodesReadsAPersianLayoutByItsKeys)
{
    Shown<FieldForm> shown;
    TextBox &codes = shown.form.digits;
    codes.onKeyPress = nullptr;
    // The key of A (place 38) with a Persian layout on.
    pressKey(shown.input(codes), 0, u"\u0634"_s, {}, 38);
    EXPECT_EQ(codes.text(), u"a"_s);
    shown.form.userFocus(shown.form.free);
    pressKey(shown.input(shown.form.free), 0, u"\u0634"_s, {}, 38);
    EXPECT_EQ(shown.form.free.text(), u"\u0634"_s) << "a field of Persian keeps its letters";
}

} // namespace zrv::test
