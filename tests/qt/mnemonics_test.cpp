// SPDX-License-Identifier: GPL-3.0-or-later
// Alt and a letter press every button of every screen, whatever the keyboard is set to.
#include "app/catalogue.h"
#include "core/frmCoding.h"
#include "core/screen.h"
#include "qt/mnemonics.h"
#include "tests/print_text.h"
#include "tests/qt/catalogue_fixture.h"

#include <QMenuBar>
#include <QPushButton>

#include <map>

namespace zrv::test {

namespace {

class ButtonForm : public TestForm {
public:
    TextBox first{*this, u"first"_s};
    Button save{*this, u"save"_s, {.caption = u" &ذخيره"_s}};
    Button accept{*this, u"accept"_s, {.caption = u"تاييد"_s}};
    Button define{*this, u"define"_s, {.caption = u"تعريف"_s}};
    Button word{*this, u"word"_s, {.caption = u"ذت ميز"_s}};
    Button off{*this, u"off"_s, {.caption = u"نام"_s, .enabled = false}};
    Button figure{*this, u"figure"_s, {.caption = u"..."_s, .toolTip = u"ذره بين"_s}};
    QStringList log;

    ButtonForm()
    {
        for (Button *button : {&save, &accept, &define, &word, &off, &figure})
            button->onClick = [this, button] { log << button->name(); };
    }
};

class MnemonicKeys : public testing::Test {
protected:
    Shown<ButtonForm> shown;
    ButtonForm &form = shown.form;

    QPushButton &button(const Button &control) { return *static_cast<QPushButton *>(shown.window.widgetFor(control)); }
    /// As a display sends it: Qt's own marks see the key first.
    void pressAlt(int key, Qt::KeyboardModifiers modifiers = Qt::AltModifier)
    {
        // On a display the window of the test before may take the focus with it as it goes.
        if (!QApplication::focusWidget())
            shown.window.activateWindow();
        ASSERT_TRUE(QTest::qWaitFor([] { return QApplication::focusWidget() != nullptr; }));
        QWidget &focused = *QApplication::focusWidget();
        const QString text(QChar(static_cast<char16_t>(key)));
        if (!qt_sendShortcutOverrideEvent(&focused, 0, key, modifiers, text))
            pressKey(focused, key, text, modifiers);
    }
    /// A button shows itself pressed for a moment before it is clicked.
    void expectPressed(const QStringList &names)
    {
        (void)QTest::qWaitFor([&] { return form.log.size() >= names.size(); });
        EXPECT_EQ(form.log, names);
    }
};

TEST_F(MnemonicKeys, CaptionKeepsItsOwnMarkAndOthersAreGivenAFreeLetter)
{
    EXPECT_EQ(button(form.save).text(), u" &ذخيره"_s);
    EXPECT_EQ(button(form.accept).text(), u"&تاييد"_s);
    EXPECT_EQ(button(form.define).text(), u"ت&عريف"_s);
    EXPECT_EQ(button(form.word).text(), u"ذت &ميز"_s);
    EXPECT_EQ(button(form.figure).text(), u"..."_s);
}

TEST_F(MnemonicKeys, CaptionCanBeReadWithoutTheMarkThatWasPutIn)
{
    for (const Button *control : {&form.save, &form.accept, &form.define, &form.word, &form.figure})
        EXPECT_EQ(Mnemonics::captionOf(button(*control)), control->caption());
}

TEST_F(MnemonicKeys, AltWithTheLetterPressesTheButton)
{
    pressAlt(u'ذ');
    expectPressed({u"save"_s});
    pressAlt(u'ع');
    expectPressed({u"save"_s, u"define"_s});
    pressAlt(u'م');
    expectPressed({u"save"_s, u"define"_s, u"word"_s});
}

TEST_F(MnemonicKeys, AltWithTheKeyOfTheLetterPressesItOnALatinKeyboardToo)
{
    pressAlt(Qt::Key_B); // thal
    pressAlt(Qt::Key_J); // teh
    EXPECT_EQ(form.log, QStringList({u"save"_s, u"accept"_s}));
    EXPECT_EQ(form.first.text(), QString());
}

TEST_F(MnemonicKeys, CaptionThatLosesItsLetterIsGivenAnother)
{
    form.accept.setCaption(u"پذيرش"_s);
    EXPECT_EQ(button(form.accept).text(), u"&پذيرش"_s);
    pressAlt(u'پ');
    expectPressed({u"accept"_s});
}

TEST_F(MnemonicKeys, ButtonThatIsOffOrAKeyWithFurtherModifiersPressesNothing)
{
    pressAlt(u'ن');
    pressAlt(Qt::Key_B, Qt::AltModifier | Qt::MetaModifier);
    EXPECT_EQ(form.log, QStringList());
}

TEST_F(MnemonicKeys, CaptionOfDotsTakesALetterOfItsToolTip)
{
    pressAlt(u'ب');
    expectPressed({u"figure"_s});
}

TEST_F(MnemonicKeys, EitherYehIsTheSameLetter)
{
    form.accept.setCaption(u"يک"_s);
    pressAlt(0x06CC);
    EXPECT_EQ(form.log, QStringList(u"accept"_s));
}

void expectOneEach(const Form &form)
{
    const Mnemonics mnemonics(form);
    std::map<QChar, const Control *> holders;
    for (const Control *control : form.controls()) {
        if (control->kind() != ControlKind::Button)
            continue;
        const auto &button = static_cast<const Button &>(*control);
        const QChar letter = mnemonics.letterOf(button);
        ASSERT_FALSE(letter.isNull()) << qPrintable(button.name());
        const auto [holder, isFirst] = holders.emplace(letter, control);
        const bool bothMark = button.caption().contains(u'&') && holder->second->shownText().contains(u'&');
        EXPECT_TRUE(isFirst || bothMark) << qPrintable(button.name()) << " and " << qPrintable(holder->second->name());
    }
}

class MnemonicsOf : public testing::TestWithParam<std::string> {
protected:
    MnemonicsOf() { fillCatalogue(program.catalogue); }

    QuietPlatform platform;
    Program program{platform};
};

} // namespace

INSTANTIATE_TEST_SUITE_P(Screens, MnemonicsOf, testing::ValuesIn(screenNames()),
                         [](const auto &screen) { return screen.param; });

/// Captions that mark the same letter themselves keep it; what they stand on is seldom open at once.
TEST_P(MnemonicsOf, EveryButtonHasALetterAndNoLetterThatWasGivenIsAnothers)
{
    expectOneEach(*program.catalogue.make(QString::fromStdString(GetParam()), program));
}

TEST(MnemonicsOfCoding, EveryButtonOfACodeListHasALetterAsWell)
{
    QuietPlatform platform;
    Program program(platform);
    expectOneEach(frmCoding(program, u"8"_s, u"list"_s));
}

} // namespace zrv::test
