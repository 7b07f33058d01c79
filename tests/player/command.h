// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tests/player/word.h"

#include <span>

namespace zrv::player {

class Player;
struct Line;

/// Where in a scenario a line may stand.
enum class When {
    BeforeStart, ///< it prepares the world that the program will find
    AfterStart,  ///< it needs the program
    Anywhere,
};

/// One kind of line: its first word, what must follow, and the routine that carries it out.
struct Command {
    QString word;
    QString arguments; ///< as the help shows them; their number is the number of words that must follow
    When when;
    void (*play)(Player &, const Line &);
    QString help;
    bool restIsOneWord = false; ///< without quotes the whole rest of the line is its argument
    [[nodiscard]] int argumentCount() const { return static_cast<int>(arguments.count(u' ') + !arguments.isEmpty()); }
};

/// All lines that a scenario can hold, but for include, which is gone once a scenario is read.
[[nodiscard]] std::span<const Command> allCommands();
[[nodiscard]] const Command *findCommand(QStringView word);

/// One line of a scenario, ready to be played.
struct Line {
    const Command *command;
    std::vector<Word> words; ///< what follows the command's word
    QString file;
    int number; ///< from 1
    QString source;

    [[nodiscard]] QString text(size_t word) const { return words.at(word).text(); }
    [[nodiscard]] QString place() const { return file + u':' + QString::number(number); }
};

} // namespace zrv::player
