// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/basic/file_thread.h"
#include "core/basic/run_time_error.h"
#include "tests/failing_disk.h"
#include "tests/print_text.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace zrv {
namespace {

using namespace Qt::Literals::StringLiterals;

class FileThreadTest : public testing::Test {
protected:
    [[nodiscard]] QByteArray written() const
    {
        QFile file(m_path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(missing)");
    }

    const QTemporaryDir m_folder;
    const QString m_path = m_folder.filePath(u"report"_s);
};

TEST_F(FileThreadTest, LongFileStandsWholeAndInOrder)
{
    // Beyond the size from which the system is asked to begin early, in pieces that fit into no block.
    constexpr int Pieces = 4'000;
    QByteArray expected;
    SafeFile file(m_path);
    FileThread thread(file);
    for (int i = 0; i < Pieces; ++i) {
        const QByteArray piece = QByteArray::number(i).repeated(1'777);
        expected += piece;
        thread.write(piece);
    }
    thread.finish();
    file.commit();
    ASSERT_GT(expected.size(), 24'000'000);
    EXPECT_TRUE(written() == expected);
}

TEST_F(FileThreadTest, NothingWrittenIsAnEmptyFile)
{
    SafeFile file(m_path);
    FileThread thread(file);
    thread.finish();
    file.commit();
    EXPECT_EQ(written(), QByteArray());
}

TEST_F(FileThreadTest, FullDiskIsToldToTheMakerAndLeavesNothing)
{
    const FilesNoLargerThan limit(1'000'000);
    {
        SafeFile file(m_path);
        FileThread thread(file);
        const auto writeOn = [&] {
            for (int i = 0; i < 100; ++i)
                thread.write(QByteArray(100'000, 'n'));
        };
        EXPECT_THROW(writeOn(), RunTimeError);
        EXPECT_THROW(thread.finish(), RunTimeError);
    }
    EXPECT_EQ(QDir(m_folder.path()).entryList(QDir::Files | QDir::Hidden), QStringList());
}

TEST_F(FileThreadTest, FailureOfTheLastBytesIsToldByFinish)
{
    const FilesNoLargerThan limit(1'000);
    SafeFile file(m_path);
    FileThread thread(file);
    thread.write(QByteArray(2'000, 'n'));
    EXPECT_THROW(thread.finish(), RunTimeError);
}

TEST_F(FileThreadTest, ThreadThatIsLeftWritesNothingMore)
{
    SafeFile file(m_path);
    {
        FileThread thread(file);
        thread.write("left");
    }
    file.commit();
    EXPECT_EQ(written(), QByteArray());
}

} // namespace
} // namespace zrv
