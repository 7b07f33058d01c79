// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/basic/run_time_error.h"
#include "core/public/files.h"
#include "core/public/shortcut.h"
#include "tests/print_text.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#ifdef Q_OS_UNIX
#include <csignal>
#include <sys/resource.h>
#include <unistd.h>
#endif

namespace zrv {
namespace {

using namespace Qt::Literals::StringLiterals;

class Files : public testing::Test {
protected:
    [[nodiscard]] QString path(QStringView name) const { return m_folder.path() + u'/' + name; }

    void write(QStringView name, const QByteArray &bytes) const
    {
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(bytes), bytes.size());
    }

    [[nodiscard]] QByteArray read(QStringView name) const
    {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(missing)");
    }

    [[nodiscard]] QStringList names() const
    {
        return QDir(m_folder.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }

    QTemporaryDir m_folder;
};

/// The error that EnsureFolder() raises; its number is 0 when it raises none.
RunTimeError ensureFolderError(const QString &path)
{
    try {
        EnsureFolder(path);
    } catch (const RunTimeError &error) {
        return error;
    }
    return {0, {}};
}

using FolderExistsTest = Files;

TEST_F(FolderExistsTest, IsTrueForAFolderAlone)
{
    write(u"file", "x");
    EXPECT_TRUE(FolderExists(m_folder.path()));
    EXPECT_FALSE(FolderExists(path(u"file")));
    EXPECT_FALSE(FolderExists(path(u"none")));
    EXPECT_FALSE(FolderExists(QString()));
}

using EnsureFolderTest = Files;

TEST_F(EnsureFolderTest, MakesAMissingFolderAndLeavesOneThatIsThere)
{
    EnsureFolder(path(u"138903"));
    EXPECT_TRUE(FolderExists(path(u"138903")));
    write(u"138903/WH", "x");
    EnsureFolder(path(u"138903"));
    EXPECT_EQ(read(u"138903/WH"), "x");
}

TEST_F(EnsureFolderTest, MakesAFolderWithAPersianName)
{
    EnsureFolder(path(u"شعبه"));
    EXPECT_EQ(names(), QStringList{u"شعبه"_s});
}

TEST_F(EnsureFolderTest, RaisesPathNotFoundWithoutAFolderAboveAndNamesTheFolder)
{
    const RunTimeError error = ensureFolderError(path(u"none/folder"));
    EXPECT_EQ(error.number(), 76);
    EXPECT_TRUE(error.description().endsWith(u'\n' + path(u"none/folder")));
}

TEST_F(EnsureFolderTest, RaisesPathFileAccessWhereAFileHasTheName)
{
    write(u"file", "x");
    const RunTimeError error = ensureFolderError(path(u"file"));
    EXPECT_EQ(error.number(), 75);
    EXPECT_TRUE(error.description().endsWith(u'\n' + path(u"file")));
    EXPECT_EQ(read(u"file"), "x");
}

#ifdef Q_OS_UNIX

/// Root may write anywhere, so a test run by root goes on as nobody for a while.
class AsOrdinaryUser {
public:
    AsOrdinaryUser()
    {
        constexpr uid_t Nobody = 65534;
        if (geteuid() == 0) {
            EXPECT_EQ(seteuid(Nobody), 0);
        }
    }
    ~AsOrdinaryUser() { EXPECT_EQ(seteuid(getuid()), 0); }
    Q_DISABLE_COPY_MOVE(AsOrdinaryUser)
};

TEST_F(EnsureFolderTest, RaisesPermissionDeniedWhereNothingMayBeMade)
{
    ASSERT_TRUE(QFile::setPermissions(m_folder.path(), QFileDevice::ReadOwner | QFileDevice::ExeOwner));
    RunTimeError error(0, {});
    {
        const AsOrdinaryUser ordinary;
        error = ensureFolderError(path(u"folder"));
    }
    QFile::setPermissions(m_folder.path(), QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
    EXPECT_EQ(error.number(), 70);
    EXPECT_TRUE(error.description().endsWith(u'\n' + path(u"folder")));
}

#endif

using CopyFileTest = Files;

TEST_F(CopyFileTest, CopiesContentsOfAnyLengthWithTheirPermissions)
{
    const QByteArray bytes(3 * 1024 * 1024 + 1, 'z');
    write(u"source", bytes);
    QFile::setPermissions(path(u"source"), QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
    EXPECT_TRUE(CopyFile(path(u"source"), path(u"target")));
    EXPECT_EQ(read(u"target"), bytes);
    EXPECT_EQ(QFile::permissions(path(u"target")), QFile::permissions(path(u"source")));

    write(u"empty", "");
    EXPECT_TRUE(CopyFile(path(u"empty"), path(u"target")));
    EXPECT_EQ(read(u"target"), "");
}

TEST_F(CopyFileTest, ReplacesATargetThatIsThere)
{
    write(u"source", "new");
    write(u"target", "old and longer");
    EXPECT_TRUE(CopyFile(path(u"source"), path(u"target")));
    EXPECT_EQ(read(u"target"), "new");
}

TEST_F(CopyFileTest, ReportsNoFailureButByItsResult)
{
    write(u"source", "x");
    write(u"target", "old");
    EXPECT_FALSE(CopyFile(path(u"none"), path(u"target")));
    EXPECT_FALSE(CopyFile(m_folder.path(), path(u"target")));
    EXPECT_FALSE(CopyFile(path(u"source"), path(u"none/target")));
    EXPECT_EQ(read(u"target"), "old");
    EXPECT_EQ(names(), (QStringList{u"source"_s, u"target"_s}));
}

#ifdef Q_OS_UNIX

/// No file may grow beyond the limit meanwhile, which is how a full disk looks to a writer.
class FileSizeLimit {
public:
    explicit FileSizeLimit(rlim_t bytes)
    {
        m_handler = std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit limited{bytes, m_before.rlim_max};
        EXPECT_EQ(setrlimit(RLIMIT_FSIZE, &limited), 0);
    }
    ~FileSizeLimit()
    {
        setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_handler);
    }
    Q_DISABLE_COPY_MOVE(FileSizeLimit)

private:
    rlimit m_before{};
    void (*m_handler)(int) = nullptr;
};

TEST_F(CopyFileTest, LeavesTheTargetAsItWasWhenTheCopyBreaksOffHalfWay)
{
    write(u"source", QByteArray(3 * 1024 * 1024, 'z'));
    write(u"target", "old");
    {
        const FileSizeLimit limit(2 * 1024 * 1024);
        EXPECT_FALSE(CopyFile(path(u"source"), path(u"target")));
    }
    EXPECT_EQ(read(u"target"), "old");
    EXPECT_EQ(names(), (QStringList{u"source"_s, u"target"_s}));
}

using MakeShortcutTest = Files;

TEST_F(MakeShortcutTest, WritesAStarterFileThatMayBeExecuted)
{
    MakeShortcut(u"/opt/zrv/2/ZRVClient"_s, m_folder.path(), u"شعبه 2"_s, QString(), 1, 0);
    EXPECT_EQ(QString::fromUtf8(read(u"شعبه 2.desktop")),
              u"[Desktop Entry]\nType=Application\nVersion=1.0\nName=شعبه 2\n"
              u"Exec=\"/opt/zrv/2/ZRVClient\"\nTerminal=false\n");
    EXPECT_TRUE(QFileInfo(path(u"شعبه 2.desktop")).isExecutable());
}

TEST_F(MakeShortcutTest, NamesTheWorkingDirectoryWhenThereIsOne)
{
    MakeShortcut(u"/opt/zrv/ZRVClient"_s, m_folder.path(), u"a"_s, u"/home/some one"_s, 1, 0);
    EXPECT_TRUE(read(u"a.desktop").contains("\nPath=/home/some one\n"));
}

TEST_F(MakeShortcutTest, ProtectsBlanksQuotesBackslashesAndPerCentSignsOfThePath)
{
    MakeShortcut(u"/a b/\"$`\\%f"_s, m_folder.path(), u"a"_s, QString(), 1, 0);
    EXPECT_TRUE(read(u"a.desktop")
                    .contains(R"(Exec="/a b/\\"\\$\\`\\\\%%f")"
                              "\n"))
        << read(u"a.desktop").constData();
}

TEST_F(MakeShortcutTest, ReplacesOneOfTheSameName)
{
    MakeShortcut(u"/old"_s, m_folder.path(), u"a"_s, QString(), 1, 0);
    MakeShortcut(u"/new"_s, m_folder.path(), u"a"_s, QString(), 1, 0);
    EXPECT_TRUE(read(u"a.desktop").contains("Exec=\"/new\"\n"));
    EXPECT_EQ(names(), QStringList{u"a.desktop"_s});
}

TEST_F(MakeShortcutTest, RaisesPathFileAccessAndNamesTheFileWhenItCannotBeWritten)
{
    try {
        MakeShortcut(u"/x"_s, path(u"none"), u"a"_s, QString(), 1, 0);
        FAIL() << "no error";
    } catch (const RunTimeError &error) {
        EXPECT_EQ(error.number(), 75);
        EXPECT_TRUE(error.description().endsWith(u'\n' + path(u"none/a.desktop")));
    }
}

#endif

} // namespace
} // namespace zrv
