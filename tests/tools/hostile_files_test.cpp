// SPDX-License-Identifier: GPL-3.0-or-later

// zrvcheck over what is no electronic file at all, or a monstrous one: a line says what it is, the exit status tells
// whether it could be read, and the memory stays small.

#include "core/basic/run_time_error.h"
#include "tests/tools/zrvcheck_fixture.h"

#include <sys/resource.h>
#include <sys/stat.h>

namespace zrv::checktool {
namespace {

class HostileToZrvCheck : public ZrvCheck {
protected:
    static constexpr long MostMegabytes = 100;

    /// Of all programs that this one started so far.
    static long peakMegabytes()
    {
        rusage usage{};
        ::getrusage(RUSAGE_CHILDREN, &usage);
        return usage.ru_maxrss / 1024;
    }

    const QString m_path = m_folder.filePath(u"WH138902.TXT"_s);
};

struct OddFile {
    const char *name;
    QByteArray bytes;
    int status;
    QString note; ///< empty for none
};

class OddToZrvCheck : public ZrvCheck, public testing::WithParamInterface<OddFile> {};

TEST_P(OddToZrvCheck, IsReadAllTheSame)
{
    write(GetParam().bytes, u"WH138902.TXT"_s);
    const Run run = zrvcheck({u"WH138902.TXT"_s});
    EXPECT_EQ(run.status, GetParam().status);
    EXPECT_EQ(run.out.contains(u"WH138902.TXT: note: "_s), !GetParam().note.isEmpty());
    EXPECT_TRUE(run.out.contains(GetParam().note)) << run.out.toStdString();
    EXPECT_EQ(run.err, u""_s);
}

QByteArray goodFile()
{
    return utf16File({payerLine(), payeeLine()});
}

const std::vector<OddFile> OddFiles = {
    {"OfOddLength", goodFile() + "x", 0, u"its length is odd"_s},
    {"OfOneByte", "x", 1, u"it doesn't begin with the mark"_s},
    {"Empty", "", 1, u"it doesn't begin with the mark"_s},
    {"OfTheMarkAlone", goodFile().first(2), 1, u""_s},
    {"WithoutMark", goodFile().mid(2), 0, u"it doesn't begin with the mark"_s},
    {"InUtf8", "\xEF\xBB\xBF" + QString(payerLine()).toUtf8(), 1, u"the mark of UTF-8"_s},
    {"InUtf8WithoutMark", QString(payerLine()).toUtf8(), 1, u"it doesn't begin with the mark"_s},
    {"BigEndian", QByteArray("\xFE\xFF\0a\0\r\0\n", 8), 1, u"big-endian"_s},
    {"WithHalfASurrogate", utf16File({payerLine(), payeeLine().with(2, QString(QChar(0xD800)))}), 0, u""_s},
    {"WithNul", utf16File({payerLine(), payeeLine().with(2, QString(QChar(0)))}), 0, u""_s},
    {"OfNulAlone", QByteArray(4000, '\0'), 1, u"it doesn't begin with the mark"_s},
};

INSTANTIATE_TEST_SUITE_P(Files, OddToZrvCheck, testing::ValuesIn(OddFiles),
                         [](const auto &file) { return std::string(file.param.name); });

TEST_F(HostileToZrvCheck, AFolderUnderAFilesNameIsGoneThrough)
{
    writeIn(u"WH138902.TXT"_s, m_good, u"WH138901.TXT"_s);
    const Run run = zrvcheck({m_path});
    EXPECT_EQ(run.status, 0);
    EXPECT_TRUE(run.out.contains(u"WH138902.TXT/WH138901.TXT"_s)) << run.out.toStdString();
}

TEST_F(HostileToZrvCheck, APipeIsRefusedAndNotWaitedFor)
{
    ASSERT_EQ(::mkfifo(QFile::encodeName(m_path).constData(), 0600), 0);
    const Run run = zrvcheck({m_path});
    EXPECT_EQ(run.status, 2);
    EXPECT_TRUE(run.out.startsWith(m_path + u": the check ends here: 75 < "_s)) << run.out.toStdString();
}

TEST_F(HostileToZrvCheck, ADeviceIsRefused)
{
    ASSERT_TRUE(QFile::link(u"/dev/zero"_s, m_path));
    EXPECT_EQ(zrvcheck({m_path}).status, 2);
}

TEST_F(HostileToZrvCheck, AGigabyteInOneLineIsRefusedInLittleMemory)
{
    QFile file(m_path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.resize(1LL << 30)); // a hole: it takes no room on the disk
    file.close();
    const Run run = zrvcheck({m_path});
    EXPECT_EQ(run.status, 2);
    EXPECT_TRUE(run.out.contains(u"WH138902.TXT: the check ends here: 7 < "_s)) << run.out.toStdString();
    EXPECT_LE(peakMegabytes(), MostMegabytes);
}

TEST_F(HostileToZrvCheck, TenMillionCommasAreCountedInLittleMemory)
{
    write(utf16File({payerLine(), QString(10'000'000, u',')}), u"WH138902.TXT"_s);
    const Run run = zrvcheck({u"--summary"_s, m_path});
    EXPECT_EQ(run.status, 1);
    EXPECT_TRUE(run.out.contains(u"the check ends here"_s) || run.out.contains(u"stopped early"_s))
        << "an empty field 16 ends the run: " << run.out.toStdString();
    write(utf16File({QString(10'000'000, u','), payeeLine()}), u"WH138902.TXT"_s);
    EXPECT_TRUE(zrvcheck({u"--summary"_s, m_path}).out.contains(u"  9999995  1:0 field-count"_s));
    EXPECT_LE(peakMegabytes(), MostMegabytes);
}

/// Cuts the file at the first error.
class Cutter : public CheckEvents {
public:
    explicit Cutter(QString path)
        : m_path(std::move(path))
    {
    }
    [[nodiscard]] bool wantsErrorsAlone() const override { return true; }
    void finding(const Finding & /*finding*/) override { QFile::resize(m_path, 4000); }

private:
    QString m_path;
};

TEST_F(HostileToZrvCheck, AFileThatShrinksWhileSeveralReadItFails)
{
    QStringList lines(20'000, payeeLine());
    lines[0] = payerLine();
    lines[3] = payeeLine().with(2, u""_s);
    write(utf16File(lines), u"WH138902.TXT"_s);
    options.threads = 3;
    options.shareBytes = 20'000;
    Cutter cutter(m_path);
    const CheckOutcome ended = StructureCheck(whRules(), m_path, options).run(cutter);
    EXPECT_EQ(ended.end, CheckEnd::Failed);
    EXPECT_EQ(ended.failure, error::DeviceIo);
    EXPECT_LT(ended.records, 20'000);
}

} // namespace
} // namespace zrv::checktool
