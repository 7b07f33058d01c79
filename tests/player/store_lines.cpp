// SPDX-License-Identifier: GPL-3.0-or-later
// The lines that act on the store behind the program's back, through the program's own store access.
#include "core/basic/run_time_error.h"
#include "core/store/recordset.h"
#include "tests/player/lines.h"
#include "tests/player/player.h"

namespace zrv::player::lines {

using namespace Qt::Literals::StringLiterals;

namespace {

Connection openStore(const Player &player)
{
    return Connection(u"Provider = Microsoft.Jet.OLEDB.4.0;Data Source = "_s + player.folder()
                      + u"\\DBZorvan.mdb;Persist Security Info=False"_s);
}

/// The rows of a SELECT, columns joined by |.
QStringList rowsOf(const Player &player, const QString &statement)
{
    const Connection store = openStore(player);
    QStringList rows;
    for (Recordset set(store, statement); !set.eof(); set.moveNext()) {
        QStringList cells;
        for (int column = 0; column < set.columnCount(); ++column) {
            const Value cell = set.value(column);
            cells += cell.isNull() ? u"NULL"_s : cell.toText();
        }
        rows += cells.join(u'|');
    }
    return rows;
}

[[noreturn]] void failInStore(const RunTimeError &failure)
{
    failLine(u"the store says "_s + QString::number(failure.number()) + u": "_s + failure.description());
}

} // namespace

void sql(Player &player, const Line &line)
{
    const QString statement = line.text(0).trimmed();
    try {
        if (statement.startsWith(u"select", Qt::CaseInsensitive)) {
            for (const QString &row : rowsOf(player, statement))
                player.transcript().line(escapedText(row));
        } else {
            openStore(player).execute(statement);
        }
    } catch (const RunTimeError &failure) {
        failInStore(failure);
    }
}

void expectSql(Player &player, const Line &line)
{
    QString seen;
    try {
        seen = rowsOf(player, line.text(0)).join(u';');
    } catch (const RunTimeError &failure) {
        failInStore(failure);
    }
    if (!line.words[1].matches(seen))
        failExpectation(quotedWord(line.text(1)), quotedWord(seen));
}

} // namespace zrv::player::lines
