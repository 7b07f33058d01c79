// SPDX-License-Identifier: GPL-3.0-or-later

// The upgrade of an old store: what it leaves, what it logs, and that there is always a way back.

#include "core/store/store_backups.h"
#include "core/store/store_copy.h"
#include "core/store/store_error.h"
#include "tests/failing_disk.h"
#include "tests/tools/killed_process.h"
#include "tests/upkeep/upkeep_fixture.h"
#include "upkeep/base_data_steps.h"
#include "upkeep/column_steps.h"
#include "upkeep/frmUpgradeDatabaseStructureAndUpdateUserRecords.h"
#include "upkeep/frmUpgradeZRVtbKarkonan.h"
#include "upkeep/user_codes.h"

#include <QElapsedTimer>

#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

namespace zrv {
namespace {

using Upgrade = frmUpgradeDatabaseStructureAndUpdateUserRecords;

const QString GoldenFolder = QStringLiteral(ZRV_SOURCE_DIR "/tests/upkeep/golden/");
constexpr int QuestionStyle = 36;

class UpgradeTest : public UpkeepTest {
protected:
    void open()
    {
        screen = std::make_unique<Upgrade>(program);
        screen->load();
        screen->activate();
    }
    void run()
    {
        open();
        ASSERT_TRUE(screen->userClick(screen->cmdUpgradeStructure));
    }
    [[nodiscard]] QStringList log() const { return screen->txtLog.text().split(u"\r\n"_s); }
    [[nodiscard]] QString copyPath() const { return path(u"CopyDBZorvan.mdb"_s); }

    [[nodiscard]] QString dumpOfTheCopy() const { return dumpOf(copyPath()); }

    static void compareWithApproved(const QString &received, const QString &name)
    {
        QFile approved(GoldenFolder + name);
        EXPECT_TRUE(approved.open(QIODevice::ReadOnly)) << name.toStdString();
        QFile left(GoldenFolder + name + u".received"_s);
        left.remove();
        if (received.toUtf8() == approved.readAll())
            return;
        EXPECT_TRUE(left.open(QIODevice::WriteOnly));
        left.write(received.toUtf8());
        ADD_FAILURE() << name.toStdString() << " differs; see the .received file beside it";
    }

