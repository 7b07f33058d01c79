// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/zrvstore/table_reader.h"

#include "tools/zrvstore/findings.h"

#include <QStringList>

#include <algorithm>

namespace zrv::storetool {

using namespace Qt::Literals::StringLiterals;

std::size_t placeOf(const TableShape &shape, std::string_view column)
{
    const auto found = std::ranges::find_if(shape.columns, [&](const ColumnShape &candidate) {
        return candidate.name.compare(QLatin1StringView(column.data(), qsizetype(column.size())), Qt::CaseInsensitive)
               == 0;
    });
    Q_ASSERT(found != shape.columns.end());
    return std::size_t(found - shape.columns.begin());
}

TableReader::TableReader(const Database &database, const FoundTable &table, const QString &joined,
                         const QString &joinedColumns)
    : m_table(table)
    , m_rows(database, query(joined, joinedColumns))
{
    for (const QString &name : shape().uniqueKeys.front()) {
        if (name != u"Passwordd")
            m_key.push_back(placeOf(shape(), name.toStdString()));
    }
}

QString TableReader::query(const QString &joined, const QString &joinedColumns)
{
    QStringList columns;
    for (std::size_t i = 0; i < shape().columns.size(); ++i) {
        m_places.push_back(m_table.has(i) ? int(columns.size()) : -1);
        if (m_table.has(i))
            columns.append(u"t."_s + sqlName(shape().columns[i].name));
    }
    m_rowIdPlace = int(columns.size());
    m_joinedPlace = m_rowIdPlace + 1;
    columns.append(u"t.rowid"_s);
    if (!joinedColumns.isEmpty())
        columns.append(joinedColumns);
    return u"SELECT "_s + columns.join(u',') + u" FROM "_s + sqlName(shape().name) + u" AS t "_s + joined
           + u" ORDER BY t.rowid"_s;
}

std::string_view TableReader::value(std::size_t column) const
{
    return m_places[column] < 0 ? std::string_view() : m_rows.text(m_places[column]);
}

bool TableReader::isText(std::size_t column) const
{
    return m_places[column] < 0 || m_rows.isText(m_places[column]);
}

QString TableReader::where(std::string_view column) const
{
    QStringList key;
    for (const std::size_t place : m_key)
        key.append(shown(value(place)).remove(u'"'));
    return shape().name + u" ["_s + key.join(u' ') + u"] "_s
           + QString::fromUtf8(column.data(), qsizetype(column.size()));
}

} // namespace zrv::storetool
