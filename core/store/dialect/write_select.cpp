// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/store/dialect/write_select.h"

#include "core/store/dialect/code_lookup.h"
#include "core/store/dialect/tokens.h"
#include "core/store/dialect/write_expression.h"

#include <algorithm>

namespace zrv::dialect {

using namespace Qt::Literals::StringLiterals;

namespace {

class SelectWriter {
public:
    SelectWriter(const Select &select, Catalog &catalog, QStringList *codeTables)
        : m_select(select)
        , m_catalog(catalog)
        , m_codeTables(codeTables)
    {
    }

    WrittenSelect write(Columns columns)
    {
        for (const Source &source : m_select.from)
            enter(source);
        if (m_codeTables)
            lookUpCodes();
        writeItems();
        // SQLite keeps to the order of a CROSS JOIN. Left to choose where a count needs no order, it may begin a month
        // with the code lists, which takes a hundred times as long.
        QStringList from;
        for (const Source &source : m_select.from) {
            if (!lookupOf(source))
                from.append(writeSource(source));
        }
        if (!from.isEmpty())
            m_result.from = " FROM "_L1 + from.join(" CROSS JOIN "_L1);
        for (const Expression *part : conjuncts(m_select.where))
            addCondition(*part);
        m_result.hasCondition = !m_where.isEmpty();
        if (m_result.hasCondition)
            m_result.from += " WHERE "_L1 + m_where.join(" AND "_L1);
        m_result.body = (m_select.distinct ? "SELECT DISTINCT "_L1 : "SELECT "_L1) + itemList(columns) + m_result.from;
        m_result.rowId = orderOfEntry();
        writeGroups();
        writeOrder();
        return std::move(m_result);
    }

private:
    QString condition(const Expression &expression) const { return asCondition(writeExpression(expression, m_scope)); }

    /// Makes the tables of a source known before any expression is looked at.
    void enter(const Source &source)
    {
        for (const Source &side : source.sides)
            enter(side);
        if (!source.join.isEmpty())
            return;
        if (!source.query) {
            m_scope.add(scopeOf(tableOf(m_catalog, source.table), source.alias));
            return;
        }
        WrittenSelect inner = writeSelect(*source.query, m_catalog, m_codeTables);
        ScopeTable table{source.alias, {}};
        for (const ScopeColumn &column : inner.columns)
            table.columns.push_back(
                {column.name, {sqlName(source.alias) + u'.' + sqlName(column.name), column.sql.kind}});
        m_scope.add(std::move(table));
        m_queries.emplace_back(&source, inner.body + inner.order);
    }

    /// Takes the tables that are looked up out of the joins; their columns become calls.
    void lookUpCodes()
    {
        m_lookups = findCodeLookups(m_select, m_scope, m_catalog);
        for (const CodeLookup &lookup : m_lookups) {
            m_codeTables->append(lookup.rowsSql);
            const QString table = u'?' + QString::number(m_codeTables->size()) + u',';
            const QString key = writeExpression(*lookup.key, m_scope).text + u')';
            if (lookup.dropsRows)
                m_where.append("zrv_has("_L1 + table + key);
            std::vector<QString> columns;
            for (std::size_t i = 0; i < m_scope.table(lookup.source->alias).columns.size(); ++i)
                columns.push_back("zrv_code("_L1 + table + QString::number(i) + u',' + key);
            m_scope.redefine(lookup.source->alias, columns);
            m_lookedUp.insert(lookup.conditions.begin(), lookup.conditions.end());
        }
    }

    const CodeLookup *lookupOf(const Source &source) const
    {
        const auto found = std::find_if(m_lookups.begin(), m_lookups.end(),
                                        [&](const CodeLookup &lookup) { return lookup.source == &source; });
        return found == m_lookups.end() ? nullptr : &*found;
    }

    void addCondition(const Expression &part)
    {
        if (!m_lookedUp.contains(&part))
            m_where.append(condition(part));
    }

    QString writeSource(const Source &source)
    {
        if (!source.join.isEmpty() && lookupOf(source.sides[1])) {
            for (const Expression *part : conjuncts(source.on))
                addCondition(*part);
            return writeSource(source.sides[0]);
        }
        if (!source.join.isEmpty()) {
            // Joins nest to the left, where brackets change nothing; on the right they do.
            const bool nested = !source.sides[1].join.isEmpty();
            const QString right = writeSource(source.sides[1]);
            return writeSource(source.sides[0]) + u' ' + source.join + u' ' + (nested ? u'(' + right + u')' : right)
                   + " ON "_L1 + condition(*source.on);
        }
        const QString alias = " AS "_L1 + sqlName(source.alias);
        if (!source.query)
            return sqlName(tableOf(m_catalog, source.table).name) + alias;
        const auto found =
            std::find_if(m_queries.begin(), m_queries.end(), [&](const auto &query) { return query.first == &source; });
        return u'(' + found->second + u')' + alias;
    }

