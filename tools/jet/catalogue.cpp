// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/jet/catalogue.h"

#include "tools/jet/definition.h"
#include "tools/jet/table.h"
#include "tools/jet/text.h"

namespace zrv::jet {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr quint32 CataloguePage = 2;
constexpr std::size_t MostTables = 2000;
constexpr quint16 LocalTable = 1;
constexpr quint32 SystemFlags = 0x80000002; ///< made by the database itself, or by its tools

/// One of the catalogue's columns; it has the same ones in every file.
const Column &columnOf(const Definition &catalogue, QStringView name, quint8 type)
{
    const Column *column = catalogue.column(name);
    if (!column || column->type != type || column->isFixed != (type != TextType))
        damaged(u"the catalogue of tables has no column "_s + name);
    return *column;
}

template <typename Number>
Number numberOf(const Row &row, const Column &column, Number (Bytes::*read)(std::size_t) const)
{
    const std::optional<Bytes> value = row.value(column);
    return value ? ((*value).*read)(0) : Number(0);
}

} // namespace

std::vector<CatalogueEntry> readCatalogue(const PageFile &file)
{
    const Definition catalogue = readDefinition(file, CataloguePage);
    const Column &id = columnOf(catalogue, u"Id", LongType);
    const Column &name = columnOf(catalogue, u"Name", TextType);
    const Column &type = columnOf(catalogue, u"Type", IntegerType);
    const Column &flags = columnOf(catalogue, u"Flags", LongType);
    std::vector<CatalogueEntry> entries;
    for (const PlacedRow &placed : rowsOf(file, catalogue)) {
        const Row row(placed.bytes, catalogue);
        if (numberOf(row, type, &Bytes::u16) != LocalTable || (numberOf(row, flags, &Bytes::u32) & SystemFlags) != 0)
            continue;
        const std::optional<Bytes> text = row.value(name);
        if (!text)
            damaged(u"the catalogue names a table without a name"_s);
        entries.push_back({textOf(*text), numberOf(row, id, &Bytes::u32) & 0xFFFFFF});
        if (entries.size() > MostTables)
            damaged(u"the catalogue names more than "_s + QString::number(MostTables) + u" tables"_s);
    }
    return entries;
}

} // namespace zrv::jet
