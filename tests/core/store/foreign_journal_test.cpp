// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/store/soundness.h"
#include "core/store/store_copy.h"
#include "tests/core/store/store_fixture.h"

#include <QFile>

#include <csignal>
#include <sqlite3.h>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

namespace zrv {
namespace {

class ForeignJournal : public StoreTest {
protected:
    ForeignJournal()
    {
        addPayees(0, 3000, "first");
        copyStore(path(), copy());
        execute(u"UPDATE ZRVtbKarkonan SET Family='second'"_s);
        execute(u"DELETE FROM ZRVtbKarkonan WHERE val(MelliCode) >= 2500"_s);
    }

    [[nodiscard]] QString copy() const { return m_folder.filePath(u"copy.mdb"_s); }
    [[nodiscard]] QString journal() const { return path() + u"-journal"_s; }
    [[nodiscard]] QString aside() const { return journal() + u".foreign"_s; }

    void addPayees(int from, int to, const char *family) const
    {
        const std::string statement = "WITH RECURSIVE n(i) AS (SELECT " + std::to_string(from)
                                      + " UNION ALL SELECT i+1 FROM n WHERE i+1<" + std::to_string(to)
                                      + ") INSERT INTO ZRVtbKarkonan (TFN,MelliCode,Family) SELECT '1',i,'" + family
                                      + "' FROM n";
        sqlite3 *database = nullptr;
        sqlite3_open(QFile::encodeName(path()).constData(), &database);
        EXPECT_EQ(sqlite3_exec(database, statement.c_str(), nullptr, nullptr, nullptr), SQLITE_OK);
        sqlite3_close(database);
    }

    /// A program that is killed when half of its statements' work is in the file already.
    void beKilledInside(const char *statements)
    {
        const pid_t child = ::fork();
        if (child == 0) {
            sqlite3 *database = nullptr;
            sqlite3_open(QFile::encodeName(path()).constData(), &database);
            // With room for one page, changed ones go into the file at once.
            sqlite3_exec(database, "PRAGMA cache_size=1; BEGIN", nullptr, nullptr, nullptr);
            if (sqlite3_exec(database, statements, nullptr, nullptr, nullptr) == SQLITE_OK)
                (void)std::raise(SIGKILL);
            ::_exit(1);
        }
        int status = 0;
        ASSERT_EQ(::waitpid(child, &status, 0), child);
        ASSERT_TRUE(WIFSIGNALED(status));
        ASSERT_TRUE(QFile::exists(journal()));
    }

    void putTheCopyBackByHand()
    {
        ASSERT_TRUE(QFile::remove(path()));
        ASSERT_TRUE(QFile::copy(copy(), path()));
    }

    void expectTheCopy()
    {
        EXPECT_EQ(rows(u"SELECT DISTINCT Family FROM ZRVtbKarkonan"_s), QStringList{u"first"_s});
        EXPECT_EQ(value(u"SELECT count(*) FROM ZRVtbKarkonan"_s).toText(), u"3000"_s);
        EXPECT_EQ(soundnessOf(path()), Soundness::Sound);
        EXPECT_FALSE(QFile::exists(journal()));
        EXPECT_TRUE(QFile::exists(aside()));
    }

    static constexpr const char *Spilt = "UPDATE ZRVtbKarkonan SET Family='third', Name='a longer name'";
    /// The first page is among those that changed.
    static constexpr const char *WithFirstPage =
        "PRAGMA user_version=7; UPDATE ZRVtbKarkonan SET Family='third', Name='a longer name'";
};

TEST_F(ForeignJournal, TheStoresOwnIsUndone)
{
    for (const char *statements : {Spilt, WithFirstPage}) {
        beKilledInside(statements);
        EXPECT_EQ(rows(u"SELECT DISTINCT Family FROM ZRVtbKarkonan"_s), QStringList{u"second"_s});
        EXPECT_EQ(value(u"SELECT count(*) FROM ZRVtbKarkonan"_s).toText(), u"2500"_s);
        EXPECT_EQ(soundnessOf(path()), Soundness::Sound);
        EXPECT_FALSE(QFile::exists(journal()));
        EXPECT_FALSE(QFile::exists(aside()));
    }
}

TEST_F(ForeignJournal, ThatOfAStoreInWhosePlaceACopyWasPutTouchesTheCopyInNothing)
{
    beKilledInside(WithFirstPage);
    putTheCopyBackByHand();
    expectTheCopy();
}

TEST_F(ForeignJournal, WhoeverOpensFirstSetsItAside)
{
    beKilledInside(WithFirstPage);
    putTheCopyBackByHand();
    EXPECT_EQ(soundnessOf(path()), Soundness::Sound);
    expectTheCopy();
}

TEST_F(ForeignJournal, WithoutTheFirstPageTheNumberOfPagesTells)
{
    // The store grew since the copy was made.
    addPayees(3000, 6000, "second");
    beKilledInside(Spilt);
    putTheCopyBackByHand();
    expectTheCopy();
}

TEST_F(ForeignJournal, AJournalThatNobodyWouldUndoAnythingFromStays)
{
    QFile file(journal());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(QByteArray(600, '\0'));
    file.close();
    EXPECT_EQ(value(u"SELECT count(*) FROM ZRVtbKarkonan"_s).toText(), u"2500"_s);
    EXPECT_FALSE(QFile::exists(aside()));
}

} // namespace
} // namespace zrv
