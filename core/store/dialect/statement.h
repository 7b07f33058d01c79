// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

#include <memory>
#include <optional>
#include <utility>
#include <variant>
#include <vector>

namespace zrv::dialect {

/// What a statement of the store's dialect says, as a tree of plain values: made by the parser, read by the
/// translator. Names stand as written; whether they exist is the translator's business.

struct Expression {
    enum class Type {
        Text,   ///< name: the text
        Number, ///< name: its digits
        Null,
        Column,   ///< name, and table if it was given
        Call,     ///< name in lower case; operands: the arguments
        CountAll, ///< count(*)
        Not,
        Negative,
        Operation, ///< name: the operator in upper case; two operands
        In,        ///< operands: the value looked for, then the list
        Between,   ///< operands: the value, the lowest, the highest
        IsNull,
    };

    Type type = Type::Null;
    QString name;
    QString table;
    std::vector<Expression> operands;
    bool negated = false; ///< NOT LIKE, NOT IN, NOT BETWEEN, IS NOT NULL
};

struct Select;

/// A table, a query in brackets, or two sources joined.
struct Source {
    QString table;
    QString alias; ///< the table's own name where none was given
    std::shared_ptr<Select> query;

    QString join; ///< "LEFT JOIN", "RIGHT JOIN", "INNER JOIN"; empty for a table or a query
    std::vector<Source> sides;
    std::optional<Expression> on;
};

struct SelectItem {
    bool allColumns = false; ///< `*`, or `table.*` with the table in `table`
    QString table;
    Expression value;
    QString alias;
};

struct OrderItem {
    Expression value;
    bool descending = false;
};

struct Select {
    bool distinct = false;
    std::vector<SelectItem> items;
    std::vector<Source> from;
    std::optional<Expression> where;
    std::vector<Expression> groupBy;
    std::optional<Expression> having;
    std::vector<OrderItem> orderBy;
};

struct Insert {
    QString table;
    QStringList columns; ///< empty: all columns in their order
    std::vector<Expression> values;
    std::shared_ptr<Select> query; ///< in the place of values
};

struct Update {
    QString table;
    std::vector<std::pair<QString, Expression>> changes;
    std::optional<Expression> where;
};

struct Delete {
    QString table;
    std::optional<Expression> where;
};

struct ColumnDefinition {
    QString name;
    int width = 0;
};

struct AddColumn {
    QString table;
    ColumnDefinition column;
};

struct AlterColumn {
    QString table;
    ColumnDefinition column;
};

struct DropColumn {
    QString table;
    QString column;
};

struct CreateTable {
    QString table;
    std::vector<ColumnDefinition> columns;
};

using Statement = std::variant<Select, Insert, Update, Delete, AddColumn, AlterColumn, DropColumn, CreateTable>;

/// Reads one statement; raises store_error::Syntax for anything else.
[[nodiscard]] Statement parse(QStringView statement);

} // namespace zrv::dialect
