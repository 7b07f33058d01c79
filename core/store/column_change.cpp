// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/store/column_change.h"

#include "core/store/dialect/sql_text.h"
#include "core/store/dialect/tokens.h"
#include "core/store/store_error.h"
#include "core/store/store_file.h"
#include "core/store/table_sql.h"

namespace zrv {

using namespace Qt::Literals::StringLiterals;
using dialect::sqlName;

namespace {

[[noreturn]] void refuseChange(const QString &table, const QString &column, QStringView reason)
{
    throw RunTimeError(store_error::ColumnChange, u"فيلد «"_s + table + u'.' + column + u"» "_s + reason);
}

} // namespace

void change(StoreFile &file, const dialect::AddColumn &statement)
{
    const TableShape &table = dialect::tableOf(file, statement.table);
    const ColumnShape column{statement.column.name, statement.column.width};
    if (table.column(column.name))
        refuseChange(table.name, column.name, u"قبلا اضافه شده است");
    file.run("ALTER TABLE "_L1 + sqlName(table.name) + " ADD COLUMN "_L1 + columnSql(column));
    file.forgetTables();
}

void change(StoreFile &file, const dialect::DropColumn &statement)
{
    const TableShape &table = dialect::tableOf(file, statement.table);
    const ColumnShape *column = table.column(statement.column);
    if (!column)
        refuseChange(table.name, statement.column, u"قبلا حذف شده است");
    file.run("ALTER TABLE "_L1 + sqlName(table.name) + " DROP COLUMN "_L1 + sqlName(column->name));
    file.forgetTables();
}

void change(StoreFile &file, const dialect::AlterColumn &statement)
{
    // SQLite can't change a column: the table is made anew beside the old one and takes its place.
    TableShape changed = dialect::tableOf(file, statement.table);
    const QString name = changed.name;
    QStringList columns{u"rowid"_s};
    for (ColumnShape &column : changed.columns) {
        columns.append(sqlName(column.name));
        if (column.name == dialect::columnOf(changed, statement.column.name).name)
            column.width = statement.column.width;
    }
    const QString list = columns.join(u',');
    changed.name = name + u"_changed"_s;
    Transaction transaction(file);
    file.run(createTableSql(changed));
    file.run("INSERT INTO "_L1 + sqlName(changed.name) + " ("_L1 + list + ") SELECT "_L1 + list + " FROM "_L1
             + sqlName(name) + " ORDER BY rowid"_L1);
    file.run("DROP TABLE "_L1 + sqlName(name));
    file.run("ALTER TABLE "_L1 + sqlName(changed.name) + " RENAME TO "_L1 + sqlName(name));
    changed.name = name;
    for (const QString &index : createIndexSql(changed))
        file.run(index);
    transaction.commit();
    file.forgetTables();
}

void change(StoreFile &file, const dialect::CreateTable &statement)
{
    if (file.find(statement.table))
        throw RunTimeError(store_error::General, u"جدول «"_s + statement.table + u"» قبلا ايجاد شده است"_s);
    TableShape table{statement.table, {}, {}, {}};
    for (const dialect::ColumnDefinition &column : statement.columns) {
        if (table.column(column.name))
            dialect::refuse(column.name);
        table.columns.push_back({column.name, column.width});
    }
    file.run(createTableSql(table));
    file.forgetTables();
}

} // namespace zrv
