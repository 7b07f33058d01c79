// SPDX-License-Identifier: GPL-3.0-or-later
#include "upkeep/column_steps.h"

#include "core/store/store_error.h"

namespace zrv {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QStringView Payer = u"پرداخت کننده حقوق";
constexpr QStringView Payee = u"مشخصات دريافت کنندگان حقوق";
constexpr QStringView SalaryList = u"ليست حقوق";
constexpr QStringView SummaryList = u"خلاصه ليست";

// Three lines are worded otherwise than the rest: the name of the tax office is told as that of the branch when adding
// it fails, the tax of the month has a blank too many in both lines of a failure, and the two states say that they are
// filled with zero though it is 1.
// clang-format off
constexpr ColumnStep PartyColumns[] = {
    {Payer, Change::Added, u"ALTER TABLE ZRVtbKarfarma ADD COLUMN CodeShobe TEXT(2)", u"کد شعبه"},
    {Payer, Change::Added, u"ALTER TABLE ZRVtbKarfarma ADD COLUMN ShobeName TEXT(30)", u"نام شعبه"},
    {Payer, Change::Added, u"ALTER TABLE ZRVtbKarfarma ADD COLUMN EdareName TEXT(50)", u"نام اداره کل", {},
     {}, u"نام شعبه"},
    {Payee, Change::Added, u"ALTER TABLE ZRVtbKarkonan ADD COLUMN HomeAddress TEXT(150)", u"نشاني محل سکونت دريافت کننده حقوق"},
};

constexpr ColumnStep SalaryColumns[] = {
    {SalaryList, Change::Dropped, u"ALTER TABLE ZRVtbHogog DROP COLUMN MoafiatSum ", u"مجموع اقـلام حقوق پــرداختي معـاف از ماليات(علاوه بر موضوع ماده 84)"},
    {SalaryList, Change::Added, u"ALTER TABLE ZRVtbHogog ADD COLUMN NjariSayerPardakhtiha TEXT(10)", u"ساير پرداختيهاي ماه جاري",
     {{{u"UPDATE ZRVtbHogog Set NjariSayerPardakhtiha = '0' ", u" فيلد (ساير پرداختيهاي ماه جاري) با مقدار صفر مقداردهي گرديد"}}}},
    {SalaryList, Change::Added, u"ALTER TABLE ZRVtbHogog ADD COLUMN NJariMoafiate91 TEXT(10)", u"کسر ميشود معافيت ماده 91 (به استثنا بندهاي 10 و 13)",
     {{{u"UPDATE ZRVtbHogog Set NJariMoafiate91 = '0' ", u" فيلد (کسر ميشود معافيت ماده 91 (به استثنا بندهاي 10 و 13)) با مقدار صفر مقداردهي گرديد"}}}},
    {SalaryList, Change::Added, u"ALTER TABLE ZRVtbHogog ADD COLUMN NtotalDaramad TEXT(10)", u"جمع کل مبالغ پرداختي/ تخصيصي نقدي",
     {{{u"UPDATE ZRVtbHogog Set NtotalDaramad = val(NJariHogog) + val(JariEzafeKar) + val(NJariSayerPardakhtiha) ", u" محاسبات مربوط به فيلد (جمع کل مبالغ پرداختي/ تخصيصي نقدي) انجام و اين فيلد مقداردهي گرديد"},
       {u"UPDATE ZRVtbHogog Set NDaramadeMashmol = val(NTotalDaramad) - val(NJariMoafiate91) ", u" محاسبات مربوط به فيلد (مانده پرداختي/تخصيصي نقدي پس از کسر معافيت مـــاده 91 (به استثنابندهاي10و13)) انجام و اين فيلد مقداردهي گرديد"}}}},
    {SalaryList, Change::Dropped, u"ALTER TABLE ZRVtbHogog DROP COLUMN NJariTax ", u"ماليات متعلقه حقوق و مزاياي نقدي در ماه جاري"},
    {SalaryList, Change::Added, u"ALTER TABLE ZRVtbHogog ADD COLUMN MaskanStatus TEXT(1)", u"وضعيت استفاده از مسکـن",
     {{{u"UPDATE ZRVtbHogog Set MaskanStatus = '1' ", u" فيلد (وضعيت استفاده از مسکـن) با مقدار صفر مقداردهي گرديد"}}}},
    {SalaryList, Change::Added, u"ALTER TABLE ZRVtbHogog ADD COLUMN MaskanMablagh TEXT(10)", u"مبلغ قابل احتساب بابت مسکن (بند الف ماده 83)",
     {{{u"UPDATE ZRVtbHogog Set MaskanMablagh = '0' ", u" فيلد (مبلغ قابل احتساب بابت مسکن (بند الف ماده 83)) با مقدار صفر مقداردهي گرديد"}}}},
    {SalaryList, Change::Added, u"ALTER TABLE ZRVtbHogog ADD COLUMN OtomobilStatus TEXT(1)", u"وضعيت استفاده از اتـومبيل",
     {{{u"UPDATE ZRVtbHogog Set OtomobilStatus = '1' ", u" فيلد (وضعيت استفاده از اتـومبيل) با مقدار صفر مقداردهي گرديد"}}}},
    {SalaryList, Change::Added, u"ALTER TABLE ZRVtbHogog ADD COLUMN OtomobilMablagh TEXT(10)", u"مبلغ قابل احتساب بابت اتومبيل (بند ب ماده 83)",
     {{{u"UPDATE ZRVtbHogog Set OtomobilMablagh = '0' ", u" فيلد (مبلغ قابل احتساب بابت اتومبيل (بند ب ماده 83)) با مقدار صفر مقداردهي گرديد"}}}},
    {SalaryList, Change::Added, u"ALTER TABLE ZRVtbHogog ADD COLUMN GTotalDaramad TEXT(10)", u"جمع کل مبالغ پرداختي/ تخصيصي غير نقدي",
     {{{u"UPDATE ZRVtbHogog Set GTotalDaramad = val(GJariHogog) + val(MaskanMablagh) + val(OtomobilMablagh) ", u" محاسبات مربوط به فيلد (جمع کل مبالغ پرداختي/ تخصيصي غير نقدي) انجام و اين فيلد مقداردهي گرديد"}}}},
    {SalaryList, Change::Dropped, u"ALTER TABLE ZRVtbHogog DROP COLUMN GjariTax ", u"ماليات مـــاه جـــــاري  (غير نقدي)"},
    {SalaryList, Change::Dropped, u"ALTER TABLE ZRVtbHogog DROP COLUMN PjariTax ", u"مـــاليات مــــــاه جـــــاري (پاداش يا عيدي)"},
    {SalaryList, Change::Dropped, u"ALTER TABLE ZRVtbHogog DROP COLUMN EzafeTozih ", u"توضيحات"},
    {SalaryList, Change::Added, u"ALTER TABLE ZRVtbHogog ADD COLUMN NGPTotalDaramadeMashmol TEXT(10)", u"جمع کل مانده حقوق و مزاياي نقدي،غير نقدي و عيدي و پاداش",
     {{{u"UPDATE ZRVtbHogog Set NGPTotalDaramadeMashmol = Val(NTotalDaramad) + Val(GTotalDaramad) + Val(PJariHogog) ", u" محاسبات مربوط به فيلد (جمع کل مانده حقوق و مزاياي نقدي،غير نقدي و عيدي و پاداش) انجام و اين فيلد مقداردهي گرديد"}}}},
    {SalaryList, Change::Added, u"ALTER TABLE ZRVtbHogog ADD COLUMN SayereMoafiatha TEXT(10)", u" کسر ميشود ساير معافيت ها(به غير از معافيت موضوع ماده 84)",
     {{{u"UPDATE ZRVtbHogog Set SayereMoafiatha = '0' ", u" فيلد ( کسر ميشود ساير معافيت ها(به غير از معافيت موضوع ماده 84)) با مقدار صفر مقداردهي گرديد"}}}},
    {SalaryList, Change::Added, u"ALTER TABLE ZRVtbHogog ADD COLUMN FinalDaramadeMashmol TEXT(10)", u"درآمد مشمول ماليات حقوق پس از کسر معافيت موضوع ماده 84",
     {{{u"UPDATE ZRVtbHogog Set FinalDaramadeMashmol = '0' ", u" فيلد (درآمد مشمول ماليات حقوق پس از کسر معافيت موضوع ماده 84) با مقدار صفر مقداردهي گرديد"}}}},
    {SalaryList, Change::Added, u"ALTER TABLE ZRVtbHogog ADD COLUMN JariTax TEXT(10)", u"ماليات قابل پرداخت ماه جاري",
     {{{u"UPDATE ZRVtbHogog Set JariTax = '0' ", u" فيلد (ماليات قابل پرداخت ماه جاري) با مقدار صفر مقداردهي گرديد"}}},
     u"ماليات قابل پرداخت ماه جاري ", u"ماليات قابل پرداخت ماه جاري "},
    {SalaryList, Change::Added, u"ALTER TABLE ZRVtbHogog ADD COLUMN FinalTax TEXT(10)", u"ماليات قابل پرداخت پس از اعمال معافيت موضوع ماده 92 (ويژه مناطق کمتر توسعه يافته)",
     {{{u"UPDATE ZRVtbHogog Set FinalTax = '0' ", u" فيلد (ماليات قابل پرداخت پس از اعمال معافيت موضوع ماده 92 (ويژه مناطق کمتر توسعه يافته)) با مقدار صفر مقداردهي گرديد"}}}},
};

constexpr ColumnStep SummaryColumns[] = {
    {SummaryList, Change::Added, u"ALTER TABLE ZRVtbKholList ADD COLUMN JariEzafeTax TEXT(15)", u"ماليات اضافه پرداخت شده در ماه هاي قبل(جاري)"},
    {SummaryList, Change::Added, u"ALTER TABLE ZRVtbKholList ADD COLUMN GablEzafeTax TEXT(17)", u"ماليات اضافه پرداخت شده در ماه هاي قبل(ماه هاي گذشته)"},
};

/// The parts of a line: before the column, between it and the table, behind the table.
struct Line {
    QStringView begin;
    QStringView middle;
    QStringView end;
};

struct Outcomes {
    Line success;
    Line doneBefore;
    Line unknown;
};

constexpr Outcomes Added{
    {u" فيلد (", u") با موفقيت به جدول (", u") اضافه گرديد"},
    {u" فيلد (", u") قبلا به جدول (", u") اضافه شده است"},
    {u" خطاي ناشناخته در اضافه نمودن  فيلد (", u") به جدول (", u") رخ داده است"},
};

constexpr Outcomes Dropped{
    {u" فيلد (", u") با موفقيت از جدول (", u") حذف گرديد"},
    {u" فيلد (", u") قبلا از جدول (", u") حذف شده است"},
    {u" خطاي ناشناخته در حذف نمودن  فيلد (", u") از جدول (", u") رخ داده است"},
};
// clang-format on

void log(UpgradeRun &run, const Line &line, QStringView field, const ColumnStep &step)
{
    run.log(line.begin + (field.isEmpty() ? step.field : field) + line.middle + step.table + line.end);
}

} // namespace

std::span<const ColumnStep> partyColumns()
{
    return PartyColumns;
}

std::span<const ColumnStep> salaryColumns()
{
    return SalaryColumns;
}

std::span<const ColumnStep> summaryColumns()
{
    return SummaryColumns;
}

void runStep(UpgradeRun &run, const ColumnStep &step)
{
    const Outcomes &outcomes = step.change == Change::Added ? Added : Dropped;
    try {
        run.execute(step.statement.toString());
        log(run, outcomes.success, {}, step);
        for (const Filling &filling : step.fillings) {
            if (filling.statement.isEmpty())
                continue;
            run.execute(filling.statement + u"WHERE"_s + run.isThePayers());
            run.log(filling.logged.toString());
        }
    } catch (const RunTimeError &failure) {
        if (failure.number() == store_error::ColumnChange)
            log(run, outcomes.doneBefore, step.fieldWhenDone, step);
        else
            log(run, outcomes.unknown, step.fieldWhenUnknown, step);
    }
}

} // namespace zrv
