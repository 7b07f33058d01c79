// SPDX-License-Identifier: GPL-3.0-or-later
#include "upkeep/base_data_steps.h"

#include "core/store/store_error.h"

namespace zrv {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr BaseDataStep added(QStringView MCode, QStringView MDesc, QStringView SCode, QStringView SDesc,
                             QStringView list, QStringView success)
{
    return {.row = {MCode, MDesc, SCode, SDesc}, .list = list, .success = success};
}

constexpr BaseDataStep changed(QStringView statement, QStringView success)
{
    return {.statement = statement, .success = success};
}

constexpr BaseDataStep ofThePayer(QStringView statement, QStringView success)
{
    return {.statement = statement, .ofThePayer = true, .success = success};
}

// clang-format off
constexpr BaseDataStep Steps[] = {
    added(u"'9'", u"'نحوه پرداخت'", u"'3'", u"'ارائه ليست بدون پرداخت ماليات'", u"نحوه پرداخت",
          u" عبارت (ارائه ليست بدون پرداخت ماليات) به ليست (نحوه پرداخت) از جدول (اطلاعات پايه) اضافه گرديد"),
    added(u"'10'", u"'رسته شغلي'", u"'10'", u"'حراست و نگهباني'", u"رسته هاي شغلي",
          u" عبارت (حراست و نگهباني) به ليست (رسته هاي شغلي) از جدول (اطلاعات پايه) اضافه گرديد"),
    added(u"'10'", u"'رسته شغلي'", u"'11'", u"'کارگري'", u"رسته هاي شغلي",
          u" عبارت (کارگري) به ليست (رسته هاي شغلي) از جدول (اطلاعات پايه) اضافه گرديد"),
    added(u"'10'", u"'رسته شغلي'", u"'12'", u"'ترابري'", u"رسته هاي شغلي",
          u" عبارت (ترابري) به ليست (رسته هاي شغلي) از جدول (اطلاعات پايه) اضافه گرديد"),
    added(u"'10'", u"'رسته شغلي'", u"'13'", u"'توليدي'", u"رسته هاي شغلي",
          u" عبارت (توليدي) به ليست (رسته هاي شغلي) از جدول (اطلاعات پايه) اضافه گرديد"),
    added(u"'10'", u"'رسته شغلي'", u"'14'", u"'کنترل کيفي'", u"رسته هاي شغلي",
          u" عبارت (کنترل کيفي) به ليست (رسته هاي شغلي) از جدول (اطلاعات پايه) اضافه گرديد"),
    added(u"'10'", u"'رسته شغلي'", u"'15'", u"'تحقيقات'", u"رسته هاي شغلي",
          u" عبارت (تحقيقات) به ليست (رسته هاي شغلي) از جدول (اطلاعات پايه) اضافه گرديد"),
    added(u"'10'", u"'رسته شغلي'", u"'16'", u"'انبارداري'", u"رسته هاي شغلي",
          u" عبارت (انبارداري) به ليست (رسته هاي شغلي) از جدول (اطلاعات پايه) اضافه گرديد"),
    added(u"'10'", u"'رسته شغلي'", u"'17'", u"'قضات'", u"رسته هاي شغلي",
          u" عبارت (قضات) به ليست (رسته هاي شغلي) از جدول (اطلاعات پايه) اضافه گرديد"),
    added(u"'10'", u"'رسته شغلي'", u"'18'", u"'اعضاهيات علمي دانشگاه وموسسات آموزش عالي وتحقيقاتي'", u"رسته هاي شغلي",
          u" عبارت (اعضاهيات علمي دانشگاه وموسسات آموزش عالي وتحقيقاتي) به ليست (رسته هاي شغلي) از جدول (اطلاعات پايه) اضافه گرديد"),
    added(u"'15'", u"'نوع استخدام'", u"'7'", u"'مامور'", u"انواع استخدام",
          u" عبارت (مامور) به ليست (انواع استخدام) از جدول (اطلاعات پايه) اضافه گرديد"),
    added(u"'15'", u"'نوع استخدام'", u"'8'", u"'ساعتي'", u"انواع استخدام",
          u" عبارت (ساعتي) به ليست (انواع استخدام) از جدول (اطلاعات پايه) اضافه گرديد"),
    added(u"'15'", u"'نوع استخدام'", u"'9'", u"'رسمي فصلي'", u"انواع استخدام",
          u" عبارت (رسمي فصلي) به ليست (انواع استخدام) از جدول (اطلاعات پايه) اضافه گرديد"),
    added(u"'15'", u"'نوع استخدام'", u"'10'", u"'کارمزدي'", u"انواع استخدام",
          u" عبارت (کارمزدي) به ليست (انواع استخدام) از جدول (اطلاعات پايه) اضافه گرديد"),
    added(u"'17'", u"'معافيت سالانه ماده 84'", u"'1388'", u"'50000000'", u"معافيت سالانه ماده 84",
          u" مبلغ 50,000,000 ريال به عنوان معافيت سالانه سال 1388 به جدول (اطلاعات پايه) اضافه گرديد"),
    added(u"'16'", u"'نوع بيمه'", u"'3'", u"'بيمه نشده'", u"انواع بيمه",
          u" عبارت (بيمه نشده) به ليست (انواع بيمه) از جدول (اطلاعات پايه) اضافه گرديد"),
    changed(u" DELETE From ZRVtbCoding  WHERE  MCode = '5' AND  SCode = '3'",
            u" عبارت (موسسه) از ليست (انواع پرداخت کننده اصلي) از جدول (اطلاعات پايه) حذف گرديد"),
    changed(u" DELETE From ZRVtbCoding  WHERE  MCode = '5' AND  SCode = '4'",
            u" عبارت (دستگاه) از ليست (انواع پرداخت کننده اصلي) از جدول (اطلاعات پايه) حذف گرديد"),
    changed(u"UPDATE ZRVtbCoding Set MDesc = 'نوع پرداخت کننده اصلي' WHERE MCode = '5'",
            u" عبارت (نوع مودي اصلي) از جدول (اطلاعات پايه) به عبارت (نوع پرداخت کننده اصلي) تبديل گرديد."),
    changed(u"UPDATE ZRVtbCoding Set MDesc = 'نوع پرداخت کننده فرعي' WHERE MCode = '6'",
            u" عبارت (نوع مودي فرعي) از جدول (اطلاعات پايه) به عبارت (نوع پرداخت کننده فرعي) تبديل گرديد."),
    changed(u"UPDATE ZRVtbCoding Set SDesc = 'وزارتخانه' WHERE MCode = '6' AND SCode = '1'",
            u" عبارت (نظام هماهنگ پرداخت) از ليست (انواع پرداخت کننده فرعي) از جدول (اطلاعات پايه) به عبارت (وزارتخانه) تبديل گرديد"),
    changed(u"UPDATE ZRVtbCoding Set SDesc = 'موسسه دولتي' WHERE MCode = '6' AND SCode = '2'",
            u" عبارت (غير نظام هماهنگ پرداخت) از ليست (انواع پرداخت کننده فرعي) از جدول (اطلاعات پايه) به عبارت (موسسه دولتي) تبديل گرديد"),
    added(u"'6'", u"'نوع پرداخت کننده فرعي'", u"'3'", u"'شرکت دولتي'", u"انواع پرداخت کننده فرعي",
          u" عبارت (شرکت دولتي) به ليست (انواع پرداخت کننده فرعي) از جدول (اطلاعات پايه) اضافه گرديد"),
    added(u"'6'", u"'نوع پرداخت کننده فرعي'", u"'4'", u"'ساير دستگاه هاي دولتي'", u"انواع پرداخت کننده فرعي",
          u" عبارت (ساير دستگاه هاي دولتي) به ليست (انواع پرداخت کننده فرعي) از جدول (اطلاعات پايه) اضافه گرديد"),
    added(u"'6'", u"'نوع پرداخت کننده فرعي'", u"'5'", u"'نهادهاي عمومي غير دولتي'", u"انواع پرداخت کننده فرعي",
          u" عبارت (نهادهاي عمومي غير دولتي) به ليست (انواع پرداخت کننده فرعي) از جدول (اطلاعات پايه) اضافه گرديد"),
    added(u"'6'", u"'نوع پرداخت کننده فرعي'", u"'6'", u"'بخش خصوصي'", u"انواع پرداخت کننده فرعي",
          u" عبارت (بخش خصوصي) به ليست (انواع پرداخت کننده فرعي) از جدول (اطلاعات پايه) اضافه گرديد"),
    added(u"'6'", u"'نوع پرداخت کننده فرعي'", u"'7'", u"'ساير پرداخت کنندگان حقوق'", u"انواع پرداخت کننده فرعي",
          u" عبارت (ساير پرداخت کنندگان حقوق) به ليست (انواع پرداخت کننده فرعي) از جدول (اطلاعات پايه) اضافه گرديد"),
    changed(u"UPDATE ZRVtbCoding Set SDesc = 'شاغلين در مناطق کمتر توسعه يافته 50 درصد معافيت' WHERE MCode = '13' AND SCode = '1'",
            u".کد عبارت (شاغلين در مناطق کمتر توسعه يافته 50 درصد معافيت) از 3 به 1 در جدول (اطلاعات پايه) تبديل گرديد"),
    changed(u"UPDATE ZRVtbCoding Set SDesc = 'جانبازان انقلاب اسلامي و جنگ تحميلي' WHERE MCode = '13' AND SCode = '3'",
            u".کد عبارت (جانبازان انقلاب اسلامي و جنگ تحميلي) از 1 به 3 در جدول (اطلاعات پايه) تبديل گرديد"),
    changed(u"UPDATE ZRVtbCoding Set SDesc = 'پرسنل نيروي مسلح اعم از نظامي و انتظامي' WHERE MCode = '13' AND SCode = '4'",
            u".عبارت (پرسنل نيروي نظامي) با کد 4 به عبارت (پرسنل نيروي مسلح اعم از نظامي و انتظامي) در جدول (اطلاعات پايه) تبديل گرديد"),
    changed(u"UPDATE ZRVtbCoding Set SDesc = 'مشمولان قانون استخدامي وزارت اطلاعات' WHERE MCode = '13' AND SCode = '5'",
            u".کد عبارت (مشمولان قانون استخدامي وزارت اطلاعات) از 6 به 5 در جدول (اطلاعات پايه) تبديل گرديد"),
    changed(u"UPDATE ZRVtbCoding Set SDesc = 'شاغلين در مناطق آزاد تجاري - صنعتي' WHERE MCode = '13' AND SCode = '6'",
            u".کد عبارت (شاغلين در مناطق آزاد تجاري - صنعتي) از 11 به 6 در جدول (اطلاعات پايه) تبديل گرديد"),
    changed(u"UPDATE ZRVtbCoding Set SDesc = 'آزاده وجانباز' WHERE MCode = '13' AND SCode = '7'",
            u"عبارت (آزاده وجانباز) با کد 7 جايگزين شرح قبلي در جدول (اطلاعات پايه) تبديل گرديد"),
    changed(u"UPDATE ZRVtbCoding Set SDesc = 'بازنشسته - وظيفه و مستمري بگير' WHERE MCode = '13' AND SCode = '8'",
            u"عبارت (بازنشسته - وظيفه و مستمري بگير) با کد 8 جايگزين شرح قبلي در جدول (اطلاعات پايه) تبديل گرديد"),
    added(u"'18'", u"'وضعيت مسکن'", u"'1'", u"'عدم استفاده از مسکن'", u"وضعيت مسکن",
          u" عبارت (عدم استفاده از مسکن) به ليست (وضعيت مسکن) از جدول (اطلاعات پايه) اضافه گرديد"),
    added(u"'18'", u"'وضعيت مسکن'", u"'2'", u"'استفاده از مسکن با اثاثيه'", u"وضعيت مسکن",
          u" عبارت (استفاده از مسکن با اثاثيه) به ليست (وضعيت مسکن) از جدول (اطلاعات پايه) اضافه گرديد"),
    added(u"'18'", u"'وضعيت مسکن'", u"'3'", u"'استفاده از مسکن بدون اثاثيه'", u"وضعيت مسکن",
          u" عبارت (استفاده از مسکن بدون اثاثيه) به ليست (وضعيت مسکن) از جدول (اطلاعات پايه) اضافه گرديد"),
    added(u"'19'", u"'وضعيت اتومبيل'", u"'1'", u"'عدم استفاده از اتومبيل'", u"وضعيت اتومبيل",
          u" عبارت (عدم استفاده از اتومبيل) به ليست (وضعيت اتومبيل) از جدول (اطلاعات پايه) اضافه گرديد"),
    added(u"'19'", u"'وضعيت اتومبيل'", u"'2'", u"'استفاده از اتومبيل با راننده'", u"وضعيت اتومبيل",
          u" عبارت (استفاده از اتومبيل با راننده) به ليست (وضعيت اتومبيل) از جدول (اطلاعات پايه) اضافه گرديد"),
    added(u"'19'", u"'وضعيت اتومبيل'", u"'3'", u"'استفاده از اتومبيل بدون راننده'", u"وضعيت اتومبيل",
          u" عبارت (استفاده از اتومبيل بدون راننده) به ليست (وضعيت اتومبيل) از جدول (اطلاعات پايه) اضافه گرديد"),
    changed(u"UPDATE ZRVtbCoding Set MDesc = 'نوع بيمه' WHERE MCode = '16'",
            u" عبارت (نوع يبمه) از جدول (اطلاعات پايه) به عبارت (نوع بيمه) تبديل گرديد."),
    ofThePayer(u"UPDATE ZRVtbKarfarma Set SMoadiType = '6' WHERE SMoadiType ='2' ",
               u" نوع فرعي پرداخت کننده حقوق از (غير نظام هماهنگ پرداخت) به (بخش خصوصي) تبديل گرديد"),
    ofThePayer(u"UPDATE ZRVtbKarfarma Set SMoadiType = '3' WHERE SMoadiType ='1' ",
               u" نوع فرعي پرداخت کننده حقوق از (نظام هماهنگ پرداخت) به (شرکت دولتي) تبديل گرديد"),
};
// clang-format on

void addRow(UpgradeRun &run, const BaseDataStep &step)
{
    const auto &[MCode, MDesc, SCode, SDesc] = step.row;
    // The value without its quotes.
    const QString description = SDesc.sliced(1).chopped(1).toString();
    try {
        run.execute(u"INSERT INTO ZRVtbCoding VALUES "_s + u"("_s + MCode + u","_s + MDesc + u","_s + SCode + u","_s
                    + SDesc + u")"_s);
        run.log(step.success.toString());
    } catch (const RunTimeError &failure) {
        // The first row alone tells of its failure in a box as well.
        if (&step == &Steps[0])
            run.program().platform.messageBox(box::Plain, u"Add"_s,
                                              failure.description() + u' ' + QString::number(failure.number()));
        if (failure.number() == store_error::General)
            run.log(u" عبارت ("_s + description + u") قبلا به ليست ("_s + step.list
                    + u") از جدول (اطلاعات پايه) اضافه شده است"_s);
        else
            run.log(u" خطاي ناشناخته در اضافه نمودن عبارت ("_s + description + u") به ليست ("_s + step.list
                    + u") از جدول (اطلاعات پايه) رخ داده است"_s);
    }
}

void change(UpgradeRun &run, const BaseDataStep &step)
{
    try {
        run.execute(step.statement + (step.ofThePayer ? u"AND"_s + run.isThePayers() : QString()));
        run.log(step.success.toString());
    } catch (const RunTimeError &) {
        // Passed over in silence: the run goes on in every case.
    }
}

} // namespace

std::span<const BaseDataStep> baseDataSteps()
{
    return Steps;
}

void runStep(UpgradeRun &run, const BaseDataStep &step)
{
    if (step.row[0].isEmpty())
        change(run, step);
    else
        addRow(run, step);
}

} // namespace zrv
