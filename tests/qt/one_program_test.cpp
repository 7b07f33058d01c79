// SPDX-License-Identifier: GPL-3.0-or-later
// One program works on a store at a time; who comes later, or after a crash.
#include "core/platform/tool_process.h"
#include "core/store/new_store.h"
#include "core/store/store_backups.h"
#include "core/store/store_lock.h"
#include "qt/first_window.h"
#include "qt/start.h"
#include "tests/core/screens/quiet_platform.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QProcessEnvironment>
#include <QSysInfo>
#include <QTemporaryDir>
#include <QTest>
#include <QWidget>

#include <gtest/gtest.h>
#include <thread>

namespace zrv {
namespace {

using namespace Qt::Literals::StringLiterals;

class OneProgram : public testing::Test {
protected:
    [[nodiscard]] QString store() const { return m_folder.filePath(u"DBZorvan.mdb"_s); }
    [[nodiscard]] QString lockFile() const { return store() + u".lock"_s; }

    void leaveLockOf(const QString &machine, qint64 process) const
    {
        QFile file(lockFile());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(QByteArray::number(process) + "\nZRVClient\n" + machine.toUtf8() + "\n");
    }

    /// The program, with its folder the one of the store.
    void putProgramThere() const
    {
        createStore(store());
        ASSERT_TRUE(QFile::copy(QStringLiteral(ZRVCLIENT), m_folder.filePath(u"ZRVClient"_s)));
    }

    void start(QProcess &program) const
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"QT_QPA_PLATFORM"_s, u"offscreen"_s);
        environment.insert(u"XDG_CONFIG_HOME"_s, m_folder.path());
        program.setProcessEnvironment(environment);
        program.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        program.start(m_folder.filePath(u"ZRVClient"_s), {});
        ASSERT_TRUE(program.waitForStarted());
    }

    [[nodiscard]] bool comesToHoldTheLock(const QProcess &program) const
    {
        return QTest::qWaitFor(
            [&] {
                QFile file(lockFile());
                return file.open(QIODevice::ReadOnly) && file.readLine().trimmed().toLongLong() == program.processId()
                       && FirstWindow::comesToTheFront(store());
            },
            30'000);
    }

    QTemporaryDir m_folder;
};

TEST_F(OneProgram, TheLockIsHeldAsLongAsItLives)
{
    {
        const StoreLock first(store());
        EXPECT_EQ(first.state(), StoreLock::State::Held);
        const StoreLock second(store());
        EXPECT_EQ(second.state(), StoreLock::State::HeldHere);
        EXPECT_EQ(second.process(), QCoreApplication::applicationPid());
    }
    EXPECT_EQ(StoreLock(store()).state(), StoreLock::State::Held);
    EXPECT_FALSE(QFile::exists(lockFile()));
}

TEST_F(OneProgram, TheLockOfAProgramThatIsGoneKeepsNobodyOut)
{
    QProcess gone;
    gone.start(u"true"_s, {});
    ASSERT_TRUE(gone.waitForStarted());
    const qint64 process = gone.processId();
    ASSERT_TRUE(gone.waitForFinished());
    leaveLockOf(QSysInfo::machineHostName(), process);
    EXPECT_EQ(StoreLock(store()).state(), StoreLock::State::Held);
}

TEST_F(OneProgram, TheLockOfAnotherMachineIsTakenOnlyWhenToldTo)
{
    leaveLockOf(u"accounts-2"_s, 4711);
    StoreLock lock(store());
    ASSERT_EQ(lock.state(), StoreLock::State::HeldAfar);
    EXPECT_EQ(lock.machine(), u"accounts-2"_s);
    EXPECT_EQ(lock.process(), 4711);
    lock.takeOver();
    EXPECT_EQ(lock.state(), StoreLock::State::Held);
}

TEST_F(OneProgram, AFolderThatTakesNoLockFileKeepsNobodyOut)
{
    EXPECT_EQ(StoreLock(m_folder.filePath(u"missing/DBZorvan.mdb"_s)).state(), StoreLock::State::Impossible);
}

/// Keeps what it is told and asked; each question is answered with No. The tool is the real one.
class Told : public QuietPlatform {
public:
    explicit Told(QString folder)
        : m_folder(std::move(folder))
    {
    }
    Answer messageBox(int, const QString &, const QString &text) override
    {
        texts.append(text);
        return Answer::No;
    }
    QString programFolder() override { return m_folder; }
    ToolEnd runTool(const QString &tool, const QStringList &words) override
    {
        return runToolIn(QFileInfo(QStringLiteral(ZRVCLIENT)).path(), tool, words);
    }

