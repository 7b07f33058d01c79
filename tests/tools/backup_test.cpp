// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/tools/tool_fixture.h"
#include "tools/zrvstore/backup.h"

#include <QElapsedTimer>
#include <QSet>

#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace zrv::storetool {
namespace {

class BackupTest : public ToolTest {
protected:
    /// Copies the store; "done" or why not.
    QString copied(const QString &store, bool force = false)
    {
        return refusalOf([&] { backup(store, m_copy, force); });
    }
    [[nodiscard]] QStringList filesBeside() const
    {
        return QDir(QFileInfo(m_copy).path()).entryList(QDir::Files | QDir::Hidden);
    }

    QString m_copy = in(u"copy.mdb"_s);
};

QString countOf(const QString &path, const QString &table)
{
    return Sqlite(path).value(u"SELECT count(*) FROM "_s + table);
}

TEST_F(BackupTest, TheCopyIsWholePrivateAndAlone)
{
    const QString store = sampleStore();
    const QString dump = u"SELECT * FROM ZRVtbHogog; SELECT * FROM ZRVtbKarkonan; SELECT * FROM ZRVtbCoding"_s;
    EXPECT_EQ(zrvstore({u"backup"_s, in(u"store"_s), m_copy}).exitCode, 0);
    EXPECT_EQ(Sqlite(m_copy).run(dump), Sqlite(store).run(dump));
    EXPECT_EQ(verified(m_copy), QStringList{u"findings: 0"_s});
    struct stat status = {};
    ASSERT_EQ(::stat(QFile::encodeName(m_copy).constData(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777, 0600u);
    EXPECT_EQ(filesBeside(), QStringList{u"copy.mdb"_s});
}

TEST_F(BackupTest, AFileThatIsThereIsReplacedWithForceAlone)
{
    const QString store = sampleStore();
    QFile file(m_copy);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("letters");
    file.close();
    EXPECT_EQ(copied(store), QString(m_copy + u" exists; --force replaces it"_s));
    EXPECT_EQ(QFileInfo(m_copy).size(), 7);
    EXPECT_EQ(zrvstore({u"backup"_s, in(u"store"_s), m_copy, u"--force"_s}).exitCode, 0);
    EXPECT_EQ(verified(m_copy), QStringList{u"findings: 0"_s});
}

TEST_F(BackupTest, TheStoreItselfIsNoTargetUnderAnyName)
{
    const QString store = sampleStore();
    ASSERT_TRUE(QFile::link(store, m_copy));
    EXPECT_EQ(copied(store, true), QString(m_copy + u" is the store itself"_s));
    EXPECT_EQ(refusalOf([&] { backup(store, in(u"store/../store/DBZorvan.mdb"_s), true); }),
              QString(in(u"store/../store/DBZorvan.mdb"_s) + u" is the store itself"_s));
    EXPECT_EQ(verified(store), QStringList{u"findings: 0"_s});
}

TEST_F(BackupTest, AJournalOfAnotherFileBesideTheTargetIsRefused)
{
    const QString store = sampleStore();
    QFile journal(m_copy + u"-journal"_s);
    ASSERT_TRUE(journal.open(QIODevice::WriteOnly));
    EXPECT_TRUE(copied(store, true).contains(u"-journal is the rest of another file"_s));
    EXPECT_FALSE(QFile::exists(m_copy));
}

TEST_F(BackupTest, WhatIsNoStoreIsNotCopied)
{
    EXPECT_EQ(copied(in(u"nothing.mdb"_s)), QString(in(u"nothing.mdb"_s) + u" does not exist"_s));
    QFile text(in(u"text.mdb"_s));
    ASSERT_TRUE(text.open(QIODevice::WriteOnly));
    text.write(QByteArray(500, 'x'));
    text.close();
    EXPECT_EQ(copied(text.fileName()), QString(text.fileName() + u" is not a store: its head is another one"_s));

    sqlite3 *other = nullptr;
    ASSERT_EQ(sqlite3_open(QFile::encodeName(in(u"other.mdb"_s)).constData(), &other), SQLITE_OK);
    ASSERT_EQ(sqlite3_exec(other, "CREATE TABLE t(a)", nullptr, nullptr, nullptr), SQLITE_OK);
    sqlite3_close(other);
    EXPECT_EQ(copied(in(u"other.mdb"_s)),
              QString(in(u"other.mdb"_s) + u" is not a store: it has none of the store's tables"_s));
    EXPECT_FALSE(QFile::exists(m_copy));
}

TEST_F(BackupTest, ADamagedStoreGivesNoCopyAndKeepsTheOldOne)
{
    const QString store = sampleStore({.payees = 200});
    EXPECT_EQ(copied(store), u"done"_s);
    const QString rows = countOf(m_copy, u"ZRVtbHogog"_s);
    QFile file(store);
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    ASSERT_TRUE(file.seek(4096 * 20));
    file.write(QByteArray(4096, '\x5a'));
    file.close();
    EXPECT_TRUE(copied(store, true).contains(u"damaged"_s)) << copied(store, true).toStdString();
    EXPECT_EQ(countOf(m_copy, u"ZRVtbHogog"_s), rows);
    EXPECT_EQ(filesBeside(), QStringList{u"copy.mdb"_s});
}

TEST_F(BackupTest, WhatAnotherProgramHasNotFinishedIsNotInTheCopy)
{
    const QString store = sampleStore();
    Sqlite writer(store);
    writer.run(u"BEGIN IMMEDIATE; DELETE FROM ZRVtbHogog"_s);
    EXPECT_EQ(copied(store), u"done"_s);
    writer.run(u"COMMIT"_s);
    EXPECT_NE(countOf(m_copy, u"ZRVtbHogog"_s), u"0"_s);
    EXPECT_EQ(copied(store, true), u"done"_s);
    EXPECT_EQ(countOf(m_copy, u"ZRVtbHogog"_s), u"0"_s);
}

TEST_F(BackupTest, AStoreThatSomebodyHoldsIsCalledBusyAfterAWhile)
{
    const QString store = sampleStore();
    Sqlite writer(store);
    writer.run(u"BEGIN EXCLUSIVE"_s);
    QElapsedTimer clock;
    clock.start();
    const Outcome outcome = zrvstore({u"backup"_s, in(u"store"_s), m_copy});
    EXPECT_EQ(outcome.exitCode, 2);
    EXPECT_EQ(outcome.err,
              QString(u"zrvstore: "_s + store + u" is busy: another program is writing to it; try again\n"_s));
    EXPECT_GE(clock.elapsed(), 1'000) << "it is waited for";
    EXPECT_FALSE(QFile::exists(m_copy));
    writer.run(u"ROLLBACK"_s);
}

/// A process that deletes and refills a month again and again, in one statement's time each.
class BusyWriter {
public:
    explicit BusyWriter(const QString &store)
        : m_process(::fork())
    {
        if (m_process != 0)
            return;
        Sqlite writer(store);
        writer.run(u"PRAGMA synchronous=OFF; PRAGMA busy_timeout=5000"_s);
        for (int turn = 0;; ++turn)
            writer.run(
                u"BEGIN IMMEDIATE; DELETE FROM ZRVtbHogog WHERE TaxMonth='03';"
                " UPDATE ZRVtbKarkonan SET HomeAddress='"_s
                + QString::number(turn)
                + u"'; COMMIT; BEGIN IMMEDIATE; INSERT INTO ZRVtbHogog(TFN,MelliCode,"
                  "TaxYear,TaxMonth) SELECT TFN,MelliCode,TaxYear,'03' FROM ZRVtbHogog WHERE TaxMonth='01'; COMMIT"_s);
    }
    ~BusyWriter()
    {
        ::kill(m_process, SIGKILL);
        ::waitpid(m_process, nullptr, 0);
    }
    BusyWriter(const BusyWriter &) = delete;
    BusyWriter &operator=(const BusyWriter &) = delete;

private:
    pid_t m_process;
};

TEST_F(BackupTest, ACopyOfAStoreThatIsBeingWrittenIsOfOneMoment)
{
    // Some 4,500 pages, so that the copy takes three shares and is overtaken between them.
    const QString store = sampleStore({.payees = 8'000});
    const QString month = Sqlite(store).value(u"SELECT count(*) FROM ZRVtbHogog WHERE TaxMonth='01'"_s);
    Sqlite(store).run(u"DELETE FROM ZRVtbHogog WHERE TaxMonth='03'; UPDATE ZRVtbKarkonan SET HomeAddress=''"_s);
    const BusyWriter writer(store);
    QSet<QString> moments;
    for (int turn = 0; turn < 6; ++turn) {
        ASSERT_EQ(copied(store, true), u"done"_s);
        Sqlite copy(m_copy);
        const QString rows = copy.value(u"SELECT count(*) FROM ZRVtbHogog WHERE TaxMonth='03'"_s);
        EXPECT_TRUE(rows == u"0"_s || rows == month) << rows.toStdString();
        EXPECT_EQ(copy.value(u"SELECT count(DISTINCT HomeAddress) FROM ZRVtbKarkonan"_s), u"1"_s);
        EXPECT_EQ(copy.value(u"PRAGMA integrity_check"_s), u"ok"_s);
        moments.insert(copy.value(u"SELECT HomeAddress FROM ZRVtbKarkonan LIMIT 1"_s));
    }
    EXPECT_GT(moments.size(), 1) << "the writer wrote meanwhile";
}

TEST_F(BackupTest, AFullDiskLeavesNoHalfACopyAndKeepsTheOldOne)
{
    const QString store = sampleStore({.payees = 100});
    const auto onFullDisk = [&](bool force) {
        const pid_t child = ::fork();
        if (child == 0) {
            ::signal(SIGXFSZ, SIG_IGN);
            const rlimit limit = {50'000, 50'000};
            ::setrlimit(RLIMIT_FSIZE, &limit);
            ::_exit(copied(store, force) == u"done"_s ? 0 : 2);
        }
        int status = 0;
        ::waitpid(child, &status, 0);
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    };
    EXPECT_EQ(onFullDisk(false), 2);
    EXPECT_EQ(filesBeside(), QStringList());
    EXPECT_EQ(copied(store), u"done"_s);
    const QString rows = countOf(m_copy, u"ZRVtbHogog"_s);
    EXPECT_EQ(onFullDisk(true), 2);
    EXPECT_EQ(countOf(m_copy, u"ZRVtbHogog"_s), rows);
    EXPECT_EQ(filesBeside(), QStringList{u"copy.mdb"_s});
}

} // namespace
} // namespace zrv::storetool
