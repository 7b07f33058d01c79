// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/forms/controls.h"
#include "qt/kept_size.h"
#include "tests/qt/window_fixture.h"

#include <QMessageBox>
#include <QScreen>
#include <QTimer>

#include <map>

namespace zrv::test {

namespace {

/// Settings that live as long as the test.
class KeepingPlatform : public QtPlatform {
public:
    QString setting(const QString &section, const QString &key, const QString &fallback) override
    {
        const auto kept = settings.find(section + u'/' + key);
        return kept == settings.end() ? fallback : kept->second;
    }
    void saveSetting(const QString &section, const QString &key, const QString &value) override
    {
        settings[section + u'/' + key] = value;
    }

    std::map<QString, QString> settings;
};

class KeptSizes : public testing::Test {
protected:
    /// The size in which a window opens; then its user makes it that large and leaves it.
    QSize openedAs(const QString &name, QSize userMakesIt = {})
    {
        QWidget window;
        window.resize(Own);
        const KeptSize kept(window, platform, name);
        const QSize opened = window.size();
        if (userMakesIt.isValid())
            window.resize(userMakesIt);
        return opened;
    }

    static constexpr QSize Own{320, 240}; ///< in which the window opens of itself
    KeepingPlatform platform;
    QSize room = KeptSize::room(QWidget());
};

class NamedForm : public Form {
public:
    explicit NamedForm(const QString &name)
        : Form(name)
    {
    }
    TextBox field{*this, u"txtField"_s, {}};

protected:
    void failed(const RunTimeError &failure) override { throw RunTimeError(failure); }
};

} // namespace

TEST_F(KeptSizes, AWindowOpensAsItsUserLeftIt)
{
    EXPECT_EQ(openedAs(u"frmA"_s, {600, 400}), Own);
    EXPECT_EQ(openedAs(u"frmA"_s), QSize(600, 400));
    EXPECT_EQ(openedAs(u"frmA"_s, {500, 300}), QSize(600, 400));
    EXPECT_EQ(openedAs(u"frmA"_s), QSize(500, 300));
}

TEST_F(KeptSizes, OfAWindowThatItsUserLeavesAsItIsNothingIsKept)
{
    openedAs(u"frmA"_s);
    EXPECT_TRUE(platform.settings.empty());
}

TEST_F(KeptSizes, EachFormHasItsOwn)
{
    openedAs(u"frmA"_s, {600, 400});
    openedAs(u"frmB"_s, {500, 300});
    EXPECT_EQ(openedAs(u"frmA"_s), QSize(600, 400));
    EXPECT_EQ(openedAs(u"frmB"_s), QSize(500, 300));
    EXPECT_EQ(openedAs(u"frmC"_s), Own);
}

TEST_F(KeptSizes, ASizeThatTheDisplayHasNoRoomForIsForgotten)
{
    openedAs(u"frmA"_s, room);
    EXPECT_EQ(openedAs(u"frmA"_s), room);
    openedAs(u"frmA"_s, room + QSize(1, 0));
    EXPECT_EQ(openedAs(u"frmA"_s), Own);
    openedAs(u"frmA"_s, room + QSize(0, 1));
    EXPECT_EQ(openedAs(u"frmA"_s), Own);
}

TEST_F(KeptSizes, WhatIsNoSizeIsForgotten)
{
    for (const QString &text : {u"large"_s, u"400"_s, u"-5 300"_s, u"0 0"_s, u"99999999999 300"_s}) {
        platform.settings[u"WindowSizes/frmA"_s] = text;
        EXPECT_EQ(openedAs(u"frmA"_s), Own) << qPrintable(text);
    }
}

TEST_F(KeptSizes, AFormsWindowIsNeverSmallerThanWhatItShows)
{
    platform.settings[u"WindowSizes/frmA"_s] = u"5 5"_s;
    NamedForm form(u"frmA"_s);
    FormWindow window(form, platform, nullptr);
    window.open();
    QCoreApplication::processEvents();
    const QSize needed = window.ground()->minimumSizeHint();
    EXPECT_GT(needed.height(), 5);
    EXPECT_EQ(window.ground()->size().expandedTo(needed), window.ground()->size());
}

TEST_F(KeptSizes, AWindowThatFilledItsDisplayDoesSoAgain)
{
    platform.settings[u"WindowSizes/frmA"_s] = u"600 400 maximised"_s;
    QWidget window;
    const KeptSize kept(window, platform, u"frmA"_s);
    EXPECT_TRUE(window.isMaximized());
    QWidget other;
    other.setWindowState(Qt::WindowMaximized);
    platform.settings[u"WindowSizes/frmB"_s] = u"600 400"_s;
    const KeptSize ofOther(other, platform, u"frmB"_s);
    EXPECT_FALSE(other.isMaximized());
}

TEST_F(KeptSizes, TheWindowOfAFormKeepsItsSizeUnderTheFormsName)
{
    if (QGuiApplication::platformName() != u"offscreen")
        GTEST_SKIP() << "a window manager decides about sizes here";
    for (const QString &name : {u"frmA"_s, u"frmB"_s}) {
        NamedForm form(name);
        FormWindow window(form, platform, nullptr);
        window.open();
        window.resize(name == u"frmA" ? QSize(640, 480) : QSize(480, 320));
    }
    NamedForm form(u"frmA"_s);
    FormWindow window(form, platform, nullptr);
    window.open();
    EXPECT_EQ(window.size(), QSize(640, 480));
}

TEST_F(KeptSizes, ABoxIsAlwaysAsLargeAsItsText)
{
    QTimer::singleShot(0, qApp, [] {
        auto *const box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        ASSERT_TRUE(box);
        box->resize(box->size() * 2);
        box->close();
    });
    platform.messageBox(box::Plain, {}, u"text"_s);
    EXPECT_TRUE(platform.settings.empty());
}

} // namespace zrv::test
