// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tests/jet_writer/old_stores.h"
#include "tests/tools/tool_fixture.h"
#include "tools/zrvstore/takeover.h"

namespace zrv::storetool {

using jettest::Age;
using jettest::Cell;
using jettest::cellOf;
using jettest::Cells;
using jettest::jetFile;
using jettest::oldStore;
using jettest::tableOf;

/// How a value is written in the tests' tables: "\N" for NULL, and no sign that would break a line.
inline QString written(const char *utf8)
{
    if (!utf8)
        return u"\\N"_s;
    return QString::fromUtf8(utf8)
        .replace(u'\\', u"\\\\"_s)
        .replace(u'\t', u"\\t"_s)
        .replace(u'\n', u"\\n"_s)
        .replace(u'\r', u"\\r"_s);
}

/// A table of a store: a line of its columns' names, then its rows in the order of entry, with tabs between.
inline QStringList linesOf(const QString &store, const QString &table)
{
    QStringList lines;
    sqlite3 *database = nullptr;
    sqlite3_stmt *statement = nullptr;
    EXPECT_EQ(sqlite3_open_v2(QFile::encodeName(store).constData(), &database, SQLITE_OPEN_READONLY, nullptr),
              SQLITE_OK);
    const QString sql = u"SELECT * FROM \""_s + table + u"\" ORDER BY rowid"_s;
    EXPECT_EQ(sqlite3_prepare_v2(database, sql.toUtf8().constData(), -1, &statement, nullptr), SQLITE_OK);
    const int columns = sqlite3_column_count(statement);
    QStringList cells;
    for (int i = 0; i < columns; ++i)
        cells.append(QString::fromUtf8(sqlite3_column_name(statement, i)));
    lines.append(cells.join(u'\t'));
    while (sqlite3_step(statement) == SQLITE_ROW) {
        cells.clear();
        for (int i = 0; i < columns; ++i)
            cells.append(written(reinterpret_cast<const char *>(sqlite3_column_text(statement, i))));
        lines.append(cells.join(u'\t'));
    }
    sqlite3_finalize(statement);
    sqlite3_close(database);
    return lines;
}

/// The same of a table that was written.
inline QStringList linesOf(const jettest::Table &table)
{
    QStringList cells;
    for (const ColumnShape &column : table.shape.columns)
        cells.append(column.name);
    QStringList lines{cells.join(u'\t')};
    for (Cells row : table.rows) {
        row.resize(table.shape.columns.size());
        cells.clear();
        for (const Cell &cell : row)
            cells.append(cell ? written(cell->toUtf8().constData()) : written(nullptr));
        lines.append(cells.join(u'\t'));
    }
    return lines;
}

class TakeoverTest : public ToolTest {
protected:
    /// Writes a file; its path.
    QString write(const QByteArray &bytes, const QString &name = u"old.mdb"_s)
    {
        QFile file(in(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
        return file.fileName();
    }
    [[nodiscard]] QByteArray read(const QString &path)
    {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }

    /// What taking over a file into the folder "new" tells, notes aside; its answer or refusal last.
    QStringList takenOver(const QString &file, bool asStored = false)
    {
        QStringList lines;
        const auto sink = [&](const QString &line) {
            if (!line.startsWith(u"note "))
                lines.append(line);
        };
        try {
            lines.append(u"doubts: "_s + QString::number(takeOver(file, in(u"new"_s), asStored, sink)));
        } catch (const Failure &failure) {
            lines.append(failure.reason());
        }
        return lines;
    }
    /// Why a store isn't taken over: the name in brackets at the end; nothing may have been made.
    QString refusalOf(const std::vector<jettest::Table> &tables, const jettest::Manner &manner = {})
    {
        const QString answer = takenOver(write(jetFile(tables, manner))).last();
        EXPECT_FALSE(QFile::exists(newStore())) << answer.toStdString();
        return answer.section(u'[', -1).chopped(1);
    }

    [[nodiscard]] QString newStore() const { return storeIn(in(u"new"_s)); }
};

} // namespace zrv::storetool
