// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/basic/run_time_error.h"
#include "core/date_boxes.h"
#include "core/forms/form.h"
#include "tests/core/screens/quiet_platform.h"
#include "tests/print_text.h"

#include <QStringList>

#include <gtest/gtest.h>

namespace zrv {
namespace {

using namespace Qt::Literals::StringLiterals;

struct BoxKeeper : QuietPlatform {
    Answer messageBox(int style, const QString &title, const QString &text) override
    {
        boxes += QString::number(style, 16) + u"|"_s + title + u"|"_s + text;
        return Answer::Ok;
    }
    QStringList boxes;
};

struct DateForm : Form {
    explicit DateForm(const DateBoxes::Look &look = {})
        : Form(u"frmDate"_s)
        , date(platform, *this, u"txtBeginDate"_s, look)
    {
        load();
        activate();
    }

    void type(const QString &letters)
    {
        for (const QChar letter : letters)
            userLetter(letter);
    }
    void typeInto(TextBox &box, const QString &letters)
    {
        userFocus(box);
        type(letters);
    }

    BoxKeeper platform;
    TextBox txtBefore{*this, u"txtBefore"_s};
    DateBoxes date;
    TextBox txtAfter{*this, u"txtAfter"_s};

protected:
    void failed(const RunTimeError &failure) override { platform.boxes += failure.description(); }
};

const QString MonthTooBig = u"90010| اخطار  |   ورود ماه بزرگتر از 12 غير مجاز است  "_s;
const QString MonthZero = u"90010| اخطار  |   ورود ماه صفر غير مجاز است  "_s;
const QString DayTooBig = u"90010| اخطار  |   ورود روز بزرگتر از 31 غير مجاز است  "_s;
const QString SecondHalf = u"90010| اخطار  |   ششماهه دوم سال حداكثر 30 روزه هستند . "_s;
const QString DayZero = u"90010| اخطار  |   ورود روز صفر غير مجاز است  "_s;

TEST(DateBoxes, EightDigitsInOneGoFillAllThree)
{
    DateForm form;
    form.typeInto(form.date.year, u"13890303"_s);
    EXPECT_EQ(form.date.year.text(), u"1389"_s);
    EXPECT_EQ(form.date.month.text(), u"03"_s);
    EXPECT_EQ(form.date.day.text(), u"03"_s);
    EXPECT_EQ(form.date.stored(), u"13890303"_s);
    EXPECT_TRUE(form.platform.boxes.isEmpty());
}

TEST(DateBoxes, FullBoxThatAProgramFillsKeepsTheFocusWhereItIs)
{
    DateForm form;
    form.userFocus(form.txtBefore);
    form.date.show(u"13891231"_s);
    EXPECT_TRUE(form.txtBefore.hasFocus());
    EXPECT_EQ(form.date.joined(), u"13891231"_s) << "a stored date is shown as it is, the day 31 too";
    EXPECT_TRUE(form.platform.boxes.isEmpty());
}

TEST(DateBoxes, YearOfTwoDigitsGetsItsCentury)
{
    DateForm form;
    form.typeInto(form.date.year, u"89"_s);
    form.userFocus(form.date.month);
    EXPECT_EQ(form.date.year.text(), u"1389"_s);
    EXPECT_EQ(form.date.year.selLength(), 0);
}

TEST(DateBoxes, YearOfThreeDigitsBecomesFiveLettersAndNoDate)
{
    DateForm form;
    form.typeInto(form.date.year, u"139"_s);
    form.typeInto(form.date.month, u"0101"_s);
    EXPECT_EQ(form.date.year.text(), u"13139"_s);
    EXPECT_EQ(form.date.joined(), u"131390101"_s);
    EXPECT_EQ(form.date.stored(), QString());
}

TEST(DateBoxes, EmptyYearStaysEmpty)
{
    DateForm form;
    form.userFocus(form.date.year);
    form.userFocus(form.date.month);
    EXPECT_EQ(form.date.year.text(), QString());
}

TEST(DateBoxes, YearIsSelectedWholeOnEntering)
{
    DateForm form;
    form.date.show(u"13890303"_s);
    form.userFocus(form.date.year);
    EXPECT_EQ(form.date.year.selLength(), 4);
}

TEST(DateBoxes, MonthThirteenIsRefusedAndEmptied)
{
    DateForm form;
    form.typeInto(form.date.month, u"13"_s);
    EXPECT_EQ(form.platform.boxes, QStringList{MonthTooBig});
    EXPECT_EQ(form.date.month.text(), QString());
    EXPECT_TRUE(form.date.month.hasFocus());
}

TEST(DateBoxes, MonthZeroReturnsTheFocusWithItsTextSelected)
{
    DateForm form;
    form.typeInto(form.date.month, u"0"_s);
    form.userFocus(form.txtAfter);
    EXPECT_EQ(form.platform.boxes, QStringList{MonthZero});
    EXPECT_TRUE(form.date.month.hasFocus());
    EXPECT_EQ(form.date.month.selLength(), 1);
}

TEST(DateBoxes, OfTwoZerosInAStoredDateTheOneThatIsLeftIsTold)
{
    DateForm form;
    form.date.show(u"138900"_s);
    form.date.month.setText(u"0"_s);
    form.date.day.setText(u"0"_s);
    form.userFocus(form.date.day);
    form.userFocus(form.date.month);
    EXPECT_EQ(form.platform.boxes, QStringList{DayZero}) << "the month is not judged for handing the focus back";
    EXPECT_TRUE(form.date.day.hasFocus());
    form.type(u"5"_s);
    form.userFocus(form.date.month);
    EXPECT_TRUE(form.date.month.hasFocus());
    EXPECT_EQ(form.date.day.text(), u"05"_s);
}

TEST(DateBoxes, MonthOfTwoZerosIsNotRefused)
{
    DateForm form;
    form.typeInto(form.date.month, u"00"_s);
    EXPECT_TRUE(form.platform.boxes.isEmpty());
    EXPECT_TRUE(form.date.day.hasFocus());
    form.type(u"00"_s);
    form.userFocus(form.txtAfter);
    EXPECT_TRUE(form.platform.boxes.isEmpty());
}

TEST(DateBoxes, SingleDigitGetsALeadingZero)
{
    DateForm form;
    form.typeInto(form.date.month, u"7"_s);
    form.typeInto(form.date.day, u"5"_s);
    form.userFocus(form.txtAfter);
    EXPECT_EQ(form.date.month.text(), u"07"_s);
    EXPECT_EQ(form.date.day.text(), u"05"_s);
}

TEST(DateBoxes, DayThirtyTwoIsRefusedAndEmptied)
{
    DateForm form;
    form.typeInto(form.date.day, u"32"_s);
    EXPECT_EQ(form.platform.boxes, QStringList{DayTooBig});
    EXPECT_EQ(form.date.day.text(), QString());
    EXPECT_TRUE(form.date.day.hasFocus());
}

TEST(DateBoxes, DayZeroReturnsTheFocusWithItsTextSelected)
{
    DateForm form;
    form.typeInto(form.date.day, u"0"_s);
    form.userFocus(form.txtAfter);
    EXPECT_EQ(form.platform.boxes, QStringList{DayZero});
    EXPECT_TRUE(form.date.day.hasFocus());
    EXPECT_EQ(form.date.day.selLength(), 1);
}

TEST(DateBoxes, SecondHalfOfTheYearHasNoDay31)
{
    for (const int month : {7, 12}) {
        DateForm form;
        form.typeInto(form.date.month, u"%1"_s.arg(month, 2, 10, QChar(u'0')));
        form.type(u"31"_s);
        EXPECT_EQ(form.platform.boxes, QStringList{SecondHalf});
        EXPECT_EQ(form.date.day.text(), u"30"_s);
        EXPECT_TRUE(form.date.day.hasFocus());
    }
}

TEST(DateBoxes, FirstHalfOfTheYearHasDay31)
{
    DateForm form;
    form.typeInto(form.date.month, u"0631"_s);
    EXPECT_TRUE(form.platform.boxes.isEmpty());
    EXPECT_EQ(form.date.day.text(), u"31"_s);
}

TEST(DateBoxes, ThirtiethOfTheLastMonthIsNotTested)
{
    DateForm form;
    form.typeInto(form.date.year, u"13891230"_s);
    EXPECT_TRUE(form.platform.boxes.isEmpty());
    EXPECT_EQ(form.date.stored(), u"13891230"_s);
}

TEST(DateBoxes, BackspaceInAnEmptyMonthTakesTheYearsLastDigitAndSelectsNothing)
{
    DateForm form;
    form.typeInto(form.date.year, u"1389"_s);
    form.userKey(Key::Backspace);
    EXPECT_EQ(form.date.year.text(), u"138"_s);
    EXPECT_TRUE(form.date.year.hasFocus());
    EXPECT_EQ(form.date.year.selStart(), 3);
    EXPECT_EQ(form.date.year.selLength(), 0);
    form.type(u"8"_s);
    EXPECT_EQ(form.date.year.text(), u"1388"_s);
    EXPECT_TRUE(form.date.month.hasFocus());
}

TEST(DateBoxes, BackspaceInAnEmptyDayStepsBackToTheWholeMonth)
{
    DateForm form;
    form.typeInto(form.date.month, u"05"_s);
    form.userKey(Key::Backspace);
    EXPECT_TRUE(form.date.month.hasFocus());
    EXPECT_EQ(form.date.month.text(), u"05"_s);
    EXPECT_EQ(form.date.month.selLength(), 2);
}

TEST(DateBoxes, BackspaceInAnEmptyDayShortensTheMonthWhereTheScreenWantsIt)
{
    DateForm form({.dayShortensMonth = true});
    form.typeInto(form.date.month, u"05"_s);
    form.userKey(Key::Backspace);
    EXPECT_TRUE(form.date.month.hasFocus());
    EXPECT_EQ(form.date.month.text(), u"0"_s);
    EXPECT_EQ(form.date.month.selLength(), 0);
}

TEST(DateBoxes, StoredDayIsJudgedTooWhereTheScreenWantsIt)
{
    DateForm form({.judgesShownDay = true});
    form.userFocus(form.txtBefore);
    form.date.show(u"13890731"_s);
    EXPECT_EQ(form.platform.boxes, QStringList{SecondHalf});
    EXPECT_EQ(form.date.stored(), u"13890730"_s);
    EXPECT_TRUE(form.date.day.hasFocus());
    form.date.show(u"13890631"_s);
    form.date.show({});
    EXPECT_EQ(form.platform.boxes.size(), 1);
}

TEST(DateBoxes, BackspaceInAFilledMonthOnlyErases)
{
    DateForm form;
    form.date.show(u"13890303"_s);
    form.userFocus(form.date.month);
    form.userKey(Key::Backspace);
    EXPECT_TRUE(form.date.month.hasFocus());
    EXPECT_EQ(form.date.month.text(), QString());
    EXPECT_EQ(form.date.year.text(), u"1389"_s);
}

TEST(DateBoxes, OneEmptyBoxMakesNoDate)
{
    DateForm form;
    for (TextBox *box : {&form.date.year, &form.date.month, &form.date.day}) {
        form.date.show(u"13890303"_s);
        box->setText({});
        EXPECT_EQ(form.date.stored(), QString()) << qPrintable(box->name());
    }
}

TEST(DateBoxes, MonthAndDayTakeDigitsAloneThoughTheyHaveNoTag)
{
    DateForm form;
    form.typeInto(form.date.month, u"a'1"_s);
    form.typeInto(form.date.day, u"ب-۲"_s);
    EXPECT_EQ(form.date.month.text(), u"01"_s);
    EXPECT_EQ(form.date.day.text(), u"2"_s);
}

TEST(DateBoxes, BlanksAroundAPartAreNoPartOfTheDate)
{
    DateForm form;
    form.date.show(u"1389 3 4"_s);
    EXPECT_EQ(form.date.joined(), u"138934"_s);
    EXPECT_EQ(form.date.stored(), QString());
}

} // namespace
} // namespace zrv
