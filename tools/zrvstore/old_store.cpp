// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/zrvstore/old_store.h"

#include "core/store/schema.h"
#include "tools/jet/catalogue.h"
#include "tools/jet/row.h"
#include "tools/jet/text.h"
#include "tools/zrvstore/old_shape.h"

#include <algorithm>

namespace zrv::storetool {

using namespace Qt::Literals::StringLiterals;

namespace {

/// Runs a part of the reading; damage that it meets is told with its place.
template <typename Read>
auto at(const QString &where, Read read)
{
    try {
        return read();
    } catch (const jet::Refused &refused) {
        throw jet::Refused(refused.why(), where + u": "_s + refused.text());
    }
}

const jet::CatalogueEntry *entryOf(const std::vector<jet::CatalogueEntry> &catalogue, const QString &table)
{
    const jet::CatalogueEntry *found = nullptr;
    for (const jet::CatalogueEntry &entry : catalogue) {
        if (entry.name.compare(table, Qt::CaseInsensitive) != 0)
            continue;
        if (found)
            jet::damaged(u"the catalogue names "_s + table + u" twice"_s);
        found = &entry;
    }
    return found;
}

void checkRowCount(const OldTable &table, TakeoverReport &report)
{
    const quint32 told = table.definition.rowCount;
    if (told == table.rows.size())
        return;
    const QString rows = QString::number(table.rows.size()) + u" rows are there"_s;
    if (told == 0)
        report.doubt(finding::RowCount, table.shape.name,
                     rows + u" and none is counted: the file was not closed properly"_s);
    else
        report.fault(finding::RowCount, table.shape.name, rows + u", "_s + QString::number(told) + u" are counted"_s);
}

} // namespace

OldRow OldTable::values(const jet::PlacedRow &row) const
{
    return at(shape.name + u' ' + jet::place(row.place.page, row.place.row), [&] {
        const jet::Row bytes(row.bytes, definition);
        OldRow values;
        values.reserve(definition.columns.size());
        for (const jet::Column &column : definition.columns) {
            const std::optional<jet::Bytes> value = bytes.value(column);
            values.push_back(value ? std::optional(jet::textOf(*value)) : std::nullopt);
        }
        return values;
    });
}

QString OldTable::where(const OldRow &row, const QString &column) const
{
    QStringList key;
    for (const QString &name : keyOf(shape)) {
        if (name.compare(u"Passwordd", Qt::CaseInsensitive) != 0)
            key.append(shown(row[std::size_t(placeOf(name))].value_or(QString()).toStdString()).remove(u'"'));
    }
    return shape.name + u" ["_s + key.join(u' ') + u"] "_s + column;
}

int OldTable::placeOf(const QString &column) const
{
    const auto found = std::ranges::find_if(shape.columns, [&](const ColumnShape &candidate) {
        return candidate.name.compare(column, Qt::CaseInsensitive) == 0;
    });
    return found == shape.columns.end() ? -1 : int(found - shape.columns.begin());
}

OldStore::OldStore(std::vector<unsigned char> bytes, TakeoverReport &report)
    : m_file(std::move(bytes))
{
    if (m_file.extraBytes() != 0)
        report.doubt(finding::CutOff, u"the file"_s, u"does not end with a whole page"_s);
    const std::vector<jet::CatalogueEntry> catalogue =
        at(u"the catalogue of tables"_s, [&] { return jet::readCatalogue(m_file); });
    for (const TableShape &wanted : storeSchema()) {
        if (const jet::CatalogueEntry *entry = entryOf(catalogue, wanted.name))
            addTable(wanted, entry->page, report);
        else
            report.fault(finding::MissingTable, wanted.name, u"is missing"_s);
    }
    for (const jet::CatalogueEntry &entry : catalogue) {
        const bool isOurs = std::ranges::any_of(storeSchema(), [&](const TableShape &table) {
            return entry.name.compare(table.name, Qt::CaseInsensitive) == 0;
        });
        if (!isOurs)
            report.note(finding::ForeignObject, shown(entry.name.toStdString()),
                        u"is a table that no store has; it is left out"_s);
    }
}

void OldStore::addTable(const TableShape &wanted, quint32 page, TakeoverReport &report)
{
    OldTable table;
    at(wanted.name, [&] {
        table.definition = jet::readDefinition(m_file, page);
        table.shape = checkOldShape(wanted, table.definition, report);
        table.rows = jet::rowsOf(m_file, table.definition);
    });
    checkRowCount(table, report);
    m_tables.push_back(std::move(table));
}

} // namespace zrv::storetool
