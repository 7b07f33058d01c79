// SPDX-License-Identifier: GPL-3.0-or-later
// The lines that help whoever writes a scenario.
#include "tests/player/lines.h"
#include "tests/player/player.h"
#include "tests/player/properties.h"

#include <QFile>

#include <utility>

namespace zrv::player::lines {

using namespace Qt::Literals::StringLiterals;

void show(Player &player, const Line &line)
{
    const Control &control = player.control(line.text(0));
    QString all = control.name() + u' ' + kindText(control.kind());
    for (const Property &property : allProperties())
        if (const std::optional<QString> value = property.of(control))
            all += u' ' + property.name + u'=' + quotedWord(*value);
    player.transcript().line(all);
}

void controls(Player &player, const Line &line)
{
    Q_UNUSED(line);
    for (const Control *control : player.topmost().controls())
        player.transcript().line(
            control->name() + u' ' + kindText(control->kind()) + u' ' + quotedWord(control->shownText())
            + u" enabled="_s + flagText(isEnabledThroughout(*control)) + u" visible="_s + flagText(control->isShown()));
}

void rows(Player &player, const Line &line)
{
    const Control &control = player.control(line.text(0));
    const auto *const grid = dynamic_cast<const Grid *>(&control);
    if (!grid)
        failLine(control.name() + u" is a "_s + kindText(control.kind()) + u" and no Grid"_s);
    for (int row = 0; row < grid->rowCount(); ++row) {
        QStringList cells;
        for (int column = 0; std::cmp_less(column, grid->columns().size()); ++column)
            cells += grid->shownCell(row, column);
        player.transcript().line(escapedText(cells.join(u'|')));
    }
}

void save(Player &player, const Line &line)
{
    const QString text = player.control(line.text(0)).shownText();
    QFile file(player.path(line.text(1)));
    if (!file.open(QIODevice::WriteOnly) || file.write(text.toUtf8()) < 0 || !file.flush())
        failLine(file.fileName() + u" can't be written: "_s + file.errorString());
}

void savePrint(Player &player, const Line &line)
{
    const auto &unexpected = player.platform().previews;
    const auto shown = unexpected.empty() ? player.lastPreview : unexpected.back();
    if (!shown)
        failLine(u"no preview was shown"_s);
    const QString path = player.path(line.text(0));
    if (!player.stage().savePdf(*shown, path))
        failLine(path + u" can't be written"_s);
}

void picture(Player &player, const Line &line)
{
    const QString path = player.path(line.text(0));
    if (!player.stage().picture(path))
        failLine(path + u" can't be written"_s);
}

void picturePrint(Player &player, const Line &line)
{
    const QString path = player.path(line.text(0));
    if (!player.stage().picturePrint(path))
        failLine(path + u" can't be written"_s);
}

} // namespace zrv::player::lines
