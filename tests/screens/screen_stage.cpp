// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/screens/screen_stage.h"

#include <gtest/gtest.h>

namespace zrv {

using namespace Qt::Literals::StringLiterals;

namespace {

bool choose(Screen &screen, Combo &combo, const QString &code)
{
    for (size_t row = 0; row < combo.items().size(); ++row)
        if (combo.items()[row].code == code)
            return screen.userChoose(combo, static_cast<int>(row));
    return false;
}

bool carryOut(Screen &screen, const Step &step)
{
    Control *const control = screen.find(step.control);
    const QString value = QString::fromUtf16(step.value);
    if (!control || !control->isReachable())
        return false;
    if (auto *const combo = dynamic_cast<Combo *>(control))
        return choose(screen, *combo, value);
    if (auto *const grid = dynamic_cast<Grid *>(control))
        return screen.userHead(*grid, value.toInt());
    if (auto *const tabs = dynamic_cast<Tabs *>(control))
        return screen.userPage(*tabs, value.toInt());
    if (!dynamic_cast<Edit *>(control))
        return screen.userClick(*control);
    return screen.userFocus(*control) && screen.userPaste(value);
}

} // namespace

Answer BoxKeeper::messageBox(int style, const QString &title, const QString &text)
{
    for (const QString &failed : {u"اخطار"_s, u"Add"_s, u"Delete"_s})
        if (title == failed)
            m_failures += title + u": "_s + text;
    if (text.startsWith(u"Unknown Error"_s))
        m_failures += text;
    return (style & box::YesNo) != 0 ? Answer::Yes : Answer::Ok;
}

void BoxKeeper::runModal(Form &form)
{
    m_opened += form.name();
}

std::unique_ptr<Screen> openAt(const Stage &stage, Program &program)
{
    std::unique_ptr<Screen> screen = stage.make(program);
    screen->load();
    screen->activate();
    for (const Step &step : stage.way)
        EXPECT_TRUE(carryOut(*screen, step)) << QString::fromUtf16(step.control).toStdString();
    return screen;
}

std::vector<Edit *> openFields(const Screen &screen)
{
    std::vector<Edit *> fields;
    for (Control *control : screen.controls())
        if (auto *const edit = dynamic_cast<Edit *>(control); edit && edit->isReachable() && !edit->isLocked())
            fields.push_back(edit);
    return fields;
}

} // namespace zrv
