// SPDX-License-Identifier: GPL-3.0-or-later

// Branches on the disk: what is in them, what is left alone, and that nothing half made is ever taken for one.

#include "core/basic/run_time_error.h"
#include "tests/failing_disk.h"
#include "tests/upkeep/upkeep_fixture.h"
#include "upkeep/branch.h"
#include "upkeep/frmMakeShobe.h"

#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

namespace zrv {
namespace {

class BranchTest : public UpkeepTest {
protected:
    void SetUp() override
    {
        makeSample({});
        QFile file(path(u"ZRVClient"_s));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(QByteArray(ProgramSize, 'p'));
        file.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
        ASSERT_TRUE(QDir(folder.path()).mkdir(u"Desktop"_s));
    }

    /// Asks for so many more, as a user does; the boxes stay to be looked at.
    void ask(int needed)
    {
        platform.boxes.clear();
        screen = std::make_unique<frmMakeShobe>(program);
        screen->load();
        screen->activate();
        screen->txtNeededShoeb.setText(QString::number(needed));
        ASSERT_TRUE(screen->userClick(screen->cmdUpgrades));
    }

    [[nodiscard]] QStringList folders() const
    {
        return QDir(folder.path()).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
    }
    [[nodiscard]] QStringList shortcuts() const { return QDir(path(u"Desktop"_s)).entryList(QDir::Files, QDir::Name); }

