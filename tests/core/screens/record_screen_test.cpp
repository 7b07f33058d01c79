// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/record_screen.h"
#include "tests/core/screens/quiet_platform.h"
#include "tests/print_text.h"

#include <QStringList>

#include <gtest/gtest.h>

namespace zrv {
namespace {

using namespace Qt::Literals::StringLiterals;

struct BoxCounter : QuietPlatform {
    Answer messageBox(int, const QString &, const QString &) override
    {
        ++boxes;
        return Answer::Ok;
    }
    int boxes = 0;
};

class TwoContainers : public RecordScreen {
public:
    explicit TwoContainers(Program &program)
        : RecordScreen(program, u"screen"_s)
    {
        load();
    }

    using RecordScreen::requiredAreFilled;

    Frame framFirst{*this, u"framFirst"_s};
    TextBox txtFirst{framFirst, u"txtFirst"_s, {.tag = u"+N"_s}};
    Frame framSecond{*this, u"framSecond"_s};
    TextBox txtSecond{framSecond, u"txtSecond"_s, {.tag = u"+N"_s}};
};

class RequiredOverContainers : public testing::Test {
protected:
    BoxCounter m_platform;
    Program m_program{m_platform};
    TwoContainers m_screen{m_program};
};

TEST_F(RequiredOverContainers, AllAreMarkedAndTheFirstInTabOrderGetsTheFocusAfterOneBox)
{
    m_screen.txtSecond.setFocus();
    EXPECT_FALSE(m_screen.requiredAreFilled({u"framSecond", u"framFirst"}));
    EXPECT_EQ(m_platform.boxes, 1);
    EXPECT_EQ(m_screen.txtFirst.backColor(), color::RequiredEmpty);
    EXPECT_EQ(m_screen.txtSecond.backColor(), color::RequiredEmpty);
    EXPECT_TRUE(m_screen.txtFirst.hasFocus());
}

TEST_F(RequiredOverContainers, OneMissingInAnyOfThemIsEnough)
{
    m_screen.txtFirst.setText(u"a"_s);
    EXPECT_FALSE(m_screen.requiredAreFilled({u"framFirst", u"framSecond"}));
    EXPECT_TRUE(m_screen.txtSecond.hasFocus());
    m_screen.txtSecond.setText(u"b"_s);
    EXPECT_TRUE(m_screen.requiredAreFilled({u"framFirst", u"framSecond"}));
    EXPECT_EQ(m_platform.boxes, 1);
}

} // namespace
} // namespace zrv
