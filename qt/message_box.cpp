// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/basic/run_time_error.h"
#include "qt/form_window.h"
#include "qt/qt_platform.h"

#include <QMessageBox>
#include <QPushButton>
#include <QRegularExpression>

namespace zrv {

using namespace Qt::Literals::StringLiterals;

namespace {

QMessageBox::Icon iconOf(int style)
{
    switch (style & 0x70) {
    case box::Critical:
        return QMessageBox::Critical;
    case box::Question:
        return QMessageBox::Question;
    case box::Warning:
        return QMessageBox::Warning;
    case box::Information:
        return QMessageBox::Information;
    default:
        return QMessageBox::NoIcon;
    }
}

/// Line ends come as CR, LF or both. The slash that begins a path would stand at the path's other end, being of no
/// direction of its own: a mark that nobody sees gives it the path's.
QString shownText(QString text)
{
    static const QRegularExpression pathBegin(u"(?<![^\\s:])(?=/[A-Za-z0-9._~-])"_s);
    text.replace("\r\n"_L1, "\n"_L1).replace(u'\r', u'\n');
    return text.replace(pathBegin, u"\u200E"_s);
}

} // namespace

Answer QtPlatform::messageBox(int style, const QString &title, const QString &text)
{
    QMessageBox box(iconOf(style), title, shownText(text), QMessageBox::NoButton, foremost());
    box.setObjectName(u"messageBox"_s);
    box.setTextFormat(Qt::PlainText);
    // Texts with numbers and paths are read out on the phone and sent by mail.
    box.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    const bool asks = (style & 0xF) == box::YesNo;
    QPushButton *const first =
        asks ? box.addButton(u"بله"_s, QMessageBox::YesRole) : box.addButton(u"تاييد"_s, QMessageBox::AcceptRole);
    QPushButton *const no = asks ? box.addButton(u"خير"_s, QMessageBox::NoRole) : nullptr;
    box.setDefaultButton(first);
    box.setEscapeButton(asks ? no : first);
    runDialog(box);
    if (!asks)
        return Answer::Ok;
    return box.clickedButton() == first ? Answer::Yes : Answer::No;
}

} // namespace zrv