    std::unique_ptr<Upgrade> screen;
};

TEST_F(UpgradeTest, OldStoreBecomesTheApprovedStoreWithTheApprovedLog)
{
    makeOldStore();
    run();
    EXPECT_TRUE(platform.boxes.empty());
    compareWithApproved(dump(), u"upgraded_store.txt"_s);
    compareWithApproved(QString(screen->txtLog.text()).replace(folder.path(), u"FOLDER"_s).replace(u"\r\n"_s, u"\n"_s),
                        u"upgrade_log.txt"_s);
    EXPECT_EQ(program.PayerTFN, rows(u"SELECT TFN FROM ZRVtbKarfarma"_s).value(0));
}

TEST_F(UpgradeTest, KeptListsAreFilledByTheApprovedReckoning)
{
    makeOldStore();
    sql(u"UPDATE ZRVtbHogog Set GJariHogog = null, NJariHogog = null WHERE TaxMonth = '02'"_s);
    open();
    screen->chkDelete.setChecked(false);
    ASSERT_TRUE(screen->userClick(screen->cmdUpgradeStructure));
    compareWithApproved(dump(), u"upgraded_store_with_lists.txt"_s);
    EXPECT_EQ(rows(u"SELECT * FROM ZRVtbHogog WHERE val(NtotalDaramad) <> val(NJariHogog) + val(JariEzafeKar)"_s),
              QStringList());
    EXPECT_EQ(rows(u"SELECT * FROM ZRVtbHogog WHERE GJariHogog <> '0' AND TaxMonth = '02'"_s), QStringList());
}

TEST_F(UpgradeTest, FillingIsLimitedToThePayersRows)
{
    makeOldStore();
    sql(u"UPDATE ZRVtbHogog Set TFN = '111111111111' WHERE TaxMonth = '02'"_s);
    open();
    screen->chkDelete.setChecked(false);
    ASSERT_TRUE(screen->userClick(screen->cmdUpgradeStructure));
    EXPECT_EQ(rows(u"SELECT MaskanStatus FROM ZRVtbHogog WHERE TaxMonth = '02' AND MaskanStatus IS NOT NULL"_s),
              QStringList());
    EXPECT_EQ(rows(u"SELECT MaskanStatus FROM ZRVtbHogog WHERE TaxMonth = '01' AND MaskanStatus IS NULL"_s),
              QStringList());
}

TEST_F(UpgradeTest, StoreThatIsCurrentLogsThatAllWasDoneBeforeAndIsRenumberedAgain)
{
    makeOldStore();
    run();
    sql(u"UPDATE ZRVtbKarfarma Set CodeShobe = '7', ShobeName = 'شعبه'"_s);
    sql(u"UPDATE ZRVtbKarkonan Set ShakhsMoafCode = '6'"_s);
    sql(u"UPDATE ZRVtbKarkonan Set Rasteh = '1', EstekhdamType = '1'"_s);
    run();
    for (const QString &line : log())
        EXPECT_FALSE(line.contains(u"با موفقيت"_s)) << line.toStdString();
    // Every column but none of the fillings, which a column that was there does not need.
    EXPECT_EQ(log().filter(u" قبلا به جدول ("_s).size() + log().filter(u" قبلا از جدول ("_s).size(), 22);
    EXPECT_EQ(log().filter(u"مقداردهي گرديد"_s).size(), 0);
    // So are the rows of the lists, but for those that the run itself deletes first.
    EXPECT_EQ(log().filter(u" قبلا به ليست ("_s).size(), 13);
    EXPECT_EQ(log().filter(u" اضافه گرديد"_s).size(), 14);
    EXPECT_EQ(rows(u"SELECT CodeShobe, ShobeName FROM ZRVtbKarfarma"_s), QStringList{u"1|دفتر مرکزي"_s});
    EXPECT_EQ(rows(u"SELECT MelliCode FROM ZRVtbKarkonan WHERE ShakhsMoafCode <> '5'"_s), QStringList());
}

TEST_F(UpgradeTest, AJobsListIsReadFromTheLastTwoCharactersOfItsLine)
{
    for (const ExtendedList &list : extendedLists()) {
        const QString line = list.job + list.item;
        EXPECT_EQ(list.item.size(), 2);
        EXPECT_EQ(&extendedList(line), &list) << line.toStdString();
    }
}

TEST_F(UpgradeTest, FirstRowThatIsThereAlreadyIsToldInABoxAndTheOthersAreNot)
{
    makeOldStore();
    sql(u"INSERT INTO ZRVtbCoding VALUES ('9','نحوه پرداخت','3','x')"_s);
    sql(u"INSERT INTO ZRVtbCoding VALUES ('16','نوع بيمه','3','x')"_s);
    run();
    ASSERT_EQ(platform.boxes.size(), 1u);
    EXPECT_EQ(platform.boxes[0].title, u"Add"_s);
    EXPECT_TRUE(platform.boxes[0].text.endsWith(u" -2147467259"_s));
    EXPECT_TRUE(log().contains(
        u" عبارت (ارائه ليست بدون پرداخت ماليات) قبلا به ليست (نحوه پرداخت) از جدول (اطلاعات پايه) اضافه شده است"_s));
    EXPECT_TRUE(log().contains(u" عبارت (بيمه نشده) قبلا به ليست (انواع بيمه) از جدول (اطلاعات پايه) اضافه شده است"_s));
}

TEST_F(UpgradeTest, SecondPassOnTheExemptionsLogsTheirOldEndThoughItsBoundIsAnother)
{
    makeOldStore();
    run();
    EXPECT_EQ(
        log().count(u" عمليات حذف انواع معافيت نامعتبر (با کد بزرگتر از 11) از جدول اطلاعات پايه به اتمام رسيد "_s), 2);
    EXPECT_EQ(rows(u"SELECT SCode FROM ZRVtbCoding WHERE MCode = '13' AND val(SCode) > 8"_s), QStringList());
}

TEST_F(UpgradeTest, ExemptionsOneAndThreeChangePlacesAndTheRestMovesUp)
{
    makeOldStore();
    const QStringList codes = rows(u"SELECT MelliCode FROM ZRVtbKarkonan ORDER BY MelliCode"_s);
    for (int number = 0; number < 12; ++number)
        sql(u"UPDATE ZRVtbKarkonan Set ShakhsMoafCode = '"_s + QString::number(number) + u"' WHERE MelliCode = '"_s
            + codes[number] + u"'"_s);
    run();
    EXPECT_EQ(rows(u"SELECT ShakhsMoafCode FROM ZRVtbKarkonan ORDER BY MelliCode"_s).join(u' '),
              u"0 3 2 1 4 4 5 0 0 0 0 6"_s);
}

TEST_F(UpgradeTest, TwoPayersAreToldAndTheFirstOnesNumberIsUsed)
{
    makeOldStore();
    const QString first = rows(u"SELECT TFN FROM ZRVtbKarfarma"_s).value(0);
    sql(u"INSERT INTO ZRVtbKarfarma (TFN, Family) VALUES ('999999999999', 'دوم')"_s);
    run();
    ASSERT_EQ(platform.boxes.size(), 1u);
    EXPECT_EQ(platform.boxes[0].style, 0x90010);
    EXPECT_EQ(platform.boxes[0].title, u" اخطار  "_s);
    EXPECT_EQ(program.PayerTFN, first);
    EXPECT_EQ(rows(u"SELECT TFN FROM ZRVtbKarfarma WHERE CodeShobe = '1'"_s), QStringList{first});
    EXPECT_TRUE(log().last().isEmpty());
}

TEST_F(UpgradeTest, ColumnWhoseFillingFailsIsLoggedTwiceAndTheRunGoesOn)
{
    makeOldStore();
    sql(u"UPDATE ZRVtbHogog Set NJariHogog = '9999999999', JariEzafeKar = '1'"_s);
    run();
    const QString field = u"جمع کل مبالغ پرداختي/ تخصيصي نقدي"_s;
    const qsizetype added = log().indexOf(u" فيلد ("_s + field + u") با موفقيت به جدول (ليست حقوق) اضافه گرديد"_s);
    ASSERT_GT(added, 0);
    EXPECT_EQ(log()[added + 1],
              u" خطاي ناشناخته در اضافه نمودن  فيلد ("_s + field + u") به جدول (ليست حقوق) رخ داده است"_s);
    EXPECT_EQ(rows(u"SELECT SCode FROM ZRVtbCoding WHERE MCode = '19'"_s).size(), 3);
}

TEST_F(UpgradeTest, StoreWithoutAPayerIsUpgradedToo)
{
    makeOldStore();
    sql(u"DELETE FROM ZRVtbKarfarma"_s);
    run();
    EXPECT_TRUE(platform.boxes.empty());
    EXPECT_EQ(rows(u"SELECT CodeShobe FROM ZRVtbKarfarma"_s), QStringList());
}

// The lines that depart from the rest on purpose.

TEST_F(UpgradeTest, OfficeNameThatFailsIsLoggedAsTheBranchName)
{
    makeOldStore();
    sql(u"ALTER TABLE ZRVtbKholList DROP COLUMN ShobeName"_s);
    UpgradeRun upgrade(program);
    // A store that is gone is an error of no known kind.
    ASSERT_TRUE(QFile::remove(path(u"DBZorvan.mdb"_s)));
    runStep(upgrade, partyColumns()[2]);
    EXPECT_EQ(upgrade.UpgradeLog(),
              u" خطاي ناشناخته در اضافه نمودن  فيلد (نام شعبه) به جدول (پرداخت کننده حقوق) رخ داده است\r\n"_s);
}

TEST_F(UpgradeTest, BothErrorLinesOfTheMonthsTaxHaveABlankBeforeTheBracket)
{
    makeSample({u"--payees"_s, u"1"_s, u"--months"_s, u"1"_s});
    UpgradeRun upgrade(program);
    runStep(upgrade, salaryColumns()[16]);
    ASSERT_TRUE(QFile::remove(path(u"DBZorvan.mdb"_s)));
    runStep(upgrade, salaryColumns()[16]);
    EXPECT_EQ(
        upgrade.UpgradeLog(),
        u" فيلد (ماليات قابل پرداخت ماه جاري ) قبلا به جدول (ليست حقوق) اضافه شده است\r\n"
        " خطاي ناشناخته در اضافه نمودن  فيلد (ماليات قابل پرداخت ماه جاري ) به جدول (ليست حقوق) رخ داده است\r\n"_s);
}

TEST_F(UpgradeTest, TwoColumnsOfTheSummaryListAreNotOnTheRunsPathAndWorkOnTheirOwn)
{
    makeOldStore();
    run();
    const QString missing = u"SELECT JariEzafeTax, GablEzafeTax FROM ZRVtbKholList"_s;
    EXPECT_THROW((void)rows(missing), RunTimeError);
    UpgradeRun upgrade(program);
    for (const ColumnStep &step : summaryColumns())
        runStep(upgrade, step);
    EXPECT_EQ(
        upgrade.UpgradeLog(),
        u" فيلد (ماليات اضافه پرداخت شده در ماه هاي قبل(جاري)) با موفقيت به جدول (خلاصه ليست) اضافه گرديد\r\n"
        " فيلد (ماليات اضافه پرداخت شده در ماه هاي قبل(ماه هاي گذشته)) با موفقيت به جدول (خلاصه ليست) اضافه گرديد\r\n"_s);
    EXPECT_EQ(rows(missing), QStringList());
}

TEST_F(UpgradeTest, StatementsThatFailOnTheBaseDataArePassedOverInSilence)
{
    UpgradeRun upgrade(program);
    for (const BaseDataStep &step : baseDataSteps())
        if (step.row[0].isEmpty())
            runStep(upgrade, step);
    EXPECT_TRUE(platform.boxes.empty());
    EXPECT_EQ(upgrade.UpgradeLog(), QString());
}

// The way back --------------------------------------------------------------------------------------------------

TEST_F(UpgradeTest, CopyIsTheStoreBeforeTheFirstChangeAndReplacesAnEarlierOne)
{
    makeOldStore();
    const QString before = dump();
    QFile earlier(copyPath());
    ASSERT_TRUE(earlier.open(QIODevice::WriteOnly));
    earlier.write("earlier");
    earlier.close();
    run();
    EXPECT_EQ(dumpOfTheCopy(), before);
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), (QStringList{u"CopyDBZorvan.mdb"_s, u"DBZorvan.mdb"_s}));
}

