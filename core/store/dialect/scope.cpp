// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/store/dialect/scope.h"

#include "core/store/dialect/tokens.h"
#include "core/store/store_error.h"

#include <algorithm>

namespace zrv::dialect {

using namespace Qt::Literals::StringLiterals;

namespace {

bool sameName(QStringView left, QStringView right)
{
    return left.compare(right, Qt::CaseInsensitive) == 0;
}

const ScopeColumn *columnIn(const ScopeTable &table, QStringView name)
{
    const auto found = std::find_if(table.columns.begin(), table.columns.end(),
                                    [&](const ScopeColumn &column) { return sameName(column.name, name); });
    return found == table.columns.end() ? nullptr : &*found;
}

} // namespace

const TableShape &tableOf(Catalog &catalog, QStringView name)
{
    const TableShape *table = catalog.find(name);
    if (!table)
        throw RunTimeError(store_error::MissingTable,
                           u"جدول «"_s + name
                               + u"» در بانک اطلاعاتي وجود ندارد . بانک اطلاعاتي مربوط به اين برنامه نميباشد"_s);
    return *table;
}

const ColumnShape &columnOf(const TableShape &table, QStringView name)
{
    const ColumnShape *column = table.column(name);
    if (!column)
        refuseColumn(table.name + u'.' + name);
    return *column;
}

void refuseColumn(const QString &name)
{
    throw RunTimeError(store_error::MissingColumn,
                       u"فيلد «"_s + name
                           + u"» در جدولهاي بانک اطلاعاتي وجود ندارد . ساختار بانک اطلاعاتي بايد بروزرساني گردد"_s);
}

void Scope::add(ScopeTable table)
{
    const bool taken = std::any_of(m_tables.begin(), m_tables.end(),
                                   [&](const ScopeTable &other) { return sameName(other.alias, table.alias); });
    if (taken)
        refuse(table.alias);
    m_tables.push_back(std::move(table));
}

const ScopeTable &Scope::table(QStringView alias) const
{
    const auto found = std::find_if(m_tables.begin(), m_tables.end(),
                                    [&](const ScopeTable &table) { return sameName(table.alias, alias); });
    if (found == m_tables.end())
        refuseColumn(alias + ".*"_L1);
    return *found;
}

const ScopeColumn &Scope::column(const QString &table, const QString &name) const
{
    return *columnIn(owner(table, name), name);
}

const ScopeTable &Scope::owner(const QString &table, const QString &name) const
{
    const ScopeTable *found = nullptr;
    for (const ScopeTable &candidate : m_tables) {
        if (!table.isEmpty() && !sameName(candidate.alias, table))
            continue;
        if (!columnIn(candidate, name))
            continue;
        if (found)
            refuse(name);
        found = &candidate;
    }
    if (!found)
        refuseColumn(table.isEmpty() ? name : QString(table + u'.' + name));
    return *found;
}

void Scope::redefine(QStringView alias, const std::vector<QString> &columns)
{
    const auto found = std::find_if(m_tables.begin(), m_tables.end(),
                                    [&](const ScopeTable &table) { return sameName(table.alias, alias); });
    for (std::size_t i = 0; i < columns.size(); ++i)
        found->columns[i].sql.text = columns[i];
}

bool Scope::has(const QString &name) const
{
    return std::any_of(m_tables.begin(), m_tables.end(),
                       [&](const ScopeTable &table) { return columnIn(table, name) != nullptr; });
}

ScopeTable scopeOf(const TableShape &table, const QString &alias)
{
    ScopeTable result{alias, {}};
    for (const ColumnShape &column : table.columns)
        result.columns.push_back({column.name, {sqlName(alias) + u'.' + sqlName(column.name), Kind::Text}});
    return result;
}

} // namespace zrv::dialect
