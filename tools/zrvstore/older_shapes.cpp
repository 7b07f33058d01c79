// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/zrvstore/older_shapes.h"

#include <algorithm>

namespace zrv::storetool {

namespace {

struct ColumnName {
    QStringView table;
    QStringView column;
};

// clang-format off
/// Came with later versions; the upgrade adds them to an older store.
constexpr ColumnName Added[] = {
    {u"ZRVtbKarfarma", u"CodeShobe"}, {u"ZRVtbKarfarma", u"ShobeName"}, {u"ZRVtbKarfarma", u"EdareName"},
    {u"ZRVtbKarkonan", u"HomeAddress"},
    {u"ZRVtbHogog", u"NJariSayerPardakhtiha"}, {u"ZRVtbHogog", u"NTotalDaramad"}, {u"ZRVtbHogog", u"NJariMoafiate91"},
    {u"ZRVtbHogog", u"MaskanStatus"}, {u"ZRVtbHogog", u"MaskanMablagh"},
    {u"ZRVtbHogog", u"OtomobilStatus"}, {u"ZRVtbHogog", u"OtomobilMablagh"},
    {u"ZRVtbHogog", u"GTotalDaramad"}, {u"ZRVtbHogog", u"NGPTotalDaramadeMashmol"},
    {u"ZRVtbHogog", u"SayereMoafiatha"}, {u"ZRVtbHogog", u"FinalDaramadeMashmol"},
    {u"ZRVtbHogog", u"JariTax"}, {u"ZRVtbHogog", u"FinalTax"},
};

/// Went with later versions; the upgrade drops them from an older store.
constexpr ColumnName Dropped[] = {
    {u"ZRVtbHogog", u"MoafiatSum"}, {u"ZRVtbHogog", u"NJariTax"}, {u"ZRVtbHogog", u"GjariTax"},
    {u"ZRVtbHogog", u"PjariTax"}, {u"ZRVtbHogog", u"EzafeTozih"},
};

/// No screen writes them, and a store does well without.
constexpr ColumnName Optional[] = {
    {u"ZRVtbKholList", u"JariEzafeTax"}, {u"ZRVtbKholList", u"GablEzafeTax"}, {u"ZRVtbKarkonan", u"IDSeri"},
};

/// Were narrower once; the program's repair widens them.
constexpr ColumnName Widened[] = {{u"ZRVtbKarfarma", u"CodeShobe"}, {u"ZRVtbKholList", u"ChequeSeriNo"}};

struct OlderWidth {
    ColumnName name;
    int width;
};
constexpr OlderWidth OlderWidths[] = {
    {{u"ZRVtbKholList", u"KarkonanNo"}, 6},
    {{u"ZRVtbKholList", u"KharejiNo"}, 4},
};
// clang-format on

template <std::size_t Size>
bool contains(const ColumnName (&names)[Size], QStringView table, QStringView column)
{
    return std::ranges::any_of(names, [&](const ColumnName &name) {
        return name.table.compare(table, Qt::CaseInsensitive) == 0
               && name.column.compare(column, Qt::CaseInsensitive) == 0;
    });
}

} // namespace

bool isAdded(QStringView table, QStringView column)
{
    return contains(Added, table, column);
}

bool isDropped(QStringView table, QStringView column)
{
    return contains(Dropped, table, column);
}

bool isOptional(QStringView table, QStringView column)
{
    return contains(Optional, table, column);
}

bool isWidened(QStringView table, QStringView column)
{
    return contains(Widened, table, column);
}

bool isOlderWidth(QStringView table, QStringView column, int width)
{
    return std::ranges::any_of(OlderWidths, [&](const OlderWidth &older) {
        return older.width == width && older.name.table.compare(table, Qt::CaseInsensitive) == 0
               && older.name.column.compare(column, Qt::CaseInsensitive) == 0;
    });
}

} // namespace zrv::storetool
