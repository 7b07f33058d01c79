// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/tools/tool_fixture.h"

#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace zrv::storetool {
namespace {

using CreateTest = ToolTest;

TEST_F(CreateTest, MakesTheFolderAndASoundStoreThatOnlyItsOwnerCanRead)
{
    const QString folder = in(u"a/b"_s);
    EXPECT_EQ(zrvstore({u"create"_s, folder}).exitCode, 0);
    EXPECT_EQ(QDir(folder).entryList(QDir::Files | QDir::Hidden), QStringList{u"DBZorvan.mdb"_s});
    struct stat status = {};
    ASSERT_EQ(::stat(QFile::encodeName(storeIn(folder)).constData(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777, 0600u);
    EXPECT_EQ(verified(storeIn(folder)), QStringList{u"findings: 0"_s});
}

TEST_F(CreateTest, TheFirstUserIsASupervisorUnderTheNameThatWasAskedFor)
{
    EXPECT_EQ(zrvstore({u"create"_s, in(u"s"_s), u"--user"_s, u"maryam"_s, u"--password"_s, u"x1"_s}).exitCode, 0);
    EXPECT_EQ(Sqlite(storeIn(in(u"s"_s))).run(u"SELECT UserNamee,Passwordd,Access_Level FROM User_Defination"_s),
              QStringList{u"MARYAM|X1|1"_s});
}

TEST_F(CreateTest, NeverReplacesAStoreNorAnythingElseOfThatName)
{
    create(in(u"s"_s), {});
    const QString path = storeIn(in(u"s"_s));
    Sqlite(path).run(u"DELETE FROM ZRVtbCoding"_s);
    const Outcome outcome = zrvstore({u"create"_s, in(u"s"_s)});
    EXPECT_EQ(outcome.exitCode, 2);
    EXPECT_EQ(outcome.err, QString(u"zrvstore: "_s + path + u" exists and is not replaced\n"_s));
    EXPECT_EQ(zrvstore({u"sample"_s, in(u"s"_s)}).exitCode, 2);
    EXPECT_EQ(Sqlite(path).value(u"SELECT count(*) FROM ZRVtbCoding"_s), u"0"_s);

    QDir().mkpath(in(u"t"_s));
    ASSERT_TRUE(QFile::link(u"nowhere"_s, storeIn(in(u"t"_s))));
    EXPECT_EQ(zrvstore({u"create"_s, in(u"t"_s)}).exitCode, 2) << "a link that leads nowhere is a name, too";
}

TEST_F(CreateTest, AJournalWithoutItsStoreIsNotLeftToSpoilANewOne)
{
    QDir().mkpath(in(u"s"_s));
    QFile journal(storeIn(in(u"s"_s)) + u"-journal"_s);
    ASSERT_TRUE(journal.open(QIODevice::WriteOnly));
    EXPECT_EQ(refusalOf([&] { create(in(u"s"_s), {}); }),
              QString(journal.fileName() + u" is the rest of another file of that name: move it away first"_s));
    EXPECT_FALSE(QFile::exists(storeIn(in(u"s"_s))));
}

TEST_F(CreateTest, AFolderThatCannotBeMadeIsNamed)
{
    QFile file(in(u"file"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    EXPECT_EQ(refusalOf([&] { create(in(u"file/sub"_s), {}); }),
              QString(u"can't make the folder "_s + in(u"file/sub"_s)));
}

TEST_F(CreateTest, ClearsAwayWhatAKilledProcessLeftAndLeavesOthersFilesAlone)
{
    QDir().mkpath(in(u"s"_s));
    const pid_t gone = ::fork();
    if (gone == 0)
        ::_exit(0);
    ASSERT_EQ(::waitpid(gone, nullptr, 0), gone);
    const QString store = storeIn(in(u"s"_s));
    const QStringList names = {store + u".new"_s + QString::number(gone),
                               store + u".new"_s + QString::number(::getppid()), store + u".newer"_s,
                               store + u".new12x"_s};
    for (const QString &name : names) {
        QFile file(name);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    }
    create(in(u"s"_s), {});
    EXPECT_FALSE(QFile::exists(names[0]));
    EXPECT_TRUE(QFile::exists(names[1])) << "its process is still building";
    EXPECT_TRUE(QFile::exists(names[2]));
    EXPECT_TRUE(QFile::exists(names[3]));
}

/// Runs an action in a process that can't write a file beyond so many bytes, as on a full disk; its answer.
int withFilesUpTo(rlim_t bytes, const std::function<void()> &action)
{
    const pid_t child = ::fork();
    if (child == 0) {
        ::signal(SIGXFSZ, SIG_IGN);
        const rlimit limit = {bytes, bytes};
        ::setrlimit(RLIMIT_FSIZE, &limit);
        const QString refusal = refusalOf(action);
        ::_exit(refusal == u"done"_s ? 0 : 2);
    }
    int status = 0;
    EXPECT_EQ(::waitpid(child, &status, 0), child);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

TEST_F(CreateTest, AFullDiskLeavesNoHalfMadeStoreAndNoRubbish)
{
    for (const rlim_t bytes : {rlim_t(0), rlim_t(4'096), rlim_t(30'000), rlim_t(70'000)}) {
        EXPECT_EQ(withFilesUpTo(bytes, [&] { create(in(u"s"_s), {}); }), 2) << bytes;
        EXPECT_EQ(QDir(in(u"s"_s)).entryList(QDir::Files | QDir::Hidden), QStringList()) << bytes;
        EXPECT_EQ(withFilesUpTo(bytes, [&] { createSample(in(u"s"_s), {}); }), 2) << bytes;
        EXPECT_EQ(QDir(in(u"s"_s)).entryList(QDir::Files | QDir::Hidden), QStringList()) << bytes;
    }
    EXPECT_EQ(withFilesUpTo(1'000'000, [&] { create(in(u"s"_s), {}); }), 0);
}

} // namespace
} // namespace zrv::storetool
