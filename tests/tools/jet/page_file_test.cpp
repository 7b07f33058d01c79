// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/jet_writer/jet_pages.h"
#include "tests/tools/jet/jet_fixture.h"

namespace zrv::jet {
namespace {

TEST(PageFileTest, AFileThatIsNoDatabaseIsToldFromOneOfAnotherVersion)
{
    EXPECT_EQ(refusalOf({}), reason::NotJet);
    EXPECT_EQ(refusalOf("SQLite format 3"), reason::NotJet);
    EXPECT_EQ(refusalOf(QByteArray(10'000, '\0')), reason::NotJet);
    for (const quint8 version : std::initializer_list<quint8>{0, 2, 3, 5, 255})
        EXPECT_EQ(refusalOf(jetFile({smallTable(1)}, {.version = version})), reason::Version) << int(version);
}

TEST(PageFileTest, ADatabaseOfOnePageIsCutOff)
{
    const QByteArray file = jetFile({smallTable(1)});
    EXPECT_EQ(refusalOf(file.left(4096)), reason::Damage);
    EXPECT_EQ(refusalOf(file.left(8191)), reason::Damage);
    EXPECT_EQ(refusalOf(file.left(20)), reason::NotJet);
    EXPECT_EQ(refusalOf(file.left(21)), reason::Damage);
}

TEST(PageFileTest, APasswordIsRespected)
{
    EXPECT_EQ(refusalOf(jetFile({smallTable(1)}, {.password = u"1"_s})), reason::Password);
    EXPECT_EQ(refusalOf(jetFile({smallTable(1)}, {.key = 77, .password = u"رمز"_s})), reason::Password);
}

TEST(PageFileTest, EncodedPagesAreDecoded)
{
    const Table table = smallTable(300);
    EXPECT_EQ(rowsIn(jetFile({table}, {.key = 0x1D2C3B4A})), table.rows);
}

TEST(PageFileTest, AKeyThoughThePagesAreInClearIsDamage)
{
    const QByteArray file =
        changedHeader(jetFile({smallTable(1)}), [](QByteArray &header) { jettest::put32(header, 0x3E, 5); });
    EXPECT_EQ(refusalOf(file), reason::Damage);
}

TEST(PageFileTest, ADateThatIsNoneIsDamage)
{
    const QByteArray file = changedHeader(jetFile({smallTable(1)}),
                                          [](QByteArray &header) { header.replace(0x72, 8, QByteArray(8, '\xFF')); });
    EXPECT_EQ(refusalOf(file), reason::Damage);
}

TEST(PageFileTest, APageOutsideTheFileOrOfAnotherKindIsDamage)
{
    const PageFile file(bytesOf(jetFile({smallTable(1)})));
    EXPECT_NO_THROW((void)file.page(2, PageKind::Definition));
    EXPECT_THROW((void)file.page(0, PageKind::Data), Refused);
    EXPECT_THROW((void)file.page(2, PageKind::Data), Refused);
    EXPECT_THROW((void)file.page(file.pageCount(), PageKind::Data), Refused);
    EXPECT_THROW((void)file.page(0xFFFFFFFF, PageKind::Data), Refused);
}

TEST(PageFileTest, BytesBehindTheLastWholePageAreCounted)
{
    EXPECT_EQ(PageFile(bytesOf(jetFile({smallTable(1)}))).extraBytes(), 0u);
    EXPECT_EQ(PageFile(bytesOf(jetFile({smallTable(1)}) + "12345")).extraBytes(), 5u);
}

} // namespace
} // namespace zrv::jet
