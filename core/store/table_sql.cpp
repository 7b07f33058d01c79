// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/store/table_sql.h"

#include "core/store/dialect/sql_text.h"
#include "core/store/store_failure.h"

namespace zrv {

using namespace Qt::Literals::StringLiterals;
using dialect::sqlName;

QString columnSql(const ColumnShape &column)
{
    return sqlName(column.name) + " TEXT("_L1 + QString::number(column.width) + ") COLLATE NOCASE "_L1
           + widthCheck(column.name, column.width);
}

QString createTableSql(const TableShape &table)
{
    QStringList columns;
    for (const ColumnShape &column : table.columns)
        columns.append(columnSql(column));
    return "CREATE TABLE "_L1 + sqlName(table.name) + " ("_L1 + columns.join(", "_L1) + u')';
}

QStringList createIndexSql(const TableShape &table)
{
    QStringList statements;
    const auto add = [&](QLatin1StringView kind, QLatin1StringView use, const QStringList &columns) {
        QStringList names;
        for (const QString &column : columns)
            names.append(sqlName(column));
        statements.append("CREATE "_L1 + kind + sqlName(QString(table.name + use + columns.join(u'_'))) + " ON "_L1
                          + sqlName(table.name) + " ("_L1 + names.join(", "_L1) + u')');
    };
    for (const QStringList &key : table.uniqueKeys)
        add("UNIQUE INDEX "_L1, "_key_"_L1, key);
    for (const QStringList &index : table.indexes)
        add("INDEX "_L1, "_by_"_L1, index);
    return statements;
}

} // namespace zrv
