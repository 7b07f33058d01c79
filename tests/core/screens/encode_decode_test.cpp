// SPDX-License-Identifier: GPL-3.0-or-later
// No menu opens this screen, so that no scenario comes to it.
#include "core/frmEncodeDecode.h"
#include "tests/core/screens/quiet_platform.h"
#include "tests/print_text.h"

#include <gtest/gtest.h>

namespace zrv {
namespace {

class EncodeDecodeScreen : public testing::Test {
protected:
    EncodeDecodeScreen()
    {
        screen.load();
        screen.activate();
    }

    QString decoded(const QString &text)
    {
        screen.txtDecode.setText(text);
        EXPECT_TRUE(screen.userClick(screen.cmdDecode));
        return screen.lblResult.caption();
    }

    QuietPlatform platform;
    Program program{platform};
    frmEncodeDecode screen{program};
};

TEST_F(EncodeDecodeScreen, ButtonsBearTheirCaptions)
{
    EXPECT_EQ(screen.cmdEncode.caption(), u"Encode"_s);
    EXPECT_EQ(screen.cmdDecode.caption(), u"Decoed"_s);
}

TEST_F(EncodeDecodeScreen, EachButtonTakesItsOwnField)
{
    screen.txtEncode.setText(u"abcd"_s);
    screen.txtDecode.setText(u"eHk="_s);
    ASSERT_TRUE(screen.userClick(screen.cmdEncode));
    EXPECT_EQ(screen.lblResult.caption(), u"YWJjZA=="_s);
    ASSERT_TRUE(screen.userClick(screen.cmdDecode));
    EXPECT_EQ(screen.lblResult.caption(), u"xy"_s);
    EXPECT_EQ(screen.txtEncode.text(), u"abcd"_s);
    EXPECT_EQ(screen.txtDecode.text(), u"eHk="_s);
}

TEST_F(EncodeDecodeScreen, EmptyFieldsGiveAnEmptyResult)
{
    screen.lblResult.setCaption(u"before"_s);
    ASSERT_TRUE(screen.userClick(screen.cmdEncode));
    EXPECT_EQ(screen.lblResult.caption(), QString());
    screen.lblResult.setCaption(u"before"_s);
    EXPECT_EQ(decoded(QString()), QString());
}

TEST_F(EncodeDecodeScreen, FaultsAreShownAsTheResult)
{
    EXPECT_EQ(decoded(u"YWJ"_s), u"رشته ورودي جهت رمز گشايي نامعتبر ميباشد"_s);
    EXPECT_EQ(decoded(u"YW-j"_s), u"رشته ورودي جهت رمز گشايي حاوي کاراکتر نامعتبر ميباشد"_s);
    EXPECT_EQ(decoded(u"YWJj"_s), u"abc"_s) << "the fault goes with the next text";
}

} // namespace
} // namespace zrv
