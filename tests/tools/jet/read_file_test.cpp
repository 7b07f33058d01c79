// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/print_text.h"
#include "tools/jet/read_file.h"
#include "tools/jet/refused.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace zrv::jet {
namespace {

using namespace Qt::Literals::StringLiterals;

class ReadFileTest : public testing::Test {
protected:
    [[nodiscard]] QString in(const QString &name) const { return m_folder.filePath(name); }
    void write(const QString &name, const QByteArray &bytes) const
    {
        QFile file(in(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(bytes), bytes.size());
    }
    /// Why a file isn't read; empty if it is.
    [[nodiscard]] QString refusal(const QString &name) const
    {
        try {
            (void)readFile(in(name));
        } catch (const Refused &refused) {
            return refused.why().toString();
        }
        return {};
    }

private:
    QTemporaryDir m_folder;
};

TEST_F(ReadFileTest, ReadsARegularFileToItsEnd)
{
    write(u"a.mdb"_s, "abc");
    const FileBytes read = readFile(in(u"a.mdb"_s));
    EXPECT_EQ(read.bytes, (std::vector<unsigned char>{'a', 'b', 'c'}));
    EXPECT_EQ(read.state, stateOf(in(u"a.mdb"_s)));
    write(u"a.mdb"_s, "abcd");
    EXPECT_NE(read.state, stateOf(in(u"a.mdb"_s)));
    write(u"empty.mdb"_s, {});
    EXPECT_TRUE(readFile(in(u"empty.mdb"_s)).bytes.empty());
}

TEST_F(ReadFileTest, NothingElseIsRead)
{
    EXPECT_EQ(refusal(u"missing.mdb"_s), reason::NoFile);
    ASSERT_TRUE(QDir().mkpath(in(u"folder.mdb"_s)));
    EXPECT_EQ(refusal(u"folder.mdb"_s), reason::NoFile);
    write(u"a.mdb"_s, "abc");
    ASSERT_TRUE(QFile::link(in(u"a.mdb"_s), in(u"link.mdb"_s)));
    EXPECT_EQ(refusal(u"link.mdb"_s), reason::NoFile);
}

TEST_F(ReadFileTest, APipeIsNotWaitedFor)
{
    ASSERT_EQ(::mkfifo(QFile::encodeName(in(u"pipe.mdb"_s)).constData(), 0600), 0);
    EXPECT_EQ(refusal(u"pipe.mdb"_s), reason::NoFile);
}

TEST_F(ReadFileTest, ALockFileBesideItMeansThatItIsInUse)
{
    write(u"a.mdb"_s, "abc");
    write(u"b.ldb"_s, {});
    EXPECT_EQ(refusal(u"a.mdb"_s), QString());
    write(u"A.LDB"_s, {});
    EXPECT_EQ(refusal(u"a.mdb"_s), reason::InUse);
}

TEST_F(ReadFileTest, AFileThatNoStoreCanHaveGrownToIsNotEvenRead)
{
    QFile file(in(u"a.mdb"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_TRUE(file.resize(qint64(256) * 1024 * 1024 + 1));
    EXPECT_EQ(refusal(u"a.mdb"_s), reason::TooLarge);
}

} // namespace
} // namespace zrv::jet
