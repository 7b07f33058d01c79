// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/screen.h"

#include "core/mdlError.h"

namespace zrv {

using namespace Qt::Literals::StringLiterals;

Screen::Screen(Program &program, QString name)
    : Form(std::move(name))
    , m_program(program)
    , m_platform(program.platform)
{
}

void Screen::openScreen(const QString &name)
{
    const std::unique_ptr<Screen> screen = m_program.catalogue.make(name, m_program);
    if (screen)
        openModal(*screen);
    else
        messageBox(box::Information, u"توجه"_s, u"اين بخش هنوز به برنامه اضافه نشده است."_s);
}

void Screen::openModal(Screen &screen)
{
    screen.load();
    if (screen.isOpen())
        m_platform.runModal(screen);
    if (isOpen())
        activate();
}

Answer Screen::messageBox(int style, const QString &title, const QString &text)
{
    return m_platform.messageBox(style, title, text);
}

void Screen::failed(const RunTimeError &failure)
{
    ShowUnknownError(m_platform, failure);
}

} // namespace zrv
