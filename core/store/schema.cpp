// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/store/schema.h"

#include <span>

namespace zrv {

using namespace Qt::Literals::StringLiterals;

namespace {

struct Column {
    QStringView name;
    int width;
};

constexpr int Code = 4;
constexpr int Amount = 13;        ///< a salary amount, in digits
constexpr int MonthAmount = 15;   ///< a sum of a month
constexpr int EarlierAmount = 17; ///< a sum of the months before
constexpr int Date = 8;

// clang-format off
constexpr Column Karfarma[] = {
    {u"TFN", 12}, {u"CodeShobe", 5},
    {u"MMoadiType", 1}, {u"SMoadiType", 1}, {u"MohasebeType", 1},
    {u"Name", 15}, {u"Family", 50}, {u"ShobeName", 30},
    {u"Tin", 12}, {u"PostCode", 10}, {u"CodeHozeh", 6}, {u"TelNo", 20}, {u"Address", 150},
    {u"MelliCode1", 10}, {u"EmzaName1", 15}, {u"EmzaFamily1", 50}, {u"EmzaSemat1", 30},
    {u"MelliCode2", 10}, {u"EmzaName2", 15}, {u"EmzaFamily2", 50}, {u"EmzaSemat2", 30},
    {u"EdareName", 50},
};

constexpr Column Karkonan[] = {
    {u"TFN", 12}, {u"MelliCode", 10}, {u"Name", 15}, {u"Family", 50}, {u"FatherName", 15}, {u"PostCode", 10},
    {u"Semat", Code}, {u"Sabege", 2}, {u"Madrak", Code}, {u"Rasteh", Code}, {u"InsuNo", 12},
    {u"ShakhsMoafCode", Code}, {u"MelliatCode", Code}, {u"KeshvarCode", Code},
    {u"BeginDate", Date}, {u"EndDate", Date}, {u"EstekhdamType", Code}, {u"BimehType", Code},
    {u"HomeAddress", 150},
    {u"IDSeri", Code}, // no screen writes it; one listing of the clean-up joins it
};

constexpr Column Hogog[] = {
    {u"TFN", 12}, {u"MelliCode", 10}, {u"TaxYear", 4}, {u"TaxMonth", Code},
    {u"NJariHogog", Amount}, {u"JariEzafeKar", Amount}, {u"NJariSayerPardakhtiha", Amount},
    {u"NTotalDaramad", Amount}, {u"NJariMoafiate91", Amount}, {u"NDaramadeMashmol", Amount},
    {u"GJariHogog", Amount}, {u"MaskanStatus", 1}, {u"MaskanMablagh", Amount},
    {u"OtomobilStatus", 1}, {u"OtomobilMablagh", Amount}, {u"GTotalDaramad", Amount},
    {u"GDaramadeMashmol", Amount}, {u"PJariHogog", Amount}, {u"PDaramadeMashmol", Amount},
    {u"NGPTotalDaramadeMashmol", Amount}, {u"SayereMoafiatha", Amount}, {u"FinalDaramadeMashmol", Amount},
    {u"JariTax", Amount}, {u"FinalTax", Amount},
};

constexpr Column KholList[] = { // its two counts have room for the separator that a new row keeps
    {u"TFN", 12}, {u"KholListType", Code}, {u"TaxYear", 4}, {u"TaxMonth", Code},
    {u"JariSumHogog", MonthAmount}, {u"JariSumMashmol", MonthAmount}, {u"JariTax", MonthAmount},
    {u"JariJarimeDo", MonthAmount}, {u"JariJarimeBist", MonthAmount}, {u"JariBedehiTax", MonthAmount},
    {u"JariEzafeTax", MonthAmount},
    {u"GablSumHogog", EarlierAmount}, {u"GablSumMashmol", EarlierAmount}, {u"GablTax", EarlierAmount},
    {u"GablJarimeDo", EarlierAmount}, {u"GablJarimeBist", EarlierAmount}, {u"GablBedehiTax", EarlierAmount},
    {u"GablEzafeTax", EarlierAmount},
    {u"RoznameDate", Date}, {u"KarkonanNo", 7}, {u"KharejiNo", 5}, {u"NahveyePardakht", Code},
    {u"ChequeSeriNo", 15}, {u"ChequeDate", Date}, {u"BankName", Code}, {u"ShobeName", 25}, {u"HesabNo", 13},
    {u"MablagPardakhti", MonthAmount},
};

constexpr Column Coding[] = {{u"MCode", 5}, {u"MDesc", 50}, {u"SCode", Code}, {u"SDesc", 50}};

constexpr Column Users[] = {
    {u"UserNamee", 10}, {u"Passwordd", 10}, {u"Name", 15}, {u"Family", 20}, {u"Access_Level", 1},
};
// clang-format on

TableShape table(const QString &name, std::span<const Column> columns, const QStringList &key,
                 std::vector<QStringList> indexes = {})
{
    TableShape shape{name, {}, {key}, std::move(indexes)};
    for (const Column &column : columns)
        shape.columns.push_back({column.name.toString(), column.width});
    return shape;
}

} // namespace

const std::vector<TableShape> &storeSchema()
{
    // Rows of a month stand in its index in the order in which they were entered, so that a month is read in that
    // order without being sorted. Payees and salary rows are joined by the national code alone.
    static const std::vector<TableShape> schema = {
        table(u"ZRVtbKarfarma"_s, Karfarma, {u"TFN"_s, u"CodeShobe"_s}),
        table(u"ZRVtbKarkonan"_s, Karkonan, {u"TFN"_s, u"MelliCode"_s}, {{u"MelliCode"_s}}),
        table(u"ZRVtbHogog"_s, Hogog, {u"TFN"_s, u"MelliCode"_s, u"TaxYear"_s, u"TaxMonth"_s},
              {{u"TFN"_s, u"TaxYear"_s, u"TaxMonth"_s}, {u"MelliCode"_s}}),
        table(u"ZRVtbKholList"_s, KholList, {u"TFN"_s, u"KholListType"_s, u"TaxYear"_s, u"TaxMonth"_s}),
        table(u"ZRVtbCoding"_s, Coding, {u"MCode"_s, u"SCode"_s}),
        table(u"User_Defination"_s, Users, {u"UserNamee"_s, u"Passwordd"_s}),
    };
    return schema;
}

} // namespace zrv
