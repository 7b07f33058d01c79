// SPDX-License-Identifier: GPL-3.0-or-later
#include "parties/payee_grid.h"

#include <array>

namespace zrv {

namespace {

constexpr QStringView DatePicture = u" ##/##/## ";

struct PayeeColumn {
    QStringView field;
    QStringView caption;
    QStringView list = {};      ///< the code list of a code
    QStringView listAlias = {}; ///< the name under which the statement joins that list
    bool leftToRight = false;
    QStringView format = {};
};

// clang-format off
constexpr std::array Columns{
    PayeeColumn{.field = u"MelliCode",      .caption = u"کدملي/گذرنامه", .leftToRight = true},
    PayeeColumn{.field = u"Name",           .caption = u" نـــام "},
    PayeeColumn{.field = u"Family",         .caption = u" نـــام خانوادگي "},
    PayeeColumn{.field = u"FatherName",     .caption = u" نـــام پدر "},
    PayeeColumn{.field = u"BeginDate",      .caption = u" تاريخ شروع ", .leftToRight = true, .format = DatePicture},
    PayeeColumn{.field = u"EndDate",        .caption = u" تاريخ پايان ", .leftToRight = true, .format = DatePicture},
    PayeeColumn{.field = u"PostCode",       .caption = u" کـد پستي ", .leftToRight = true},
    PayeeColumn{.field = u"Semat",          .caption = u" سمت يا شغل ",   .list = u"2",  .listAlias = u"ZRVtbCoding_2"},
    PayeeColumn{.field = u"Sabege",         .caption = u" سابقه ", .leftToRight = true},
    PayeeColumn{.field = u"Madrak",         .caption = u" مدرک تحصيلي ",  .list = u"1",  .listAlias = u"ZRVtbCoding_1"},
    PayeeColumn{.field = u"Rasteh",         .caption = u" رسته شغلي ",    .list = u"10", .listAlias = u"ZRVtbCoding_3"},
    PayeeColumn{.field = u"InsuNo",         .caption = u" شماره بيمه", .leftToRight = true},
    PayeeColumn{.field = u"ShakhsMoafCode", .caption = u" نوع معافيت ",   .list = u"13", .listAlias = u"ZRVtbCoding_4"},
    PayeeColumn{.field = u"MelliatCode",    .caption = u" مليت ",         .list = u"11", .listAlias = u"ZRVtbCoding_5"},
    PayeeColumn{.field = u"KeshvarCode",    .caption = u" کشور ",         .list = u"12", .listAlias = u"ZRVtbCoding_6"},
    PayeeColumn{.field = u"EstekhdamType",  .caption = u" نوع استخدام ",  .list = u"15", .listAlias = u"ZRVtbCoding_7"},
    PayeeColumn{.field = u"BimehType",      .caption = u" نوع بيمه ",     .list = u"16", .listAlias = u"ZRVtbCoding_8"},
};
// clang-format on

/// What the column shows, as the statement names it: a payee's column, or the description of a code.
QString expressionOf(const PayeeColumn &column)
{
    return column.list.isEmpty() ? QString(u"ZRVtbKarkonan."_s + column.field)
                                 : QString(column.listAlias + u".SDesc"_s);
}

QString joinedLists()
{
    QString joined = u"ZRVtbKarkonan"_s;
    for (const PayeeColumn &column : Columns) {
        if (column.list.isEmpty())
            continue;
        joined = u"("_s + joined + u" LEFT JOIN ZRVtbCoding AS "_s + column.listAlias + u" ON ZRVtbKarkonan."_s
                 + column.field + u" = "_s + column.listAlias + u".SCode AND "_s + column.listAlias + u".MCode = '"_s
                 + column.list + u"')"_s;
    }
    return joined;
}

} // namespace

QString payeeSelect()
{
    static const QString statement = [] {
        QStringList items;
        for (const PayeeColumn &column : Columns)
            items += expressionOf(column) + u" AS "_s + column.field;
        return QString(u"SELECT "_s + items.join(u", "_s) + u" FROM "_s + joinedLists());
    }();
    return statement;
}

std::vector<BrowseColumn> payeeColumns(const QString &codeCaption)
{
    std::vector<BrowseColumn> columns;
    columns.reserve(Columns.size());
    for (const PayeeColumn &column : Columns)
        columns.push_back({column.field.toString(), column.caption.toString(), column.format.toString(),
                           column.leftToRight, expressionOf(column)});
    columns.front().caption = codeCaption;
    return columns;
}

} // namespace zrv
