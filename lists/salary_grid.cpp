// SPDX-License-Identifier: GPL-3.0-or-later
#include "lists/salary_grid.h"

#include <array>

namespace zrv {

namespace {

constexpr QStringView Hogog = u"ZRVtbHogog";
constexpr QStringView Karkonan = u"ZRVtbKarkonan";
constexpr QStringView AmountPicture = u" #,##0 ";

enum class Kind {
    Text,
    Digits,
    Code, ///< shown as what its list says of it
    Amount,
    Sum,  ///< of what the payee drew in the month, whatever is exempt of it
    Mask, ///< the same asterisks in each row; the printed list has a column for them
};

struct Column {
    QStringView field;
    QStringView table;
    Kind kind;
    QStringView caption;
    QStringView list = {};      ///< the code list of a code
    QStringView listAlias = {}; ///< the name under which the statement joins that list
};

// clang-format off
constexpr std::array Columns{
    Column{u"TaxYear",                 Hogog,    Kind::Digits, u" ســال "},
    Column{u"TaxMonth",                Hogog,    Kind::Code,   u" مــاه ", u"4", u"ZRVtbCoding"},
    Column{u"MelliCode",               Hogog,    Kind::Digits, u" کــد ملي "},
    Column{u"CodeMelliState",          Hogog,    Kind::Mask,   u" وضعيت ملي "},
    Column{u"Name",                    Karkonan, Kind::Text,   u" نـــام "},
    Column{u"Family",                  Karkonan, Kind::Text,   u" نـــام خانوادگي "},
    Column{u"FatherName",              Karkonan, Kind::Text,   u" نـــام پدر "},
    Column{u"PostCode",                Karkonan, Kind::Digits, u"کد پستي"},
    Column{u"Semat",                   Karkonan, Kind::Code,   u"   سمت ", u"2", u"ZRVtbCoding_2"},
    Column{u"Sabege",                  Karkonan, Kind::Digits, u"سابقه"},
    Column{u"Madrak",                  Karkonan, Kind::Code,   u"مدرک تحصيلي", u"1", u"ZRVtbCoding_1"},
    Column{u"Rasteh",                  Karkonan, Kind::Code,   u"رسته", u"10", u"ZRVtbCoding_3"},
    Column{u"ShakhsMoafCode",          Karkonan, Kind::Code,   u"نوع معافيت", u"13", u"ZRVtbCoding_4"},
    Column{u"EstekhdamType",           Karkonan, Kind::Code,   u"نوع استخدام", u"15", u"ZRVtbCoding_5"},
    Column{u"BimehType",               Karkonan, Kind::Code,   u"نوع بيمه", u"16", u"ZRVtbCoding_6"},
    Column{u"InsuNo",                  Karkonan, Kind::Digits, u"شماره بيمه"},
    Column{u"NJariHogog",              Hogog,    Kind::Amount, u"حقوق و مزايـــاي مستمر پرداختي/تخصيصي در ماه جاري"},
    Column{u"JariEzafeKar",            Hogog,    Kind::Amount, u"اضافه کار و مزايايي غير مستمر پرداختي/تخصيصي در ماه جاري"},
    Column{u"NJariSayerPardakhtiha",   Hogog,    Kind::Amount, u"ساير پرداختهاي ماه جاري(در صورتيکه مالياتهاي آن قبلا پرداخت نشده باشد)"},
    Column{u"NTotalDaramad",           Hogog,    Kind::Amount, u"جمع کل مبالغ پرداختي/تخصيصي نقدي در ماه جاري"},
    Column{u"NJariMoafiate91",         Hogog,    Kind::Amount, u"کسر ميشود معافيت موضوع ماده 91 (به استثنا بندهاي 10 و 13)"},
    Column{u"NDaramadeMashmol",        Hogog,    Kind::Amount, u"مانده پرداختي/تخصيصي نقدي ماه جاري پس از کسر معافيت ماده 91"},
    Column{u"GJariHogog",              Hogog,    Kind::Amount, u"مبلغ پرداختي/تخصيصي غير نقدي در ماه جاري"},
    Column{u"MaskanStatus",            Hogog,    Kind::Code,   u"وضعيت استفاده از مسکـن", u"18", u"ZRVtbCoding_7"},
    Column{u"MaskanMablagh",           Hogog,    Kind::Amount, u"مبلغ قابل احتساب بابت مسکن (بند الف ماده 83)"},
    Column{u"OtomobilStatus",          Hogog,    Kind::Code,   u"وضعيت استفاده از اتـومبيل", u"19", u"ZRVtbCoding_8"},
    Column{u"OtomobilMablagh",         Hogog,    Kind::Amount, u"مبلغ قابل احتساب بابت اتـومبيل (بند ب ماده 83)"},
    Column{u"GTotalDaramad",           Hogog,    Kind::Amount, u"جمع کل مبالغ پرداختي/تخصيصي غير نقدي در ماه جاري"},
    Column{u"GDaramadeMashmol",        Hogog,    Kind::Amount, u"مانده پرداختي/تخصيصي غير نقدي پس از کسر معافيت بند 13 ماده 91"},
    Column{u"PJariHogog",              Hogog,    Kind::Amount, u"مبلغ پرداختي/تخصيصي پـاداش يــا عيدي پايان سال درماه جاري "},
    Column{u"PDaramadeMashmol",        Hogog,    Kind::Amount, u"مانده پرداختي/تخصيصي عيدي يا پاداش پس از کسر معافيت بند 10 ماده 91"},
    Column{u"NGPTotalDaramadeMashmol", Hogog,    Kind::Amount, u"جمع کل مانده حقوق و مزاياي نقدي، غير نقدي و عيدي و پاداش (انتقالي از ستونهاي الف و ب و ج)"},
    Column{u"SayereMoafiatha",         Hogog,    Kind::Amount, u"کسر ميشود ساير معافيت ها"},
    Column{u"FinalDaramadeMashmol",    Hogog,    Kind::Amount, u"درآمد مشمول ماليات حقوق"},
    Column{u"JariTax",                 Hogog,    Kind::Amount, u"ماليات ماه جاري"},
    Column{u"FinalTax",                Hogog,    Kind::Amount, u"ماليات قابل پرداخت"},
    Column{u"JariSumHogog",            Hogog,    Kind::Sum,    u"جمع حقوق و مزاياي دريافتي"},
};

constexpr QStringView SumExpression = u"val(ZRVtbHogog.NTotalDaramad)+val(ZRVtbHogog.GTotalDaramad)+val(ZRVtbHogog.PJariHogog)";
constexpr QStringView MaskExpression = u"IIF(ZRVtbHogog.MelliCode,\"*****\",\"*****\")";
// clang-format on

/// What the column shows, as the statement names it.
QString expressionOf(const Column &column)
{
    switch (column.kind) {
    case Kind::Code:
        return column.listAlias + u".SDesc"_s;
    case Kind::Sum:
        return SumExpression.toString();
    case Kind::Mask:
        return MaskExpression.toString();
    default:
        return column.table + u'.' + column.field;
    }
}

/// Months follow each other as the year goes. Amounts are texts of digits; as texts 900 would come behind 12000.
QString orderOf(const Column &column)
{
    if (column.field == u"TaxMonth")
        return u"ZRVtbHogog.TaxMonth"_s;
    return column.kind == Kind::Amount ? QString(u"val("_s + expressionOf(column) + u")"_s) : QString();
}

QString joinedTables()
{
    QString joined = u"(ZRVtbHogog LEFT JOIN ZRVtbKarkonan ON ZRVtbHogog.MelliCode = ZRVtbKarkonan.MelliCode)"_s;
    for (const Column &column : Columns) {
        if (column.kind != Kind::Code)
            continue;
        joined = u"("_s + joined + u" LEFT JOIN ZRVtbCoding AS "_s + column.listAlias + u" ON "_s + column.table
                 + u"."_s + column.field + u" = "_s + column.listAlias + u".SCode AND "_s + column.listAlias
                 + u".MCode = '"_s + column.list + u"')"_s;
    }
    return joined;
}

} // namespace

QString salarySelect()
{
    static const QString statement = [] {
        QStringList items;
        for (const Column &column : Columns)
            items += expressionOf(column) + u" AS "_s + column.field;
        return QString(u"SELECT "_s + items.join(u',') + u" FROM "_s + joinedTables());
    }();
    return statement;
}

std::vector<BrowseColumn> salaryGridColumns()
{
    std::vector<BrowseColumn> columns;
    columns.reserve(Columns.size());
    for (const Column &column : Columns) {
        const bool isAmount = column.kind == Kind::Amount || column.kind == Kind::Sum;
        columns.push_back({.field = column.field.toString(),
                           .caption = column.caption.toString(),
                           .format = isAmount ? AmountPicture.toString() : QString(),
                           .leftToRight = isAmount || column.kind == Kind::Digits,
                           .expression = expressionOf(column),
                           .sortedBy = orderOf(column),
                           .visible = column.kind != Kind::Mask});
    }
    return columns;
}

} // namespace zrv
