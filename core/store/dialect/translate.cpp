// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/store/dialect/translate.h"

#include "core/store/dialect/tokens.h"
#include "core/store/dialect/write_expression.h"
#include "core/store/dialect/write_select.h"

namespace zrv::dialect {

using namespace Qt::Literals::StringLiterals;

namespace {

Scope scopeOfTable(const TableShape &table)
{
    Scope scope;
    scope.add(scopeOf(table, table.name));
    return scope;
}

QString writeWhere(const std::optional<Expression> &where, const Scope &scope)
{
    return where ? QString(" WHERE "_L1 + asCondition(writeExpression(*where, scope))) : QString();
}

/// The columns that an INSERT fills, as the table spells them.
QStringList targetColumns(const Insert &insert, const TableShape &table)
{
    QStringList columns;
    for (const QString &name : insert.columns) {
        const QString column = sqlName(columnOf(table, name).name);
        if (columns.contains(column))
            refuse(name);
        columns.append(column);
    }
    if (insert.columns.isEmpty()) {
        for (const ColumnShape &column : table.columns)
            columns.append(sqlName(column.name));
    }
    return columns;
}

} // namespace

Query translate(const Select &select, Catalog &catalog, CodeLists codeLists)
{
    QStringList codeTables;
    WrittenSelect written = writeSelect(select, catalog, codeLists == CodeLists::InMemory ? &codeTables : nullptr);
    Query query{written.body + written.order,
                "SELECT count(*) FROM ("_L1 + written.body + ")"_L1,
                std::move(written.columns),
                codeTables,
                {},
                {}};
    if (!written.rowId.isEmpty()) {
        const QString results = written.body.chopped(written.from.size());
        query.idSql = "SELECT "_L1 + written.rowId + written.from + written.order;
        query.rowsOfIdsSql = results + u',' + written.rowId + written.from
                             + (written.hasCondition ? " AND "_L1 : " WHERE "_L1) + written.rowId + " IN "_L1;
    }
    return query;
}

QString translate(const Insert &insert, Catalog &catalog)
{
    const TableShape &table = tableOf(catalog, insert.table);
    const QStringList columns = targetColumns(insert, table);
    const QString head = "INSERT INTO "_L1 + sqlName(table.name) + " ("_L1 + columns.join(u',') + ") "_L1;
    if (insert.query) {
        const WrittenSelect written = writeSelect(*insert.query, catalog, nullptr, Columns::AsTexts);
        if (written.columns.size() != std::size_t(columns.size()))
            refuse(insert.table);
        return head + written.body + written.order;
    }
    if (insert.values.size() != std::size_t(columns.size()))
        refuse(insert.table);
    QStringList values;
    for (const Expression &value : insert.values)
        values.append(asText(writeExpression(value, Scope())));
    return head + "VALUES ("_L1 + values.join(u',') + u')';
}

QString translate(const Update &update, Catalog &catalog)
{
    const TableShape &table = tableOf(catalog, update.table);
    const Scope scope = scopeOfTable(table);
    QStringList columns;
    QStringList changes;
    for (const auto &[name, value] : update.changes) {
        const QString column = sqlName(columnOf(table, name).name);
        if (columns.contains(column))
            refuse(name);
        columns.append(column);
        changes.append(column + u'=' + asText(writeExpression(value, scope)));
    }
    return "UPDATE "_L1 + sqlName(table.name) + " SET "_L1 + changes.join(u',') + writeWhere(update.where, scope);
}

QString translate(const Delete &statement, Catalog &catalog)
{
    const TableShape &table = tableOf(catalog, statement.table);
    return "DELETE FROM "_L1 + sqlName(table.name) + writeWhere(statement.where, scopeOfTable(table));
}

} // namespace zrv::dialect