TEST_F(UpgradeTest, DatedCopyIsTheStoreBeforeTheFirstChangeAsWell)
{
    makeOldStore();
    const QString before = dump();
    run();
    EXPECT_EQ(backupNames(path(u"DBZorvan.mdb"_s)), QStringList{u"DBZorvan-13890303-103000.mdb"_s});
    EXPECT_EQ(dumpOf(path(u"Backups/DBZorvan-13890303-103000.mdb"_s)), before);
    EXPECT_TRUE(log().filter(u"Backups"_s).isEmpty()) << "the log tells of the safety copy alone";
}

TEST_F(UpgradeTest, DatedCopyThatCannotBeMadeAsksNothingBesideTheSafetyCopy)
{
    makeOldStore();
    const QString before = dump();
    QFile inItsPlace(path(u"Backups"_s));
    ASSERT_TRUE(inItsPlace.open(QIODevice::WriteOnly));
    run();
    EXPECT_TRUE(platform.boxes.empty());
    EXPECT_EQ(dumpOfTheCopy(), before);
    EXPECT_NE(dump(), before);
}

TEST_F(UpgradeTest, DialogueOfTheCodesMakesNoCopyOfAStoreThatIsAlteredByHalf)
{
    makeOldStore();
    sql(u"UPDATE ZRVtbKarkonan Set Rasteh = '10'"_s);
    const QString before = dump();
    bool hasMoved = false;
    platform.onModal = [&](Form &form) {
        auto &dialogue = dynamic_cast<frmUpgradeZRVtbKarkonan &>(form);
        dialogue.load();
        dialogue.activate();
        ASSERT_TRUE(dialogue.userCheckItem(dialogue.lstJobs, 0, true));
        hasMoved = dialogue.userClick(dialogue.cmdDeleteAndUpdate);
    };
    run();
    ASSERT_TRUE(hasMoved);
    EXPECT_EQ(rows(u"SELECT MelliCode FROM ZRVtbKarkonan WHERE Rasteh = '10'"_s), QStringList());
    EXPECT_EQ(backupNames(path(u"DBZorvan.mdb"_s)).size(), 1);
    EXPECT_EQ(dumpOf(path(u"Backups/DBZorvan-13890303-103000.mdb"_s)), before);
}

