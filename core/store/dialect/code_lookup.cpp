// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/store/dialect/code_lookup.h"

#include <algorithm>

namespace zrv::dialect {

using namespace Qt::Literals::StringLiterals;

namespace {

using Type = Expression::Type;

constexpr int MostRows = 5000; // a code has four digits at most; a larger table is better joined

void split(const Expression &condition, std::vector<const Expression *> &parts)
{
    if (condition.type != Type::Operation || condition.name != "AND"_L1) {
        parts.push_back(&condition);
        return;
    }
    for (const Expression &operand : condition.operands)
        split(operand, parts);
}

bool hasRightJoin(const Source &source)
{
    return source.join == "RIGHT JOIN"_L1 || std::any_of(source.sides.begin(), source.sides.end(), hasRightJoin);
}

/// A column, or one whose blanks are trimmed: what a code is joined to.
const Expression *columnOfKey(const Expression &expression)
{
    if (expression.type == Type::Call && expression.name == "trim"_L1 && expression.operands.size() == 1)
        return columnOfKey(expression.operands[0]);
    return expression.type == Type::Column ? &expression : nullptr;
}

class Finder {
public:
    Finder(const Select &select, const Scope &scope, Catalog &catalog)
        : m_select(select)
        , m_scope(scope)
        , m_catalog(catalog)
        , m_where(conjuncts(select.where))
    {
    }

    std::vector<CodeLookup> find()
    {
        if (std::any_of(m_select.from.begin(), m_select.from.end(), hasRightJoin))
            return {};
        for (const Source &source : m_select.from) {
            if (source.join.isEmpty() && &source != &m_select.from.front())
                consider(source, true, {});
            else
                walkJoins(source);
        }
        return std::move(m_found);
    }

private:
    /// Joins nest to the left. What hangs on the right of a join as a join of its own is left alone.
    void walkJoins(const Source &source)
    {
        if (source.join.isEmpty())
            return;
        walkJoins(source.sides[0]);
        if (source.sides[1].join.isEmpty())
            consider(source.sides[1], source.join == "INNER JOIN"_L1, conjuncts(source.on));
    }

    QString ownerOf(const Expression &column) const { return m_scope.owner(column.table, column.name).alias; }

    void consider(const Source &source, bool inner, const std::vector<const Expression *> &on)
    {
        if (source.query || m_pinned.contains(source.alias.toLower()))
            return;
        const TableShape &table = tableOf(m_catalog, source.table);
        // A left join is decided by its own condition; an inner one by those of the whole statement.
        std::vector<const Expression *> conditions = on;
        if (inner)
            conditions.insert(conditions.end(), m_where.begin(), m_where.end());
        for (const QStringList &key : table.uniqueKeys) {
            std::optional<CodeLookup> lookup = byKey(source, table, key, conditions);
            if (!lookup || (!inner && lookup->conditions.size() != on.size()) || !isSmall(*lookup))
                continue;
            lookup->dropsRows = inner;
            m_pinned.insert(ownerOf(*columnOfKey(*lookup->key)).toLower());
            m_replaced.insert(source.alias.toLower());
            m_found.push_back(*std::move(lookup));
            return;
        }
    }

    /// What a condition says of a column of the table: the other side of an equation, or nothing.
    const Expression *otherSide(const Expression &condition, const Source &source, const QString &column) const
    {
        if (condition.type != Type::Operation || condition.name != u'=')
            return nullptr;
        for (const std::size_t side : {0U, 1U}) {
            const Expression &one = condition.operands[side];
            if (one.type == Type::Column && one.name.compare(column, Qt::CaseInsensitive) == 0
                && ownerOf(one).compare(source.alias, Qt::CaseInsensitive) == 0)
                return &condition.operands[1 - side];
        }
        return nullptr;
    }

    bool isOfAnotherTable(const Expression &expression, const Source &source) const
    {
        const Expression *column = columnOfKey(expression);
        if (!column)
            return false;
        const QString owner = ownerOf(*column).toLower();
        return owner != source.alias.toLower() && !m_replaced.contains(owner);
    }

    std::optional<CodeLookup> byKey(const Source &source, const TableShape &table, const QStringList &key,
                                    const std::vector<const Expression *> &conditions) const
    {
        CodeLookup lookup;
        lookup.source = &source;
        QStringList given;
        for (const QString &column : key) {
            const auto found = std::find_if(conditions.begin(), conditions.end(), [&](const Expression *condition) {
                const Expression *other = otherSide(*condition, source, column);
                return other && (other->type == Type::Text || isOfAnotherTable(*other, source));
            });
            if (found == conditions.end())
                return std::nullopt;
            lookup.conditions.insert(*found);
            const Expression *other = otherSide(**found, source, column);
            if (other->type == Type::Text) {
                given.append(sqlName(column) + u'=' + sqlText(other->name) + " COLLATE NOCASE"_L1);
            } else if (lookup.key) {
                return std::nullopt;
            } else {
                lookup.key = other;
                lookup.keyColumn = column;
            }
        }
        if (!lookup.key || given.isEmpty())
            return std::nullopt;
        lookup.rowsSql = "SELECT "_L1 + sqlName(lookup.keyColumn) + ",* FROM "_L1 + sqlName(table.name) + " WHERE "_L1
                         + given.join(" AND "_L1);
        return lookup;
    }

    bool isSmall(const CodeLookup &lookup) const { return m_catalog.hasAtMost(lookup.rowsSql, MostRows); }

    const Select &m_select;
    const Scope &m_scope;
    Catalog &m_catalog;
    std::vector<const Expression *> m_where;
    std::vector<CodeLookup> m_found;
    std::set<QString> m_pinned;   ///< tables whose columns are keys of look-ups: they stay joined
    std::set<QString> m_replaced; ///< tables that are looked up
};

} // namespace

std::vector<const Expression *> conjuncts(const std::optional<Expression> &condition)
{
    std::vector<const Expression *> parts;
    if (condition)
        split(*condition, parts);
    return parts;
}

std::vector<CodeLookup> findCodeLookups(const Select &select, const Scope &scope, Catalog &catalog)
{
    return Finder(select, scope, catalog).find();
}

} // namespace zrv::dialect
