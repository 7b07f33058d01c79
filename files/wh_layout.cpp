// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/wh_layout.h"

namespace zrv {
namespace {

using enum Fill;

// clang-format off
constexpr std::array<Field, 22> PayerFields = {{
    // no name            table            made of        width list
    //   label, meaning
    { 1, u"TFN",         u"ZRVtbKarfarma", Column,          12,  0,
     u"(شماره پرونده)"}, // the payer's file number at the tax office
    { 2, u"CodeShobe",   u"ZRVtbKarfarma", Column,           2,  0,
     u"(کد شعبه)"}, // branch code
    { 3, u"TaxYear",     u"",              GivenMonth,       4,  0,
     u"(سال پرداخت)"}, // tax year
    { 4, u"TaxMonth",    u"",              GivenMonth,       2,  4,
     u"(ماه پرداخت)"}, // tax month code
    { 5, u"MMoadiType",  u"ZRVtbKarfarma", Column,           4,  5,
     u"(نوع اصلي پرداخت کننده حقوق)"}, // kind of payer: 2 a legal person, any other a natural person
    { 6, u"SMoadiType",  u"ZRVtbKarfarma", Column,           4,  6,
     u"(نوع فرعي پرداخت کننده حقوق)"}, // sub-kind of payer
    { 7, u"Name",        u"ZRVtbKarfarma", Column,          15,  0,
     u"(نام پرداخت کننده حقوق)"}, // first name of the payer
    { 8, u"Family",      u"ZRVtbKarfarma", Column,          50,  0,
     u"(نام خانوادگي پرداخت کننده حقوق/نام شرکت)"}, // surname, or company name of a legal person
    { 9, u"ShobeName",   u"ZRVtbKarfarma", Column,          30,  0,
     u"(نام شعبه)"}, // branch name
    {10, u"TIN",         u"ZRVtbKarfarma", Column,          12,  0,
     u"(شماره اقتصادي / کد ملي پرداخت کننده حقوق)"}, // economic number, or national code of a natural person
    {11, u"PostCode",    u"ZRVtbKarfarma", Column,          10,  0,
     u"(کد پستي پرداخت کننده حقوق)"}, // post code
    {12, u"TelNo",       u"ZRVtbKarfarma", Column,          20,  0,
     u"(شماره تلفن پرداخت کننده حقوق)"}, // telephone
    {13, u"Address",     u"ZRVtbKarfarma", Column,         150,  0,
     u"(آدرس)"}, // address
    {14, u"MelliCode1",  u"ZRVtbKarfarma", Column,          10,  0,
     u"(شماره ملي/گذرنامه امضا کننده اول)"}, // national or passport number of the first signatory
    {15, u"EmzaName1",   u"ZRVtbKarfarma", Column,          15,  0,
     u"(نام امضا کننده اول)"}, // first signatory's first name
    {16, u"EmzaFamily1", u"ZRVtbKarfarma", Column,          50,  0,
     u"(نام خانوادگي امضا کننده اول)"}, // first signatory's surname
    {17, u"EmzaSemat1",  u"ZRVtbKarfarma", Column,          30,  0,
     u"(سمت امضا کننده اول)"}, // first signatory's post
    {18, u"MelliCode2",  u"ZRVtbKarfarma", Column,          10,  0,
     u"(شماره ملي/گذرنامه امضا کننده دوم)"}, // second signatory's number
    {19, u"EmzaName2",   u"ZRVtbKarfarma", Column,          15,  0,
     u"(نام امضا کننده دوم)"}, // second signatory's first name
    {20, u"EmzaFamily2", u"ZRVtbKarfarma", Column,          50,  0,
     u"(نام خانوادگي امضا کننده دوم)"}, // second signatory's surname
    {21, u"EmzaSemat2",  u"ZRVtbKarfarma", Column,          30,  0,
     u"(سمت امضا کننده دوم)"}, // second signatory's post
    {22, u"Control",     u"",              VersionControl,   0,  0,
     u""}, // version text of the program that wrote the file, in Base64, uncut
}};

constexpr std::array<Field, 34> PayeeFields = {{
    // no name                        table            made of            width list
    //   label, meaning
    { 1, u"MelliCode",               u"ZRVtbHogog",    Column,              10,  0,
     u"(شماره ملي / شماره گذرنامه دريافت کننده حقوق)"}, // national code or passport number
    { 2, u"Name",                    u"ZRVtbKarkonan", Column,              15,  0,
     u"(نام دريافت کننده حقوق)"}, // first name
    { 3, u"Family",                  u"ZRVtbKarkonan", Column,              50,  0,
     u"(نام خانوادگي دريافت کننده حقوق)"}, // surname
    { 4, u"FatherName",              u"ZRVtbKarkonan", Column,              15,  0,
     u"(نام پدر دريافت کننده حقوق)"}, // father's name
    { 5, u"EstekhdamType",           u"ZRVtbKarkonan", Column,               4, 15,
     u"(نوع استخدام دريافت کننده حقوق)"}, // kind of employment
    { 6, u"PostCode",                u"ZRVtbKarkonan", Column,              10,  0,
     u"(کد پستي دريافت کننده حقوق)"}, // post code
    { 7, u"Semat",                   u"ZRVtbCoding",   Column,              30,  0,
     u"(سمت يا شغل دريافت کننده حقوق)"}, // post or job, as text: the description in list 2
    { 8, u"Sabege",                  u"ZRVtbKarkonan", Column,               2,  0,
     u"(سابقه دريافت کننده حقوق)"}, // years of service
    { 9, u"Madrak",                  u"ZRVtbKarkonan", Column,               4,  1,
     u"(کد مدرک تحصيلي دريافت کننده حقوق)"}, // degree code
    {10, u"Rasteh",                  u"ZRVtbKarkonan", Column,               4, 10,
     u"(کد رسته دريافت کننده حقوق)"}, // job category code
    {11, u"ShakhsMoafCode",          u"ZRVtbKarkonan", Column,               4, 13,
     u"(کد معافيت دريافت کننده حقوق)"}, // exemption code
    {12, u"MelliatCode",             u"ZRVtbKarkonan", Column,               4, 11,
     u"(کد مليت دريافت کننده حقوق)"}, // nationality: 1 national, 2 foreign
    {13, u"KeshvarName",             u"ZRVtbCoding",   CountryOfForeigner,  20,  0,
     u"(نام کشور دريافت کننده حقوق)"}, // country name, as text: the description in list 12
    {14, u"BimehType",               u"ZRVtbKarkonan", InsuranceKind,        4,  0,
     u"(کد نوع بيمه دريافت کننده حقوق)"}, // insurance kind: 1 to 3 the named insurers, 0 any other
    {15, u"BimehName",               u"ZRVtbCoding",   OtherInsurer,        15,  0,
     u"(نام بيمه دريافت کننده حقوق)"}, // name of an other insurer: the description in list 16
    {16, u"InsuNo",                  u"ZRVtbKarkonan", Column,              12,  0,
     u"(شماره بيمه دريافت کننده حقوق)"}, // insurance or staff number
    {17, u"NJariHogog",              u"ZRVtbHogog",    Column,              10,  0,
     u"(حقوق و مزايـــاي نقدي مستمر پرداختي / تخصيصي در ماه جاري)"}, // cash: regular pay and benefits of the month
    {18, u"JariEzafeKar",            u"ZRVtbHogog",    Column,              10,  0,
     u"(اضافه کار و مزاياي غير مستمر نقدي  پرداختي در ماه جاري)"}, // cash: overtime and irregular benefits
    {19, u"NJariSayerPardakhtiha",   u"ZRVtbHogog",    Column,              10,  0,
     u"(ساير پرداختهاي ماه جاري)"}, // cash: other payments of the month
    {20, u"NTotalDaramad",           u"ZRVtbHogog",    Column,              10,  0,
     u"(جمع کل مبالغ پرداختي/ تخصيصي نقدي در ماه جاري)"}, // cash: total of the three
    {21, u"NJariMoafiate91",         u"ZRVtbHogog",    Column,              10,  0,
     u"(کسر ميشود معافيت ماده 91 (به استثنا بندهاي 10 و 13))"}, // Article 91 exemption, except its clauses 10 and 13
    {22, u"NDaramadeMashmol",        u"ZRVtbHogog",    Column,              10,  0,
     u"(مانده پرداختي/تخصيصي نقدي پس از کسر معافيت مـــاده 91 (به استثنابندهاي10و13))"}, // cash: remainder after that exemption
    {23, u"GJariHogog",              u"ZRVtbHogog",    Column,              10,  0,
     u"(مبلغ پرداختي/تخصيصي غير نقدي ماه جاري)"}, // non-cash: amount paid or allotted
    {24, u"MaskanMablagh",           u"ZRVtbHogog",    Column,              10,  0,
     u"(مبلغ قابل احتساب بابت مسکن ماه جاري(بند الف ماده 83))"}, // non-cash: amount for housing, clause a of Article 83
    {25, u"OtomobilMablagh",         u"ZRVtbHogog",    Column,              10,  0,
     u"(مبلغ قابل احتساب بابت اتومبيل در ماه جاري(بند ب ماده 83))"}, // non-cash: amount for a car, clause b of Article 83
    {26, u"GTotalDaramad",           u"ZRVtbHogog",    Column,              10,  0,
     u"(جمع کل مبالغ پرداختي/ تخصيصي غير نقدي ماه جاري)"}, // non-cash: total
    {27, u"GDaramadeMashmol",        u"ZRVtbHogog",    Column,              10,  0,
     u"(مانده پرداختي/ تخصيصي غير نقدي ماه جاري پس از کسر معافيت موضوع بند 13 ماده 91)"}, // non-cash: remainder after clause 13 of Article 91
    {28, u"PJariHogog",              u"ZRVtbHogog",    Column,              10,  0,
     u"(مانده پرداختي/ تخصيصي عيدي يا پاداش پس از کسر معافيت بند 10 ماده 91 در ماه جاري)"}, // year-end bonus paid or allotted
    {29, u"PDaramadeMashmol",        u"ZRVtbHogog",    Column,              10,  0,
     u"(مانده پرداختي/ تخصيصي عيدي يا پاداش پس از کسر معافيت بند 10 ماده 91 در ماه جاري)"}, // bonus: remainder after clause 10 of Article 91
    {30, u"NGPTotalDaramadeMashmol", u"ZRVtbHogog",    Column,              10,  0,
     u"(جمع کل مانده حقوق و مزاياي نقدي،غير نقدي و عيدي و پاداش در ماه جاري)"}, // total of the three remainders
    {31, u"SayereMoafiatha",         u"ZRVtbHogog",    Column,              10,  0,
     u"(کسر ميشود ساير معافيت هاي ماه جاري(به غير از معافيت موضوع ماده 84)"}, // other exemptions of the month
    {32, u"FinalDaramadeMashmol",    u"ZRVtbHogog",    Column,              10,  0,
     u"(درآمد مشمول ماليات حقوق پس از کسر معافيت موضوع ماده 84)"}, // taxable income after the Article 84 exemption
    {33, u"JariTax",                 u"ZRVtbHogog",    Column,              10,  0,
     u"(ماليات قابل پرداخت ماه جاري)"}, // tax of the month
    {34, u"FinalTax",                u"ZRVtbHogog",    Column,              10,  0,
     u"(ماليات قابل پرداخت پس از اعمال معافيت موضوع ماده 92 (ويژه مناطق کمتر توسعه يافته))"}, // tax payable after the Article 92 relief
}};
// clang-format on

static_assert(isNumberedInOrder(PayerFields) && isNumberedInOrder(PayeeFields));

} // namespace

std::span<const Field> whPayerFields()
{
    return PayerFields;
}

std::span<const Field> whPayeeFields()
{
    return PayeeFields;
}

} // namespace zrv
