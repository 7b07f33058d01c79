// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/store/dialect/sql_text.h"
#include "core/store/table_shape.h"

#include <vector>

namespace zrv::dialect {

/// Where the translator looks up the tables of the store in hand.
class Catalog {
public:
    virtual ~Catalog() = default;
    /// By name without regard to case; null if the store has no such table.
    [[nodiscard]] virtual const TableShape *find(QStringView table) = 0;
    /// Whether a query in SQLite's SQL gives no more rows than that.
    [[nodiscard]] virtual bool hasAtMost(const QString &sql, int rows) = 0;
};

/// A table by name; raises store_error::MissingTable.
[[nodiscard]] const TableShape &tableOf(Catalog &catalog, QStringView name);

/// A column of a table; raises store_error::MissingColumn.
[[nodiscard]] const ColumnShape &columnOf(const TableShape &table, QStringView name);

[[noreturn]] void refuseColumn(const QString &name);

struct ScopeColumn {
    QString name;
    Sql sql;
};

struct ScopeTable {
    QString alias;
    std::vector<ScopeColumn> columns;
};

/// The tables that the names of one statement may mean. SQLite reads an unknown name in double quotes as a text, so
/// every name is resolved here and reaches SQLite with its table before it.
class Scope {
public:
    void add(ScopeTable table);
    [[nodiscard]] const std::vector<ScopeTable> &tables() const { return m_tables; }
    [[nodiscard]] const ScopeTable &table(QStringView alias) const;

    /// The column that a name means, with or without its table. Raises store_error::MissingColumn, and
    /// store_error::Syntax where two tables have the name.
    [[nodiscard]] const ScopeColumn &column(const QString &table, const QString &name) const;
    [[nodiscard]] bool has(const QString &name) const;
    /// The table whose column a name means, with the same errors.
    [[nodiscard]] const ScopeTable &owner(const QString &table, const QString &name) const;
    /// Lets the columns of a table be read by other SQL than their names.
    void redefine(QStringView alias, const std::vector<QString> &columns);

private:
    std::vector<ScopeTable> m_tables;
};

/// The columns of a table under an alias.
[[nodiscard]] ScopeTable scopeOf(const TableShape &table, const QString &alias);

} // namespace zrv::dialect