class NoCopy : public UpgradeTest {
protected:
    void SetUp() override
    {
        makeOldStore();
        m_before = dump();
        // A folder in its place: no copy can take that name.
        ASSERT_TRUE(QDir(folder.path()).mkdir(u"CopyDBZorvan.mdb"_s));
    }
    void expectTheQuestion() const
    {
        ASSERT_EQ(platform.boxes.size(), 1u);
        EXPECT_EQ(platform.boxes[0].style, QuestionStyle);
        EXPECT_EQ(platform.boxes[0].title, u"اخطار"_s);
        EXPECT_TRUE(platform.boxes[0].text.contains(copyPath())) << platform.boxes[0].text.toStdString();
    }

    QString m_before;
};

TEST_F(NoCopy, NoEndsTheRunWithNothingChanged)
{
    platform.answers = {Answer::No};
    run();
    expectTheQuestion();
    EXPECT_EQ(dump(), m_before);
    EXPECT_EQ(screen->txtLog.text(), QString());
    EXPECT_TRUE(screen->cmdUpgradeStructure.isEnabled());
    EXPECT_FALSE(screen->PPICWaitingMessage.isVisible());
    // Nothing was deleted, and the last box doesn't say so.
    EXPECT_THROW(screen->userClick(screen->cmdExit), ProgramEnd);
    EXPECT_EQ(platform.boxes[1].text, u"جهت اعمال تغييرات نياز به خروج از برنامه و اجراي مجدد آن ميباشد."_s);
}

