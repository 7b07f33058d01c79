// SPDX-License-Identifier: GPL-3.0-or-later
// The users' guide, which F1 opens above a form.
#include "core/frmEnterance_Door.h"
#include "qt/guide_viewer.h"
#include "tests/qt/window_fixture.h"

#include <QDir>
#include <QFile>
#include <QPushButton>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTextBrowser>
#include <QTimer>

namespace zrv::test {

namespace {

class GuidePlatform : public QuietPlatform {
public:
    QStringList guides{QStringLiteral(ZRV_GUIDE)};

protected:
    [[nodiscard]] QStringList guideFolders() const override { return guides; }
};

GuideViewer *openGuide()
{
    return dynamic_cast<GuideViewer *>(QApplication::activeModalWidget());
}

class Guide : public testing::Test {
protected:
    Guide()
    {
        platform.folder = folder.path();
        login.load();
        window.open();
        login.activate();
        window.syncFocus();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    /// Presses F1 in the field that has the focus, and acts on the guide while it is open.
    void withGuide(const std::function<void(GuideViewer &)> &act)
    {
        bool seen = false;
        QTimer::singleShot(0, qApp, [&] {
            GuideViewer *const guide = openGuide();
            if (!guide)
                return;
            seen = true;
            act(*guide);
            guide->close();
        });
        pressKey(*window.inputFor(*login.activeControl()), Qt::Key_F1);
        EXPECT_TRUE(seen);
    }

    static void click(GuideViewer &guide, const QString &button) { guide.findChild<QPushButton *>(button)->click(); }

    QTemporaryDir folder;
    GuidePlatform platform;
    Program program{platform};
    frmEnterance_Door login{program};
    FormWindow window{login, platform, nullptr};
};

} // namespace

TEST_F(Guide, F1OpensThePageOfTheFormInHandAndLeavesTheFormAsItIs)
{
    type(*window.inputFor(login.txtUsernamee), u"USER"_s);
    pressKey(*window.inputFor(login.txtUsernamee), Qt::Key_Return);
    type(*window.inputFor(login.txtPasswordd), u"SECRET"_s);
    const qsizetype caret = login.txtPasswordd.selStart();

    withGuide([&](GuideViewer &guide) {
        EXPECT_EQ(guide.page(), u"frmEnterance_Door.html"_s);
        EXPECT_TRUE(guide.isModal());
        EXPECT_EQ(guide.parentWidget(), nullptr) << "the window under test is not opened by the platform";
    });
    EXPECT_EQ(login.txtUsernamee.text(), u"USER"_s);
    EXPECT_EQ(login.txtPasswordd.text(), u"SECRET"_s);
    EXPECT_EQ(login.txtPasswordd.selStart(), caret);
    EXPECT_TRUE(login.txtPasswordd.hasFocus());
    EXPECT_TRUE(login.isOpen());
    EXPECT_TRUE(platform.boxes.empty());
}

TEST_F(Guide, EscapeClosesTheGuideAndNotTheFormUnderIt)
{
    withGuide([&](GuideViewer &guide) {
        pressKey(*guide.findChild<QTextBrowser *>(), Qt::Key_Escape);
        EXPECT_FALSE(guide.isVisible());
    });
    EXPECT_TRUE(login.isOpen());
    EXPECT_FALSE(platform.isEnding());
}

TEST_F(Guide, ItsButtonsLeadToTheContentsTheKeysAndBack)
{
    withGuide([&](GuideViewer &guide) {
        const auto *const back = guide.findChild<QPushButton *>(u"guideBack"_s);
        EXPECT_FALSE(back->isEnabled());
        click(guide, u"guideContents"_s);
        EXPECT_EQ(guide.page(), u"index.html"_s);
        click(guide, u"guideKeys"_s);
        EXPECT_EQ(guide.page(), u"keys.html"_s);
        EXPECT_TRUE(back->isEnabled());
        click(guide, u"guideBack"_s);
        click(guide, u"guideBack"_s);
        EXPECT_EQ(guide.page(), u"frmEnterance_Door.html"_s);
        EXPECT_FALSE(back->isEnabled());
        click(guide, u"guideClose"_s);
        EXPECT_FALSE(guide.isVisible());
    });
}

TEST_F(Guide, AFormWithoutAPageGetsTheContents)
{
    const GuideViewer guide(QStringLiteral(ZRV_GUIDE), u"frmNone"_s, nullptr);
    EXPECT_EQ(guide.page(), u"index.html"_s);
}

TEST_F(Guide, AFolderThatIsMissingIsTold)
{
    const QString none = folder.filePath(u"none"_s);
    platform.guides = {none};
    pressKey(*window.inputFor(*login.activeControl()), Qt::Key_F1);
    EXPECT_EQ(openGuide(), nullptr);
    ASSERT_EQ(platform.boxes.size(), 1U);
    EXPECT_EQ(platform.boxes[0].style, box::Refusal);
    EXPECT_TRUE(platform.boxes[0].text.contains(QDir::toNativeSeparators(none)));
    EXPECT_TRUE(login.isOpen());
}

TEST_F(Guide, TheFirstFolderThatHoldsTheContentsIsTaken)
{
    const QString guides = QStringLiteral(ZRV_GUIDE);
    EXPECT_EQ(guideFolder({folder.path(), guides, u"/"_s}), guides);
    EXPECT_EQ(guideFolder({folder.path()}), QString());
}

TEST_F(Guide, AHeldKeyOpensNoGuide)
{
    QWidget &field = *window.inputFor(*login.activeControl());
    bool opened = false;
    QTimer::singleShot(0, qApp, [&] {
        opened = openGuide() != nullptr;
        if (opened)
            openGuide()->close();
    });
    QKeyEvent held(QEvent::KeyPress, Qt::Key_F1, Qt::NoModifier, QString(), true);
    QApplication::sendEvent(&field, &held);
    QTest::qWait(1);
    EXPECT_FALSE(opened);
}

TEST_F(Guide, TheFirstColumnOfATableIsTheRightmost)
{
    QFile page(folder.filePath(u"index.html"_s));
    ASSERT_TRUE(page.open(QIODevice::WriteOnly));
    page.write("<html dir=\"rtl\"><body><table><tr><th>a</th><th>b</th></tr>\n<tr><td>c</td><td>d</td></tr></table>"
               "<p>e</p></body></html>");
    page.close();
    const GuideViewer guide(folder.path(), u"index"_s, nullptr);
    EXPECT_EQ(guide.findChild<QTextBrowser *>()->toPlainText().simplified(), u"b a d c e"_s);
}

TEST(GuideOfABusyForm, IsNotOpened)
{
    class RunForm : public TestForm {
    public:
        Button run{*this, u"run"_s, {.caption = u"run"_s}};
    };
    Shown<RunForm> shown;
    bool opened = false;
    QTimer::singleShot(0, qApp, [&] {
        opened = openGuide() != nullptr;
        if (opened)
            openGuide()->close();
    });
    shown.form.run.onClick = [&] { pressKey(shown.input(shown.form.run), Qt::Key_F1); };
    pressKey(shown.input(shown.form.run), Qt::Key_Return);
    QTest::qWait(1);
    EXPECT_FALSE(opened);
    EXPECT_TRUE(shown.platform.boxes.empty());
}

TEST_F(Guide, EveryPictureFitsIntoThePage)
{
    withGuide([&](GuideViewer &guide) {
        auto &pages = *guide.findChild<QTextBrowser *>();
        for (const QString &page : QDir(QStringLiteral(ZRV_GUIDE)).entryList({u"*.html"_s})) {
            pages.setSource(QUrl::fromLocalFile(QStringLiteral(ZRV_GUIDE "/") + page));
            EXPECT_EQ(pages.horizontalScrollBar()->maximum(), 0) << qPrintable(page);
        }
    });
}

} // namespace zrv::test
