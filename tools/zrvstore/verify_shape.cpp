// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/zrvstore/verify_shape.h"

#include "core/store/schema.h"
#include "tools/terminal/failure.h"
#include "tools/zrvstore/older_shapes.h"

#include <QStringList>

#include <algorithm>

namespace zrv::storetool {

using namespace Qt::Literals::StringLiterals;

namespace {

/// The upgrade gave the amounts of the salary list this width, which is all that the screens let in.
constexpr int UpgradedAmount = 10;

/// "TEXT(13)" gives 13; 0 where no width stands.
int widthOf(std::string_view type)
{
    const std::size_t open = type.find('(');
    int width = 0;
    for (std::size_t i = open + 1; open != type.npos && i < type.size() && type[i] >= '0' && type[i] <= '9'; ++i)
        width = width * 10 + (type[i] - '0');
    return width;
}

QString text(std::string_view utf8)
{
    return QString::fromUtf8(utf8.data(), qsizetype(utf8.size()));
}

std::vector<ColumnShape> columnsOf(const Database &database, const QString &table)
{
    std::vector<ColumnShape> columns;
    Rows rows(database, u"PRAGMA table_info("_s + sqlName(table) + u')');
    while (rows.next())
        columns.push_back({text(rows.text(1)), widthOf(rows.text(2))});
    return columns;
}

bool isKeptUnique(const Database &database, const TableShape &table, const QStringList &key)
{
    Rows indexes(database, u"PRAGMA index_list("_s + sqlName(table.name) + u')');
    while (indexes.next()) {
        // A partial index lets rows by.
        if (indexes.number(2) == 0 || indexes.number(4) != 0)
            continue;
        QStringList columns;
        Rows rows(database, u"PRAGMA index_info("_s + sqlName(text(indexes.text(1))) + u')');
        while (rows.next())
            columns.append(text(rows.text(2)).toLower());
        QStringList wanted = key;
        for (QString &name : wanted)
            name = name.toLower();
        columns.sort();
        wanted.sort();
        if (columns == wanted)
            return true;
    }
    return false;
}

void checkWidth(const TableShape &table, const ColumnShape &wanted, int width, Findings &findings)
{
    if (width >= wanted.width)
        return;
    const QString where = table.name + u' ' + wanted.name;
    const QString widths = QString::number(width) + u" wide instead of "_s + QString::number(wanted.width);
    if (width == 0)
        findings.add(finding::ColumnWidth, where, u"has no width"_s);
    else if (isWidened(table.name, wanted.name))
        findings.add(finding::ColumnWidth, where, widths + u": an older store, the program's repair widens it"_s);
    else if (table.name == u"ZRVtbHogog" && isAdded(table.name, wanted.name) && width >= UpgradedAmount)
        findings.note(finding::ColumnWidth, where, widths + u", as an upgrade leaves it"_s);
    else if (isOlderWidth(table.name, wanted.name, width))
        findings.note(finding::ColumnWidth, where, widths + u", as in older versions"_s);
    else
        findings.add(finding::ColumnWidth, where, widths);
}

void reportMissing(const TableShape &table, const QString &column, Findings &findings)
{
    const QString where = table.name + u' ' + column;
    if (isOptional(table.name, column))
        findings.note(finding::MissingColumn, where, u"is missing; nothing needs it"_s);
    else if (isAdded(table.name, column))
        findings.add(finding::MissingColumn, where, u"is missing: an older store, the program's upgrade adds it"_s);
    else
        findings.add(finding::MissingColumn, where, u"is missing"_s);
}

/// Rows of these tables are inserted without naming their columns.
bool isInsertedByOrder(const TableShape &table)
{
    return table.name == u"ZRVtbCoding" || table.name == u"User_Defination";
}

FoundTable checkTable(const Database &database, const TableShape &table, Findings &findings)
{
    const std::vector<ColumnShape> columns = columnsOf(database, table.name);
    FoundTable found{&table, !columns.empty(), std::vector<bool>(table.columns.size()), false};
    if (!found.isThere) {
        findings.add(finding::MissingTable, table.name, u"is missing"_s);
        return found;
    }
    const TableShape file{table.name, columns, {}, {}};
    bool inOrder = true;
    for (std::size_t i = 0; i < table.columns.size(); ++i) {
        const ColumnShape *column = file.column(table.columns[i].name);
        found.columns[i] = column != nullptr;
        inOrder = inOrder && column == (i < columns.size() ? &file.columns[i] : nullptr);
        if (column)
            checkWidth(table, table.columns[i], column->width, findings);
        else
            reportMissing(table, table.columns[i].name, findings);
    }
    for (const ColumnShape &column : columns) {
        if (table.column(column.name))
            continue;
        const bool old = isDropped(table.name, column.name);
        findings.add(finding::UnknownColumn, table.name + u' ' + column.name,
                     old ? u"is of an older store, the program's upgrade drops it"_s : u"is not of this version"_s);
    }
    if (isInsertedByOrder(table) && !inOrder && columns.size() >= table.columns.size())
        findings.add(finding::ColumnOrder, table.name, u"has its columns in another order"_s);
    found.keyIsUnique = isKeptUnique(database, table, table.uniqueKeys.front());
    if (!found.keyIsUnique)
        findings.add(finding::MissingKey, table.name,
                     u"nothing keeps the key "_s + table.uniqueKeys.front().join(u" + "_s) + u" unique"_s);
    return found;
}

/// Triggers and views could change what statements do; other tables are merely in the way.
void reportForeignObjects(const Database &database, Findings &findings)
{
    Rows rows(database, u"SELECT type, name FROM sqlite_schema WHERE name NOT LIKE 'sqlite!_%' ESCAPE '!'"
                        " AND type<>'index' ORDER BY type, name"_s);
    while (rows.next()) {
        const QString type = text(rows.text(0));
        const QString name = text(rows.text(1));
        if (type != u"table")
            findings.add(finding::ForeignObject, name, u"is a "_s + type + u" that no store has"_s);
        else if (std::ranges::none_of(storeSchema(), [&](const TableShape &table) {
                     return name.compare(table.name, Qt::CaseInsensitive) == 0;
                 }))
            findings.note(finding::ForeignObject, name, u"is a table that no store has"_s);
    }
}

} // namespace

std::vector<FoundTable> checkShape(const Database &database, Findings &findings)
{
    std::vector<FoundTable> tables;
    for (const TableShape &table : storeSchema()) {
        if (columnsOf(database, table.name).empty())
            continue;
        for (const TableShape &each : storeSchema())
            tables.push_back(checkTable(database, each, findings));
        reportForeignObjects(database, findings);
        return tables;
    }
    throw Failure(database.path() + u" is not a store: it has none of the store's tables"_s);
}

} // namespace zrv::storetool