    void addTable(const ScopeTable &table)
    {
        m_result.columns.insert(m_result.columns.end(), table.columns.begin(), table.columns.end());
    }

    void writeItems()
    {
        for (const SelectItem &item : m_select.items) {
            if (!item.allColumns) {
                m_result.columns.push_back({resultName(item), writeExpression(item.value, m_scope)});
            } else if (!item.table.isEmpty()) {
                addTable(m_scope.table(item.table));
            } else {
                if (m_scope.tables().empty())
                    refuse(u"*");
                for (const ScopeTable &table : m_scope.tables())
                    addTable(table);
            }
        }
        for (const ScopeColumn &column : m_result.columns)
            m_names.emplace_back(column.name, column.sql);
    }

    /// A result without a name gets the dialect's, by its place.
    QString resultName(const SelectItem &item) const
    {
        constexpr std::size_t FirstNumber = 1000;
        if (!item.alias.isEmpty())
            return item.alias;
        if (item.value.type == Expression::Type::Column)
            return item.value.name;
        return "Expr"_L1 + QString::number(FirstNumber + m_result.columns.size());
    }

    QString itemList(Columns columns) const
    {
        QStringList list;
        for (const ScopeColumn &column : m_result.columns) {
            QString item = columns == Columns::AsTexts ? asText(column.sql) : asValue(column.sql);
            if (m_select.distinct && column.sql.kind == Kind::Text)
                item += " COLLATE NOCASE"_L1;
            list.append(item + " AS "_L1 + sqlName(column.name));
        }
        return list.join(u',');
    }

    void writeGroups()
    {
        QStringList groups;
        for (const Expression &expression : m_select.groupBy) {
            const Sql sql = writeExpression(expression, m_scope);
            groups.append(asValue(sql) + (sql.kind == Kind::Text ? " COLLATE NOCASE"_L1 : ""_L1));
        }
        if (!groups.isEmpty())
            m_result.body += " GROUP BY "_L1 + groups.join(u',');
        if (m_select.having)
            m_result.body += " HAVING "_L1 + condition(*m_select.having);
    }

    /// The name of a result goes before the column of that name, and a whole number is the place of a result.
    Sql orderTerm(const Expression &value) const
    {
        if (value.type == Expression::Type::Column && value.table.isEmpty()) {
            for (const auto &[name, sql] : m_names) {
                if (name.compare(value.name, Qt::CaseInsensitive) == 0)
                    return sql;
            }
        }
        if (value.type == Expression::Type::Number) {
            const qulonglong place = value.name.toULongLong();
            if (place < 1 || place > m_names.size())
                refuse(value.name);
            return m_names[place - 1].second;
        }
        return writeExpression(value, m_scope, m_names);
    }

    void writeOrder()
    {
        QStringList order;
        for (const OrderItem &item : m_select.orderBy) {
            const Sql sql = orderTerm(item.value);
            const QString term = sql.kind == Kind::Text ? QString("zrv_order("_L1 + sql.text + ")"_L1) : asValue(sql);
            order.append(item.descending ? QString(term + " DESC"_L1) : term);
        }
        if (!m_result.rowId.isEmpty())
            order.append(m_result.rowId);
        if (!order.isEmpty())
            m_result.order = " ORDER BY "_L1 + order.join(u',');
    }

    QString orderOfEntry() const
    {
        const bool combines = m_select.distinct || !m_select.groupBy.empty() || m_select.having
                              || std::any_of(m_select.items.begin(), m_select.items.end(),
                                             [](const SelectItem &item) { return isAggregate(item.value); });
        if (combines || m_select.from.empty())
            return {};
        const Source *first = &m_select.from.front();
        while (!first->join.isEmpty())
            first = &first->sides.front();
        return first->query ? QString() : QString(sqlName(first->alias) + ".rowid"_L1);
    }

    const Select &m_select;
    Catalog &m_catalog;
    Scope m_scope;
    ResultNames m_names;
    std::vector<std::pair<const Source *, QString>> m_queries;
    QStringList *m_codeTables;
    std::vector<CodeLookup> m_lookups;
    std::set<const Expression *> m_lookedUp; ///< conditions that look-ups stand for
    QStringList m_where;
    WrittenSelect m_result;
};

} // namespace

WrittenSelect writeSelect(const Select &select, Catalog &catalog, QStringList *codeTables, Columns columns)
{
    return SelectWriter(select, catalog, codeTables).write(columns);
}

} // namespace zrv::dialect
