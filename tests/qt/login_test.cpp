// SPDX-License-Identifier: GPL-3.0-or-later
// Hostile text at the login: by whatever way it comes, nobody gets in and the store stays as it was.
#include "core/frmEnterance_Door.h"
#include "core/store/new_store.h"
#include "tests/qt/window_fixture.h"

#include <QFile>
#include <QTemporaryDir>

namespace zrv::test {

namespace {

class Login : public testing::Test {
protected:
    Login()
    {
        platform.folder = folder.path();
        NewStore store(folder.filePath(u"DBZorvan.mdb"_s));
        addFreshRows(store, {});
        store.finish();
        before = storeBytes();
        // The main form would open above the login; who gets there is inside.
        program.catalogue.add(u"frmMain"_s, [this](Program &) -> std::unique_ptr<Screen> {
            inside = true;
            throw ProgramEnd{};
        });
        login = std::make_unique<frmEnterance_Door>(program);
        login->load();
        window = std::make_unique<FormWindow>(*login, platform, nullptr);
        window->open();
        login->activate();
        window->syncFocus();
        EXPECT_TRUE(QTest::qWaitForWindowActive(window.get()));
    }

    QByteArray storeBytes() const
    {
        QFile file(folder.filePath(u"DBZorvan.mdb"_s));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }
    QWidget &input(const Control &control) { return *window->inputFor(control); }

    QTemporaryDir folder;
    QuietPlatform platform;
    Program program{platform};
    QByteArray before;
    bool inside = false;
    std::unique_ptr<frmEnterance_Door> login;
    std::unique_ptr<FormWindow> window;
};

const QStringList hostile{u"' OR '1'='1"_s,         u"ADMIN' --"_s,      u"'; DROP TABLE User_Defination; --"_s,
                          u"\" OR \"\"=\""_s,       u"ADMIN\0x"_s,       u"%"_s,
                          u"ADMIN' UNION SELECT"_s, u"ADMIN\r\nADMIN"_s, u"\u202EADMIN"_s};

} // namespace

TEST_F(Login, HostileTextNeverGetsInAndNeverTouchesTheStore)
{
    using Way = void (*)(QWidget &, const QString &);
    for (const Way way : {Way(type), Way(pasteByKey), Way(pasteByShiftInsert), Way(drop), Way(commit)}) {
        for (const QString &text : hostile) {
            login->txtUsernamee.setText({});
            login->txtPasswordd.setText({});
            login->userFocus(login->txtUsernamee);
            way(input(login->txtUsernamee), text);
            login->userFocus(login->txtPasswordd);
            way(input(login->txtPasswordd), text);
            for (const QString &entered : {login->txtUsernamee.text(), login->txtPasswordd.text()}) {
                EXPECT_LE(entered.size(), 10);
                for (const QChar letter : entered)
                    EXPECT_TRUE((letter >= u'A' && letter <= u'Z') || (letter >= u'0' && letter <= u'9'))
                        << qPrintable(entered);
            }
            // The right name with a wrong password must not get in either.
            login->txtPasswordd.setText(u"1OR1"_s);
            pressKey(input(login->txtPasswordd), Qt::Key_Return);
            EXPECT_FALSE(inside) << qPrintable(text);
        }
    }
    EXPECT_EQ(storeBytes(), before);
}

TEST_F(Login, TheRightNameAndPasswordGetInByKeysAlone)
{
    type(input(login->txtUsernamee), u"admin"_s);
    EXPECT_EQ(login->txtUsernamee.text(), u"ADMIN"_s);
    pressKey(input(login->txtUsernamee), Qt::Key_Return);
    EXPECT_TRUE(login->txtPasswordd.hasFocus());
    type(input(login->txtPasswordd), u"admin"_s);
    pressKey(input(login->txtPasswordd), Qt::Key_Return);
    EXPECT_TRUE(inside);
    EXPECT_TRUE(platform.isEnding());
}

TEST_F(Login, ThePasswordIsHiddenAndCanNotBeCopied)
{
    auto &line = static_cast<QLineEdit &>(input(login->txtPasswordd));
    login->userFocus(login->txtPasswordd);
    type(line, u"SECRET"_s);
    EXPECT_EQ(line.echoMode(), QLineEdit::Password);
    EXPECT_EQ(line.displayText(), u"******"_s);
    QGuiApplication::clipboard()->setText(u"before"_s);
    line.selectAll();
    pressKey(line, Qt::Key_C, {}, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), u"before"_s);
}

TEST_F(Login, APersianLayoutTypesTheNameByItsKeys)
{
    // The keys A and D of a Persian layout, by their places.
    pressKey(input(login->txtUsernamee), 0, u"\u0634"_s, {}, 38);
    pressKey(input(login->txtUsernamee), 0, u"\u06CC"_s, {}, 40);
    EXPECT_EQ(login->txtUsernamee.text(), u"AD"_s);
}

} // namespace zrv::test
