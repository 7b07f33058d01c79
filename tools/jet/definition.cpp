// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/jet/definition.h"

#include "tools/jet/text.h"

#include <algorithm>
#include <set>

namespace zrv::jet {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr std::size_t MostPages = 64;
constexpr std::size_t MostColumns = 255;
constexpr std::size_t MostIndexes = 1000;
constexpr std::size_t LongestName = 64; ///< letters

// Places in a definition.
constexpr std::size_t NextPage = 4;
constexpr std::size_t ContinuedAt = 8; ///< on the pages behind the first
constexpr std::size_t RowCount = 16;
constexpr std::size_t MostColumnsAt = 41;
constexpr std::size_t ColumnCount = 45;
constexpr std::size_t IndexCount = 51;
constexpr std::size_t UsageMap = 55;
constexpr std::size_t FirstIndex = 63;
constexpr std::size_t IndexSize = 12;
constexpr std::size_t ColumnSize = 25;

/// The bytes of a definition as one stretch.
std::vector<unsigned char> joinedPages(const PageFile &file, quint32 first)
{
    std::vector<unsigned char> joined;
    std::set<quint32> visited;
    for (quint32 number = first; number != 0;) {
        if (!visited.insert(number).second || visited.size() > MostPages)
            damaged(place(number) + u": a table's definition leads back into itself"_s);
        const Bytes page = file.page(number, PageKind::Definition);
        const Bytes part = number == first ? page : page.part(ContinuedAt, PageSize - ContinuedAt);
        joined.insert(joined.end(), part.data(), part.data() + part.size());
        number = page.u32(NextPage);
    }
    return joined;
}

Column columnAt(Bytes entry)
{
    Column column;
    column.type = entry.u8(0);
    column.number = entry.u16(5);
    column.variableIndex = entry.u16(7);
    column.isFixed = (entry.u8(15) & 1) != 0;
    column.fixedOffset = entry.u16(21);
    column.size = entry.u16(23);
    return column;
}

void readNames(Bytes definition, std::size_t at, std::vector<Column> &columns, quint32 page)
{
    for (Column &column : columns) {
        const std::size_t size = definition.u16(at);
        if (size == 0 || size % 2 != 0 || size > 2 * LongestName)
            damaged(place(page) + u": a column's name is "_s + QString::number(size) + u" bytes long"_s);
        column.name = plainText(definition.part(at + 2, size));
        at += 2 + size;
    }
}

/// Two columns under one name, number or place make rows that can be read in more than one way.
void refuseDoubles(const Definition &definition)
{
    std::set<quint16> numbers;
    std::set<quint16> places;
    std::set<QString> names;
    for (const Column &column : definition.columns) {
        if (column.number >= definition.mostColumns || !numbers.insert(column.number).second)
            damaged(place(definition.page) + u": the columns' numbers are wrong"_s);
        if (!column.isFixed && (column.variableIndex >= MostColumns || !places.insert(column.variableIndex).second))
            damaged(place(definition.page) + u": the columns' places are wrong"_s);
        if (!names.insert(column.name.toCaseFolded()).second)
            damaged(place(definition.page) + u": two columns have one name"_s);
    }
}

} // namespace

const Column *Definition::column(QStringView name) const
{
    auto found = std::ranges::find(columns, name, &Column::name);
    if (found == columns.end())
        found = std::ranges::find_if(
            columns, [&](const Column &each) { return name.compare(each.name, Qt::CaseInsensitive) == 0; });
    return found == columns.end() ? nullptr : &*found;
}

Definition readDefinition(const PageFile &file, quint32 page)
{
    const std::vector<unsigned char> joined = joinedPages(file, page);
    const Bytes bytes{std::span(joined)};
    Definition definition;
    definition.page = page;
    definition.rowCount = bytes.u32(RowCount);
    definition.mostColumns = bytes.u16(MostColumnsAt);
    definition.usageMap = RowPlace::fromFile(bytes.u32(UsageMap));
    const std::size_t count = bytes.u16(ColumnCount);
    const std::size_t indexes = bytes.u32(IndexCount);
    if (count == 0 || count > MostColumns || definition.mostColumns > MostColumns)
        damaged(place(page) + u": a table of "_s + QString::number(count) + u" columns"_s);
    if (indexes > MostIndexes)
        damaged(place(page) + u": a table of "_s + QString::number(indexes) + u" indexes"_s);
    const std::size_t first = FirstIndex + IndexSize * indexes;
    for (std::size_t i = 0; i < count; ++i)
        definition.columns.push_back(columnAt(bytes.part(first + ColumnSize * i, ColumnSize)));
    readNames(bytes, first + ColumnSize * count, definition.columns, page);
    refuseDoubles(definition);
    std::ranges::sort(definition.columns, {}, &Column::number);
    return definition;
}

} // namespace zrv::jet