TEST_F(NoCopy, YesGoesOnWithoutOneAndTheLogAndTheLastBoxTellOfNone)
{
    platform.answers = {Answer::Yes};
    run();
    expectTheQuestion();
    EXPECT_TRUE(log().filter(copyPath()).isEmpty());
    EXPECT_EQ(rows(u"SELECT CodeShobe FROM ZRVtbKarfarma"_s), QStringList{u"1"_s});
    EXPECT_THROW(screen->userClick(screen->cmdExit), ProgramEnd);
    EXPECT_TRUE(platform.boxes[1].text.startsWith(u"با عرض پوزش"_s));
    EXPECT_FALSE(platform.boxes[1].text.contains(u"کپي گرديده است"_s));
}

TEST_F(UpgradeTest, FullDiskAtTheCopyLeavesTheEarlierCopyAndAsks)
{
    makeOldStore();
    copyStore(path(u"DBZorvan.mdb"_s), copyPath());
    const QString before = dump();
    sql(u"UPDATE ZRVtbKarkonan Set Name = 'نام'"_s);
    platform.answers = {Answer::No};
    open();
    {
        const FilesNoLargerThan limit(8000);
        ASSERT_TRUE(screen->userClick(screen->cmdUpgradeStructure));
    }
    ASSERT_EQ(platform.boxes.size(), 1u);
    EXPECT_EQ(platform.boxes[0].style, QuestionStyle);
    EXPECT_EQ(dumpOfTheCopy(), before);
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), (QStringList{u"CopyDBZorvan.mdb"_s, u"DBZorvan.mdb"_s}));
}

TEST_F(UpgradeTest, StoreThatIsDamagedMakesNoCopy)
{
    makeOldStore();
    QFile store(path(u"DBZorvan.mdb"_s));
    ASSERT_TRUE(store.open(QIODevice::ReadWrite));
    ASSERT_TRUE(store.seek(store.size() - 4096));
    store.write(QByteArray(4096, '\x55'));
    store.close();
    platform.answers = {Answer::No};
    run();
    ASSERT_EQ(platform.boxes.size(), 1u);
    EXPECT_EQ(platform.boxes[0].style, QuestionStyle);
    EXPECT_FALSE(QFile::exists(copyPath()));
}

