// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/player/command.h"

#include "tests/player/lines.h"

#include <array>

namespace zrv::player {

using namespace Qt::Literals::StringLiterals;

namespace {

// clang-format off
const std::array Commands{
    Command{u"today"_s,             u"YYYY-MM-DD"_s,            When::BeforeStart, lines::today,           u"the Gregorian date the program sees as today (2010-05-24 unless told)"_s},
    Command{u"time"_s,              u"HH:MM:SS"_s,              When::BeforeStart, lines::time,            u"the time of day it sees (10:30:00 unless told)"_s},
    Command{u"display"_s,           u"WIDTH HEIGHT"_s,          When::BeforeStart, lines::display,         u"the size of the display it sees (1280 1024 unless told)"_s},
    Command{u"setting"_s,           u"SECTION KEY VALUE"_s,     When::BeforeStart, lines::setting,         u"puts a program setting"_s},
    Command{u"sql"_s,               u"STATEMENT"_s,             When::Anywhere,    lines::sql,             u"runs a statement on the store; a SELECT prints its rows"_s, true},
    Command{u"start"_s,             u""_s,                      When::BeforeStart, lines::start,           u"starts the program; again when it has ended"_s},

    Command{u"focus"_s,             u"CONTROL"_s,               When::AfterStart,  lines::focus,           u"moves the focus there"_s},
    Command{u"type"_s,              u"CONTROL TEXT"_s,          When::AfterStart,  lines::type,            u"focuses it, selects its text, presses the keys of TEXT"_s},
    Command{u"keys"_s,              u"TEXT"_s,                  When::AfterStart,  lines::keys,            u"presses the keys of TEXT where the focus is"_s},
    Command{u"paste"_s,             u"CONTROL TEXT"_s,          When::AfterStart,  lines::paste,           u"focuses it, selects its text, pastes TEXT"_s},
    Command{u"key"_s,               u"NAME"_s,                  When::AfterStart,  lines::key,             u"Enter, Escape, Tab, Backspace, Delete, Left, Right, Up, Down, PageUp, PageDown, F3, F8, F9, Ctrl+F"_s},
    Command{u"choose"_s,            u"CONTROL CODE"_s,          When::AfterStart,  lines::choose,          u"picks the row of a list with this code (without codes: this text)"_s},
    Command{u"choose-text"_s,       u"CONTROL TEXT"_s,          When::AfterStart,  lines::chooseText,      u"picks, or ticks, the row of a list with this text"_s},
    Command{u"tick"_s,              u"CONTROL on|off"_s,        When::AfterStart,  lines::tick,            u"a check box or an option button"_s},
    Command{u"click"_s,             u"CONTROL"_s,               When::AfterStart,  lines::click,           u"clicks a button, a menu item, an option"_s},
    Command{u"dblclick"_s,          u"CONTROL"_s,               When::AfterStart,  lines::dblclick,        u"double click; on a grid: of the current row"_s},
    Command{u"row"_s,               u"GRID N"_s,                When::AfterStart,  lines::row,             u"makes row N (from 1) of a grid, or line N of a report, current"_s},
    Command{u"head"_s,              u"GRID N"_s,                When::AfterStart,  lines::head,            u"clicks the head of column N (from 0)"_s},
    Command{u"close"_s,             u""_s,                      When::AfterStart,  lines::close,           u"the close box of the topmost screen"_s},
    Command{u"answer"_s,            u"yes|no"_s,                When::Anywhere,    lines::answer,          u"the answer to the next question"_s},
    Command{u"file"_s,              u"PATH|cancel"_s,           When::Anywhere,    lines::file,            u"the answer to the next file dialogue"_s},

    Command{u"expect"_s,            u"CONTROL PROPERTY VALUE"_s, When::AfterStart, lines::expect,          u"a property of a control"_s},
    Command{u"expect-cell"_s,       u"GRID ROW COLUMN VALUE"_s, When::AfterStart,  lines::expectCell,      u"a cell as shown; rows from 1, columns from 0"_s},
    Command{u"expect-box"_s,        u"TITLE TEXT"_s,            When::Anywhere,    lines::expectBox,       u"the oldest box not yet expected"_s},
    Command{u"expect-style"_s,      u"STYLE"_s,                 When::Anywhere,    lines::expectStyle,     u"the style of the box just expected"_s},
    Command{u"expect-no-box"_s,     u""_s,                      When::Anywhere,    lines::expectNoBox,     u"no box is left that was not expected"_s},
    Command{u"expect-screen"_s,     u"NAME"_s,                  When::Anywhere,    lines::expectScreen,    u"the topmost screen"_s},
    Command{u"expect-ended"_s,      u""_s,                      When::Anywhere,    lines::expectEnded,     u"the program has ended"_s},
    Command{u"expect-sql"_s,        u"STATEMENT VALUE"_s,       When::Anywhere,    lines::expectSql,       u"rows of a statement: columns joined by |, rows by ;"_s},
    Command{u"expect-file"_s,       u"PATH TEXT"_s,             When::Anywhere,    lines::expectFile,      u"the text of a file, lines joined by \\n"_s},
    Command{u"expect-exists"_s,     u"PATH"_s,                  When::Anywhere,    lines::expectExists,    u"a file or folder is there"_s},
    Command{u"expect-missing"_s,    u"PATH"_s,                  When::Anywhere,    lines::expectMissing,   u"none is there"_s},
    Command{u"expect-print"_s,      u"REPORT PAGES"_s,          When::Anywhere,    lines::expectPrint,     u"the oldest preview not yet expected"_s},
    Command{u"expect-print-text"_s, u"TEXT"_s,                  When::Anywhere,    lines::expectPrintText, u"a text on the pages of the preview just expected"_s},

    Command{u"show"_s,              u"CONTROL"_s,               When::AfterStart,  lines::show,            u"prints every property of a control"_s},
    Command{u"controls"_s,          u""_s,                      When::AfterStart,  lines::controls,        u"prints the controls of the topmost screen"_s},
    Command{u"rows"_s,              u"GRID"_s,                  When::AfterStart,  lines::rows,            u"prints the rows of a grid"_s},
    Command{u"save"_s,              u"CONTROL PATH"_s,          When::AfterStart,  lines::save,            u"writes a control's text to a file in UTF-8"_s},
    Command{u"save-print"_s,        u"PATH"_s,                  When::Anywhere,    lines::savePrint,       u"writes the preview just shown as a PDF"_s},
    Command{u"picture"_s,           u"PATH"_s,                  When::AfterStart,  lines::picture,         u"with --widgets: the topmost window as a PNG"_s},
    Command{u"picture-print"_s,     u"PATH"_s,                  When::AfterStart,  lines::picturePrint,    u"with --widgets: the preview just shown as a PNG"_s},
};
// clang-format on

} // namespace

std::span<const Command> allCommands()
{
    return Commands;
}

const Command *findCommand(QStringView word)
{
    for (const Command &command : Commands)
        if (command.word == word)
            return &command;
    return nullptr;
}

} // namespace zrv::player
