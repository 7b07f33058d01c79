// SPDX-License-Identifier: GPL-3.0-or-later
// Whatever moment a process is killed at, the store is sound and each statement has taken effect wholly or not at all.

#include "core/basic/run_time_error.h"
#include "core/store/connection.h"
#include "tests/jet_writer/old_stores.h"
#include "tests/tools/killed_process.h"
#include "tests/tools/tool_fixture.h"
#include "tools/sample/numbers.h"
#include "tools/zrvstore/backup.h"
#include "tools/zrvstore/takeover.h"

namespace zrv::storetool {
namespace {

constexpr sample::Plan People = {.payees = 150, .months = 3, .year = 1389, .rng = 11};

class KillTest : public ToolTest {};

/// The statements of the screens, one after the other. Each leaves a sound store behind it.
class Statements {
public:
    explicit Statements(const QString &store)
        : m_connectionString(u"Data Source = "_s + store)
    {
    }

    void operator()(int turn) const
    {
        const QString number = QString::number(turn % 90 + 10);
        const QString month = QString::number(100 + 4 + turn % 9).mid(1);
        // One of them may find its work done already by the process that was killed before.
        run(u"DELETE FROM ZRVtbHogog WHERE TaxMonth='"_s + month + u'\'');
        run(u"INSERT INTO ZRVtbHogog (TFN,MelliCode,TaxYear,TaxMonth,"_s + Amounts
            + u") SELECT TFN,MelliCode,TaxYear,'"_s + month + u"',"_s + Amounts
            + u" FROM ZRVtbHogog WHERE TaxMonth='01'"_s);
        run(u"UPDATE ZRVtbKarkonan SET Sabege = '"_s + number + u'\'');
        const QString payee = QString::fromStdString(sample::nationalCode(People, 1'000 + turn % 50));
        run(u"DELETE FROM ZRVtbKarkonan WHERE MelliCode='"_s + payee + u'\'');
        run(u"INSERT INTO ZRVtbKarkonan (TFN,MelliCode,Name,Family,FatherName,PostCode,Semat,Sabege,Madrak,Rasteh,"
            "InsuNo,ShakhsMoafCode,MelliatCode,KeshvarCode,EndDate,EstekhdamType,BimehType) SELECT TFN,'"_s
            + payee
            + u"',Name,Family,FatherName,PostCode,Semat,Sabege,Madrak,Rasteh,InsuNo,ShakhsMoafCode,MelliatCode,"
              "KeshvarCode,'13900101',EstekhdamType,BimehType FROM ZRVtbKarkonan WHERE MelliCode='"_s
            + QString::fromStdString(sample::nationalCode(People, 0)) + u'\'');
        run(u"ALTER TABLE ZRVtbKholList DROP COLUMN GablEzafeTax"_s);
        run(u"ALTER TABLE ZRVtbKholList ADD COLUMN GablEzafeTax TEXT(17)"_s);
        run(u"ALTER TABLE ZRVtbHogog ALTER COLUMN FinalTax TEXT(13)"_s);
    }

private:
    void run(const QString &statement) const
    {
        try {
            Connection(m_connectionString).execute(statement);
        } catch (const RunTimeError &error) {
            if (!statement.startsWith(u"ALTER"))
                throw;
        }
    }

    static inline const QString Amounts =
        u"NJariHogog,JariEzafeKar,NJariSayerPardakhtiha,NTotalDaramad,NJariMoafiate91,NDaramadeMashmol,GJariHogog,"
        "MaskanStatus,MaskanMablagh,OtomobilStatus,OtomobilMablagh,GTotalDaramad,GDaramadeMashmol,PJariHogog,"
        "PDaramadeMashmol,NGPTotalDaramadeMashmol,SayereMoafiatha,FinalDaramadeMashmol,JariTax,FinalTax"_s;

    QString m_connectionString;
};

/// The findings of a verification; a column that comes and goes is only noted.
QStringList findingsOf(const QString &store)
{
    QStringList lines = verified(store);
    lines.removeIf([](const QString &line) { return line.startsWith(u"note "_s); });
    return lines;
}

TEST_F(KillTest, EachStatementTakesEffectWhollyOrNotAtAll)
{
    constexpr int Kills = 120;
    const QString store = sampleStore(People);
    Sqlite(store).run(u"UPDATE ZRVtbKarkonan SET Sabege='10'"_s);
    const QString month = Sqlite(store).value(u"SELECT count(*) FROM ZRVtbHogog WHERE TaxMonth='01'"_s);
    // Most statements are short ones; every fourth kill has the time for several.
    KillMoments moments(1, 8'000);
    int duringAStatement = 0;
    for (int turn = 0; turn < Kills; ++turn) {
        const int moment = moments.next() * (turn % 4 == 0 ? 4 : 1);
        ASSERT_TRUE(killDuring([&, work = Statements(store)](int step) { work(turn + step); }, moment));
        duringAStatement += QFile::exists(store + u"-journal"_s);
        ASSERT_EQ(findingsOf(store), QStringList{u"findings: 0"_s}) << "after kill " << turn;
        Sqlite left(store);
        EXPECT_EQ(left.run(u"SELECT DISTINCT count(*) FROM ZRVtbHogog WHERE TaxMonth>'03' GROUP BY TaxMonth"
                           " HAVING count(*)<>"_s
                           + month),
                  QStringList())
            << "a month is whole or absent";
        EXPECT_EQ(left.value(u"SELECT count(DISTINCT Sabege) FROM ZRVtbKarkonan"_s), u"1"_s);
        EXPECT_EQ(left.value(u"SELECT count(*) FROM ZRVtbHogog WHERE TaxMonth<='03' AND FinalTax IS NULL"_s), u"0"_s);
    }
    EXPECT_GE(duringAStatement, Kills / 10) << "too few of the kills hit a statement for this to show anything";
}

TEST_F(KillTest, AStoreInTheMakingHasNoNameYet)
{
    KillMoments moments(2, 60'000);
    int made = 0;
    int unmade = 0;
    for (int turn = 0; turn < 40; ++turn) {
        const QString folder = in(QString::number(turn));
        ASSERT_TRUE(killDuring(
            [&](int step) {
                const QString each = folder + u'/' + QString::number(step);
                turn % 2 == 0 ? create(each, {}) : createSample(each, People);
            },
            moments.next()));
        const int madeBefore = made;
        for (const QFileInfo &each : QDir(folder).entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot)) {
            const QString store = storeIn(each.filePath());
            const bool exists = QFile::exists(store);
            ++(exists ? made : unmade);
            if (exists) {
                ASSERT_EQ(findingsOf(store), QStringList{u"findings: 0"_s}) << store.toStdString();
            }
        }
        made == madeBefore ? moments.cameBeforeTheEnd() : moments.cameAfterTheEnd();
        QDir(folder).removeRecursively();
    }
    EXPECT_GT(made, 5);
    EXPECT_GT(unmade, 5) << "too few of the kills hit a store in the making";
}

TEST_F(KillTest, ACopyInTheMakingHasNoNameYetAndLeavesTheOldOneWhole)
{
    const QString store = sampleStore(People);
    const QString copy = in(u"copy.mdb"_s);
    KillMoments moments(3, 40'000);
    int unfinished = 0;
    for (int turn = 0; turn < 40; ++turn) {
        if (turn % 4 == 0)
            QFile::remove(copy);
        ASSERT_TRUE(killDuring([&](int) { backup(store, copy, true); }, moments.next()));
        const QStringList rubbish = QDir(in(u""_s)).entryList({u"copy.mdb.new*"_s}, QDir::Files);
        EXPECT_LE(rubbish.size(), 1) << "each run clears away what the one before it left";
        unfinished += !rubbish.isEmpty();
        if (QFile::exists(copy)) {
            ASSERT_EQ(findingsOf(copy), QStringList{u"findings: 0"_s}) << "after kill " << turn;
        }
        EXPECT_EQ(findingsOf(store), QStringList{u"findings: 0"_s});
    }
    EXPECT_GT(unfinished, 5) << "too few of the kills hit a copy in the making";
    backup(store, copy, true);
    EXPECT_EQ(QDir(in(u""_s)).entryList(QDir::Files), QStringList{u"copy.mdb"_s});
}

TEST_F(KillTest, AnOldStoreIsReplacedWhollyOrNotAtAllAndNeverLost)
{
    const QByteArray old = jettest::jetFile(jettest::oldestStore(300));
    const auto bytesOf = [](const QString &path) {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    };
    KillMoments moments(4, 120'000);
    int replaced = 0;
    int left = 0;
    for (int turn = 0; turn < 40; ++turn) {
        const QString folder = in(QString::number(turn));
        const QString store = storeIn(folder);
        QDir().mkpath(folder);
        QFile file(store);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(old) == old.size());
        file.close();
        ASSERT_TRUE(killDuring(
            [&](int step) {
                step == 0 ? void(takeOver(store, folder, false, [](const QString &) {})) : void(::pause());
            },
            moments.next()));
        const bool isReplaced = bytesOf(store) != old;
        ++(isReplaced ? replaced : left);
        if (isReplaced) {
            moments.cameAfterTheEnd();
            EXPECT_EQ(bytesOf(folder + u"/JetDBZorvan.mdb"_s), old) << "after kill " << turn;
            EXPECT_EQ(Sqlite(store).value(u"SELECT count(*) FROM ZRVtbKarkonan"_s), u"300"_s);
        } else {
            moments.cameBeforeTheEnd();
            (void)takeOver(store, folder, false, [](const QString &) {});
            EXPECT_EQ(Sqlite(store).value(u"SELECT count(*) FROM ZRVtbKarkonan"_s), u"300"_s);
        }
        EXPECT_EQ(QDir(folder).entryList({u"*.new*"_s}, QDir::Files), QStringList());
    }
    EXPECT_GT(replaced, 5);
    EXPECT_GT(left, 5) << "too few of the kills hit a takeover";
}

} // namespace
} // namespace zrv::storetool
