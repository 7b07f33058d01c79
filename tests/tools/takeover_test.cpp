// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/tools/takeover_fixture.h"
#include "tools/zrvstore/letters.h"
#include "tools/zrvstore/takeover_report.h"

#include <algorithm>
#include <csignal>
#include <ctime>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace zrv::storetool {
namespace {

/// What was told of the rows of the six tables.
QStringList rowLines(const std::vector<jettest::Table> &tables)
{
    QStringList lines;
    for (const jettest::Table &table : tables)
        lines.append(table.shape.name + u": "_s + QString::number(table.rows.size()) + u" rows"_s);
    return lines;
}

TEST_F(TakeoverTest, AStoreOfAnyAgeKeepsItsShapeRowsAndWidths)
{
    for (const Age age : {Age::Old, Age::Upgraded, Age::Current}) {
        const std::vector<jettest::Table> tables = oldStore(age);
        QDir(in(u"new"_s)).removeRecursively();
        EXPECT_EQ(takenOver(write(jetFile(tables, {.isCompressed = true, .movedEach = 3, .deletedEach = 4}))),
                  rowLines(tables) + QStringList{u"doubts: 0"_s});
        for (const jettest::Table &table : tables) {
            EXPECT_EQ(linesOf(newStore(), table.shape.name), linesOf(table));
            QStringList widths;
            for (const ColumnShape &column : table.shape.columns)
                widths.append(u"TEXT("_s + QString::number(column.width) + u')');
            EXPECT_EQ(Sqlite(newStore()).run(u"SELECT type FROM pragma_table_info('"_s + table.shape.name + u"')"_s),
                      widths);
        }
    }
}

TEST_F(TakeoverTest, ACurrentStoreIsSoundAfterwards)
{
    EXPECT_EQ(takenOver(write(jetFile(oldStore(Age::Current)))).last(), u"doubts: 0"_s);
    EXPECT_EQ(verified(newStore()), QStringList{u"findings: 0"_s});
    struct stat status = {};
    ASSERT_EQ(::stat(QFile::encodeName(newStore()).constData(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777, 0600u);
}

TEST_F(TakeoverTest, NullEmptyTextsAndQuotesAreKept)
{
    std::vector<jettest::Table> tables = oldStore(Age::Current);
    jettest::Table &payees = tableOf(tables, u"ZRVtbKarkonan");
    cellOf(payees, 0, u"HomeAddress") = Cell();
    cellOf(payees, 1, u"HomeAddress") = QString();
    cellOf(payees, 2, u"HomeAddress") = u"خيابان 'آزادي' \"10\" \\N; --"_s;
    cellOf(payees, 3, u"HomeAddress") = u"می‌خواهم ي ك ی ک"_s;
    EXPECT_EQ(takenOver(write(jetFile(tables))).last(), u"doubts: 0"_s);
    EXPECT_EQ(linesOf(newStore(), u"ZRVtbKarkonan"_s), linesOf(payees));
}

TEST_F(TakeoverTest, TheProgramTellsTableByTableAndEndsByItsDoubts)
{
    std::vector<jettest::Table> tables = oldStore(Age::Old);
    const Outcome sound = zrvstore({u"takeover"_s, write(jetFile(tables)), in(u"new"_s)});
    EXPECT_EQ(sound.exitCode, 0);
    EXPECT_EQ(sound.err, QString());
    EXPECT_TRUE(sound.out.contains(u"ZRVtbKarkonan: 12 rows\n"_s)) << sound.out.toStdString();
    EXPECT_TRUE(sound.out.contains(u"note ZRVtbKarkonan: has not got HomeAddress: an older store"_s));

    cellOf(tableOf(tables, u"ZRVtbKarkonan"), 4, u"Family") = u"㼰مد"_s;
    const Outcome doubtful = zrvstore({u"takeover"_s, write(jetFile(tables)), in(u"other"_s)});
    EXPECT_EQ(doubtful.exitCode, 1);
    EXPECT_TRUE(doubtful.out.contains(u"has letters that no screen takes [letters]"_s)) << doubtful.out.toStdString();

    const Outcome refused = zrvstore({u"takeover"_s, write("junk"), in(u"third"_s)});
    EXPECT_EQ(refused.exitCode, 2);
    EXPECT_EQ(refused.err, QString(u"zrvstore: "_s + in(u"old.mdb"_s)
                                   + u": is no database of an older version of the program [not-jet]\n"_s));
    EXPECT_FALSE(QFile::exists(in(u"third"_s)));
}

TEST_F(TakeoverTest, AStoreThatIsThereIsNotReplaced)
{
    createSample(in(u"new"_s), {});
    const QByteArray before = read(newStore());
    EXPECT_EQ(takenOver(write(jetFile(oldStore(Age::Old)))).last(),
              QString(newStore() + u" exists and is not replaced [can-not-write]"_s));
    EXPECT_EQ(read(newStore()), before);
}

TEST_F(TakeoverTest, AFoldersOwnOldStoreIsReplacedAndKeptUnderAnotherName)
{
    ASSERT_TRUE(QDir().mkpath(in(u"new"_s)));
    const std::vector<jettest::Table> tables = oldStore(Age::Old);
    const QByteArray old = jetFile(tables);
    EXPECT_EQ(takenOver(write(old, u"new/DBZorvan.mdb"_s)).mid(6),
              (QStringList{u"the old file is kept as JetDBZorvan.mdb"_s, u"doubts: 0"_s}));
    EXPECT_EQ(linesOf(newStore(), u"ZRVtbHogog"_s),
              linesOf(tableOf(const_cast<std::vector<jettest::Table> &>(tables), u"ZRVtbHogog")));
    EXPECT_EQ(read(in(u"new/JetDBZorvan.mdb"_s)), old);
    EXPECT_EQ(QDir(in(u"new"_s)).entryList(QDir::Files | QDir::Hidden),
              (QStringList{u"DBZorvan.mdb"_s, u"JetDBZorvan.mdb"_s}));

    QFile::remove(newStore());
    EXPECT_TRUE(takenOver(write(old, u"new/DBZorvan.mdb"_s)).contains(u"the old file is kept as Jet2DBZorvan.mdb"_s))
        << "the first one is not replaced";
}

TEST_F(TakeoverTest, AFoldersOwnOldStoreThatCanNotBeTakenOverIsUntouched)
{
    ASSERT_TRUE(QDir().mkpath(in(u"new"_s)));
    std::vector<jettest::Table> tables = oldStore(Age::Old);
    tables.pop_back();
    const QByteArray old = jetFile(tables);
    EXPECT_TRUE(takenOver(write(old, u"new/DBZorvan.mdb"_s)).last().endsWith(u"[missing-table]"));
    EXPECT_EQ(read(newStore()), old);
    EXPECT_EQ(QDir(in(u"new"_s)).entryList(QDir::Files | QDir::Hidden), QStringList{u"DBZorvan.mdb"_s});
}

TEST_F(TakeoverTest, AFullDiskLeavesTheOldStoreAndNoRubbish)
{
    ASSERT_TRUE(QDir().mkpath(in(u"new"_s)));
    const QByteArray old = jetFile(oldStore(Age::Old));
    const QString file = write(old, u"new/DBZorvan.mdb"_s);
    for (const rlim_t bytes : {rlim_t(0), rlim_t(4'096), rlim_t(30'000)}) {
        const pid_t child = ::fork();
        if (child == 0) {
            ::signal(SIGXFSZ, SIG_IGN);
            const rlimit limit = {bytes, bytes};
            ::setrlimit(RLIMIT_FSIZE, &limit);
            ::_exit(takenOver(file).last().endsWith(u"[can-not-write]") ? 2 : 0);
        }
        int status = 0;
        ASSERT_EQ(::waitpid(child, &status, 0), child);
        EXPECT_EQ(WEXITSTATUS(status), 2);
        EXPECT_EQ(read(newStore()), old);
        EXPECT_EQ(QDir(in(u"new"_s)).entryList(QDir::Files | QDir::Hidden), QStringList{u"DBZorvan.mdb"_s}) << bytes;
    }
}

TEST_F(TakeoverTest, AFileThatIsLockedOrALinkIsLeftAlone)
{
    const QString file = write(jetFile(oldStore(Age::Old)));
    ASSERT_TRUE(QFile::link(file, in(u"link.mdb"_s)));
    EXPECT_TRUE(takenOver(in(u"link.mdb"_s)).last().endsWith(u"[no-file]"));
    write({}, u"old.ldb"_s);
    EXPECT_TRUE(takenOver(file).last().endsWith(u"[in-use]"));
}

TEST_F(TakeoverTest, AJournalOfAnotherStoreIsNotLeftToSpoilTheNewOne)
{
    ASSERT_TRUE(QDir().mkpath(in(u"new"_s)));
    write("journal", u"new/DBZorvan.mdb-journal"_s);
    EXPECT_TRUE(takenOver(write(jetFile(oldStore(Age::Old)))).last().endsWith(u"move it away first [can-not-write]"));
    EXPECT_FALSE(QFile::exists(newStore()));
}

TEST_F(TakeoverTest, AJournalOfTheStoreInWhosePlaceTheOldOneWasPutIsSetAside)
{
    createSample(in(u"new"_s), {.payees = 400});
    const pid_t child = ::fork();
    if (child == 0) {
        // With room for one page, what is changed goes into the file at once.
        Sqlite killed(newStore());
        killed.run(u"PRAGMA cache_size=1; BEGIN; UPDATE ZRVtbHogog SET NJariHogog='1'"_s);
        ::_exit(0);
    }
    ::waitpid(child, nullptr, 0);
    write(jetFile(oldStore(Age::Current)), u"new/DBZorvan.mdb"_s);
    EXPECT_EQ(takenOver(newStore()).last(), u"doubts: 0"_s);
    EXPECT_EQ(QDir(in(u"new"_s)).entryList(QDir::Files | QDir::Hidden),
              (QStringList{u"DBZorvan.mdb"_s, u"DBZorvan.mdb-journal.foreign"_s, u"JetDBZorvan.mdb"_s}));
    EXPECT_EQ(verified(newStore()).last(), u"findings: 0"_s);
}

TEST_F(TakeoverTest, MissingTablesAndColumnsAreNamedAndNotGuessedAt)
{
    std::vector<jettest::Table> tables = oldStore(Age::Old);
    tableOf(tables, u"ZRVtbHogog").shape.name = u"ZRVtbHogogi"_s;
    EXPECT_EQ(refusalOf(tables), finding::MissingTable);

    tables = oldStore(Age::Old);
    tableOf(tables, u"ZRVtbKarkonan").shape.columns[3].name = u"Familie"_s;
    const QStringList told = takenOver(write(jetFile(tables)));
    EXPECT_TRUE(told.contains(u"ZRVtbKarkonan Family: is missing [missing-column]"_s))
        << told.join(u'\n').toStdString();
    EXPECT_TRUE(told.last().endsWith(u"[missing-column]"));
}

TEST_F(TakeoverTest, UnknownTablesAreNotedAndUnknownColumnsKeptAndDoubted)
{
    std::vector<jettest::Table> tables = oldStore(Age::Old);
    tables.push_back({{u"Mine"_s, {{u"A"_s, 4}}, {}, {}}, {{u"1"_s}}});
    jettest::Table &payees = tableOf(tables, u"ZRVtbKarkonan");
    payees.shape.columns.push_back({u"Remark"_s, 20});
    cellOf(payees, 2, u"Remark") = u"ok"_s;
    const Outcome outcome = zrvstore({u"takeover"_s, write(jetFile(tables)), in(u"new"_s)});
    EXPECT_EQ(outcome.exitCode, 1);
    EXPECT_TRUE(
        outcome.out.contains(u"note \"Mine\": is a table that no store has; it is left out [foreign-object]"_s));
    EXPECT_TRUE(outcome.out.contains(u"\"Remark\": is of no version of the program; it is kept [unknown-column]"_s));
    EXPECT_EQ(linesOf(newStore(), u"ZRVtbKarkonan"_s), linesOf(payees));
    EXPECT_EQ(Sqlite(newStore()).value(u"SELECT count(*) FROM sqlite_schema WHERE name='Mine'"_s), u"0"_s);
}

TEST_F(TakeoverTest, SomeOfTheColumnsOfOneVersionAreDoubtful)
{
    std::vector<jettest::Table> tables = oldStore(Age::Upgraded);
    tableOf(tables, u"ZRVtbHogog").shape.columns.pop_back();
    const QStringList told = takenOver(write(jetFile(tables)));
    EXPECT_TRUE(told.contains(u"ZRVtbHogog: has not got FinalTax, though it has others of the same version"
                              " [missing-column]"_s))
        << told.join(u'\n').toStdString();
    EXPECT_EQ(told.last(), u"doubts: 1"_s);
}

TEST_F(TakeoverTest, AWidthThatIsTooSmallIsADoubtUnlessOlderVersionsHadIt)
{
    std::vector<jettest::Table> tables = oldStore(Age::Old);
    jettest::Table &summaries = tableOf(tables, u"ZRVtbKholList");
    const auto setWidth = [&](const QString &column, int width) {
        std::ranges::find(summaries.shape.columns, column, &ColumnShape::name)->width = width;
    };
    setWidth(u"KarkonanNo"_s, 6);
    setWidth(u"ChequeSeriNo"_s, 6);
    EXPECT_EQ(takenOver(write(jetFile(tables))).last(), u"doubts: 0"_s);
    QDir(in(u"new"_s)).removeRecursively();
    setWidth(u"KarkonanNo"_s, 5);
    EXPECT_EQ(takenOver(write(jetFile(tables))).last(), u"doubts: 1"_s);
}

TEST_F(TakeoverTest, ARowCountThatIsWrongIsAFaultAndOneThatWasNotWrittenADoubt)
{
    std::vector<jettest::Table> tables = oldStore(Age::Old);
    EXPECT_EQ(takenOver(write(jetFile(tables, {.isNotClosed = true}))).last(), u"doubts: 6"_s);
    QFile::remove(newStore());
    QDir(in(u"new"_s)).removeRecursively();

    QByteArray file = jetFile(tables);
    // The payees' definition is the one that counts 12 rows.
    int definition = 0;
    for (int page = 3; page < file.size() / 4096; ++page) {
        if (file[page * 4096] == 2 && file[page * 4096 + 16] == 12)
            definition = page;
    }
    file[definition * 4096 + 16] = 13;
    EXPECT_EQ(takenOver(write(file)).last().section(u": "_s, 1),
              u"ZRVtbKarkonan: 12 rows are there, 13 are counted [row-count]"_s);
}

TEST_F(TakeoverTest, KeysThatStandTwiceOrAreNullAreFaults)
{
    std::vector<jettest::Table> tables = oldStore(Age::Old);
    jettest::Table &users = tableOf(tables, u"User_Defination");
    users.rows.push_back(users.rows.front());
    cellOf(users, 1, u"UserNamee") = u"admin"_s;
    EXPECT_EQ(refusalOf(tables), finding::DuplicateKey) << "keys go without regard to case";

    tables = oldStore(Age::Old);
    cellOf(tableOf(tables, u"ZRVtbKarkonan"), 3, u"MelliCode") = Cell();
    EXPECT_EQ(refusalOf(tables), finding::Empty);
}

TEST_F(TakeoverTest, APasswordIsNeverTold)
{
    std::vector<jettest::Table> tables = oldStore(Age::Old);
    jettest::Table &users = tableOf(tables, u"User_Defination");
    users.rows.push_back(users.rows.front());
    cellOf(users, 0, u"Passwordd") = u"GEHEIM1"_s;
    cellOf(users, 1, u"Passwordd") = u"GEHEIM1"_s;
    cellOf(users, 0, u"Name") = u"\u0001"_s;
    EXPECT_FALSE(takenOver(write(jetFile(tables))).join(u'\n').contains(u"GEHEIM"));
    cellOf(users, 1, u"Passwordd") = u"GEHEIM\u0002"_s;
    EXPECT_FALSE(takenOver(write(jetFile(tables))).join(u'\n').contains(u"GEHEIM"));
}

TEST_F(TakeoverTest, TextsThatAreTooLongOrHoldNoLettersAreFaults)
{
    const auto refusalWith = [&](const QString &text) {
        std::vector<jettest::Table> tables = oldStore(Age::Old);
        cellOf(tableOf(tables, u"ZRVtbKarkonan"), 5, u"Family") = text;
        return refusalOf(tables);
    };
    EXPECT_EQ(refusalWith(QString(51, u'ا')), finding::TooLong);
    EXPECT_EQ(refusalWith(u"ab\ncd"_s), finding::Letters);
    EXPECT_EQ(refusalWith(QString::fromUtf16(u"a\0b", 3)), finding::Letters);
    EXPECT_EQ(refusalWith(u"a\uFFFDb"_s), finding::Letters);
    EXPECT_EQ(refusalWith(QString(QChar(0xD83D)) + u"x"_s), finding::Letters);
}

TEST_F(TakeoverTest, ATextAsLongAsItsColumnIsTaken)
{
    std::vector<jettest::Table> tables = oldStore(Age::Old);
    cellOf(tableOf(tables, u"ZRVtbKarkonan"), 5, u"Family") = QString(50, u'ا');
    EXPECT_EQ(takenOver(write(jetFile(tables))).last(), u"doubts: 0"_s);
}

TEST_F(TakeoverTest, TextsOfAnOldCodePageAreAskedAboutAndNeverConverted)
{
    std::vector<jettest::Table> tables = oldStore(Age::Old);
    cellOf(tableOf(tables, u"ZRVtbKarkonan"), 0, u"Family") = u"ãÍãÏ"_s;
    EXPECT_EQ(refusalOf(tables), finding::OldCodePage);
    EXPECT_EQ(takenOver(write(jetFile(tables)), true).last(), u"doubts: 1"_s);
    EXPECT_EQ(linesOf(newStore(), u"ZRVtbKarkonan"_s), linesOf(tableOf(tables, u"ZRVtbKarkonan")));
}

TEST_F(TakeoverTest, ANationalCodeWithAWrongCheckDigitIsADoubt)
{
    std::vector<jettest::Table> tables = oldStore(Age::Current, 12, 1);
    for (const QStringView name : {u"ZRVtbKarkonan", u"ZRVtbHogog"}) {
        jettest::Table &table = tableOf(tables, name);
        QString &code = *cellOf(table, 0, u"MelliCode");
        code.back() = code.back() == u'0' ? u'1' : u'0';
    }
    const QStringList told = takenOver(write(jetFile(tables)));
    EXPECT_TRUE(told.filter(u"is no valid national code [form]"_s).size() == 1) << told.join(u'\n').toStdString();
    EXPECT_EQ(told.last(), u"doubts: 1"_s);
}

TEST_F(TakeoverTest, BytesBehindTheLastPageAreADoubt)
{
    EXPECT_EQ(takenOver(write(jetFile(oldStore(Age::Old)) + "rest")).last(), u"doubts: 1"_s);
}

TEST_F(TakeoverTest, AnEncodedFileIsTakenOverAndOneWithAPasswordIsNot)
{
    EXPECT_EQ(refusalOf(oldStore(Age::Old), {.password = u"x"_s}), u"password");
    EXPECT_EQ(takenOver(write(jetFile(oldStore(Age::Old), {.key = 0xABCDEF01}))).last(), u"doubts: 0"_s);
}

TEST_F(TakeoverTest, ALargeStoreIsTakenOverWhole)
{
    const std::vector<jettest::Table> tables = oldStore(Age::Current, 20'000, 2);
    EXPECT_EQ(tables[1].rows.size(), 20'000u);
    EXPECT_GE(tables[2].rows.size(), 35'000u);
    const QString file = write(jetFile(tables));
    // The time that it works is noted for whoever looks for it; a busy machine would make any limit fail.
    const std::clock_t begin = std::clock();
    EXPECT_EQ(takenOver(file).last(), u"doubts: 0"_s);
    RecordProperty("milliseconds", int(double(std::clock() - begin) / CLOCKS_PER_SEC * 1000));
}

TEST(LettersTest, TheWorstLetterOfATextCounts)
{
    EXPECT_EQ(lettersOf({}), Letters::Sound);
    EXPECT_EQ(lettersOf(u"تهران ‌ «10» ×÷ ٪ é"), Letters::OldCodePage);
    EXPECT_EQ(lettersOf(u"تهران ‌ «10» ×÷ ٪ ﷼ ﻻ"), Letters::Sound);
    EXPECT_EQ(lettersOf(u"مؤمن ئاوات شكيبا كُوچهٔ نگینِ ۱۸ ٣ ، ؛ ؟ ۀ ڤ ە"), Letters::Sound);
    EXPECT_EQ(lettersOf(u"я"), Letters::Odd);
    EXPECT_EQ(lettersOf(u"\u065D"), Letters::Odd);
    EXPECT_EQ(lettersOf(u"\u0601"), Letters::Odd);
    EXPECT_EQ(lettersOf(u"😀"), Letters::Odd);
    EXPECT_EQ(lettersOf(u"\u0090"), Letters::OldCodePage);
    EXPECT_EQ(lettersOf(u"я é\t"), Letters::Damaged);
    EXPECT_EQ(lettersOf(u"\u007F"), Letters::Damaged);
    EXPECT_EQ(lettersOf(u"\uFFFF"), Letters::Damaged);
    EXPECT_EQ(lettersOf(u"\uFDD0"), Letters::Damaged);
}

} // namespace
} // namespace zrv::storetool
