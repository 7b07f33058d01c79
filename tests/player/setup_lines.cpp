// SPDX-License-Identifier: GPL-3.0-or-later
// The lines that lay the sitting's world ready.
#include "tests/player/lines.h"
#include "tests/player/player.h"

namespace zrv::player::lines {

using namespace Qt::Literals::StringLiterals;

void today(Player &player, const Line &line)
{
    const QDate date = QDate::fromString(line.text(0), Qt::ISODate);
    if (!date.isValid())
        throw ScenarioError(line.text(0) + u" is no date of the form 2010-05-24"_s);
    player.platform().shownDate = date;
}

void time(Player &player, const Line &line)
{
    const QTime time = QTime::fromString(line.text(0), u"HH:mm:ss"_s);
    if (!time.isValid())
        throw ScenarioError(line.text(0) + u" is no time of the form 10:30:00"_s);
    player.platform().shownTime = time;
}

void display(Player &player, const Line &line)
{
    const QSize size(line.text(0).toInt(), line.text(1).toInt());
    if (size.isEmpty())
        throw ScenarioError(u"a display's size is two numbers above 0"_s);
    player.platform().shownDisplay = size;
}

void setting(Player &player, const Line &line)
{
    player.platform().saveSetting(line.text(0), line.text(1), line.text(2));
}

void start(Player &player, const Line &line)
{
    Q_UNUSED(line);
    player.startProgram();
}

void answer(Player &player, const Line &line)
{
    const QString word = line.text(0);
    if (word != u"yes" && word != u"no")
        throw ScenarioError(u"an answer is yes or no"_s);
    player.platform().answers.push_back(word == u"yes" ? Answer::Yes : Answer::No);
}

void file(Player &player, const Line &line)
{
    std::optional<QString> chosen;
    if (line.text(0) != u"cancel")
        chosen = player.path(line.text(0));
    player.platform().files.push_back(chosen);
}

} // namespace zrv::player::lines