TEST_F(UpgradeTest, KillAtAnyStepLeavesACopyThatGivesTheOldStoreBack)
{
    makeOldStore();
    const QString before = dump();
    const QString pristine = path(u"pristine"_s);
    ASSERT_TRUE(QFile::copy(path(u"DBZorvan.mdb"_s), pristine));
    int steps = 0;
    platform.onYield = [&] { ++steps; };
    run();
    ASSERT_GT(steps, 60);
    for (int step = 2; step <= steps; ++step) { // the first is shown before the copy
        SCOPED_TRACE(step);
        ASSERT_TRUE(QFile::remove(path(u"DBZorvan.mdb"_s)) && QFile::copy(pristine, path(u"DBZorvan.mdb"_s)));
        QFile::remove(copyPath());
        const pid_t child = fork();
        if (child == 0) {
            int seen = 0;
            platform.onYield = [&] {
                if (++seen == step)
                    (void)std::raise(SIGKILL);
            };
            run();
            _exit(0);
        }
        int status = 0;
        ASSERT_EQ(waitpid(child, &status, 0), child);
        ASSERT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL);
        ASSERT_NE(dump(), before);
        ASSERT_TRUE(QFile::remove(path(u"DBZorvan.mdb"_s)) && QFile::copy(copyPath(), path(u"DBZorvan.mdb"_s)));
        ASSERT_EQ(dump(), before);
    }
}

TEST_F(UpgradeTest, KillInsideAStatementLeavesACopyThatIsWholeAndAStoreThatRecovers)
{
    // Many payees make long statements.
    makeSample({u"--old"_s, u"--payees"_s, u"600"_s, u"--months"_s, u"2"_s, u"--year"_s, u"1388"_s});
    const QString before = dump();
    const QString pristine = path(u"pristine"_s);
    ASSERT_TRUE(QFile::copy(path(u"DBZorvan.mdb"_s), pristine));
    QElapsedTimer whole;
    whole.start();
    run();
    const auto length = int(whole.nsecsElapsed() / 1000);
    constexpr int Kills = 40;
    int inside = 0;
    for (int kill = 0; kill < Kills; ++kill) {
        SCOPED_TRACE(kill);
        ASSERT_TRUE(QFile::remove(path(u"DBZorvan.mdb"_s)) && QFile::copy(pristine, path(u"DBZorvan.mdb"_s)));
        QFile::remove(copyPath());
        // One that is done waits to be killed.
        ASSERT_TRUE(killDuring([&](int turn) { turn == 0 ? run() : void(::pause()); }, length * (kill + 1) / Kills));
        inside += QFile::exists(path(u"DBZorvan.mdb-journal"_s));
        const bool isCopied = QFile::exists(copyPath());
        if (kill % 2 == 0) {
            // The next opening undoes the statement: the store is sound, and as some step left it.
            EXPECT_TRUE(isCopied || dump() == before);
            copyStore(path(u"DBZorvan.mdb"_s), path(u"checked"_s));
        }
        if (isCopied) {
            // What the statement left must not get into the old store when that is put back by hand.
            ASSERT_TRUE(QFile::remove(path(u"DBZorvan.mdb"_s)) && QFile::copy(copyPath(), path(u"DBZorvan.mdb"_s)));
            ASSERT_EQ(dump(), before);
            copyStore(path(u"DBZorvan.mdb"_s), path(u"checked"_s));
        }
    }
    EXPECT_GE(inside, Kills / 10) << "too few of the kills hit a statement for this to show anything";
}

// Leaving -------------------------------------------------------------------------------------------------------

TEST_F(UpgradeTest, LeavingTellsOfDeletedListsEvenWhenNothingWasRun)
{
    makeOldStore();
    open();
    EXPECT_THROW(screen->userClick(screen->cmdExit), ProgramEnd);
    ASSERT_EQ(platform.boxes.size(), 1u);
    EXPECT_EQ(platform.boxes[0].style, 0x180040);
    EXPECT_EQ(platform.boxes[0].title, QString());
    EXPECT_EQ(platform.boxes[0].text.count(u"\r\n"_s), 4);
}

TEST_F(UpgradeTest, LeavingWithKeptListsTellsOnlyThatTheProgramEnds)
{
    makeOldStore();
    open();
    screen->chkDelete.setChecked(false);
    EXPECT_THROW(screen->userClick(screen->cmdExit), ProgramEnd);
    EXPECT_EQ(platform.boxes[0].text, u"جهت اعمال تغييرات نياز به خروج از برنامه و اجراي مجدد آن ميباشد."_s);
}

TEST_F(UpgradeTest, CloseBoxEndsTheProgramAsWell)
{
    makeOldStore();
    open();
    EXPECT_THROW(screen->userClose(), ProgramEnd);
    EXPECT_EQ(platform.boxes.size(), 1u);
}

} // namespace
} // namespace zrv
