// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/basic/run_time_error.h"
#include "core/forms/form.h"
#include "core/forms/spoken_name.h"
#include "tests/print_text.h"

#include <gtest/gtest.h>

namespace zrv {
namespace {

using namespace Qt::Literals::StringLiterals;

TEST(SpokenText, LeavesOutWhatIsOnlyDrawn)
{
    EXPECT_EQ(spokenText(u" نـــام  خانوادگي :"_s), u"نام خانوادگي"_s);
    EXPECT_EQ(spokenText(u"مـــــاه : "_s), u"ماه"_s);
    EXPECT_EQ(spokenText(u"\u200Fشماره\u200E \u202Bپرونده\u202C (TFN)\u2069"_s), u"شماره پرونده (TFN)"_s);
    EXPECT_EQ(spokenText(u"يک\r\nدو\tسه"_s), u"يک دو سه"_s);
}

TEST(SpokenText, KeepsWhatBelongsToAWord)
{
    EXPECT_EQ(spokenText(u"مي\u200Cشود"_s), u"مي\u200Cشود"_s);
    EXPECT_EQ(spokenText(u"ساعت 10:30"_s), u"ساعت 10:30"_s);
    EXPECT_EQ(spokenText(u"C:/R&D"_s), u"C:/R&D"_s);
    EXPECT_EQ(spokenText(u" : "_s), QString());
}

class NamedForm : public Form {
public:
    NamedForm()
        : Form(u"frmNamed"_s)
    {
    }

    Label unused{*this, u"unused"_s, {.caption = u"عنوان"_s}};
    Frame frame{*this, u"frame"_s, {.caption = u" الف - نقدي "_s}};
    Label label{frame, u"label"_s, {.caption = u"نـام :"_s}};
    TextBox field{frame, u"field"_s};
    TextBox second{frame, u"second"_s};
    Picture picture{frame, u"picture"_s};
    TextBox inPicture{picture, u"inPicture"_s};
    Button save{frame, u"save"_s, {.caption = u" &ذخيره"_s}};
    TextBox behindButton{frame, u"behindButton"_s};
    Button dots{frame, u"dots"_s, {.caption = u"..."_s, .toolTip = u"انتخاب فايل"_s}};
    Tabs tabs{*this, u"tabs"_s, {u"يکم"_s, u"دوم "_s}};
    Frame page1{tabs, u"page1"_s};
    Frame page2{tabs, u"page2"_s};
    Frame plain{page2, u"plain"_s};
    Grid grid{plain, u"grid"_s};
    Grid last{*this, u"last"_s};

protected:
    void failed(const RunTimeError &failure) override { throw failure; }
};

TEST(SpokenName, FieldIsCalledByTheLabelBeforeIt)
{
    const NamedForm form;
    EXPECT_EQ(fullSpokenName(form.field), u"نام"_s);
    EXPECT_EQ(labelOf(form.field), &form.label);
}

TEST(SpokenName, FurtherFieldsAddTheirOwnWordToTheSameLabel)
{
    NamedForm form;
    EXPECT_EQ(fullSpokenName(form.second, u"دوم"_s), u"نام : دوم"_s);
    EXPECT_EQ(fullSpokenName(form.inPicture, u"سوم"_s), u"نام : سوم"_s);
    EXPECT_EQ(fieldsOf(form.label), (std::vector<Control *>{&form.field, &form.second, &form.inPicture}));
}

TEST(SpokenName, LabelCountsForNothingBehindAButtonOrInFrontOfAFrame)
{
    const NamedForm form;
    EXPECT_EQ(labelOf(form.behindButton), nullptr);
    EXPECT_EQ(fullSpokenName(form.behindButton), u"الف - نقدي"_s);
    EXPECT_EQ(labelOf(form.save), nullptr);
}

TEST(SpokenName, CaptionIsTheNameAndATooltipStandsInForDots)
{
    const NamedForm form;
    EXPECT_EQ(fullSpokenName(form.save), u"ذخيره"_s);
    EXPECT_EQ(fullSpokenName(form.dots), u"انتخاب فايل"_s);
    EXPECT_EQ(fullSpokenName(form.frame), u"الف - نقدي"_s);
}

TEST(SpokenName, GridIsCalledByItsPageOrByTheForm)
{
    NamedForm form;
    form.setCaption(u" جستجوي  کـارکنــان "_s);
    EXPECT_EQ(fullSpokenName(form.grid), u"دوم"_s);
    EXPECT_EQ(fullSpokenName(form.last), u"جستجوي کارکنان"_s);
}

} // namespace
} // namespace zrv
