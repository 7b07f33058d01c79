// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/basic/run_time_error.h"
#include "core/containers.h"

#include <gtest/gtest.h>

namespace zrv {
namespace {

using namespace Qt::Literals::StringLiterals;

/// One control of each kind that the container routines tell apart, at each depth they reach.
struct AllKinds : Form {
    AllKinds()
        : Form(u"frmAllKinds"_s)
    {
        load();
    }

    // clang-format off
    Frame framKey{*this, u"framKey"_s};
        TextBox txtKey{framKey, u"txtKey"_s, {.tag = u"+N"_s}};
        Button cmdKeyOk{framKey, u"cmdKeyOk"_s};
    Frame FramKey{*this, u"FramKey"_s};
        TextBox txtName{FramKey, u"txtName"_s};
    Frame framData{*this, u"framData"_s};
        TextBox txtOne{framData, u"txtOne"_s, {.tag = u"+FA+N"_s}};
        TextBox texTwo{framData, u"texTwo"_s};
        Label lblOne{framData, u"lblOne"_s};
        Label lbDOne{framData, u"lbDOne"_s, {.caption = u"data"_s}};
        DataCombo dcbOne{framData, u"dcbOne"_s, {.tag = u"+N"_s}};
        ComboBox cmbOne{framData, u"cmbOne"_s};
        ListBox lstOne{framData, u"lstOne"_s};
        ListBox listTwo{framData, u"listTwo"_s};
        CheckBox chkOne{framData, u"chkOne"_s, {.checked = true}};
        OptionButton optOne{framData, u"optOne"_s, {.checked = true}};
        OptionButton OptTwo{framData, u"OptTwo"_s};
        Grid dbgOne{framData, u"dbgOne"_s};
        Timer tmrOne{framData, u"tmrOne"_s, 500};
        Picture picBox{framData, u"picBox"_s};
            TextBox txtInPic{picBox, u"txtInPic"_s, {.tag = u"+N"_s}};
            Frame fraInPic{picBox, u"fraInPic"_s};
                TextBox txtDeep{fraInPic, u"txtDeep"_s, {.tag = u"+N"_s}};
        Picture PicBox{framData, u"PicBox"_s};
            TextBox txtInPIC{PicBox, u"txtInPIC"_s};
        Frame fraBox{framData, u"fraBox"_s};
            TextBox txtInFrame{fraBox, u"txtInFrame"_s};
            ComboBox cmbInFrame{fraBox, u"cmbInFrame"_s};
            CheckBox chkInFrame{fraBox, u"chkInFrame"_s};
            Picture picInFrame{fraBox, u"picInFrame"_s};
                TextBox txtInPicInFrame{picInFrame, u"txtInPicInFrame"_s};
                Button cmdInPicInFrame{picInFrame, u"cmdInPicInFrame"_s};
    Frame picButtons{*this, u"picButtons"_s};
        Button cmdExit{picButtons, u"cmdExit"_s};
        Button cmdDelete{picButtons, u"cmdDelete"_s};
    // clang-format on

protected:
    void failed(const RunTimeError &) override {}
};

TEST(Containers, EnablingGivesFieldsOfAKeyContainerLightYellow)
{
    AllKinds form;
    DisableContainer(u"framKey", form);
    EXPECT_FALSE(form.txtKey.isEnabled());
    EnableContainer(u"framKey", form);
    EXPECT_TRUE(form.txtKey.isEnabled());
    EXPECT_EQ(form.txtKey.backColor(), color::KeyField);
    EXPECT_TRUE(form.cmdKeyOk.isEnabled());
}

TEST(Containers, EnablingGivesFieldsOfOtherContainersCream)
{
    AllKinds form;
    EnableContainer(u"framData", form);
    for (const Control *field : std::initializer_list<Control *>{
             &form.txtOne, &form.dcbOne, &form.cmbOne, &form.lstOne, &form.optOne, &form.dbgOne, &form.picBox,
             &form.txtInPic, &form.txtInFrame, &form.txtInPicInFrame})
        EXPECT_EQ(field->backColor(), color::DataField) << qPrintable(field->name());
}

TEST(Containers, ComboInsideAFrameTurnsLightGreen)
{
    AllKinds form;
    EnableContainer(u"framData", form);
    EXPECT_EQ(form.cmbInFrame.backColor(), color::FramedCombo);
}

TEST(Containers, CapitalOptAndCapitalPicAreEnabledAndKeepTheirColours)
{
    AllKinds form;
    const Color option = form.OptTwo.backColor();
    const Color inside = form.txtInPIC.backColor();
    DisableContainer(u"framData", form);
    EXPECT_FALSE(form.OptTwo.isEnabled());
    EXPECT_FALSE(form.txtInPIC.isEnabled());
    EnableContainer(u"framData", form);
    EXPECT_TRUE(form.OptTwo.isEnabled());
    EXPECT_TRUE(form.txtInPIC.isEnabled());
    EXPECT_EQ(form.OptTwo.backColor(), option);
    EXPECT_EQ(form.txtInPIC.backColor(), inside);
}

TEST(Containers, DisablingChangesNoColour)
{
    AllKinds form;
    EnableContainer(u"framData", form);
    DisableContainer(u"framData", form);
    EXPECT_FALSE(form.txtOne.isEnabled());
    EXPECT_EQ(form.txtOne.backColor(), color::DataField);
}

TEST(Containers, EveryKindThatTheWalkNamesIsSwitchedOffAndOn)
{
    AllKinds form;
    const std::vector<Control *> named{&form.txtOne,     &form.lblOne,     &form.dcbOne,    &form.cmbOne,
                                       &form.lstOne,     &form.chkOne,     &form.optOne,    &form.OptTwo,
                                       &form.dbgOne,     &form.picBox,     &form.PicBox,    &form.fraBox,
                                       &form.txtInFrame, &form.cmbInFrame, &form.picInFrame};
    DisableContainer(u"framData", form);
    for (const Control *control : named)
        EXPECT_FALSE(control->isEnabled()) << qPrintable(control->name());
    EnableContainer(u"framData", form);
    for (const Control *control : named)
        EXPECT_TRUE(control->isEnabled()) << qPrintable(control->name());
}

TEST(Containers, KindsThatTheWalkDoesNotNameAreLeftAlone)
{
    AllKinds form;
    DisableContainer(u"framData", form);
    EXPECT_TRUE(form.texTwo.isEnabled());
    EXPECT_TRUE(form.lbDOne.isEnabled());
    EXPECT_TRUE(form.listTwo.isEnabled());
    EXPECT_TRUE(form.tmrOne.isEnabled());
    EXPECT_TRUE(form.chkInFrame.isEnabled());
    EXPECT_TRUE(form.cmdInPicInFrame.isEnabled());
}

TEST(Containers, NameOfAContainerIsTakenLetterForLetter)
{
    AllKinds form;
    DisableContainer(u"framKey", form);
    EXPECT_TRUE(form.txtName.isEnabled());
    EXPECT_FALSE(form.txtKey.isEnabled());
}

TEST(Containers, FrameWithACapitalIsNoFrameToTheWalk)
{
    struct : AllKinds {
        Frame framAll{*this, u"framAll"_s};
        Frame FramData{framAll, u"FramData"_s};
        TextBox txtInside{FramData, u"txtInside"_s};
    } form;
    DisableContainer(u"framAll", form);
    EXPECT_TRUE(form.FramData.isEnabled());
    EXPECT_TRUE(form.txtInside.isReachable());
}

TEST(Containers, ClearingEmptiesTextsDataLabelsAndTicks)
{
    AllKinds form;
    for (Edit *field : std::initializer_list<Edit *>{&form.txtOne, &form.texTwo, &form.dcbOne, &form.cmbOne,
                                                     &form.txtInPic, &form.txtInFrame})
        field->setText(u"x"_s);
    form.lblOne.setCaption(u"stays"_s);
    ClearContainer(u"framData", form);
    for (const Edit *field : std::initializer_list<Edit *>{&form.txtOne, &form.texTwo, &form.dcbOne, &form.cmbOne,
                                                           &form.txtInPic, &form.txtInFrame})
        EXPECT_EQ(field->text(), QString()) << qPrintable(field->name());
    EXPECT_EQ(form.lbDOne.caption(), QString());
    EXPECT_EQ(form.lblOne.caption(), u"stays"_s);
    EXPECT_FALSE(form.chkOne.isChecked());
    EXPECT_TRUE(form.optOne.isChecked());
}

TEST(Containers, ClearingKeepsTheRowsOfACombo)
{
    AllKinds form;
    form.cmbOne.setItems({{u"a"_s, u"1"_s}});
    form.cmbInFrame.setItems({{u"a"_s, u"1"_s}});
    ClearContainer(u"framData", form);
    EXPECT_EQ(form.cmbOne.items().size(), 1u);
}

TEST(Containers, ClearingTakesTheRowsOfAComboInsideAFrameToo)
{
    AllKinds form;
    form.cmbInFrame.setItems({{u"a"_s, u"1"_s}});
    ClearContainer(u"framData", form);
    EXPECT_TRUE(form.cmbInFrame.items().empty());
}

TEST(ModeButtons, EnablingFramKeyWithACapitalSwitchesCmdKeyOkOff)
{
    AllKinds form;
    EnableContainer(u"FramKey", form);
    EXPECT_FALSE(form.cmdKeyOk.isEnabled());
}

TEST(ModeButtons, StartProgramSwitchesExitOnAndDeleteOff)
{
    AllKinds form;
    form.cmdExit.setEnabled(false);
    ApplyModeButtons(u"StartProgram", form);
    EXPECT_TRUE(form.cmdExit.isEnabled());
    EXPECT_FALSE(form.cmdDelete.isEnabled());
}

TEST(ModeButtons, OtherWordsChangeNothing)
{
    AllKinds form;
    for (const auto word : {u"picButtons", u"framKey", u"framKey1", u"framAll", u"framData"})
        ApplyModeButtons(word, form);
    EXPECT_TRUE(form.cmdKeyOk.isEnabled());
    EXPECT_TRUE(form.cmdDelete.isEnabled());
}

TEST(CheckRequired, TwoEmptyFieldsTurnOrangeAndTheLowerTabIndexIsRemembered)
{
    AllKinds form;
    form.txtInPic.setText(u"x"_s);
    const RequiredFields found = CheckRequired(u"framData", form);
    EXPECT_EQ(found.firstEmpty, &form.txtOne);
    EXPECT_EQ(form.txtOne.backColor(), color::RequiredEmpty);
    EXPECT_EQ(form.dcbOne.backColor(), color::RequiredEmpty);
    EXPECT_EQ(form.txtInPic.backColor(), color::DataField);
}

TEST(CheckRequired, BlanksAreEmpty)
{
    AllKinds form;
    form.txtKey.setText(u"   "_s);
    EXPECT_EQ(CheckRequired(u"framKey", form).firstEmpty, &form.txtKey);
}

TEST(CheckRequired, DisabledOrHiddenFieldIsNotRequired)
{
    AllKinds form;
    form.txtOne.setEnabled(false);
    form.dcbOne.setVisible(false);
    form.txtInPic.setText(u"x"_s);
    EXPECT_TRUE(CheckRequired(u"framData", form).allFilled());
}

TEST(CheckRequired, LooksOneLevelDeepSoThatAFrameInsideAPictureIsNotReached)
{
    AllKinds form;
    form.txtOne.setText(u"x"_s);
    form.dcbOne.setText(u"x"_s);
    form.txtInPic.setText(u"x"_s);
    EXPECT_TRUE(CheckRequired(u"framData", form).allFilled());
    form.txtInPic.setText({});
    EXPECT_EQ(CheckRequired(u"framData", form).firstEmpty, &form.txtInPic);
}

} // namespace
} // namespace zrv
