// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/contents_columns.h"

#include <algorithm>
#include <array>

namespace zrv {
namespace {

using enum Shown;

constexpr QStringView AmountPicture = u" #,##0 ";
constexpr QStringView DatePicture = u" ##/##/## ";

// clang-format off
constexpr std::array<ContentsColumn, 17> Payer = {{
    {u"MMoadiType",  u" نــوع اصلي مودي "},
    {u"SMoadiType",  u" نــوع فرعي مودي "},
    {u"Name",        u" نام مودي(حقيقي) "},
    {u"Family",      u" نام خانوادگي / نام شرکت "},
    {u"ShobeName",   u" نام شعبه "},
    {u"TIN",         u"شماره اقتصادي", Code},
    {u"PostCode",    u"کد پستي", Code},
    {u"TelNo",       u"شماره تلفن", Code},
    {u"Address",     u" نشـــــاني "},
    {u"MelliCode1",  u"کد ملي امضاء کننده اول", Code},
    {u"EmzaName1",   u"نام امضاء کننده اول"},
    {u"EmzaFamily1", u"نام خانوادگي امضاء کننده اول"},
    {u"EmzaSemat1",  u"سمت امضاء کننده اول"},
    {u"MelliCode2",  u"کد ملي امضاء کننده دوم", Code},
    {u"EmzaName2",   u"نام امضاء کننده دوم"},
    {u"EmzaFamily2", u"نام خانوادگي امضاء کننده دوم"},
    {u"EmzaSemat2",  u"سمت امضاء کننده دوم"},
}};

constexpr std::array<ContentsColumn, 36> Payee = {{
    {u"CodeMelliState",          u" وضعيت کـد ملي/ شماره گذرنامه "},
    {u"MelliCode",               u"  کـد ملي/ شماره گذرنامه ", Code},
    {u"Name",                    u" نـــام "},
    {u"Family",                  u" نـــام خانوادگي "},
    {u"FatherName",              u" نـــام پدر "},
    {u"EstekhdamType",           u" نوع استخدام "},
    {u"PostCode",                u" کـد پستي ", Code},
    {u"Semat",                   u" سمت يا شغل "},
    {u"Sabege",                  u" سابقه(سال) ", Code},
    {u"Madrak",                  u" مدرک تحصيلي "},
    {u"Rasteh",                  u" رسته شغلي "},
    {u"ShakhsMoafCode",          u" نوع معافيت "},
    {u"MelliatCode",             u" مليت "},
    {u"KeshvarName",             u" نام کشور "},
    {u"BimehType",               u"کد بيمه ", Code},
    {u"BimehName",               u"      نام بيمه "},
    {u"InsuNo",                  u"    شماره      بيمه / پرسنلي", Code},
    {u"NJariHogog",              u"حقوق و مزايـــاي مستمر پرداختي/تخصيصي در ماه جاري", Amount},
    {u"JariEzafeKar",            u"اضافه کار و مزايايي غير مستمر پرداختي/تخصيصي در ماه جاري", Amount},
    {u"NJariSayerPardakhtiha",   u"ساير پرداختهاي ماه جاري(در صورتيکه مالياتهاي آن قبلا پرداخت نشده باشد)", Amount},
    {u"NTotalDaramad",           u"جمع کل مبالغ پرداختي/تخصيصي نقدي در ماه جاري", Amount},
    {u"NJariMoafiate91",         u"کسر ميشود معافيت موضوع ماده 91 (به استثنا بندهاي 10 و 13)", Amount},
    {u"NDaramadeMashmol",        u"مانده پرداختي/تخصيصي نقدي ماه جاري پس از کسر معافيت ماده 91", Amount},
    {u"GJariHogog",              u"مبلغ پرداختي/تخصيصي غير نقدي در ماه جاري", Amount},
    {u"MaskanMablagh",           u"مبلغ قابل احتساب بابت مسکن (بند الف ماده 83)", Amount},
    {u"OtomobilMablagh",         u"مبلغ قابل احتساب بابت اتـومبيل (بند ب ماده 83)", Amount},
    {u"GTotalDaramad",           u"جمع کل مبالغ پرداختي/تخصيصي غير نقدي در ماه جاري", Amount},
    {u"GDaramadeMashmol",        u"مانده پرداختي/تخصيصي غير نقدي پس از کسر معافيت بند 13 ماده 91", Amount},
    {u"PJariHogog",              u"مبلغ پرداختي/تخصيصي پـاداش يــا عيدي پايان سال درماه جاري ", Amount},
    {u"PDaramadeMashmol",        u"مانده پرداختي/تخصيصي عيدي يا پاداش پس از کسر معافيت بند 10 ماده 91", Amount},
    {u"NGPTotalDaramadeMashmol", u"جمع کل مانده حقوق و مزاياي نقدي، غير نقدي و عيدي و پاداش (انتقالي از ستونهاي الف و ب و ج)", Amount},
    {u"SayereMoafiatha",         u"کسر ميشود ساير معافيت ها", Amount},
    {u"FinalDaramadeMashmol",    u"درآمد مشمول ماليات حقوق", Amount},
    {u"JariTax",                 u"ماليات ماه جاري", Amount},
    {u"FinalTax",                u"ماليات قابل پرداخت", Amount},
    {u"JariSumHogog",            u"جمع حقوق و مزاياي دريافتي", Amount},
}};

constexpr std::array<ContentsColumn, 22> Summary = {{
    {u"JariSumHogog",    u"جمع حقوق پرداختي ماه جاري", Amount},
    {u"JariSumMashmol",  u"جمع حقوق و مزاياي مشمول ماليات ماه جاري", Amount},
    {u"JariTax",         u"جمع ماليات متعلقه ماه جاري", Amount},
    {u"JariJarimeDo",    u"جريمه عدم تسليم به موقع خلاصه ليست 2% ماه جاري", Amount},
    {u"JariJarimeBist",  u"جريمه عدم پرداخت به موقع ماليات 20% ماه جاري", Amount},
    {u"JariBedehiTax",   u"بدهي مالياتي ماه جاري", Amount},
    {u"GablSumHogog",    u"جمع حقوق پرداختي تا ماه گذشته", Amount},
    {u"GablSumMashmol",  u"جمع حقوق و مزاياي مشمول ماليات تا ماه گذشته", Amount},
    {u"GablTax",         u"جمع ماليات متعلقه تا ماه گذشته", Amount},
    {u"GablJarimeDo",    u"جمع جريمه عدم تسليم به موقع خلاصه ليست 2% تا ماه گذشته", Amount},
    {u"GablJarimeBist",  u"جمع جريمه عدم پرداخت به موقع ماليات 20%  تا ماه گذشته", Amount},
    {u"GablBedehiTax",   u"جمع بدهي مالياتي تا ماه گذشته", Amount},
    {u"RoznameDate",     u"تــاريخ ثبت روزنـامه(تخصيص يا پرداخت)", Date},
    {u"KarkonanNo",      u"تعداد کل کارکنان", Amount},
    {u"KharejiNo",       u"تعداد کارکنان خارجي", Amount},
    {u"NahveyePardakht", u"نحوه پرداخت"},
    {u"ChequeSeriNo",    u"شماره سري چک", Code},
    {u"ChequeDate",      u"تاريخ چک", Date},
    {u"BankName",        u"نام بانک "},
    {u"ShobeName",       u"نام شعبه "},
    {u"HesabNo",         u"شماره حساب", Code},
    {u"MablagPardakhti", u"مبلغ پرداختي ", Amount},
}};
// clang-format on

QString pictureOf(Shown shown)
{
    return (shown == Amount ? AmountPicture : shown == Date ? DatePicture : QStringView()).toString();
}

} // namespace

int ContentsTable::columnOf(int field) const
{
    return derivedBefore + std::clamp(field - firstField, 0, fieldCount() - 1);
}

QStringList ContentsTable::fieldNames() const
{
    QStringList names;
    for (const ContentsColumn &column : columns)
        names += column.field.toString();
    return names;
}

std::vector<BrowseColumn> ContentsTable::browseColumns() const
{
    std::vector<BrowseColumn> shown;
    for (const ContentsColumn &column : columns)
        shown.push_back({.field = column.field.toString(),
                         .caption = column.caption.toString(),
                         .format = pictureOf(column.shown),
                         .leftToRight = column.shown != Text});
    return shown;
}

std::vector<GridColumn> ContentsTable::gridColumns() const
{
    std::vector<GridColumn> shown;
    for (const ContentsColumn &column : columns)
        shown.push_back(
            {column.field.toString(), column.caption.toString(), pictureOf(column.shown), column.shown != Text});
    return shown;
}

const ContentsTable &payerContents()
{
    static const ContentsTable table{.name = u"Karfarma", .columns = Payer, .firstField = 5};
    return table;
}

const ContentsTable &payeeContents()
{
    static const ContentsTable table{
        .name = u"Hogog", .columns = Payee, .firstField = 1, .derivedBefore = 1, .derivedBehind = 1};
    return table;
}

const ContentsTable &summaryContents()
{
    static const ContentsTable table{.name = u"Khol", .columns = Summary, .firstField = 4};
    return table;
}

} // namespace zrv
