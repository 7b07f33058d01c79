// SPDX-License-Identifier: GPL-3.0-or-later
// What must be seen.
#include "tests/player/lines.h"
#include "tests/player/player.h"
#include "tests/player/properties.h"

#include <QFile>
#include <QFileInfo>
#include <QStringDecoder>

#include <utility>

namespace zrv::player::lines {

using namespace Qt::Literals::StringLiterals;

namespace {

/// What a line wrote, as a complaint shows it.
QString written(const Line &line, size_t word)
{
    return quotedWord(line.text(word));
}

bool holds(const Word &expected, const QString &property, const QString &seen)
{
    return property == u"colour" ? seen.compare(expected.text(), Qt::CaseInsensitive) == 0 : expected.matches(seen);
}

/// The window and the screen behind it must show the same. Widgets end lines in their own way.
void checkWindow(const std::optional<QString> &shown, const QString &seen)
{
    if (shown && plainLineEnds(*shown) != plainLineEnds(seen))
        failLine(u"the window shows "_s + quotedWord(*shown) + u", the screen behind it holds "_s + quotedWord(seen));
}

int numberFrom(const QString &text)
{
    bool isNumber = false;
    const int number = text.toInt(&isNumber, 0);
    if (!isNumber)
        throw ScenarioError(text + u" is no number"_s);
    return number;
}

QString textOf(const Box &box)
{
    return quotedWord(box.title) + u' ' + quotedWord(box.text);
}

/// The text of a file, in the encoding that its mark tells, UTF-8 without one; line ends as LF.
QString fileText(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        failExpectation(u"a file"_s, u"there is no file "_s + path);
    const QByteArray bytes = file.readAll();
    const auto encoding = QStringConverter::encodingForData(bytes).value_or(QStringConverter::Utf8);
    QStringDecoder decode(encoding);
    return plainLineEnds(decode(bytes));
}

} // namespace

void expect(Player &player, const Line &line)
{
    const QString name = line.text(0);
    const Property *const property = findProperty(line.text(1));
    if (!property)
        throw ScenarioError(u"there is no property "_s + line.text(1));
    // A screen's own name stands for its title.
    if (Form &form = player.topmost(); form.name() == name && property->name == u"caption") {
        if (!line.words[2].matches(form.caption()))
            failExpectation(written(line, 2), quotedWord(form.caption()));
        return;
    }
    const Control &control = player.control(name);
    const std::optional<QString> seen = property->of(control);
    if (!seen)
        failExpectation(written(line, 2), u"a "_s + kindText(control.kind()) + u" has no "_s + property->name);
    if (!holds(line.words[2], property->name, *seen))
        failExpectation(written(line, 2), quotedWord(*seen));
    checkWindow(player.stage().shown(control, property->name), *seen);
}

void expectCell(Player &player, const Line &line)
{
    const Control &control = player.control(line.text(0));
    const auto *const grid = dynamic_cast<const Grid *>(&control);
    if (!grid)
        failLine(control.name() + u" is a "_s + kindText(control.kind()) + u" and no Grid"_s);
    const int row = numberFrom(line.text(1)) - 1;
    const int column = numberFrom(line.text(2));
    if (row < 0 || row >= grid->rowCount())
        failExpectation(written(line, 3), u"there are "_s + QString::number(grid->rowCount()) + u" rows"_s);
    if (column < 0 || std::cmp_greater_equal(column, grid->columns().size()))
        failExpectation(written(line, 3), u"there are "_s + QString::number(grid->columns().size()) + u" columns"_s);
    const QString seen = grid->shownCell(row, column);
    if (!line.words[3].matches(seen))
        failExpectation(written(line, 3), quotedWord(seen));
    checkWindow(player.stage().shownCell(*grid, row, column), seen);
}

void expectBox(Player &player, const Line &line)
{
    std::deque<Box> &boxes = player.platform().boxes;
    const QString expected = written(line, 0) + u' ' + written(line, 1);
    if (boxes.empty())
        failExpectation(expected, u"no box"_s);
    const Box &oldest = boxes.front();
    if (!line.words[0].withPlainLineEnds().matches(plainLineEnds(oldest.title))
        || !line.words[1].withPlainLineEnds().matches(plainLineEnds(oldest.text)))
        failExpectation(expected, textOf(oldest));
    player.lastBox = oldest;
    boxes.pop_front();
}

void expectStyle(Player &player, const Line &line)
{
    if (!player.lastBox)
        failExpectation(line.text(0), u"no box was expected before"_s);
    if (numberFrom(line.text(0)) != player.lastBox->style)
        failExpectation(line.text(0), styleText(player.lastBox->style));
}

void expectNoBox(Player &player, const Line &line)
{
    Q_UNUSED(line);
    if (!player.platform().boxes.empty())
        failExpectation(u"no box"_s, textOf(player.platform().boxes.front()));
}

void expectScreen(Player &player, const Line &line)
{
    const Form *const form = player.platform().topmost();
    const QString none = player.programHasEnded() ? u"none: the program has ended"_s : u"none"_s;
    if (!form || !line.words[0].matches(form->name()))
        failExpectation(line.text(0), form ? form->name() : none);
}

void expectEnded(Player &player, const Line &line)
{
    Q_UNUSED(line);
    const Form *const form = player.platform().topmost();
    if (!player.programHasEnded())
        failExpectation(u"the program has ended"_s, form ? form->name() + u" is open"_s : u"it was never started"_s);
}

void expectFile(Player &player, const Line &line)
{
    QString seen = fileText(player.path(line.text(0)));
    if (line.words[1].matches(seen))
        return;
    // A text file ends with its last line's end; whether a scenario writes that down is left to it.
    if (seen.endsWith(u'\n'))
        seen.chop(1);
    if (!line.words[1].matches(seen))
        failExpectation(written(line, 1), quotedWord(seen));
}

void expectExists(Player &player, const Line &line)
{
    const QString path = player.path(line.text(0));
    if (!QFileInfo::exists(path))
        failExpectation(path, u"it is missing"_s);
}

void expectMissing(Player &player, const Line &line)
{
    const QString path = player.path(line.text(0));
    if (QFileInfo::exists(path))
        failExpectation(u"no "_s + path, u"it exists"_s);
}

void expectPrint(Player &player, const Line &line)
{
    auto &previews = player.platform().previews;
    const QString expected = line.text(0) + u' ' + line.text(1);
    if (previews.empty())
        failExpectation(expected, u"no preview was shown"_s);
    const Preview &oldest = *previews.front();
    if (!line.words[0].matches(oldest.name()) || numberFrom(line.text(1)) != oldest.pageCount())
        failExpectation(expected, oldest.name() + u' ' + QString::number(oldest.pageCount()));
    player.lastPreview = previews.front();
    previews.pop_front();
}

void expectPrintText(Player &player, const Line &line)
{
    if (!player.lastPreview)
        failExpectation(written(line, 0), u"no preview was expected before"_s);
    const Word text = line.words[0].anywhere();
    for (int number = 0; number < player.lastPreview->pageCount(); ++number)
        if (text.matches(report::textOf(player.lastPreview->page(number))))
            return;
    failExpectation(written(line, 0), u"no page of "_s + player.lastPreview->name() + u" holds it"_s);
}

} // namespace zrv::player::lines
