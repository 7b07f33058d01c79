// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace zrv::player {

class Player;
struct Line;

/// The routines of the lines, one a word of the scenarios; the table of all lines is in command.cpp. Each reads the
/// words of its line, does or checks, and raises LineFailed (or ScenarioError for words that make no sense).
namespace lines {

// setup_lines.cpp
void today(Player &player, const Line &line);
void time(Player &player, const Line &line);
void display(Player &player, const Line &line);
void setting(Player &player, const Line &line);
void start(Player &player, const Line &line);
void answer(Player &player, const Line &line);
void file(Player &player, const Line &line);

// store_lines.cpp
void sql(Player &player, const Line &line);
void expectSql(Player &player, const Line &line);

// user_lines.cpp
void focus(Player &player, const Line &line);
void type(Player &player, const Line &line);
void keys(Player &player, const Line &line);
void paste(Player &player, const Line &line);
void key(Player &player, const Line &line);
void choose(Player &player, const Line &line);
void chooseText(Player &player, const Line &line);
void tick(Player &player, const Line &line);
void click(Player &player, const Line &line);
void dblclick(Player &player, const Line &line);
void row(Player &player, const Line &line);
void head(Player &player, const Line &line);
void close(Player &player, const Line &line);

// expect_lines.cpp
void expect(Player &player, const Line &line);
void expectCell(Player &player, const Line &line);
void expectBox(Player &player, const Line &line);
void expectStyle(Player &player, const Line &line);
void expectNoBox(Player &player, const Line &line);
void expectScreen(Player &player, const Line &line);
void expectEnded(Player &player, const Line &line);
void expectFile(Player &player, const Line &line);
void expectExists(Player &player, const Line &line);
void expectMissing(Player &player, const Line &line);
void expectPrint(Player &player, const Line &line);
void expectPrintText(Player &player, const Line &line);

// writer_lines.cpp
void show(Player &player, const Line &line);
void controls(Player &player, const Line &line);
void rows(Player &player, const Line &line);
void save(Player &player, const Line &line);
void savePrint(Player &player, const Line &line);
void picture(Player &player, const Line &line);
void picturePrint(Player &player, const Line &line);

} // namespace lines

} // namespace zrv::player
