// SPDX-License-Identifier: GPL-3.0-or-later
// Keys, focus and buttons: the form decides, the windows show it.
#include "tests/qt/window_fixture.h"

#include <QMenuBar>
#include <QPushButton>

namespace zrv::test {

namespace {

class KeyForm : public TestForm {
public:
    TextBox first{*this, u"first"_s};
    Frame off{*this, u"off"_s};
    TextBox inOff{off, u"inOff"_s};
    TextBox hidden{*this, u"hidden"_s, {.visible = false}};
    CheckBox tick{*this, u"tick"_s, {.caption = u"tick"_s}};
    OptionButton one{*this, u"one"_s, {.caption = u"one"_s, .checked = true}};
    OptionButton two{*this, u"two"_s, {.caption = u"two"_s}};
    Button ok{*this, u"ok"_s, {.caption = u" &\u0630\u062E\u064A\u0631\u0647"_s}};
    Button cancel{*this, u"cancel"_s, {.caption = u"cancel"_s}};
    MenuItem menu{*this, u"menu"_s, {.caption = u"menu"_s}};
    MenuItem item{menu, u"item"_s, {.caption = u"item"_s}};
    Button behind{*this, u"behind"_s, {.caption = u"behind"_s}};
    QStringList log;

    KeyForm()
    {
        off.setEnabled(false);
        ok.setDefault(true);
        cancel.setCancel(true);
        ok.onClick = [this] { log << u"ok"_s; };
        cancel.onClick = [this] { log << u"cancel"_s; };
        item.onClick = [this] { log << u"item"_s; };
        behind.onClick = [this] { log << u"behind"_s; };
        tick.onClick = [this] { log << u"tick"_s; };
        two.onClick = [this] { log << u"two"_s; };
    }
};

QString focusName()
{
    return QApplication::focusWidget() ? QApplication::focusWidget()->objectName() : QString();
}

} // namespace

class Keys : public testing::Test {
protected:
    Shown<KeyForm> shown;
    KeyForm &form = shown.form;

    void press(int key, const QString &text = {}, Qt::KeyboardModifiers modifiers = {})
    {
        ASSERT_TRUE(QApplication::focusWidget());
        pressKey(*QApplication::focusWidget(), key, text, modifiers);
    }
};

TEST_F(Keys, TabWalksTheTabOrderWithoutAnInvisibleOrDisabledStop)
{
    QStringList stops{focusName()};
    for (int step = 0; step < 7; ++step) {
        press(Qt::Key_Tab);
        stops << focusName();
        EXPECT_TRUE(QApplication::focusWidget()->isVisible());
        EXPECT_TRUE(QApplication::focusWidget()->isEnabled());
    }
    EXPECT_EQ(stops,
              QStringList({u"first"_s, u"tick"_s, u"one"_s, u"two"_s, u"ok"_s, u"cancel"_s, u"behind"_s, u"first"_s}));
    press(Qt::Key_Backtab, {}, Qt::ShiftModifier);
    EXPECT_EQ(focusName(), u"behind"_s);
}

TEST_F(Keys, EnterInAFieldClicksTheDefaultButtonAndEscapeTheCancelButton)
{
    press(Qt::Key_Return);
    press(Qt::Key_Escape);
    EXPECT_EQ(form.log, QStringList({u"ok"_s, u"cancel"_s}));
}

TEST_F(Keys, EnterOnAFocusedButtonClicksThatOneAlone)
{
    form.userFocus(form.behind);
    press(Qt::Key_Enter);
    EXPECT_EQ(form.log, QStringList({u"behind"_s}));
}

TEST_F(Keys, AnEnterThatIsHeldDownCountsOnce)
{
    QKeyEvent again(QEvent::KeyPress, Qt::Key_Return, {}, u"\r"_s, true);
    QApplication::sendEvent(QApplication::focusWidget(), &again);
    EXPECT_EQ(form.log, QStringList());
}

TEST_F(Keys, TheDefaultButtonLooksLikeOneAndTheRoleMoves)
{
    auto &ok = static_cast<QPushButton &>(*shown.window.widgetFor(form.ok));
    auto &behind = static_cast<QPushButton &>(*shown.window.widgetFor(form.behind));
    EXPECT_TRUE(ok.isDefault());
    form.behind.setDefault(true);
    EXPECT_FALSE(ok.isDefault());
    EXPECT_TRUE(behind.isDefault());
}

TEST_F(Keys, SpaceTicksAndChoosesAndClicks)
{
    form.userFocus(form.tick);
    press(Qt::Key_Space, u" "_s);
    EXPECT_TRUE(form.tick.isChecked());
    EXPECT_TRUE(static_cast<QAbstractButton *>(shown.window.widgetFor(form.tick))->isChecked());
    form.userFocus(form.two);
    press(Qt::Key_Space, u" "_s);
    EXPECT_TRUE(form.two.isChecked());
    EXPECT_FALSE(static_cast<QAbstractButton *>(shown.window.widgetFor(form.one))->isChecked());
    form.userFocus(form.behind);
    press(Qt::Key_Space, u" "_s);
    EXPECT_EQ(form.log, QStringList({u"tick"_s, u"two"_s, u"behind"_s}));
}

TEST_F(Keys, AMouseClickTicksOnceAndAChosenOptionStaysChosen)
{
    auto &tick = static_cast<QAbstractButton &>(*shown.window.widgetFor(form.tick));
    QTest::mouseClick(&tick, Qt::LeftButton, {}, QPoint(tick.width() - 10, tick.height() / 2));
    EXPECT_TRUE(form.tick.isChecked());
    EXPECT_TRUE(tick.isChecked());
    auto &one = static_cast<QAbstractButton &>(*shown.window.widgetFor(form.one));
    QTest::mouseClick(&one, Qt::LeftButton, {}, QPoint(one.width() - 10, one.height() / 2));
    EXPECT_TRUE(one.isChecked());
    EXPECT_TRUE(form.one.isChecked());
}

TEST_F(Keys, AMnemonicClicksItsButtonFromAnywhere)
{
    EXPECT_EQ(static_cast<QPushButton *>(shown.window.widgetFor(form.ok))->text(), form.ok.caption());
    QTest::sendKeyEvent(QTest::Press, shown.window.windowHandle(), Qt::Key(0x0630), u"\u0630"_s, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !form.log.isEmpty(); }, 2000));
    EXPECT_EQ(form.log, QStringList({u"ok"_s}));
}

