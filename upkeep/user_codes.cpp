// SPDX-License-Identifier: GPL-3.0-or-later
#include "upkeep/user_codes.h"

#include "core/store/recordset.h"

#include <algorithm>

namespace zrv {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QStringView Banks = u"8";

// In the order in which their rows are deleted when no row hangs on them.
// clang-format off
constexpr ExtendedList Lists[] = {
    {u"01", u"1", u"Madrak", u"8", u"1", u" (((Val([Madrak]))>8)) ",
     u"نمايش ليست کارکناني که مدرک تحصيلي آنها نامعتبر ميباشد ، کد : ",
     u" عمليات اصلاح کارکنان با مدارک تحصيلي نامعتبر به (بي سواد و کم سواد) به اتمام رسيد ",
     u" عمليات حذف مدارک تحصيلي نامعتبر (با کد بزرگتر از 8) از جدول اطلاعات پايه به اتمام رسيد "},
    {u"10", u"10", u"Rasteh", u"9", u"0", u" (((Val([Rasteh]))>9)) ",
     u"نمايش ليست کارکناني که رسته شغلي آنها نامعتبر ميباشد ، کد : ",
     u" عمليات اصلاح کارکنان با رسته هاي نامعتبر  به (ساير) به اتمام رسيد ",
     u" عمليات حذف رسته هاي نامعتبر (با کد بزرگتر از 9) از جدول اطلاعات پايه به اتمام رسيد "},
    {u"13", u"13", u"ShakhsMoafCode", u"11", u"0", u" (((Val([ShakhsMoafCode]))>11)) ",
     u"نمايش ليست کارکناني که معافيت مالياتي آنها نامعتبر ميباشد ، کد : ",
     u" عمليات اصلاح کارکنان با نوع معافيت نامعتبر  به (عدم معافيت) به اتمام رسيد ",
     u" عمليات حذف انواع معافيت نامعتبر (با کد بزرگتر از 11) از جدول اطلاعات پايه به اتمام رسيد "},
    {u"15", u"15", u"EstekhdamType", u"6", u"0", u" (((Val([EstekhdamType]))>6)) ",
     u"نمايش ليست کارکناني که نوع استخدام آنها نامعتبر ميباشد ، کد : ",
     u" عمليات اصلاح کارکنان با نوع استخدام نامعتبر  به (ساير) به اتمام رسيد ",
     u" عمليات حذف انواع استخدام نامعتبر (با کد بزرگتر از 6) از جدول اطلاعات پايه به اتمام رسيد "},
    {u"08", u"8", u"BankName", u"17", u"0", u" (((Val([BankName]))>17)) ",
     u"نمايش ليست خلاصه ليست هاي که نام بانک آنها نامعتبر ميباشد ، کد : ",
     u" عمليات اصلاح نام بانک هاي نامعتبر در خلاصه ليست هاي صادر شده به (ساير) به اتمام رسيد ",
     u" عمليات حذف نام بانک هاي نامعتبر (با کد بزرگتر از 17) از جدول اطلاعات پايه به اتمام رسيد "},
};

/// The lists in the order of the jobs; the banks come last, since their query needs those without a bank parked.
constexpr QStringView JobOrder[] = {u"15", u"1", u"13", u"10", Banks};

struct Renumbering {
    QStringView code;
    QStringView condition;
};

/// The order is what makes it right: code 5 is the parking place that lets 1 and 3 change places.
constexpr Renumbering Exemptions[] = {
    {u"'4'", u" WHERE ShakhsMoafCode = '5'"},
    {u"'5'", u" WHERE ShakhsMoafCode = '1'"},
    {u"'1'", u" WHERE ShakhsMoafCode = '3'"},
    {u"'3'", u" WHERE ShakhsMoafCode = '5'"},
    {u"'5'", u" WHERE ShakhsMoafCode = '6'"},
    {u"'6'", u" WHERE ShakhsMoafCode = '11'"},
    {u"'0'", u" WHERE ShakhsMoafCode = '7'" " OR ShakhsMoafCode = '8'" " OR ShakhsMoafCode = '9'" " OR ShakhsMoafCode = '10'"},
};
// clang-format on

const ExtendedList *find(QStringView list)
{
    const auto *const found = std::ranges::find(Lists, list, &ExtendedList::list);
    return found == std::end(Lists) ? nullptr : found;
}

} // namespace

std::span<const ExtendedList> extendedLists()
{
    return Lists;
}

const ExtendedList &extendedList(QStringView job)
{
    return *std::ranges::find(Lists, job.last(2), &ExtendedList::item);
}

QStringList parkBanksAndFindJobs(const UpgradeRun &run)
{
    QStringList jobs;
    for (const QStringView number : JobOrder) {
        const ExtendedList &list = *find(number);
        const bool isBank = number == Banks;
        if (isBank)
            run.execute(u"UPDATE ZRVtbKholList Set"_s + u" BankName = '-1'"_s + u" WHERE "_s + run.isThePayers()
                        + u" AND "_s + u" (ZRVtbKholList.BankName) Is Null "_s);
        const QString select = isBank ? u"SELECT * from ZRVtbKholList"_s : u"SELECT * from ZRVtbKarkonan"_s;
        const Recordset rows(Connection(run.program().StoreConnectionString), select + u" WHERE "_s + list.condition);
        if (!rows.eof())
            jobs += list.job + list.item;
    }
    return jobs;
}

void bringBackBanks(const UpgradeRun &run)
{
    run.execute(u"UPDATE ZRVtbKholList Set"_s + u" BankName = null"_s + u" WHERE "_s + run.isThePayers() + u" AND "_s
                + u" BankName='-1' "_s);
}

void renumberExemptions(const UpgradeRun &run)
{
    for (const Renumbering &step : Exemptions)
        run.execute(u"UPDATE ZRVtbKarkonan Set ShakhsMoafCode = "_s + step.code + step.condition);
}

void DeleteZRVtbCodingUserAddedRecords(UpgradeRun &run, const QString &list, const QString &highest)
{
    try {
        run.execute(u"DELETE FROM ZRVtbCoding WHERE "_s + u"MCode = "_s + quoted(list) + u" AND val(SCode) >"_s
                    + highest);
        // A list that no user extended is told nowhere, and the line names the list's old end whatever the bound was.
        if (const ExtendedList *extended = find(list))
            run.log(extended->deleted.toString());
    } catch (const RunTimeError &failure) {
        run.showFailure(failure, u"DeleteZRVtbCodingUserAddedRecords"_s);
    }
}

void UpdateZRVtbKarkonan(UpgradeRun &run, const QString &list, const QString &highest, const QString &replacement)
{
    const ExtendedList &extended = *find(list);
    try {
        run.execute(u"UPDATE ZRVtbKarkonan Set"_s + u" "_s + extended.column + u" = "_s + quoted(replacement)
                    + u" WHERE "_s + run.isThePayers() + u" AND "_s + u" val("_s + extended.column + u") > "_s
                    + highest);
        run.log(extended.moved.toString());
    } catch (const RunTimeError &failure) {
        run.program().platform.messageBox(box::Plain, u"Update"_s, failure.description());
    }
}

void UpdateZRVtbKholList(UpgradeRun &run)
{
    try {
        run.execute(u"UPDATE ZRVtbKholList Set"_s + u" BankName = '0'"_s + u" WHERE "_s + run.isThePayers() + u" AND "_s
                    + u" val(BankName) >17"_s);
        run.log(find(Banks)->moved.toString());
    } catch (const RunTimeError &failure) {
        run.program().platform.messageBox(box::Plain, u"Update"_s, failure.description());
    }
}

} // namespace zrv
