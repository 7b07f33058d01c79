// SPDX-License-Identifier: GPL-3.0-or-later

// A run that fails or is killed leaves the files of the run before it.

#include "tests/failing_disk.h"
#include "tests/files/month_fixture.h"

#include <QDir>

#include <csignal>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace zrv {
namespace {

/// More than the writer holds back, so that some of the file is out when the failure comes.
constexpr int ManyPayees = 1500;

class FailingRun : public MonthTest {
protected:
    /// A good run, whose files the failing one must leave.
    void runBefore()
    {
        rows.addPayees(ManyPayees);
        run();
        ASSERT_EQ(platform.boxes.size(), 1u);
        platform.boxes.clear();
        m_wh = bytes(whPath());
        m_wk = bytes(wkPath());
    }

    void expectErrorBox(qint32 number, const QString &file) const
    {
        ASSERT_EQ(platform.boxes.size(), 1u);
        EXPECT_EQ(platform.boxes[0].style, 0x100000);
        EXPECT_EQ(platform.boxes[0].title, u"اخطار"_s);
        EXPECT_TRUE(platform.boxes[0].text.contains(u"شماره خطا : "_s + QString::number(number) + u"\r"_s));
        EXPECT_TRUE(platform.boxes[0].text.endsWith(file));
        EXPECT_FALSE(screen->PPICWaitingMessage.isVisible());
        EXPECT_EQ(screen->LabelHogogRecordsCount.caption(), u"0"_s);
    }

    void expectFilesOfTheRunBefore() const
    {
        EXPECT_TRUE(bytes(whPath()) == m_wh);
        EXPECT_TRUE(bytes(wkPath()) == m_wk);
    }

    [[nodiscard]] QStringList namesInTheFolder() const
    {
        return QDir(path(u"ERSAL/138902")).entryList(QDir::Files | QDir::Hidden);
    }

    QByteArray m_wh;
    QByteArray m_wk;
    const QStringList m_bothFiles{u"WH138902.TXT"_s, u"WK138902.TXT"_s};
};

TEST_F(FailingRun, FullDiskLeavesTheOldFileAndTheBoxNamesIt)
{
    runBefore();
    {
        const FilesNoLargerThan limit(140'000);
        ASSERT_TRUE(screen->userClick(screen->cmdCreatTextFiles));
    }
    expectErrorBox(61, whPath());
    expectFilesOfTheRunBefore();
    EXPECT_EQ(namesInTheFolder(), m_bothFiles);
}

TEST_F(FailingRun, FullDiskAtTheFirstFileStopsTheRunThere)
{
    runBefore();
    {
        const FilesNoLargerThan limit(10);
        ASSERT_TRUE(screen->userClick(screen->cmdCreatTextFiles));
    }
    expectErrorBox(61, wkPath());
    expectFilesOfTheRunBefore();
    EXPECT_EQ(namesInTheFolder(), m_bothFiles);
}

TEST_F(FailingRun, FolderThatCantBeWrittenLeavesTheOldFilesAndTheBoxNamesIt)
{
    runBefore();
    const auto allow = [](const QString &name, mode_t mode) {
        ASSERT_EQ(chmod(QFile::encodeName(name).constData(), mode), 0);
    };
    // The store and the folders may be reached by another user; the month's folder may not be written by anyone.
    allow(folder.path(), 0777);
    allow(path(u"DBZorvan.mdb"), 0666);
    allow(path(u"ERSAL"), 0755);
    allow(path(u"ERSAL/138902"), 0555);
    {
        const AsOrdinaryUser ordinary;
        ASSERT_TRUE(screen->userClick(screen->cmdCreatTextFiles));
    }
    allow(path(u"ERSAL/138902"), 0755);
    expectErrorBox(70, wkPath());
    expectFilesOfTheRunBefore();
}

TEST_F(FailingRun, FileInThePlaceOfTheErsalFolderIsTheErrorBox)
{
    rows.addPayee();
    open();
    write(path(u"ERSAL"), "a file");
    run();
    expectErrorBox(75, path(u"ERSAL"));
    EXPECT_EQ(bytes(path(u"ERSAL")), "a file");
}

TEST_F(FailingRun, NextRunAfterAFailureWorks)
{
    runBefore();
    {
        const FilesNoLargerThan limit(140'000);
        screen->userClick(screen->cmdCreatTextFiles);
    }
    platform.boxes.clear();
    run();
    ASSERT_EQ(platform.boxes.size(), 1u);
    EXPECT_EQ(platform.boxes[0].title, u" اطلاع  "_s);
    expectFilesOfTheRunBefore();
}

/// Kills the program when the panel's label shows this count.
class KillAt : public FormView {
public:
    KillAt(frmCreatTextFiles &screen, int payees)
        : m_label(screen.LabelWaitingMessage)
        , m_sign(u"( تعداد = "_s + QString::number(payees) + u")"_s)
    {
        screen.setView(this);
    }
    void controlChanged(Control &control, Aspect) override
    {
        if (&control == &m_label && m_label.caption().endsWith(m_sign))
            (void)std::raise(SIGKILL);
    }
    void focusMoved(Control *) override {}
    void captionChanged() override {}
    void closed() override {}

private:
    const Label &m_label;
    QString m_sign;
};

class KilledRun : public FailingRun {
protected:
    /// The run is a child process's, which shares the folder and the store.
    void killRunAt(int payees)
    {
        const pid_t child = fork();
        if (child == 0) {
            const KillAt kill(*screen, payees);
            screen->userClick(screen->cmdCreatTextFiles);
            _exit(0);
        }
        int status = 0;
        ASSERT_EQ(waitpid(child, &status, 0), child);
        EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL);
    }
};

TEST_F(KilledRun, LeavesTheOldFileAndTheNextRunClearsUp)
{
    runBefore();
    killRunAt(1000);
    EXPECT_GT(bytes(whPath() + u".tmp"_s).size(), 100'000);
    expectFilesOfTheRunBefore();

    run();
    EXPECT_EQ(namesInTheFolder(), m_bothFiles);
    expectFilesOfTheRunBefore();
}

} // namespace
} // namespace zrv
