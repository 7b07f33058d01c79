// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/store/store_backups.h"
#include "core/store/store_lock.h"
#include "tests/tools/tool_fixture.h"
#include "tools/zrvstore/restore.h"

#include <csignal>
#include <sys/resource.h>

namespace zrv::storetool {
namespace {

const QString Name = u"DBZorvan-13890303-103000.mdb"_s;

class RestoreTest : public ToolTest {
protected:
    RestoreTest()
    {
        backUpStore(store, u"13890303-103000"_s);
        Sqlite(store).run(u"DELETE FROM ZRVtbHogog"_s);
    }

    QString restored(const QString &copy)
    {
        return refusalOf([&] { restore(in(u"store"_s), copy, [this](const QString &line) { told.append(line); }); });
    }
    [[nodiscard]] QString salaryRows(const QString &path) const
    {
        return Sqlite(path).value(u"SELECT count(*) FROM ZRVtbHogog"_s);
    }
    [[nodiscard]] QString copyPath(const QString &name) const { return backupFolder(store) + u'/' + name; }
    [[nodiscard]] static QByteArray bytesOf(const QString &path)
    {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }
    static void write(const QString &path, qint64 offset, const QByteArray &bytes)
    {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::ReadWrite));
        ASSERT_TRUE(file.seek(offset));
        file.write(bytes);
    }
    void damage(const QString &path) const { write(path, 4096, QByteArray(8192, '\xA5')); }

    const QString store = sampleStore();
    const QString rows = salaryRows(store);
    QStringList told;
};

TEST_F(RestoreTest, ACopyTakesThePlaceOfTheStoreWhichIsKept)
{
    const QByteArray copy = bytesOf(copyPath(Name));
    EXPECT_EQ(restored(Name), u"done"_s);
    EXPECT_EQ(salaryRows(store), rows);
    EXPECT_EQ(bytesOf(copyPath(Name)), copy);
    const QStringList names = backupNames(store);
    ASSERT_EQ(names.size(), 2);
    EXPECT_EQ(salaryRows(copyPath(names.first())), u"0"_s) << "the store as it was";
    EXPECT_EQ(told.size(), 2);
}

TEST_F(RestoreTest, AnyFileCanBeNamedByItsPath)
{
    ASSERT_TRUE(QFile::copy(copyPath(Name), in(u"elsewhere.mdb"_s)));
    EXPECT_EQ(restored(in(u"elsewhere.mdb"_s)), u"done"_s);
    EXPECT_EQ(salaryRows(store), rows);
}

TEST_F(RestoreTest, ADamagedCopyOrAnotherFileIsRefusedAndTheStoreStays)
{
    const QByteArray before = bytesOf(store);
    damage(copyPath(Name));
    EXPECT_TRUE(restored(Name).contains(u"is damaged"_s)) << restored(Name).toStdString();
    write(in(u"letter.txt"_s), 0, "Dear Sir");
    EXPECT_TRUE(restored(in(u"letter.txt"_s)).contains(u"is not a store"_s));
    EXPECT_TRUE(restored(u"nothing.mdb"_s).contains(u"there is no copy"_s));
    Sqlite(in(u"letter.txt"_s)); // only looks
    EXPECT_EQ(bytesOf(store), before);
    EXPECT_EQ(QDir(in(u"store"_s)).entryList(QDir::Files | QDir::Hidden), QStringList{u"DBZorvan.mdb"_s});
}

TEST_F(RestoreTest, ADatabaseWithoutTheTablesOfAStoreIsRefused)
{
    write(in(u"other.mdb"_s), 0, {});
    Sqlite(in(u"other.mdb"_s)).run(u"CREATE TABLE t(a)"_s);
    EXPECT_NE(restored(in(u"other.mdb"_s)), u"done"_s);
    EXPECT_EQ(salaryRows(store), u"0"_s);
}

TEST_F(RestoreTest, ADamagedStoreIsKeptAsItIsWithItsJournal)
{
    damage(store);
    write(store + u"-journal"_s, 0, "half done");
    const QByteArray before = bytesOf(store);
    EXPECT_EQ(restored(Name), u"done"_s);
    EXPECT_EQ(salaryRows(store), rows);
    EXPECT_FALSE(QFile::exists(store + u"-journal"_s));
    const QStringList kept = QDir(backupFolder(store)).entryList({u"Damaged-*.mdb"_s});
    ASSERT_EQ(kept.size(), 1);
    EXPECT_EQ(bytesOf(copyPath(kept.first())), before);
}

TEST_F(RestoreTest, AStoreThatIsGoneIsPutBack)
{
    ASSERT_TRUE(QFile::remove(store));
    EXPECT_EQ(restored(Name), u"done"_s);
    EXPECT_EQ(salaryRows(store), rows);
}

TEST_F(RestoreTest, WhileTheProgramRunsNothingIsPutInThePlaceOfItsStore)
{
    const StoreLock lock(store);
    EXPECT_TRUE(restored(Name).contains(u"end it first"_s));
    EXPECT_EQ(salaryRows(store), u"0"_s);
}

TEST_F(RestoreTest, AFullDiskLeavesTheStoreAndNoHalfMadeFile)
{
    const QByteArray before = bytesOf(store);
    rlimit whole = {};
    getrlimit(RLIMIT_FSIZE, &whole);
    const rlimit little = {16'384, whole.rlim_max};
    const auto former = std::signal(SIGXFSZ, SIG_IGN);
    setrlimit(RLIMIT_FSIZE, &little);
    const QString refusal = restored(Name);
    setrlimit(RLIMIT_FSIZE, &whole);
    (void)std::signal(SIGXFSZ, former);
    EXPECT_TRUE(refusal.contains(u"can't copy"_s)) << refusal.toStdString();
    EXPECT_EQ(bytesOf(store), before);
    EXPECT_EQ(QDir(in(u"store"_s)).entryList(QDir::Files | QDir::Hidden), QStringList{u"DBZorvan.mdb"_s});
}

TEST_F(RestoreTest, TheListTellsWhatEachCopyHoldsAndWhichIsDamaged)
{
    backUpStore(store, u"13890304-103000"_s);
    damage(copyPath(Name));
    EXPECT_EQ(listCopies(in(u"store"_s), [this](const QString &line) { told.append(line); }), 1);
    ASSERT_EQ(told.size(), 2);
    EXPECT_TRUE(told[0].startsWith(u"DBZorvan-13890304-103000.mdb  "_s));
    EXPECT_TRUE(told[0].endsWith(u" bytes  12 payees, 0 salary rows"_s)) << told[0].toStdString();
    EXPECT_TRUE(told[1].startsWith(Name));
    EXPECT_TRUE(told[1].endsWith(u" bytes  damaged"_s));
}

TEST_F(RestoreTest, TheProgramListsAndRestores)
{
    const Outcome list = zrvstore({u"list"_s, in(u"store"_s)});
    EXPECT_EQ(list.exitCode, 0);
    EXPECT_TRUE(list.out.startsWith(Name));
    EXPECT_TRUE(list.out.contains(u" salary rows, the last of 1389/03"_s)) << list.out.toStdString();
    EXPECT_EQ(zrvstore({u"restore"_s, in(u"store"_s), Name}).exitCode, 0);
    EXPECT_EQ(salaryRows(store), rows);
    EXPECT_EQ(zrvstore({u"restore"_s, in(u"store"_s), u"nothing.mdb"_s}).exitCode, 2);
}

} // namespace
} // namespace zrv::storetool
