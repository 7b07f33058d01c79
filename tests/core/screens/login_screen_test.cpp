// SPDX-License-Identifier: GPL-3.0-or-later
// The login behind the main form, which covers it at once: what no scenario of it can see.
#include "core/frmEnterance_Door.h"
#include "tests/core/screens/keyboards.h"
#include "tests/core/store/store_fixture.h"
#include "tests/print_text.h"

namespace zrv {
namespace {

class LoginPlatform : public Keyboards {
public:
    explicit LoginPlatform(QString folder)
        : m_folder(std::move(folder))
    {
    }

    QStringList boxes;  ///< style, title and text
    QStringList opened; ///< the screens that came above the login; they are closed at once

    Answer messageBox(int style, const QString &title, const QString &text) override
    {
        boxes += QString::number(style, 16) + u'|' + title + u'|' + text;
        return Answer::Ok;
    }
    void runModal(Form &form) override { opened += form.name(); }
    QString programFolder() override { return m_folder; }

private:
    QString m_folder;
};

class LoginScreen : public StoreTest {
protected:
    LoginScreen()
    {
        // A stand-in that is closed at once brings the sitting back to the login.
        program.catalogue.add(u"frmMain"_s, [](Program &of) { return std::make_unique<Screen>(of, u"frmMain"_s); });
        execute(u"DELETE FROM User_Defination"_s);
        execute(u"INSERT INTO User_Defination (Usernamee,Passwordd,Name,Family,Access_Level) VALUES "
                "('BOSS','B1','زهرا','کريمي','1')"_s);
        execute(u"INSERT INTO User_Defination (Usernamee,Passwordd,Name,Family,Access_Level) VALUES "
                "('CLERK','C1','علي','احمدي','0')"_s);
    }

    void open()
    {
        screen.load();
        screen.activate();
    }

    void logIn(const QString &name, const QString &password)
    {
        screen.txtUsernamee.setText(name);
        screen.txtPasswordd.setText(password);
        ASSERT_TRUE(screen.userClick(screen.cmdKeyOk));
    }

