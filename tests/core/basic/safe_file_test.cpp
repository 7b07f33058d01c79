// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/basic/run_time_error.h"
#include "core/basic/safe_file.h"
#include "tests/failing_disk.h"
#include "tests/print_text.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <functional>
#include <gtest/gtest.h>
#include <sys/mount.h>
#include <sys/stat.h>

namespace zrv {
namespace {

using namespace Qt::Literals::StringLiterals;

class SafeFileTest : public testing::Test {
protected:
    SafeFileTest()
    {
        // Others may look into the folder, so that a test can go on as another user.
        EXPECT_EQ(chmod(QFile::encodeName(m_folder.path()).constData(), 0755), 0);
        put(m_path, "old");
    }

    static void put(const QString &path, const QByteArray &bytes)
    {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(bytes), bytes.size());
    }

    static QByteArray read(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(missing)");
    }

    [[nodiscard]] QStringList names() const { return QDir(m_folder.path()).entryList(QDir::Files | QDir::Hidden); }

    /// The number of the error that writing so many bytes to the path ends in, 0 for none.
    static RunTimeError errorOfWriting(const QString &path, int size)
    {
        try {
            SafeFile file(path);
            file.write(QByteArray(size, 'n').constData(), static_cast<std::size_t>(size));
            file.commit();
        } catch (const RunTimeError &failure) {
            return failure;
        }
        return {0, {}};
    }

    const QTemporaryDir m_folder;
    const QString m_path = m_folder.filePath(u"WH138902.TXT"_s);
};

TEST_F(SafeFileTest, OldFileStandsUntilTheNewOneIsCommitted)
{
    SafeFile file(m_path);
    file.write("new", 3);
    EXPECT_EQ(read(m_path), "old");
    file.commit();
    EXPECT_EQ(read(m_path), "new");
    EXPECT_EQ(names(), QStringList{u"WH138902.TXT"_s});
}

TEST_F(SafeFileTest, FileThatIsNotCommittedLeavesNothing)
{
    {
        SafeFile file(m_path);
        file.write("new", 3);
    }
    EXPECT_EQ(read(m_path), "old");
    EXPECT_EQ(names(), QStringList{u"WH138902.TXT"_s});
}

TEST_F(SafeFileTest, FileWithoutAPredecessorComesIntoBeing)
{
    const QString path = m_folder.filePath(u"جديد.TXT"_s);
    EXPECT_EQ(errorOfWriting(path, 1000).number(), 0);
    EXPECT_EQ(read(path), QByteArray(1000, 'n'));
}

TEST_F(SafeFileTest, FileIsForItsOwnersEyesAlone)
{
    EXPECT_EQ(errorOfWriting(m_path, 3).number(), 0);
    EXPECT_EQ(QFileInfo(m_path).permissions() & (QFileDevice::ReadGroup | QFileDevice::ReadOther),
              QFileDevice::Permissions());
}

TEST_F(SafeFileTest, LeftoverOfAKilledProgramIsReplacedAndGone)
{
    put(m_path + u".tmp"_s, "half of a file");
    EXPECT_EQ(errorOfWriting(m_path, 3).number(), 0);
    EXPECT_EQ(read(m_path), "nnn");
    EXPECT_EQ(names(), QStringList{u"WH138902.TXT"_s});
}

TEST_F(SafeFileTest, LinkPlantedUnderTheTemporaryNameIsNotFollowed)
{
    const QString other = m_folder.filePath(u"other"_s);
    put(other, "untouched");
    ASSERT_TRUE(QFile::link(other, m_path + u".tmp"_s));
    EXPECT_EQ(errorOfWriting(m_path, 3).number(), 0);
    EXPECT_EQ(read(other), "untouched");
}

TEST_F(SafeFileTest, OfTwoProgramsTheLaterWinsAndTheOtherIsTold)
{
    SafeFile first(m_path);
    first.write("first", 5);
    SafeFile second(m_path);
    second.write("second", 6);
    EXPECT_THROW(first.commit(), RunTimeError);
    EXPECT_EQ(read(m_path), "old");
    second.commit();
    EXPECT_EQ(read(m_path), "second");
}

TEST_F(SafeFileTest, RefusedWriteIsDiskFullAndNamesTheFile)
{
    RunTimeError failure(0, {});
    {
        const FilesNoLargerThan limit(4096);
        failure = errorOfWriting(m_path, 10'000);
    }
    EXPECT_EQ(failure.number(), 61);
    EXPECT_TRUE(failure.description().endsWith(u'\n' + m_path));
    EXPECT_EQ(read(m_path), "old");
    EXPECT_EQ(names(), QStringList{u"WH138902.TXT"_s});
}

TEST_F(SafeFileTest, FullDiskIsDiskFull)
{
    const QString disk = m_folder.filePath(u"disk"_s);
    ASSERT_TRUE(QDir().mkdir(disk));
    const QByteArray place = QFile::encodeName(disk);
    if (mount("tmpfs", place.constData(), "tmpfs", 0, "size=64k") != 0)
        GTEST_SKIP() << "needs the right to mount a disk; RefusedWriteIsDiskFullAndNamesTheFile covers the rest";
    const QString path = disk + u"/WH138902.TXT"_s;
    put(path, "old");
    const RunTimeError failure = errorOfWriting(path, 1'000'000);
    const QByteArray after = read(path);
    const QStringList left = QDir(disk).entryList(QDir::Files | QDir::Hidden);
    EXPECT_EQ(umount(place.constData()), 0);
    EXPECT_EQ(failure.number(), 61);
    EXPECT_EQ(after, "old");
    EXPECT_EQ(left, QStringList{u"WH138902.TXT"_s});
}

TEST_F(SafeFileTest, FolderThatCantBeWrittenIsPermissionDenied)
{
    RunTimeError failure(0, {});
    ASSERT_EQ(chmod(QFile::encodeName(m_folder.path()).constData(), 0555), 0);
    {
        const AsOrdinaryUser ordinary;
        failure = errorOfWriting(m_path, 3);
    }
    ASSERT_EQ(chmod(QFile::encodeName(m_folder.path()).constData(), 0755), 0);
    EXPECT_EQ(failure.number(), 70);
    EXPECT_TRUE(failure.description().endsWith(u'\n' + m_path));
    EXPECT_EQ(read(m_path), "old");
}

TEST_F(SafeFileTest, MissingFolderIsPathNotFound)
{
    EXPECT_EQ(errorOfWriting(m_folder.filePath(u"none/WH138902.TXT"_s), 3).number(), 76);
}

TEST_F(SafeFileTest, PipeOfTheFilesNameIsPathFileAccessAndStays)
{
    const QString path = m_folder.filePath(u"pipe"_s);
    ASSERT_EQ(::mkfifo(QFile::encodeName(path).constData(), 0600), 0);
    EXPECT_EQ(errorOfWriting(path, 1).number(), error::PathFileAccess);
    struct stat there {};
    ASSERT_EQ(::lstat(QFile::encodeName(path).constData(), &there), 0);
    EXPECT_TRUE(S_ISFIFO(there.st_mode)) << "a device would be replaced in the same way";
}

TEST_F(SafeFileTest, FolderOfTheFilesNameIsPathFileAccessAndStays)
{
    const QString path = m_folder.filePath(u"folder"_s);
    ASSERT_TRUE(QDir().mkpath(path + u"/inside"_s));
    EXPECT_EQ(errorOfWriting(path, 3).number(), 75);
    EXPECT_TRUE(QFileInfo(path + u"/inside"_s).isDir());
    EXPECT_EQ(names(), QStringList{u"WH138902.TXT"_s});
}

} // namespace
} // namespace zrv
