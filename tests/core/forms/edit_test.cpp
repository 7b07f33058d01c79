// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/core/forms/test_form.h"

#include <gtest/gtest.h>

namespace zrv {
namespace {

TEST(Edit, ChangeRuleRunsOnlyWhenTheTextBecomesAnother)
{
    OpenForm form;
    int changes = 0;
    form.first.onChange = [&] { ++changes; };
    form.first.setText(u"a"_s);
    form.first.setText(u"a"_s);
    EXPECT_EQ(changes, 1);
    form.first.setText({});
    EXPECT_EQ(changes, 2);
}

TEST(Edit, TypingReplacesTheSelection)
{
    OpenForm form;
    form.first.setText(u"old"_s);
    form.first.selectAll();
    type(form, u"new"_s);
    EXPECT_EQ(form.first.text(), u"new"_s);
}

TEST(Edit, TypingStopsAtTheLimit)
{
    OpenForm form;
    type(form, u"1234567"_s);
    EXPECT_EQ(form.first.text(), u"12345"_s);
}

TEST(Edit, PasteIsCutAtTheLimit)
{
    OpenForm form;
    form.first.setText(u"12"_s);
    form.userPaste(u"abcdef"_s);
    EXPECT_EQ(form.first.text(), u"12abc"_s);
}

TEST(Edit, ProgramMaySetALongerTextThanAUserCanType)
{
    OpenForm form;
    form.first.setText(u"1234567"_s);
    EXPECT_EQ(form.first.text(), u"1234567"_s);
}

TEST(Edit, LimitNeverSplitsASurrogatePair)
{
    OpenForm form;
    form.first.setText(u"1234"_s);
    form.first.insert(u"\U0001F600"_s);
    EXPECT_EQ(form.first.text(), u"1234"_s);
}

TEST(Edit, BackspaceAndDeleteRemoveTheSelectionOrOneLetter)
{
    OpenForm form;
    form.first.setText(u"abcd"_s);
    form.first.select(1, 2);
    form.userKey(Key::Backspace);
    EXPECT_EQ(form.first.text(), u"ad"_s);
    form.userKey(Key::Delete);
    EXPECT_EQ(form.first.text(), u"a"_s);
    form.userKey(Key::Backspace);
    form.userKey(Key::Backspace);
    EXPECT_EQ(form.first.text(), QString());
}

TEST(Edit, LockedFieldTakesNeitherLettersNorPasteNorBackspace)
{
    OpenForm form;
    form.first.setText(u"abc"_s);
    form.first.setLocked(true);
    type(form, u"x"_s);
    form.userPaste(u"y"_s);
    form.userKey(Key::Backspace);
    form.userKey(Key::Delete);
    EXPECT_EQ(form.first.text(), u"abc"_s);
}

TEST(Edit, FarsiYehAndDigitsOfAnyScriptArriveAsTheLettersOfTheCodePage)
{
    OpenForm form;
    form.userFocus(form.second);
    type(form, u"علی۱٢3"_s);
    EXPECT_EQ(form.second.text(), u"علي123"_s);
}

TEST(Edit, PastedLineEndsAndTabsAreLeftOutAndWalkNowhere)
{
    OpenForm form;
    form.userFocus(form.second);
    form.userPaste(u"a\r\nb\tc"_s);
    EXPECT_EQ(form.second.text(), u"abc"_s);
    EXPECT_EQ(form.activeControl(), &form.second);
}

} // namespace
} // namespace zrv
