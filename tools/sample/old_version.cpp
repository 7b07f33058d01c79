// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/sample/old_version.h"

#include "core/basic/val.h"
#include "core/store/fresh_rows.h"
#include "core/store/schema.h"

#include <algorithm>

namespace zrv::sample {

namespace {

using namespace Qt::Literals::StringLiterals;

struct Place {
    QStringView table;
    QStringView column;
};

// clang-format off
constexpr Place Younger[] = {
    {u"ZRVtbKarfarma", u"CodeShobe"}, {u"ZRVtbKarfarma", u"ShobeName"}, {u"ZRVtbKarfarma", u"EdareName"},
    {u"ZRVtbKarkonan", u"HomeAddress"},
    {u"ZRVtbHogog", u"NJariSayerPardakhtiha"}, {u"ZRVtbHogog", u"NTotalDaramad"}, {u"ZRVtbHogog", u"NJariMoafiate91"},
    {u"ZRVtbHogog", u"MaskanStatus"}, {u"ZRVtbHogog", u"MaskanMablagh"}, {u"ZRVtbHogog", u"OtomobilStatus"},
    {u"ZRVtbHogog", u"OtomobilMablagh"}, {u"ZRVtbHogog", u"GTotalDaramad"},
    {u"ZRVtbHogog", u"NGPTotalDaramadeMashmol"}, {u"ZRVtbHogog", u"SayereMoafiatha"},
    {u"ZRVtbHogog", u"FinalDaramadeMashmol"}, {u"ZRVtbHogog", u"JariTax"}, {u"ZRVtbHogog", u"FinalTax"},
    {u"ZRVtbKholList", u"JariEzafeTax"}, {u"ZRVtbKholList", u"GablEzafeTax"},
};

/// Columns of the salary list that later versions dropped.
struct Dropped {
    QStringView column;
    int width;
    const char16_t *value; ///< null: nothing was ever entered
};

constexpr Dropped OldSalaryColumns[] = {
    {u"MoafiatSum", 10, u"0"}, {u"NJariTax", 10, u"0"}, {u"GjariTax", 10, u"0"}, {u"PjariTax", 10, u"0"},
    {u"EzafeTozih", 50, nullptr},
};

constexpr int OldChequeWidth = 6;

/// The last row of a list that later versions went on with; lists that they made anew end before their first.
struct End {
    QStringView list;
    int highest;
};

constexpr End Ends[] = {
    {u"6", 0}, {u"9", 2}, {u"10", 9}, {u"13", -1}, {u"15", 6}, {u"16", 2}, {u"17", 0}, {u"18", 0}, {u"19", 0},
};

struct ListName {
    QStringView list;
    const char *name;
};

constexpr ListName OldNames[] = {{u"5", "نوع مودي اصلي"}, {u"16", "نوع يبمه"}};

const CodeRow OldRows[] = {
    {"5", "نوع مودي اصلي", "3", "موسسه"},
    {"5", "نوع مودي اصلي", "4", "دستگاه"},
    {"6", "نوع مودي فرعي", "1", "نظام هماهنگ پرداخت"},
    {"6", "نوع مودي فرعي", "2", "غير نظام هماهنگ پرداخت"},
    {"13", "کد اشخاص معاف", "0", "عدم معافيت"},
    {"13", "کد اشخاص معاف", "1", "جانبازان انقلاب اسلامي و جنگ تحميلي"},
    {"13", "کد اشخاص معاف", "2", "اشخاص معاف - رديف 2"},
    {"13", "کد اشخاص معاف", "3", "شاغلين در مناطق کمتر توسعه يافته 50 درصد معافيت"},
    {"13", "کد اشخاص معاف", "4", "پرسنل نيروي نظامي"},
    {"13", "کد اشخاص معاف", "5", "پرسنل نيروي انتظامي"},
    {"13", "کد اشخاص معاف", "6", "مشمولان قانون استخدامي وزارت اطلاعات"},
    {"13", "کد اشخاص معاف", "7", "اشخاص معاف - رديف 7"},
    {"13", "کد اشخاص معاف", "8", "اشخاص معاف - رديف 8"},
    {"13", "کد اشخاص معاف", "9", "اشخاص معاف - رديف 9"},
    {"13", "کد اشخاص معاف", "10", "اشخاص معاف - رديف 10"},
    {"13", "کد اشخاص معاف", "11", "شاغلين در مناطق آزاد تجاري - صنعتي"},
    {"17", "معافيت سالانه ماده 84", "1387", "49200000"},
};
// clang-format on

bool isYounger(const QString &table, const QString &column)
{
    return std::ranges::any_of(Younger,
                               [&](const Place &place) { return place.table == table && place.column == column; });
}

TableShape asOld(TableShape table)
{
    std::erase_if(table.columns, [&](const ColumnShape &column) { return isYounger(table.name, column.name); });
    for (QStringList &key : table.uniqueKeys)
        key.removeIf([&](const QString &column) { return isYounger(table.name, column); });
    if (table.name == u"ZRVtbHogog")
        for (const Dropped &dropped : OldSalaryColumns)
            table.columns.push_back({dropped.column.toString(), dropped.width});
    const auto cheque = std::ranges::find(table.columns, u"ChequeSeriNo"_s, &ColumnShape::name);
    if (cheque != table.columns.end())
        cheque->width = OldChequeWidth;
    return table;
}

/// A code that the old list had not: its last one instead.
void cut(std::string &code, const std::string &highest)
{
    if (Val(QString::fromStdString(code)) > Val(QString::fromStdString(highest)))
        code = highest;
}

} // namespace

const std::vector<TableShape> &oldSchema()
{
    static const std::vector<TableShape> schema = [] {
        std::vector<TableShape> tables;
        for (const TableShape &table : storeSchema())
            tables.push_back(asOld(table));
        return tables;
    }();
    return schema;
}

Value oldValue(const QString &column)
{
    const auto *const dropped = std::ranges::find(OldSalaryColumns, QStringView(column), &Dropped::column);
    if (dropped == std::end(OldSalaryColumns) || !dropped->value)
        return {};
    return QString::fromUtf16(dropped->value);
}

std::vector<CodeRow> oldCodes()
{
    std::vector<CodeRow> rows;
    for (const auto &[list, listName, code, description] : freshCodes()) {
        const auto *const end = std::ranges::find(Ends, list, &End::list);
        if (end != std::end(Ends) && Val(code) > end->highest)
            continue;
        const auto *const name = std::ranges::find(OldNames, list, &ListName::list);
        rows.push_back({list.toString().toStdString(),
                        name == std::end(OldNames) ? listName.toString().toStdString() : std::string(name->name),
                        code.toString().toStdString(), description.toString().toStdString()});
    }
    std::ranges::copy(OldRows, std::back_inserter(rows));
    return rows;
}

Payer asOld(Payer payer)
{
    // Public bodies and all others were told apart, nothing else.
    cut(payer.SMoadiType, "2");
    return payer;
}

Payee asOld(Payee payee)
{
    cut(payee.Rasteh, "9");
    cut(payee.EstekhdamType, "6");
    if (payee.BimehType == "3")
        payee.BimehType = "0";
    // What the numbers of the exemptions were before two of them changed places and the rest moved up.
    const std::string numbersNow = "13456";
    const std::string numbersThen[] = {"3", "1", "5", "6", "11"};
    if (const std::size_t place = numbersNow.find(payee.ShakhsMoafCode); place != std::string::npos)
        payee.ShakhsMoafCode = numbersThen[place];
    return payee;
}

Summary asOld(Summary summary)
{
    cut(summary.NahveyePardakht, "2");
    if (summary.ChequeSeriNo.size() > OldChequeWidth)
        summary.ChequeSeriNo.resize(OldChequeWidth);
    return summary;
}

} // namespace zrv::sample