    QStringList texts;

private:
    QString m_folder;
};

TEST_F(OneProgram, TheUserSaysWhetherAnotherMachineIsDoneWithTheStore)
{
    leaveLockOf(u"accounts-2"_s, 4711);
    StoreLock lock(store());
    Told platform(m_folder.path());
    EXPECT_FALSE(mayRun(platform, store(), lock));
    ASSERT_EQ(platform.texts.size(), 1);
    EXPECT_TRUE(platform.texts.first().contains(u"accounts-2"_s));
    EXPECT_TRUE(QFile::exists(lockFile()));
}

TEST_F(OneProgram, WhereTheFirstDoesNotAnswerItIsSaidWhereItRuns)
{
    const StoreLock first(store());
    StoreLock second(store());
    Told platform(m_folder.path());
    EXPECT_FALSE(mayRun(platform, store(), second));
    ASSERT_EQ(platform.texts.size(), 1);
    EXPECT_TRUE(platform.texts.first().contains(QString::number(QCoreApplication::applicationPid())));
}

TEST_F(OneProgram, TheFirstStartMakesTheFolderWithAnEmptyStoreAndALaterOneDoesNot)
{
    Told platform(m_folder.filePath(u"share/ZRVClient"_s));
    EXPECT_TRUE(isFirstStart(platform, true));
    EXPECT_TRUE(makeFirstStore(platform));
    EXPECT_EQ(platform.texts, QStringList());
    tellOfFirstStore(platform);
    EXPECT_EQ(platform.texts.size(), 1);
    EXPECT_TRUE(platform.texts.value(0).contains(platform.programFolder()));
    ASSERT_TRUE(QFile::remove(m_folder.filePath(u"share/ZRVClient/DBZorvan.mdb"_s))) << "it was made";
    EXPECT_FALSE(isFirstStart(platform, true));
    EXPECT_FALSE(QFile::exists(m_folder.filePath(u"share/ZRVClient/DBZorvan.mdb"_s)));
}

TEST_F(OneProgram, OnlyInAPortableFolderTheStoreIsMadeBesideTheProgram)
{
    Told platform(m_folder.path());
    EXPECT_FALSE(isFirstStart(platform, false)) << "any other folder without a store has lost it";
    ASSERT_TRUE(QFile(m_folder.filePath(PortableSign)).open(QIODevice::WriteOnly));
    EXPECT_TRUE(isFirstStart(platform, false));
    EXPECT_TRUE(makeFirstStore(platform));
    EXPECT_TRUE(QFile::exists(store()));
    EXPECT_FALSE(isFirstStart(platform, false));
}

TEST_F(OneProgram, APortableFolderWithCopiesHasLostItsStore)
{
    ASSERT_TRUE(QFile(m_folder.filePath(PortableSign)).open(QIODevice::WriteOnly));
    ASSERT_TRUE(QDir().mkpath(backupFolder(store())));
    Told platform(m_folder.path());
    EXPECT_FALSE(isFirstStart(platform, false));
}

TEST_F(OneProgram, AStoreThatAnotherFirstStartHasMadeMeanwhileIsTaken)
{
    createStore(store());
    Told platform(m_folder.path());
    EXPECT_TRUE(makeFirstStore(platform));
    EXPECT_EQ(platform.texts, QStringList());
}

TEST_F(OneProgram, AStoreThatCannotBeMadeIsTold)
{
    QFile file(m_folder.filePath(u"share"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    Told platform(m_folder.filePath(u"share/ZRVClient"_s));
    EXPECT_FALSE(makeFirstStore(platform));
    EXPECT_EQ(platform.texts.size(), 1);
}

TEST_F(OneProgram, TheFirstIsAskedToComeToTheFront)
{
    EXPECT_FALSE(FirstWindow::comesToTheFront(store()));
    int raised = 0;
    const FirstWindow first(store(), [&] { ++raised; });
    bool answered = false;
    std::thread second([&] { answered = FirstWindow::comesToTheFront(store()); });
    EXPECT_TRUE(QTest::qWaitFor([&] { return raised == 1; }));
    second.join();
    EXPECT_TRUE(answered);
}

TEST_F(OneProgram, AFirstThatDoesNotListenYetIsWaitedFor)
{
    bool answered = false;
    std::thread second([&] { answered = FirstWindow::comesToTheFront(store()); });
    QTest::qWait(200);
    int raised = 0;
    const FirstWindow first(store(), [&] { ++raised; });
    EXPECT_TRUE(QTest::qWaitFor([&] { return raised == 1; }));
    second.join();
    EXPECT_TRUE(answered);
}

TEST_F(OneProgram, AWindowThatWasPutAsideComesBack)
{
    QWidget window;
    window.showMinimized();
    raiseWindows();
    EXPECT_FALSE(window.isMinimized());
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
}

TEST_F(OneProgram, ASecondStartEndsAndTheFirstGoesOn)
{
    putProgramThere();
    QProcess first;
    start(first);
    ASSERT_TRUE(comesToHoldTheLock(first));
    QProcess second;
    start(second);
    ASSERT_TRUE(second.waitForFinished(30'000));
    EXPECT_EQ(second.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(first.state(), QProcess::Running);
    first.kill();
    ASSERT_TRUE(first.waitForFinished());
}

TEST_F(OneProgram, WhoMadeTheStoreTellsHowToGetInEvenIfAnotherWasQuickerToOpenIt)
{
    putProgramThere();
    ASSERT_TRUE(QFile::remove(store()));
    ASSERT_TRUE(
        QFile::copy(QFileInfo(QStringLiteral(ZRVCLIENT)).path() + u"/zrvstore"_s, m_folder.filePath(u"zrvstore"_s)));
    QFile sign(m_folder.filePath(PortableSign));
    ASSERT_TRUE(sign.open(QIODevice::WriteOnly));
    sign.close();
    const StoreLock quicker(store());
    int raised = 0;
    const FirstWindow itsWindow(store(), [&] { ++raised; });
    QProcess maker;
    start(maker);
    ASSERT_TRUE(QTest::qWaitFor([&] { return raised == 1; }, 30'000));
    EXPECT_TRUE(QFile::exists(store()));
    EXPECT_FALSE(QTest::qWaitFor([&] { return maker.state() == QProcess::NotRunning; }, 1'000)) << "its box waits";
    maker.kill();
    maker.waitForFinished();
}

TEST_F(OneProgram, AKillWhileTheLockIsHeldKeepsNobodyOut)
{
    putProgramThere();
    QProcess first;
    start(first);
    ASSERT_TRUE(comesToHoldTheLock(first));
    first.kill();
    ASSERT_TRUE(first.waitForFinished());
    QProcess second;
    start(second);
    EXPECT_TRUE(comesToHoldTheLock(second));
    second.kill();
    ASSERT_TRUE(second.waitForFinished());
}

} // namespace
} // namespace zrv
