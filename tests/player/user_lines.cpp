// SPDX-License-Identifier: GPL-3.0-or-later
// What the user does.
#include "tests/player/lines.h"
#include "tests/player/player.h"
#include "tests/player/properties.h"

#include <array>
#include <utility>

namespace zrv::player::lines {

using namespace Qt::Literals::StringLiterals;

namespace {

struct NamedKey {
    QString name;
    Key key;
};

const std::array NamedKeys{
    NamedKey{u"Enter"_s, Key::Enter},
    NamedKey{u"Escape"_s, Key::Escape},
    NamedKey{u"Tab"_s, Key::Tab},
    NamedKey{u"Delete"_s, Key::Delete},
    NamedKey{u"Backspace"_s, Key::Backspace},
    NamedKey{u"Left"_s, Key::Left},
    NamedKey{u"Right"_s, Key::Right},
    NamedKey{u"Up"_s, Key::Up},
    NamedKey{u"Down"_s, Key::Down},
    NamedKey{u"PageUp"_s, Key::PageUp},
    NamedKey{u"PageDown"_s, Key::PageDown},
    NamedKey{u"F3"_s, Key::F3},
    NamedKey{u"F8"_s, Key::F8},
    NamedKey{u"F9"_s, Key::F9},
    NamedKey{u"Ctrl+F"_s, Key::Find},
};

template <class Kind>
Kind &ofKind(Control &control, const QString &kind)
{
    if (auto *const wanted = dynamic_cast<Kind *>(&control))
        return *wanted;
    failLine(control.name() + u" is a "_s + kindText(control.kind()) + u" and no "_s + kind);
}

int numberFrom(const QString &text)
{
    bool isNumber = false;
    const int number = text.toInt(&isNumber);
    if (!isNumber)
        throw ScenarioError(text + u" is no number"_s);
    return number;
}

/// A user's action that the screen refused. The looks before it leave a screen that is still busy as the reason.
void carriedOut(Player &player, const Line &line, const Control &control, bool done)
{
    if (!done && !player.isOver(line))
        failLine(control.takesFocus() ? u"the screen took no notice of "_s + control.name()
                                      : control.name() + u" can't have the focus"_s);
}

void focusOn(Player &player, const Line &line, Control &control)
{
    carriedOut(player, line, control, player.stage().focus(control));
}

/// Presses the keys of a text until the text, or the line, is over: keys pressed behind one that opened or closed a
/// screen would act on a screen that the line doesn't mean.
void press(Player &player, const Line &line, const QString &text)
{
    Form &form = player.topmost();
    for (qsizetype place = 0; place < text.size(); ++place) {
        const QChar letter = text[place];
        bool done = true;
        if (letter == u'\r' || letter == u'\n') {
            done = player.stage().key(form, Key::Enter);
            if (letter == u'\r' && place + 1 < text.size() && text[place + 1] == u'\n')
                ++place;
        } else if (letter == u'\t') {
            done = player.stage().key(form, Key::Tab);
        } else {
            if (!form.activeControl())
                failLine(u"no control has the focus"_s);
            done = player.stage().letter(form, letter);
        }
        if (player.isOver(line) || !form.isOpen())
            return;
        if (!done)
            failLine(u"the screen took no notice of the key "_s + quotedWord(letter));
    }
}

/// Focuses a control and selects its text, ready for what is typed or pasted; false when the line is over with that.
bool enter(Player &player, const Line &line, Control &control)
{
    focusOn(player, line, control);
    if (player.isOver(line) || !control.form().isOpen())
        return false;
    if (!control.hasFocus()) {
        const Control *const other = control.form().activeControl();
        failLine(control.name() + u" could not keep the focus; it is "_s
                 + (other ? u"at "_s + other->name() : u"nowhere"_s));
    }
    player.stage().selectText(control);
    return true;
}

void pick(Player &player, const Line &line, Control &list, int row, const QString &sought)
{
    if (row < 0)
        failLine(list.name() + u" has no row "_s + quotedWord(sought));
    if (const auto *const edit = dynamic_cast<const Edit *>(&list); edit && edit->isLocked())
        failLine(list.name() + u" is locked"_s);
    carriedOut(player, line, list, player.stage().chooseRow(list, row));
}

std::vector<ListItem> itemsOf(const Control &control)
{
    const std::optional<std::vector<ListItem>> items = listItems(control);
    if (!items)
        failLine(control.name() + u" is a "_s + kindText(control.kind()) + u" and has no list"_s);
    return *items;
}

template <class Wanted>
int rowWhere(const std::vector<ListItem> &items, Wanted wanted)
{
    const auto found = std::find_if(items.begin(), items.end(), wanted);
    return found == items.end() ? -1 : static_cast<int>(found - items.begin());
}

} // namespace

void focus(Player &player, const Line &line)
{
    focusOn(player, line, player.reachable(line.text(0)));
}

void type(Player &player, const Line &line)
{
    if (enter(player, line, player.reachable(line.text(0))))
        press(player, line, line.text(1));
}

void keys(Player &player, const Line &line)
{
    press(player, line, line.text(0));
}

void paste(Player &player, const Line &line)
{
    Control &control = player.reachable(line.text(0));
    if (enter(player, line, control))
        carriedOut(player, line, control, player.stage().paste(control.form(), line.text(1)));
}

void key(Player &player, const Line &line)
{
    Form &form = player.topmost();
    for (const NamedKey &named : NamedKeys)
        if (named.name == line.text(0)) {
            if (!player.stage().key(form, named.key) && !player.isOver(line))
                failLine(u"the screen took no notice of the key"_s);
            return;
        }
    throw ScenarioError(u"there is no key "_s + line.text(0));
}

void choose(Player &player, const Line &line)
{
    Control &list = player.reachable(line.text(0));
    const QString code = line.text(1);
    const std::vector<ListItem> items = itemsOf(list);
    const bool hasCodes = rowWhere(items, [](const ListItem &item) { return !item.code.isEmpty(); }) >= 0;
    pick(player, line, list,
         rowWhere(items, [&](const ListItem &item) { return (hasCodes ? item.code : item.shown) == code; }), code);
}

void chooseText(Player &player, const Line &line)
{
    Control &list = player.reachable(line.text(0));
    const QString text = line.text(1);
    const int row = rowWhere(itemsOf(list), [&](const ListItem &item) { return item.shown == text; });
    auto *const ticked = dynamic_cast<ListBox *>(&list);
    if (row >= 0 && ticked && ticked->hasCheckBoxes())
        carriedOut(player, line, list, player.stage().tickRow(*ticked, row));
    else
        pick(player, line, list, row, text);
}

void tick(Player &player, const Line &line)
{
    if (line.text(1) != u"on" && line.text(1) != u"off")
        throw ScenarioError(u"a tick is on or off"_s);
    const bool on = line.text(1) == u"on";
    Control &control = player.reachable(line.text(0));
    const QString ticked = findProperty(u"checked")->of(control).value_or(QString());
    if (ticked.isEmpty())
        failLine(control.name() + u" is a "_s + kindText(control.kind()) + u" and can't be ticked"_s);
    if (ticked == flagText(on))
        focusOn(player, line, control);
    else if (control.kind() == ControlKind::OptionButton && !on)
        failLine(u"an option button is cleared by choosing another one"_s);
    else
        carriedOut(player, line, control, player.stage().tick(control));
}

void click(Player &player, const Line &line)
{
    Control &control = player.reachable(line.text(0));
    // In a field or a list a click is no more than the way to it.
    const bool clicks = !control.takesFocus() || control.kind() == ControlKind::Button
                        || control.kind() == ControlKind::CheckBox || control.kind() == ControlKind::OptionButton;
    carriedOut(player, line, control, clicks ? player.stage().click(control) : player.stage().focus(control));
}

void dblclick(Player &player, const Line &line)
{
    Control &control = player.reachable(line.text(0));
    if (const auto *const grid = dynamic_cast<const Grid *>(&control); grid && grid->currentRow() < 0)
        failLine(control.name() + u" has no current row"_s);
    if (const auto *const report = dynamic_cast<ReportBox *>(&control); report && report->currentLine() < 0)
        failLine(control.name() + u" has no lines"_s);
    carriedOut(player, line, control, player.stage().dblClick(control));
}

void row(Player &player, const Line &line)
{
    Control &control = player.reachable(line.text(0));
    const int row = numberFrom(line.text(1));
    if (auto *const report = dynamic_cast<ReportBox *>(&control)) {
        if (row < 1 || row > report->lineCount())
            failLine(report->name() + u" has "_s + QString::number(report->lineCount()) + u" lines"_s);
        carriedOut(player, line, control, player.stage().line(*report, row - 1));
        return;
    }
    auto &grid = ofKind<Grid>(control, u"Grid"_s);
    if (row < 1 || row > grid.rowCount())
        failLine(grid.name() + u" has "_s + QString::number(grid.rowCount()) + u" rows"_s);
    carriedOut(player, line, grid, player.stage().row(grid, row - 1));
}

void head(Player &player, const Line &line)
{
    auto &grid = ofKind<Grid>(player.reachable(line.text(0)), u"Grid"_s);
    const int column = numberFrom(line.text(1));
    if (column < 0 || std::cmp_greater_equal(column, grid.columns().size()))
        failLine(grid.name() + u" has "_s + QString::number(grid.columns().size()) + u" columns"_s);
    carriedOut(player, line, grid, player.stage().head(grid, column));
}

void close(Player &player, const Line &line)
{
    if (!player.stage().close(player.topmost()) && !player.isOver(line))
        failLine(u"the screen took no notice of its close box"_s);
}

} // namespace zrv::player::lines
