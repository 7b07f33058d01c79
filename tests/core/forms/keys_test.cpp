// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/core/forms/test_form.h"

#include <gtest/gtest.h>

namespace zrv {
namespace {

TEST(Keys, FormSeesEachKeyBeforeItsControl)
{
    OpenForm form;
    QStringList seen;
    form.preview = [&](int &key) { seen << u"form "_s + QString::number(key); };
    form.first.onKeyPress = [&](int &key) { seen << u"field "_s + QString::number(key); };
    form.userLetter(u'a');
    EXPECT_EQ(seen, (QStringList{u"form 97"_s, u"field 97"_s}));
}

TEST(Keys, KeyThatTheFormDropsNeverReachesTheField)
{
    OpenForm form;
    bool reached = false;
    form.preview = [](int &key) { key = 0; };
    form.first.onKeyPress = [&](int &) { reached = true; };
    form.userLetter(u'a');
    EXPECT_FALSE(reached);
    EXPECT_EQ(form.first.text(), QString());
}

TEST(Keys, RuleMayChangeTheLetter)
{
    OpenForm form;
    form.first.onKeyPress = [](int &key) { key = 'X'; };
    form.userLetter(u'a');
    EXPECT_EQ(form.first.text(), u"X"_s);
}

TEST(Keys, PersianLettersReachTheRulesAsCodesOfTheCodePage)
{
    OpenForm form;
    int code = 0;
    form.first.onKeyPress = [&](int &key) { code = key; };
    form.userLetter(u'ی');
    EXPECT_EQ(code, 237);
    form.userLetter(u'ک');
    EXPECT_EQ(code, 152);
    form.userLetter(u'۵');
    EXPECT_EQ(code, '5');
}

TEST(Keys, LetterOutsideTheCodePageReachesTheRulesAsAQuestionMark)
{
    OpenForm form;
    int code = 0;
    form.first.onKeyPress = [&](int &key) { code = key; };
    form.userLetter(u'中');
    EXPECT_EQ(code, '?');
    EXPECT_EQ(form.first.text(), u"中"_s);
}

TEST(Keys, BackspaceRunsThroughTheFilterAsEight)
{
    OpenForm form;
    form.first.setText(u"ab"_s);
    form.first.onKeyPress = [](int &key) {
        if (key == 8)
            key = 0;
    };
    form.userKey(Key::Backspace);
    EXPECT_EQ(form.first.text(), u"ab"_s);
}

TEST(Keys, EnterOnAFocusedButtonClicksItBeforeTheFormSeesTheKey)
{
    OpenForm form;
    form.userFocus(form.back);
    form.preview = [](int &key) { key = 0; };
    form.takeDiary();
    form.userKey(Key::Enter);
    EXPECT_EQ(form.diary, QStringList{u"click back"_s});
}

TEST(Keys, EnterThatNobodyDropsClicksTheDefaultButton)
{
    OpenForm form;
    form.ok.setDefault(true);
    form.userKey(Key::Enter);
    EXPECT_EQ(form.diary, QStringList{u"click ok"_s});
}

TEST(Keys, FieldThatHasAUseForEnterKeepsItFromTheDefaultButton)
{
    OpenForm form;
    form.ok.setDefault(true);
    form.first.onKeyPress = [](int &key) { key = 0; };
    form.userKey(Key::Enter);
    EXPECT_TRUE(form.diary.isEmpty());
}

TEST(Keys, DisabledDefaultAndCancelButtonsAreNotClicked)
{
    OpenForm form;
    form.ok.setDefault(true);
    form.back.setCancel(true);
    form.ok.setEnabled(false);
    form.back.setEnabled(false);
    form.userKey(Key::Enter);
    form.userKey(Key::Escape);
    EXPECT_TRUE(form.diary.isEmpty());
}

TEST(Keys, EscapeClicksTheCancelButtonBeforeTheFieldCanDropIt)
{
    OpenForm form;
    form.back.setCancel(true);
    form.first.onKeyPress = [](int &key) { key = 0; };
    form.userKey(Key::Escape);
    EXPECT_EQ(form.diary, QStringList{u"click back"_s});
}

TEST(Keys, OnlyOneButtonIsDefaultAtATime)
{
    OpenForm form;
    form.ok.setDefault(true);
    form.back.setDefault(true);
    EXPECT_FALSE(form.ok.isDefault());
    EXPECT_TRUE(form.back.isDefault());
    form.ok.setDefault(false);
    EXPECT_TRUE(form.back.isDefault());
}

TEST(Keys, KeyDownRuleCanSwallowANamedKey)
{
    OpenForm form;
    form.first.setText(u"ab"_s);
    form.first.onKeyDown = [](Key key) { return key == Key::Delete; };
    form.first.select(0, 1);
    form.userKey(Key::Delete);
    EXPECT_EQ(form.first.text(), u"ab"_s);
}

TEST(Keys, BlankClicksTheFocusedButtonAndTicksTheFocusedBox)
{
    struct : OpenForm {
        CheckBox box{*this, u"chkAll"_s};
    } form;
    form.userFocus(form.box);
    form.userLetter(u' ');
    EXPECT_TRUE(form.box.isChecked());
    form.userFocus(form.ok);
    form.takeDiary();
    form.userLetter(u' ');
    EXPECT_EQ(form.diary, QStringList{u"click ok"_s});
}

/// A form with a text box of several lines.
struct AreaForm : OpenForm {
    AreaForm() { userFocus(area); }
    TextBox area{*this, u"txtArea"_s, {.limit = 4, .multiLine = true}};
};

TEST(Keys, EnterBeginsANewLineWhereThereAreSeveral)
{
    AreaForm form;
    type(form, u"ab"_s);
    form.userKey(Key::Enter);
    type(form, u"cd"_s);
    EXPECT_EQ(form.area.text(), u"ab\nc"_s);
}

TEST(Keys, EnterBeginsNoLineWhereAFormHasAUseForIt)
{
    AreaForm form;
    form.preview = [](int &key) { key = key == 13 ? 0 : key; };
    form.userKey(Key::Enter);
    form.preview = {};
    form.ok.setDefault(true);
    form.userKey(Key::Enter);
    EXPECT_EQ(form.area.text(), QString());
    EXPECT_TRUE(form.diary.contains(u"click ok"_s));
}

TEST(Keys, EnterBeginsNoLineInALockedFieldOrInOneOfOneLine)
{
    AreaForm form;
    form.area.setLocked(true);
    form.userKey(Key::Enter);
    EXPECT_EQ(form.area.text(), QString());
    form.userFocus(form.first);
    form.userKey(Key::Enter);
    EXPECT_EQ(form.first.text(), QString());
}

} // namespace
} // namespace zrv
