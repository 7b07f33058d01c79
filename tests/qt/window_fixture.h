// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// A form in a real window, and the hands of a user: keys, mouse, clipboard, drag and drop, input method.

#include "core/basic/run_time_error.h"
#include "core/forms/form.h"
#include "qt/form_window.h"
#include "tests/forgetful_platform.h"

#include <QApplication>
#include <QClipboard>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QPointer>
#include <QTest>

#include <gtest/gtest.h>

namespace zrv::test {

using namespace Qt::Literals::StringLiterals;

/// A box that was shown.
struct ShownBox {
    int style;
    QString title;
    QString text;
};

/// The real platform without a user: boxes are noted and answered, the clock stands.
class QuietPlatform : public ForgetfulPlatform {
public:
    Answer messageBox(int style, const QString &title, const QString &text) override
    {
        boxes.push_back({style, title, text});
        if (onBox)
            onBox();
        return style & box::YesNo ? answer : Answer::Ok;
    }
    QDate today() override { return {2010, 5, 24}; }
    QString programFolder() override { return folder; }

    std::vector<ShownBox> boxes;
    std::function<void()> onBox;
    Answer answer = Answer::No;
    QString folder;
};

class TestForm : public Form {
public:
    TestForm()
        : Form(u"testForm"_s)
    {
    }
    int failures = 0;

protected:
    void failed(const RunTimeError &failure) override
    {
        Q_UNUSED(failure);
        ++failures;
    }
};

/// A form of the given class, loaded and shown.
template <class FormClass>
class Shown {
public:
    Shown()
        : window(form, platform, nullptr)
    {
        form.load();
        window.open();
        form.activate();
        window.syncFocus();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    QuietPlatform platform;
    FormClass form;
    FormWindow window;

    QWidget &input(const Control &control) { return *window.inputFor(control); }
    QLineEdit &line(const Control &control) { return *qobject_cast<QLineEdit *>(window.inputFor(control)); }
};

inline void pressKey(QWidget &widget, int key, const QString &text = {}, Qt::KeyboardModifiers modifiers = {},
                     quint32 place = 0)
{
    QKeyEvent press(QEvent::KeyPress, key, modifiers, place, 0, 0, text);
    QApplication::sendEvent(&widget, &press);
    QKeyEvent release(QEvent::KeyRelease, key, modifiers, place, 0, 0, text);
    QApplication::sendEvent(&widget, &release);
}

/// Letter by letter, as a keyboard of any script does.
inline void type(QWidget &widget, const QString &text)
{
    for (const QChar letter : text)
        pressKey(widget, 0, letter);
}

inline void pasteByKey(QWidget &widget, const QString &text)
{
    QGuiApplication::clipboard()->setText(text);
    pressKey(widget, Qt::Key_V, {}, Qt::ControlModifier);
}

inline void pasteByShiftInsert(QWidget &widget, const QString &text)
{
    QGuiApplication::clipboard()->setText(text);
    pressKey(widget, Qt::Key_Insert, {}, Qt::ShiftModifier);
}

inline void drop(QWidget &widget, const QString &text)
{
    QMimeData data;
    data.setText(text);
    const QPointF place = QRectF(widget.rect()).center();
    QDragEnterEvent enter(place.toPoint(), Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(&widget, &enter);
    QDropEvent dropped(place, Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(&widget, &dropped);
}

inline void commit(QWidget &widget, const QString &text)
{
    QInputMethodEvent composing(text, {});
    QApplication::sendEvent(&widget, &composing);
    QInputMethodEvent done;
    done.setCommitString(text);
    QApplication::sendEvent(&widget, &done);
}

/// A click on an item of the field's own context menu.
inline void chooseFromContextMenu(QWidget &widget, const QString &action)
{
    QContextMenuEvent open(QContextMenuEvent::Keyboard, {}, widget.mapToGlobal(QPoint(2, 2)));
    QApplication::sendEvent(&widget, &open);
    auto *const chosen = widget.findChild<QAction *>(action);
    ASSERT_TRUE(chosen) << qPrintable(action);
    EXPECT_TRUE(chosen->isEnabled()) << qPrintable(action);
    chosen->trigger();
    if (QWidget *const menu = QApplication::activePopupWidget())
        menu->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

} // namespace zrv::test
