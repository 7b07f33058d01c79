// SPDX-License-Identifier: GPL-3.0-or-later
// Boxes, modal runs and the end of the program.
#include "tests/qt/window_fixture.h"

#include <QComboBox>
#include <QFile>
#include <QFileDialog>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTimer>
#include <QTreeView>

namespace zrv::test {

namespace {

/// Shows a box with the real platform and lets `look` act on it; returns its answer.
Answer shownBox(int style, const QString &title, const QString &text, const std::function<void(QMessageBox &)> &look)
{
    QtPlatform platform;
    QTimer::singleShot(0, qApp, [&] {
        for (QWidget *widget : QApplication::topLevelWidgets())
            if (auto *box = qobject_cast<QMessageBox *>(widget); box && box->isVisible())
                look(*box);
    });
    return platform.messageBox(style, title, text);
}

void clickFirst(QMessageBox &box)
{
    box.buttons().constFirst()->click();
}

class ModalForm : public TestForm {
public:
    Button go{*this, u"go"_s, {.caption = u"go"_s}};
    std::function<bool(UnloadMode)> query;

protected:
    bool Form_QueryUnload(UnloadMode mode) override { return !query || query(mode); }
};

} // namespace

TEST(MessageBox, TitleAndTextAreGivenLetterForLetter)
{
    shownBox(box::Refusal, u" اخطار  "_s, u"  نام كاربري و پسورد صحيح نميباشد "_s, [](QMessageBox &box) {
        EXPECT_EQ(box.windowTitle(), u" اخطار  "_s);
        EXPECT_EQ(box.text(), u"  نام كاربري و پسورد صحيح نميباشد "_s);
        EXPECT_EQ(box.icon(), QMessageBox::Critical);
        EXPECT_EQ(box.layoutDirection(), Qt::RightToLeft);
        clickFirst(box);
    });
}

TEST(MessageBox, EveryKindOfLineEndBreaksTheLineOnce)
{
    shownBox(box::Plain, {}, u"a\rb\r\nc\nd"_s, [](QMessageBox &box) {
        EXPECT_EQ(box.text(), u"a\nb\nc\nd"_s);
        EXPECT_EQ(box.windowTitle(), QString());
        EXPECT_EQ(box.icon(), QMessageBox::NoIcon);
        clickFirst(box);
    });
}

TEST(MessageBox, ThePathInItBeginsWithItsSlash)
{
    shownBox(box::Plain, {}, u"پوشه : /srv/pay\n/srv/ليست 2/3\nو/يا"_s, [](QMessageBox &box) {
        EXPECT_EQ(box.text(), u"پوشه : \u200E/srv/pay\n\u200E/srv/ليست 2/3\nو/يا"_s);
        clickFirst(box);
    });
}

TEST(MessageBox, ItsTextCanBeMarkedByMouseAndKeyboardAndIsNoMarkup)
{
    shownBox(box::Information, {}, u"<b>138902</b>"_s, [](QMessageBox &box) {
        auto *const label = box.findChild<QLabel *>(u"qt_msgbox_label"_s);
        ASSERT_TRUE(label);
        EXPECT_TRUE(label->textInteractionFlags() & Qt::TextSelectableByMouse);
        EXPECT_TRUE(label->textInteractionFlags() & Qt::TextSelectableByKeyboard);
        EXPECT_EQ(label->textFormat(), Qt::PlainText);
        EXPECT_EQ(box.icon(), QMessageBox::Information);
        clickFirst(box);
    });
}

TEST(MessageBox, AQuestionHasYesFirstAndEscapeIsNo)
{
    const Answer answer = shownBox(box::AskYesNo, {}, u"?"_s, [](QMessageBox &box) {
        EXPECT_EQ(box.icon(), QMessageBox::Question);
        ASSERT_EQ(box.buttons().size(), 2);
        EXPECT_EQ(box.defaultButton()->text(), u"بله"_s);
        EXPECT_EQ(box.escapeButton()->text(), u"خير"_s);
        pressKey(box, Qt::Key_Escape);
    });
    EXPECT_EQ(answer, Answer::No);
}

TEST(MessageBox, EnterAnswersYesAndAPlainBoxAnswersOk)
{
    EXPECT_EQ(
        shownBox(box::YesNo, {}, u"?"_s, [](QMessageBox &box) { pressKey(*box.defaultButton(), Qt::Key_Return); }),
        Answer::Yes);
    EXPECT_EQ(shownBox(box::Information, {}, u"!"_s,
                       [](QMessageBox &box) {
                           EXPECT_EQ(box.defaultButton()->text(), u"تاييد"_s);
                           pressKey(box, Qt::Key_Escape);
                       }),
              Answer::Ok);
}

TEST(FileDialog, PathsReadFromTheLeftAndKindsArePersianAndNothingScrollsSideways)
{
    const QTemporaryDir folder;
    ASSERT_TRUE(QDir(folder.path()).mkdir(u"140501"_s));
    for (const QString &name : {u"WH140501.TXT"_s, u"noted"_s}) {
        QFile file(folder.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    }
    ForgetfulPlatform platform;
    QStringList kinds;
    QTimer::singleShot(0, qApp, [&] {
        auto *const dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
        ASSERT_TRUE(dialog);
        EXPECT_EQ(dialog->findChild<QComboBox *>(u"lookInCombo"_s)->layoutDirection(), Qt::LeftToRight);
        EXPECT_EQ(dialog->findChild<QLineEdit *>(u"fileNameEdit"_s)->layoutDirection(), Qt::LeftToRight);
        EXPECT_EQ(dialog->layoutDirection(), Qt::RightToLeft);
        const auto &view = *dialog->findChild<QTreeView *>(u"treeView"_s);
        QTRY_COMPARE(view.model()->rowCount(view.rootIndex()), 3);
        for (int row = 0; row < 3; ++row)
            kinds += view.model()->index(row, 2, view.rootIndex()).data().toString();
        QTest::qWait(50);
        EXPECT_EQ(view.horizontalScrollBar()->maximum(), 0);
        dialog->reject();
    });
    EXPECT_EQ(platform.openFileDialog(folder.path(), u"*"_s), std::nullopt);
    EXPECT_EQ(kinds, (QStringList{u"پوشه"_s, u"فايل"_s, u"فايل TXT"_s}));
}

TEST(ModalRun, ItReturnsWhenTheFormCloses)
{
    QtPlatform platform;
    ModalForm form;
    form.go.onClick = [&] { form.unload(); };
    form.load();
    QTimer::singleShot(0, qApp, [&] {
        EXPECT_EQ(platform.topWindow(), platform.windowOf(form));
        EXPECT_EQ(platform.topWindow()->windowModality(), Qt::ApplicationModal);
        static_cast<QPushButton *>(platform.topWindow()->widgetFor(form.go))->click();
    });
    platform.runModal(form);
    EXPECT_FALSE(form.isOpen());
    EXPECT_EQ(platform.topWindow(), nullptr);
}

TEST(ModalRun, TheUsersLeavingTheDesktopLeavesEveryNestedRunUnasked)
{
    QtPlatform platform;
    ModalForm outer;
    ModalForm inner;
    QList<UnloadMode> asked;
    outer.query = inner.query = [&](UnloadMode mode) {
        asked += mode;
        return true;
    };
    outer.go.onClick = [&] {
        inner.load();
        platform.runModal(inner);
    };
    inner.go.onClick = [&] { platform.messageBox(box::AskYesNo, {}, u"?"_s); };
    outer.load();
    const auto click = [&](ModalForm &form) {
        static_cast<QPushButton *>(platform.windowOf(form)->widgetFor(form.go))->click();
    };
    QTimer::singleShot(0, qApp, [&] {
        QTimer::singleShot(0, qApp, [&] {
            QTimer::singleShot(0, qApp, [] {
                QEvent quit(QEvent::Quit);
                QCoreApplication::sendEvent(qApp, &quit);
            });
            click(inner);
        });
        click(outer);
    });
    EXPECT_THROW(platform.runModal(outer), ProgramEnd);
    EXPECT_EQ(asked, (QList{UnloadMode::SystemShutdown, UnloadMode::SystemShutdown}));
}

TEST(ModalRun, TheEndOfTheProgramLeavesEveryNestedRun)
{
    QtPlatform platform;
    ModalForm outer;
    ModalForm inner;
    bool outerWentOn = false;
    outer.go.onClick = [&] {
        inner.load();
        platform.runModal(inner);
        outerWentOn = true;
    };
    inner.go.onClick = [] { throw ProgramEnd{}; };
    outer.load();
    QTimer::singleShot(0, qApp, [&] {
        QTimer::singleShot(0, qApp,
                           [&] { static_cast<QPushButton *>(platform.windowOf(inner)->widgetFor(inner.go))->click(); });
        static_cast<QPushButton *>(platform.windowOf(outer)->widgetFor(outer.go))->click();
    });
    EXPECT_THROW(platform.runModal(outer), ProgramEnd);
    EXPECT_FALSE(outerWentOn);
    EXPECT_TRUE(platform.isEnding());
    EXPECT_EQ(platform.topWindow(), nullptr);
}

TEST(ModalRun, ABoxThatIsOpenWhenTheProgramEndsGoesWithIt)
{
    QtPlatform platform;
    ModalForm form;
    Timer timer(form, u"tmrEnd"_s, 20);
    form.go.onClick = [&] { platform.messageBox(box::Plain, {}, u"waits"_s); };
    timer.onTimer = [] {
        if (QApplication::activeModalWidget() && qobject_cast<QMessageBox *>(QApplication::activeModalWidget()))
            throw ProgramEnd{};
    };
    form.load();
    QTimer::singleShot(0, qApp,
                       [&] { static_cast<QPushButton *>(platform.windowOf(form)->widgetFor(form.go))->click(); });
    EXPECT_THROW(platform.runModal(form), ProgramEnd);
}

TEST(Settings, ASavedValueIsReadBackAndOthersFallBack)
{
    QtPlatform platform;
    platform.saveSetting(u"PrevSoftVersion"_s, u"PrevSoftVersionKey"_s, u"( نسخه 1.1.38 - 89/03/03 )"_s);
    EXPECT_EQ(platform.setting(u"PrevSoftVersion"_s, u"PrevSoftVersionKey"_s, u"1"_s), u"( نسخه 1.1.38 - 89/03/03 )"_s);
    EXPECT_EQ(platform.setting(u"Other"_s, u"Key"_s, u"1"_s), u"1"_s);
}

} // namespace zrv::test
