// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/player/stage.h"

#include <algorithm>

namespace zrv::player {

void HeadlessStage::runModal(Form &form, const std::function<void()> &letUserAct)
{
    form.activate();
    if (form.isOpen())
        letUserAct();
}

bool HeadlessStage::focus(Control &control)
{
    return control.form().userFocus(control);
}

bool HeadlessStage::selectText(Control &control)
{
    if (auto *edit = dynamic_cast<Edit *>(&control))
        edit->selectAll();
    return true;
}

bool HeadlessStage::letter(Form &form, QChar letter)
{
    return form.userLetter(letter);
}

bool HeadlessStage::key(Form &form, Key key)
{
    return form.userKey(key);
}

bool HeadlessStage::paste(Form &form, const QString &text)
{
    return form.userPaste(text);
}

bool HeadlessStage::click(Control &control)
{
    return control.form().userClick(control);
}

bool HeadlessStage::dblClick(Control &control)
{
    const bool clicked = control.kind() == ControlKind::Grid || control.form().userClick(control);
    return clicked && control.form().userDblClick(control);
}

bool HeadlessStage::chooseRow(Control &list, int row)
{
    Form &form = list.form();
    if (auto *combo = dynamic_cast<Combo *>(&list))
        return form.userChoose(*combo, row);
    if (auto *tabs = dynamic_cast<Tabs *>(&list))
        return form.userPage(*tabs, row);
    return form.userChoose(static_cast<ListBox &>(list), row);
}

bool HeadlessStage::tickRow(ListBox &list, int row)
{
    return list.form().userCheckItem(list, row, true);
}

bool HeadlessStage::tick(Control &checkOrOption)
{
    // A user who finds a check box as it should not be clicks it; an option button is only ever chosen.
    const auto *box = dynamic_cast<const CheckBox *>(&checkOrOption);
    return checkOrOption.form().userCheck(checkOrOption, !box || !box->isChecked());
}

bool HeadlessStage::row(Grid &grid, int row)
{
    return grid.form().userRow(grid, row, std::max(0, grid.currentColumn()));
}

bool HeadlessStage::line(ReportBox &report, qint64 line)
{
    return report.form().userLines(report, line, line);
}

bool HeadlessStage::head(Grid &grid, int column)
{
    return grid.form().userHead(grid, column);
}

bool HeadlessStage::close(Form &form)
{
    return form.userClose();
}

} // namespace zrv::player
