// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/core/forms/test_form.h"

#include <gtest/gtest.h>

namespace zrv {
namespace {

struct ComboForm : TestForm {
    DataCombo months{*this, u"dcbMonth"_s};
    QStringList events;

    ComboForm()
    {
        months.setItems({{u"فروردين"_s, u"01"_s}, {u"ارديبهشت"_s, u"02"_s}, {u"شهريور"_s, u"06"_s}});
        months.onChange = [this] { events << u"change "_s + months.text(); };
        months.onClick = [this] { events << u"click"_s; };
        load();
        activate();
        userFocus(months);
    }
};

TEST(Combo, ChoosingARowShowsItsTextAndBindsItsCode)
{
    ComboForm form;
    form.userChoose(form.months, 1);
    EXPECT_EQ(form.months.text(), u"ارديبهشت"_s);
    EXPECT_EQ(form.months.boundText(), u"02"_s);
    EXPECT_EQ(form.events, (QStringList{u"change ارديبهشت"_s, u"click"_s}));
}

TEST(Combo, BoundTextShowsTheRowOfTheCodeOrNothing)
{
    ComboForm form;
    form.months.setBoundText(u"06"_s);
    EXPECT_EQ(form.months.text(), u"شهريور"_s);
    form.months.setBoundText(u"99"_s);
    EXPECT_EQ(form.months.text(), QString());
    EXPECT_EQ(form.months.boundText(), QString());
}

TEST(Combo, TypingCompletesToTheFirstRowThatBeginsSoWithTheRestSelected)
{
    ComboForm form;
    type(form, u"شه"_s);
    EXPECT_EQ(form.months.text(), u"شهريور"_s);
    EXPECT_EQ(form.months.boundText(), u"06"_s);
    EXPECT_EQ(form.months.selStart(), 2);
    EXPECT_EQ(form.months.selLength(), 4);
}

TEST(Combo, TypedFarsiYehFindsTheRowStoredWithArabicYeh)
{
    ComboForm form;
    type(form, u"فروردی"_s);
    EXPECT_EQ(form.months.boundText(), u"01"_s);
}

TEST(Combo, TextThatIsNoRowsHasNoCode)
{
    ComboForm form;
    type(form, u"xyz"_s);
    EXPECT_EQ(form.months.text(), u"xyz"_s);
    EXPECT_EQ(form.months.boundText(), QString());
    EXPECT_EQ(form.months.listIndex(), -1);
}

TEST(Combo, RowsThatReadAlikeAreToldApartByTheirCode)
{
    ComboForm form;
    form.months.setItems({{u"ساير"_s, u"0"_s}, {u"ساير"_s, u"9"_s}});
    form.userChoose(form.months, 1);
    EXPECT_EQ(form.months.boundText(), u"9"_s);
}

TEST(Combo, ArrowKeysChooseTheNextAndTheRowBefore)
{
    ComboForm form;
    form.userKey(Key::Down);
    EXPECT_EQ(form.months.boundText(), u"01"_s);
    form.userKey(Key::Down);
    EXPECT_EQ(form.months.boundText(), u"02"_s);
    form.userKey(Key::Up);
    EXPECT_EQ(form.months.boundText(), u"01"_s);
    form.userKey(Key::Up);
    EXPECT_EQ(form.months.boundText(), u"01"_s);
}

TEST(Combo, ListOnlyTakesNoTextThatIsNoRows)
{
    struct : ComboForm {
        ComboBox kinds{*this, u"cmbKind"_s, {.listOnly = true}};
    } form;
    form.kinds.setItems({{u"alpha"_s, {}}});
    form.userFocus(form.kinds);
    type(form, u"z"_s);
    EXPECT_EQ(form.kinds.text(), QString());
    type(form, u"a"_s);
    EXPECT_EQ(form.kinds.text(), u"alpha"_s);
}

TEST(Combo, ListOnlyIsEmptiedByWhatLeavesHalfARow)
{
    struct : ComboForm {
        ComboBox kinds{*this, u"cmbKind"_s, {.listOnly = true}};
    } form;
    form.kinds.setItems({{u"alpha"_s, u"1"_s}});
    form.userFocus(form.kinds);
    type(form, u"al"_s);
    form.userKey(Key::Backspace);
    EXPECT_EQ(form.kinds.text(), QString());
    type(form, u"a"_s);
    form.userEdited(form.kinds, u"alp"_s, 3);
    EXPECT_EQ(form.kinds.text(), QString());
    form.userEdited(form.kinds, u"alpha"_s, 5);
    EXPECT_EQ(form.kinds.boundText(), u"1"_s);
}

} // namespace
} // namespace zrv
