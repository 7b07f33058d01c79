// SPDX-License-Identifier: GPL-3.0-or-later
// The real boxes: shown, compared with what the program gave, and answered by a press of their button.
#include "tests/player/player.h"
#include "tests/player/widget_stage.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

namespace zrv::player {

using namespace Qt::Literals::StringLiterals;

namespace {

QMessageBox *openBox()
{
    for (QWidget *window : QApplication::topLevelWidgets())
        if (auto *const box = qobject_cast<QMessageBox *>(window); box && box->isVisible())
            return box;
    return nullptr;
}

QAbstractButton *buttonFor(const QMessageBox &box, Answer answer)
{
    const auto wanted = answer == Answer::Yes  ? QMessageBox::YesRole
                        : answer == Answer::No ? QMessageBox::NoRole
                                               : QMessageBox::AcceptRole;
    for (QAbstractButton *button : box.buttons())
        if (box.buttonRole(button) == wanted)
            return button;
    return nullptr;
}

} // namespace

void WindowPlatform::showBox(const Box &box)
{
    QString wrong = u"it never came up"_s;
    QTimer untilShown;
    QObject::connect(&untilShown, &QTimer::timeout, &untilShown, [&] {
        QMessageBox *const shown = openBox();
        if (!shown)
            return;
        untilShown.stop();
        QAbstractButton *const button = buttonFor(*shown, box.answer);
        wrong.clear();
        if (shown->windowTitle() != box.title)
            wrong = u"its title is "_s + quotedWord(shown->windowTitle());
        else if (shown->text().remove(u'\u200E') != plainLineEnds(box.text)) // the mark that turns a path round
            wrong = u"its text is "_s + quotedWord(shown->text());
        else if (!button)
            wrong = u"it has no button for the answer"_s;
        if (button)
            button->click();
        else
            shown->close();
    });
    untilShown.start(0);
    const Answer answer = QtPlatform::messageBox(box.style, box.title, box.text);
    if (wrong.isEmpty() && answer != box.answer)
        wrong = u"its button gives another answer"_s;
    if (!wrong.isEmpty())
        failLine(u"the box "_s + quotedWord(box.title) + u' ' + quotedWord(box.text) + u" is not shown so: "_s + wrong);
}

} // namespace zrv::player