    static constexpr int ProgramSize = 30'000;
    std::unique_ptr<frmMakeShobe> screen;
};

TEST_F(BranchTest, BranchHasTheProgramAndTheStoreWithBaseDataAndUsersAlone)
{
    ask(1);
    EXPECT_EQ(folders(), (QStringList{u"2"_s, u"Desktop"_s}));
    EXPECT_EQ(QDir(path(u"2"_s)).entryList(QDir::Files, QDir::Name), (QStringList{u"DBZorvan.mdb"_s, u"ZRVClient"_s}));
    EXPECT_EQ(QFile(path(u"2/ZRVClient"_s)).size(), ProgramSize);
    EXPECT_TRUE(QFile(path(u"2/ZRVClient"_s)).permissions() & QFileDevice::ExeOwner);
    for (const char16_t *table : {u"ZRVtbKarfarma", u"ZRVtbKarkonan", u"ZRVtbHogog", u"ZRVtbKholList"})
        EXPECT_EQ(rowsOf(connectionTo(path(u"2"_s)), u"SELECT * FROM "_s + QString::fromUtf16(table)), QStringList());
    for (const char16_t *table : {u"ZRVtbCoding", u"User_Defination"})
        EXPECT_EQ(rowsOf(connectionTo(path(u"2"_s)), u"SELECT * FROM "_s + QString::fromUtf16(table)),
                  rows(u"SELECT * FROM "_s + QString::fromUtf16(table)));
    EXPECT_FALSE(rows(u"SELECT * FROM ZRVtbHogog"_s).isEmpty());
    EXPECT_EQ(platform.settings.value(u"ShobeCount/ShobeCountKey"_s), u"2"_s);
}

TEST_F(BranchTest, NothingOfThePayeesIsLeftInTheBranchsFile)
{
    ASSERT_TRUE(QFile::remove(path(u"DBZorvan.mdb"_s)));
    makeSample({u"--payees"_s, u"300"_s});
    const QString family = u"نام خانوادگي بي همتا"_s;
    sql(u"UPDATE ZRVtbKarkonan Set Family = '"_s + family + u"'"_s);
    const auto bytesOf = [&](const QString &store) {
        QFile file(path(store));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    };
    ask(1);
    EXPECT_TRUE(bytesOf(u"DBZorvan.mdb"_s).contains(family.toUtf8()));
    EXPECT_FALSE(bytesOf(u"2/DBZorvan.mdb"_s).contains(family.toUtf8()));
    EXPECT_LT(QFile(path(u"2/DBZorvan.mdb"_s)).size(), QFile(path(u"DBZorvan.mdb"_s)).size());
}

TEST_F(BranchTest, FolderOfTheRangeIsTakenForABranchWhateverItHolds)
{
    ASSERT_TRUE(QDir(folder.path()).mkdir(u"2"_s));
    ask(2);
    EXPECT_TRUE(QDir(path(u"2"_s)).isEmpty());
    EXPECT_TRUE(QFile::exists(path(u"3/DBZorvan.mdb"_s)));
    EXPECT_EQ(shortcuts().size(), 1);
}

TEST_F(BranchTest, BranchThatWasDeletedByHandIsMadeAgainAndTheOthersAreLeftAlone)
{
    ask(2);
    ASSERT_TRUE(QDir(path(u"2"_s)).removeRecursively());
    ASSERT_TRUE(QFile::remove(path(u"3/ZRVClient"_s)));
    ask(1);
    EXPECT_TRUE(QFile::exists(path(u"2/DBZorvan.mdb"_s)));
    EXPECT_FALSE(QFile::exists(path(u"3/ZRVClient"_s)));
    EXPECT_TRUE(QFile::exists(path(u"4/DBZorvan.mdb"_s)));
}

TEST_F(BranchTest, CountIsReadFromTheUsersSettingAndNotFromTheFolders)
{
    platform.settings[u"ShobeCount/ShobeCountKey"_s] = u"3"_s;
    ask(1);
    EXPECT_EQ(folders(), (QStringList{u"2"_s, u"3"_s, u"4"_s, u"Desktop"_s}));
    EXPECT_TRUE(platform.boxes[0].text.startsWith(u"از شعبه شماره : 4 تا شعبه شماره : 4 ايجاد گرديد."_s));
}

TEST_F(BranchTest, DiskThatFillsUpLeavesNothingThatTheNextRunTakesForABranch)
{
    platform.settings[u"ShobeCount/ShobeCountKey"_s] = u"1"_s;
    ASSERT_GT(QFile(path(u"DBZorvan.mdb"_s)).size(), 2 * ProgramSize);
    // The first is too small for the program, the second for the store, the third for what its compaction writes down.
    const auto size = int(QFile(path(u"DBZorvan.mdb"_s)).size());
    for (const int largest : {ProgramSize / 2, 2 * ProgramSize, size}) {
        {
            const FilesNoLargerThan limit(static_cast<rlim_t>(largest));
            ask(2);
        }
        ASSERT_EQ(platform.boxes.size(), 1u);
        EXPECT_EQ(platform.boxes[0].style, 0x100000);
        EXPECT_EQ(folders(), QStringList{u"Desktop"_s});
        EXPECT_EQ(platform.settings.value(u"ShobeCount/ShobeCountKey"_s), u"1"_s);
        EXPECT_FALSE(screen->PPICWaitingMessage.isVisible());
        EXPECT_TRUE(screen->isOpen());
    }
    ask(2);
    EXPECT_EQ(folders(), (QStringList{u"2"_s, u"3"_s, u"Desktop"_s}));
}

TEST_F(BranchTest, MissingProgramOrDesktopIsToldAndLeavesNoFolder)
{
    ASSERT_TRUE(QFile::rename(path(u"ZRVClient"_s), path(u"elsewhere"_s)));
    ask(1);
    EXPECT_TRUE(platform.boxes[0].text.contains(u"شماره خطا : 53\r"_s));
    EXPECT_EQ(folders(), QStringList{u"Desktop"_s});
    ASSERT_TRUE(QFile::rename(path(u"elsewhere"_s), path(u"ZRVClient"_s)));
    ASSERT_TRUE(QDir(folder.path()).rmdir(u"Desktop"_s));
    ask(1);
    EXPECT_TRUE(platform.boxes[0].text.contains(u"شماره خطا : 75\r"_s));
    EXPECT_EQ(folders(), QStringList());
}

TEST_F(BranchTest, FileOfTheBranchsNameIsToldAndKept)
{
    ASSERT_TRUE(QFile::copy(path(u"ZRVClient"_s), path(u"2"_s)));
    ask(1);
    EXPECT_TRUE(platform.boxes[0].text.contains(u"شماره خطا : 75\r"_s));
    EXPECT_EQ(QFile(path(u"2"_s)).size(), ProgramSize);
    EXPECT_EQ(folders(), QStringList{u"Desktop"_s});
    EXPECT_EQ(shortcuts(), QStringList());
}

TEST_F(BranchTest, KillInTheMiddleLeavesNoBranchAndTheNextRunClearsUp)
{
    for (int action = 1; action <= 5; ++action) {
        SCOPED_TRACE(action);
        const pid_t child = fork();
        if (child == 0) {
            int seen = 0;
            platform.onYield = [&] {
                if (++seen == action)
                    (void)std::raise(SIGKILL);
            };
            makeBranch(platform, 2);
            _exit(0);
        }
        int status = 0;
        ASSERT_EQ(waitpid(child, &status, 0), child);
        ASSERT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL);
        EXPECT_EQ(folders(), (QStringList{u"2.new"_s, u"Desktop"_s}));
    }
    ask(1);
    EXPECT_EQ(folders(), (QStringList{u"2"_s, u"Desktop"_s}));
    EXPECT_EQ(shortcuts(), QStringList{u"ماليات حقوق شعبه 2.desktop"_s});
}

TEST_F(BranchTest, TotalOf32767IsStillHeld)
{
    platform.settings[u"ShobeCount/ShobeCountKey"_s] = u"32766"_s;
    // The first folder can't be made: the run is past the overflow by then.
    ASSERT_TRUE(QFile::rename(path(u"ZRVClient"_s), path(u"elsewhere"_s)));
    ask(1);
    EXPECT_TRUE(platform.boxes[0].text.contains(u"شماره خطا : 53\r"_s));
    ask(2);
    EXPECT_TRUE(platform.boxes[0].text.contains(u"شماره خطا : 6\r"_s));
}

} // namespace
} // namespace zrv