TEST_F(Keys, AMenuItemClicksOnlyWhileItsMenuIsOn)
{
    shown.window.actionFor(form.item)->trigger();
    EXPECT_EQ(form.log, QStringList({u"item"_s}));
    form.menu.setEnabled(false);
    EXPECT_FALSE(shown.window.actionFor(form.menu)->isEnabled());
    shown.window.actionFor(form.item)->trigger();
    EXPECT_EQ(form.log.size(), 1);
}

TEST_F(Keys, F10OpensTheMenuBar)
{
    press(Qt::Key_F10);
    EXPECT_EQ(shown.window.menuBar()->activeAction(), shown.window.actionFor(form.menu));
}

TEST_F(Keys, ALeaveRuleThatKeepsTheFocusKeepsItInTheWindowToo)
{
    form.first.onLostFocus = [this] { form.first.setFocus(); };
    press(Qt::Key_Tab);
    EXPECT_EQ(focusName(), u"first"_s);
    QTest::mouseClick(shown.window.widgetFor(form.tick), Qt::LeftButton);
    EXPECT_EQ(focusName(), u"first"_s);
    EXPECT_FALSE(form.tick.isChecked());
}

TEST_F(Keys, AControlThatIsSwitchedOffHandsTheFocusOnAsTheFormSays)
{
    form.tick.onGotFocus = [this] { form.first.setEnabled(false); };
    press(Qt::Key_Tab);
    EXPECT_EQ(focusName(), u"tick"_s);
    form.behind.onClick = [this] { form.tick.setEnabled(false); };
    form.userFocus(form.tick);
    shown.window.enter([this] { form.userClick(form.behind); });
    EXPECT_EQ(focusName(), u"behind"_s);
}

TEST_F(Keys, QtsOwnChangeOfFocusIsToldToTheForm)
{
    shown.input(form.tick).setFocus();
    EXPECT_TRUE(form.tick.hasFocus());
}

TEST_F(Keys, AnExceptionOfAScreenNeverReachesQt)
{
    form.ok.onClick = [] { throw std::runtime_error("broken"); };
    press(Qt::Key_Return);
    ASSERT_EQ(shown.platform.boxes.size(), 1U);
    EXPECT_TRUE(shown.platform.boxes.front().text.contains(u"broken"));
}

TEST_F(Keys, ACloseBoxAsksTheFormAndHidesTheWindowOnlyWhenItAgrees)
{
    shown.window.close();
    EXPECT_FALSE(form.isOpen());
    EXPECT_FALSE(shown.window.isVisible());
}

} // namespace zrv::test