    LoginPlatform platform{m_folder.path()};
    Program program{platform};
    frmEnterance_Door screen{program};
};

// The user who came in ---------------------------------------------------------------------------------------

TEST_F(LoginScreen, SupervisorIsShownWithNameAndLevel)
{
    open();
    logIn(u"BOSS"_s, u"B1"_s);
    EXPECT_EQ(screen.lbDName.caption(), u"زهرا"_s);
    EXPECT_EQ(screen.lbDFamily.caption(), u"کريمي"_s);
    EXPECT_EQ(screen.lbDAccess_Level.caption(), u"سوپروايزر"_s);
    EXPECT_TRUE(program.IsSupervisor);
    EXPECT_EQ(program.UserFullName, u"زهرا کريمي"_s);
    EXPECT_EQ(platform.opened, QStringList(u"frmMain"_s));
    EXPECT_EQ(platform.boxes, QStringList());
}

TEST_F(LoginScreen, AnyOtherLevelIsAUsers)
{
    open();
    logIn(u"BOSS"_s, u"B1"_s);
    ASSERT_TRUE(program.IsSupervisor);
    ASSERT_TRUE(screen.userClick(screen.cmdDataReturn));
    for (const auto &level : {u"'0'"_s, u"'2'"_s, u"''"_s, u"NULL"_s}) {
        execute(u"UPDATE User_Defination SET Access_Level="_s + level + u" WHERE Usernamee='CLERK'"_s);
        program.IsSupervisor = true;
        logIn(u"CLERK"_s, u"C1"_s);
        EXPECT_EQ(screen.lbDName.caption(), u"علي"_s);
        EXPECT_EQ(screen.lbDFamily.caption(), u"احمدي"_s);
        EXPECT_EQ(screen.lbDAccess_Level.caption(), u"كــــاربر"_s) << level.toStdString();
        EXPECT_FALSE(program.IsSupervisor) << level.toStdString();
        ASSERT_TRUE(screen.userClick(screen.cmdDataReturn));
    }
    EXPECT_EQ(program.UserFullName, u"علي احمدي"_s);
}

// The two containers -----------------------------------------------------------------------------------------

TEST_F(LoginScreen, RightPasswordClosesTheKeyAndOpensTheUser)
{
    open();
    logIn(u"BOSS"_s, u"B1"_s);
    EXPECT_FALSE(screen.txtUsernamee.isReachable());
    EXPECT_FALSE(screen.txtPasswordd.isReachable());
    EXPECT_TRUE(screen.cmdDataOk.isReachable());
    EXPECT_TRUE(screen.cmdDataReturn.isReachable());
    EXPECT_TRUE(screen.cmdDataReturn.isCancel());
    EXPECT_FALSE(screen.cmdKeyOk.isDefault());
}

TEST_F(LoginScreen, ReturnFromTheUserOpensTheEmptyKeyAgain)
{
    open();
    logIn(u"BOSS"_s, u"B1"_s);
    ASSERT_TRUE(screen.userClick(screen.cmdDataReturn));
    EXPECT_EQ(screen.lbDName.caption(), QString());
    EXPECT_EQ(screen.lbDFamily.caption(), QString());
    EXPECT_EQ(screen.lbDAccess_Level.caption(), QString());
    EXPECT_FALSE(screen.cmdDataOk.isEnabled());
    EXPECT_FALSE(screen.cmdDataOk.isReachable());
    EXPECT_FALSE(screen.cmdDataReturn.isReachable());
    EXPECT_TRUE(screen.txtUsernamee.isReachable());
    EXPECT_TRUE(screen.txtPasswordd.isReachable());
    EXPECT_EQ(screen.txtUsernamee.text(), QString());
    EXPECT_EQ(screen.txtPasswordd.text(), QString());
    EXPECT_TRUE(screen.cmdKeyReturn.isCancel());
    EXPECT_FALSE(screen.cmdDataReturn.isCancel());
    EXPECT_TRUE(screen.txtUsernamee.hasFocus());
    // The next user comes in from there.
    logIn(u"CLERK"_s, u"C1"_s);
    EXPECT_EQ(platform.opened, QStringList({u"frmMain"_s, u"frmMain"_s}));
}

TEST_F(LoginScreen, WrongPasswordTakesTheDefaultAndTheCancelFromTheKey)
{
    open();
    ASSERT_TRUE(screen.cmdKeyReturn.isCancel());
    logIn(u"BOSS"_s, u"WRONG"_s);
    EXPECT_EQ(platform.boxes, QStringList(u"90010| اخطار  |  نام كاربري و پسورد صحيح نميباشد "_s));
    EXPECT_EQ(platform.opened, QStringList());
    EXPECT_TRUE(screen.txtUsernamee.hasFocus());
    EXPECT_TRUE(screen.cmdKeyOk.isEnabled());
    EXPECT_FALSE(screen.cmdKeyOk.isDefault());
    EXPECT_TRUE(screen.cmdDataReturn.isCancel());
    EXPECT_FALSE(screen.cmdKeyReturn.isCancel());
    EXPECT_EQ(screen.lbDAccess_Level.caption(), QString());
    // The next change of a field makes it the default again.
    screen.txtPasswordd.setText(u"B1"_s);
    EXPECT_TRUE(screen.cmdKeyOk.isDefault());
}

// Blinking ---------------------------------------------------------------------------------------------------

TEST_F(LoginScreen, RequestToCorrectTheDateBlinksBetweenBlackAndRed)
{
    open();
    EXPECT_EQ(screen.tmrBlink.interval(), 500);
    EXPECT_EQ(screen.Label2.textColor(), 0x000000u);
    ASSERT_TRUE(screen.tmrBlink.onTimer);
    screen.tmrBlink.onTimer();
    EXPECT_EQ(screen.Label2.textColor(), 0xFF0000u);
    screen.tmrBlink.onTimer();
    EXPECT_EQ(screen.Label2.textColor(), 0x000000u);
}

// The keyboard -----------------------------------------------------------------------------------------------

TEST_F(LoginScreen, KeyboardIsLatinOnceItIsLoaded)
{
    platform.current = layout::Persian;
    screen.load();
    EXPECT_EQ(platform.current, layout::UsEnglish);
}

} // namespace
} // namespace zrv
