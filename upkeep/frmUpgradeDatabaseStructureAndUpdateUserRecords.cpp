// SPDX-License-Identifier: GPL-3.0-or-later
#include "upkeep/frmUpgradeDatabaseStructureAndUpdateUserRecords.h"

#include "core/kept_copies.h"
#include "core/store/recordset.h"
#include "core/store/store_copy.h"
#include "upkeep/frmUpgradeZRVtbKarkonan.h"
#include "upkeep/mdlUpgrades.h"

#include <QDir>

namespace zrv {

namespace {

const QString LineEnd = u"\r\n"_s;
const QString Rule =
    u"-------------------------------------------------------------------------------------------------------------------"_s;

/// Columns of the salary list that older screens left empty where they meant zero.
constexpr QStringView BlankAmounts[] = {
    u"NJariHogog",       u"JariEzafeKar", u"NDaramadeMashmol", u"GJariHogog",
    u"GDaramadeMashmol", u"PJariHogog",   u"PDaramadeMashmol",
};

/// An error anywhere leaves the columns behind it as they are.
void UpdateBlankWithZero(const UpgradeRun &run)
{
    try {
        for (const QStringView column : BlankAmounts)
            run.execute(u"UPDATE ZRVtbHogog Set "_s + column + u" = '0' "_s + u"WHERE "_s + column + u" is null "_s
                        + u"AND"_s + run.isThePayers());
    } catch (const RunTimeError &failure) {
        run.showFailure(failure, u"UpdateBlankWithZero"_s);
    }
}

} // namespace

frmUpgradeDatabaseStructureAndUpdateUserRecords::frmUpgradeDatabaseStructureAndUpdateUserRecords(Program &program)
    : Screen(program, u"frmUpgradeDatabaseStructureAndUpdateUserRecords"_s)
{
    setCaption(u"تبديل ساختار بانک اطلاعاتي به "_s + program.ProgramVersion
               + u" و ايجاد رکوردهاي جديد در جداول اطلاعات پايه"_s);
    cmdUpgradeStructure.onClick = [this] { cmdUpgradeStructure_Click(); };
    cmdExit.onClick = [this] { cmdExit_Click(); };
}

// The run ----------------------------------------------------------------------------------------------------

void frmUpgradeDatabaseStructureAndUpdateUserRecords::cmdUpgradeStructure_Click()
{
    struct PanelGoesWithTheRun {
        Picture &panel;
        ~PanelGoesWithTheRun() { panel.setVisible(false); }
    } const guard{PPICWaitingMessage};

    cmdUpgradeStructure.setEnabled(false);
    txtLog.setText({});
    UpgradeRun run(m_program);
    PPICWaitingMessage.setVisible(true);
    m_platform.yield();

    if (!safetyCopyIsSettled(run)) {
        cmdUpgradeStructure.setEnabled(true);
        return;
    }
    // A second run overwrites the safety copy with a store that the first one changed; this one it leaves.
    keepCopyBesideAnother(m_program);
    alterTables(run);
    rewriteBaseData(run);
    if (chkDelete.isChecked())
        deleteEarlierLists(run);
    run.log(Rule);
    txtLog.setText(run.UpgradeLog());
    // To be read from its beginning.
    txtLog.setFocus();
    txtLog.select(0, 0);
}

/// False when the user won't go on without a copy.
bool frmUpgradeDatabaseStructureAndUpdateUserRecords::safetyCopyIsSettled(UpgradeRun &run)
{
    const QDir folder(m_platform.programFolder());
    const QString copy = QDir::toNativeSeparators(folder.filePath(u"CopyDBZorvan.mdb"_s));
    run.log(u"********       شروع عمليات ايجاد فايل پشتيبان از  بانک اطلاعاتي با نام و مسير زير :     ********"_s);
    try {
        copyStore(folder.filePath(u"DBZorvan.mdb"_s), copy);
        m_safetyCopy = SafetyCopy::Made;
        run.log(u"********      "_s + copy + u"     *******"_s);
        run.log(u"************           پايان عمليات ايجاد فايل پشتيبان از  بانک اطلاعاتي           ************"_s);
    } catch (const RunTimeError &failure) {
        const Answer goesOn = messageBox(
            box::AskYesNo, u"اخطار"_s,
            u"فايل پشتيبان از بانک اطلاعاتي ايجاد نگرديد و يا سالم نميباشد. شرح خطا : "_s + LineEnd
                + failure.description() + LineEnd
                + u"در صورت ادامه عمليات،بازگشت به اطلاعات قبلي امکان پذير نخواهد بود.آيا مايل به ادامه عمليات بدون "
                  "فايل پشتيبان ميباشيد ؟"_s);
        m_safetyCopy = goesOn == Answer::Yes ? SafetyCopy::GivenUp : SafetyCopy::Required;
        run.log(u"********      فايل پشتيبان ايجاد نگرديد و عمليات بدون آن ادامه يافت     *******"_s);
    }
    run.log(Rule);
    return m_safetyCopy != SafetyCopy::Required;
}

void frmUpgradeDatabaseStructureAndUpdateUserRecords::alterTables(UpgradeRun &run)
{
    run.log(u"***   شروع عمليات بروزرساني ساختار جداول بانک اطلاعاتي    ***"_s);
    for (const ColumnStep &step : partyColumns()) {
        runStep(run, step);
        m_platform.yield();
    }
    fillBranch(run);
    run.log(
        u"******  عمليات بروزرساني ساختار جدول مشخصات پرداخت کننده حقوق و دريافت کننده حقوق و درج محتوي اقلام کد شعبه و نام شعبه به پايان زسيد   ******"_s);
    run.log(Rule);
    UpdateBlankWithZero(run);
    run.log(
        u"************    عمليات مقداردهي فيلدهاي عددي ساختار قبلي جدول ليست حقوق با محتوي خالي به عدد صفر به پايان زسيد      ************"_s);
    m_platform.yield();
    for (const ColumnStep &step : salaryColumns()) {
        runStep(run, step);
        m_platform.yield();
    }
    run.log(u"************    عمليات بروزرساني ساختار جدول ليست حقوق ماهانه به پايان زسيد      ************"_s);
    run.log(u"************         پايان عمليات بروزرساني ساختار جداول بانک اطلاعاتي            ************"_s);
    run.log(Rule);
}

/// The payer becomes the head office, whatever branch the row names.
void frmUpgradeDatabaseStructureAndUpdateUserRecords::fillBranch(UpgradeRun &run)
{
    try {
        findPayer();
        run.execute(u"UPDATE ZRVtbKarfarma Set"_s + u" CodeShobe = "_s + u"'1'"_s + u","_s + u" ShobeName = "_s
                    + u"'دفتر مرکزي'"_s + u" WHERE"_s + run.isThePayers());
        run.log(
            u" مقدار (1) در  فيلد (کد شعبه) و عبارت (دفتر مرکزي) در  فيلد (نام شعبه) از جدول (پرداخت کننده حقوق) درج گرديد"_s);
    } catch (const RunTimeError &) {
        run.log(
            u" خطاي ناشناخته در درج مقدار (1) در  فيلد (کد شعبه) و عبارت (دفتر مرکزي) در  فيلد (نام شعبه) از جدول (پرداخت کننده حقوق) رخ داده است"_s);
    }
}

/// The main form could not read the payer of an older store.
void frmUpgradeDatabaseStructureAndUpdateUserRecords::findPayer()
{
    const Recordset payer(Connection(m_program.StoreConnectionString), u"SELECT TFN FROM ZRVtbKarfarma"_s);
    if (payer.eof())
        return;
    if (payer.recordCount() > 1)
        messageBox(box::Refusal, u" اخطار  "_s,
                   u" بيش از يک پرداخت کننده حقوق در جدول مربوطه تعريف گرديده است.لطفا با برنامه نويس تماس بگيريد "_s);
    m_program.PayerTFN = payer.value(0).toText();
}

void frmUpgradeDatabaseStructureAndUpdateUserRecords::rewriteBaseData(UpgradeRun &run)
{
    run.log(
        u"************              شروع عمليات اصلاح رکوردهاي ايجاد شده توسط کاربر در اطلاعات پايه            ************"_s);
    repairUserCodes(run);
    m_platform.yield();
    for (const BaseDataStep &step : baseDataSteps()) {
        runStep(run, step);
        m_platform.yield();
    }
    run.log(u"************            پايان عمليات ايجاد رکوردهاي  جديد در اطلاعات پايه             ************"_s);
}

void frmUpgradeDatabaseStructureAndUpdateUserRecords::repairUserCodes(UpgradeRun &run)
{
    try {
        const QStringList jobs = parkBanksAndFindJobs(run);
        if (jobs.isEmpty()) {
            for (const ExtendedList &list : extendedLists())
                DeleteZRVtbCodingUserAddedRecords(run, list.list.toString(), list.highest.toString());
        } else {
            frmUpgradeZRVtbKarkonan dialogue(m_program);
            dialogue.serve(run, jobs);
            openModal(dialogue);
        }
        bringBackBanks(run);
        renumberExemptions(run);
        DeleteZRVtbCodingUserAddedRecords(run, u"13"_s, u"8"_s);
        DeleteZRVtbCodingUserAddedRecords(run, u"17"_s, u"1387"_s);
    } catch (const RunTimeError &failure) {
        messageBox(box::Plain, u"اخطار"_s,
                   u"بروز خطا در اصلاح رکوردهاي ايجاد شده توسط کاربر در جداول اطلاعات پايه"_s + LineEnd + u"-"_s
                       + QString::number(failure.number()) + failure.description());
    }
}

void frmUpgradeDatabaseStructureAndUpdateUserRecords::deleteEarlierLists(UpgradeRun &run)
{
    try {
        run.execute(u" DELETE From ZRVtbHogog "_s);
        run.execute(u" DELETE From ZRVtbKholList "_s);
    } catch (const RunTimeError &failure) {
        run.showFailure(failure, u"DellAllPreZRVtbHogogZRVtbKhol"_s);
    }
    run.log(
        u"************            پايان عمليات حذف رکوردهاي قبلي جدول ليست حقوق ماهانه و خلاصه ليست             ************"_s);
}

// Leaving ----------------------------------------------------------------------------------------------------

void frmUpgradeDatabaseStructureAndUpdateUserRecords::cmdExit_Click()
{
    constexpr int Style = box::Information | box::RightAligned | box::RightToLeft;
    // clang-format off
    if (chkDelete.isChecked() && m_safetyCopy != SafetyCopy::Required)
        messageBox(Style, QString(),
                   u"با عرض پوزش ، به علت تغيير کلي ساختار جداول و عدم امکان انتقال اطلاعات از ساختار قبلي به ساختار جديد،کليه اطلاعات مربوط به ليست حقوق و خلاصه ليست موجود در سيستم حذف گرديده است.لطفا نسبت به ورود اطلاعات مربوطه جهت ليست حقوق و خلاصه ليست اقدام نماييد"_s + LineEnd
                   + u"تمامي اطلاعات مربوط به دريافت کنندگان حقوق از ساختار قبلي به ساختار جديد منتقل گرديده است و تغييرات اعمال شده در اطلاعات پايه،در اطلاعات کارکنان نيز اعمال گرديده است.لطفا جهت حصول اطمينان بيشتر پس از خروج از برنامه و اجراي مجدد آن ، يکبار اطلاعات مربوط به دريافت کنندکان حقوق کنترل گردد"_s + LineEnd
                   + u"جهت اعمال تغييرات نياز به خروج از برنامه و اجراي مجدد آن ميباشد.با خروج از اين فرم برنامه بصورت اتوماتيک بسته ميشود.جهت استفاده از برنامه و انجام کنترلهاي قيد شده،لطفا برنامه را مجددا اجرا نماييد"_s + LineEnd
                   + (m_safetyCopy == SafetyCopy::Made ? QString(u"جهت دسترسي به اطلاعات قبلي يک نسخه از پايگاه اطلاعاتي قبل از انجام هر گونه حذف يا تغيير در مسير برنامه کپي گرديده است"_s + LineEnd) : QString()));
    else
        messageBox(Style, QString(), u"جهت اعمال تغييرات نياز به خروج از برنامه و اجراي مجدد آن ميباشد."_s);
    // clang-format on
    throw ProgramEnd{};
}

bool frmUpgradeDatabaseStructureAndUpdateUserRecords::Form_QueryUnload(UnloadMode mode)
{
    // The main form must not come back to a store that changed under it, or that it can't read.
    if (mode == UnloadMode::CloseBox)
        cmdExit_Click();
    return true;
}

} // namespace zrv
