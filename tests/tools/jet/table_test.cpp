// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/jet_writer/jet_pages.h"
#include "tests/tools/jet/jet_fixture.h"
#include "tools/jet/data_page.h"
#include "tools/jet/usage_map.h"

namespace zrv::jet {
namespace {

TEST(JetTableTest, NullAndTheEmptyTextAreTwoThings)
{
    Table table = smallTable(0);
    table.rows = {{Cell(), u""_s, u"x"_s}, {u""_s, Cell(), Cell()}};
    EXPECT_EQ(rowsIn(jetFile({table})), table.rows);
}

TEST(JetTableTest, AColumnThatIsYoungerThanARowIsNullInIt)
{
    Table table = smallTable(0);
    table.rows = {{u"1"_s}, {u"1"_s, u"2"_s}, {u"1"_s, u"2"_s, u"3"_s}};
    const std::vector<Cells> expected = {{u"1"_s, Cell(), Cell()}, {u"1"_s, u"2"_s, Cell()}, {u"1"_s, u"2"_s, u"3"_s}};
    EXPECT_EQ(rowsIn(jetFile({table})), expected);
}

TEST(JetTableTest, DeletedRowsAreLeftOut)
{
    const Table table = smallTable(500);
    EXPECT_EQ(rowsIn(jetFile({table}, {.deletedEach = 3})), table.rows);
}

TEST(JetTableTest, MovedRowsAreReadOnceAndInTheirOldPlace)
{
    const Table table = smallTable(500);
    EXPECT_EQ(rowsIn(jetFile({table}, {.movedEach = 4})), table.rows);
}

TEST(JetTableTest, RowsThatWereMovedAndDeletedAfterwardsAreGone)
{
    const Table table = smallTable(100);
    EXPECT_EQ(rowsIn(jetFile({table}, {.movedEach = 7, .deletedEach = 5, .orphanEach = 3})), table.rows);
}

TEST(JetTableTest, UsageMapsOnPagesOfTheirOwnAreRead)
{
    const Table table = smallTable(2'000);
    EXPECT_EQ(rowsIn(jetFile({table}, {.hasMapPages = true})), table.rows);
}

TEST(JetTableTest, ATableWithManyPagesIsReadWhole)
{
    const Table table = smallTable(120'000); // more pages than a map within a row can name
    EXPECT_EQ(rowsIn(jetFile({table})), table.rows);
}

TEST(JetTableTest, DefinitionsOfSeveralPagesAreRead)
{
    const Table table = smallTable(3);
    EXPECT_EQ(rowsIn(jetFile({table}, {.indexes = 1'000})), table.rows);
    EXPECT_EQ(refusalOf(jetFile({table}, {.indexes = 1'001})), reason::Damage);
}

TEST(JetTableTest, ATableOf255ColumnsIsReadAndOneOfMoreIsNot)
{
    Table table{{u"T"_s, {}, {}, {}}, {{}}};
    for (int column = 0; column < 255; ++column) {
        table.shape.columns.push_back({u"C"_s + QString::number(column), 4});
        table.rows[0].push_back(QString::number(column));
    }
    EXPECT_EQ(rowsIn(jetFile({table})), table.rows);
    table.shape.columns.push_back({u"More"_s, 4});
    EXPECT_EQ(refusalOf(jetFile({table})), reason::Damage);
}

/// The file of a small table with its pages in hand.
class DamagedTableTest : public testing::Test {
protected:
    explicit DamagedTableTest()
        : m_file(jetFile({smallTable(20)}, {.movedEach = 10}))
        , m_definition(readCatalogue(PageFile(bytesOf(m_file))).at(0).page)
    {
        const PageFile file(bytesOf(m_file));
        const Definition definition = readDefinition(file, m_definition);
        m_data = pagesOf(file, definition.usageMap).at(0);
        m_map = definition.usageMap;
    }

    [[nodiscard]] QString refusalWith16(quint32 page, int at, int value) const
    {
        QByteArray file = m_file;
        jettest::put16(file, int(page) * 4096 + at, value);
        return refusalOf(file);
    }
    [[nodiscard]] QString refusalWith32(quint32 page, int at, quint32 value) const
    {
        QByteArray file = m_file;
        jettest::put32(file, int(page) * 4096 + at, value);
        return refusalOf(file);
    }
    [[nodiscard]] int start(quint32 page, int row) const
    {
        return qFromLittleEndian<quint16>(m_file.constData() + int(page) * 4096 + 14 + 2 * row) & 0x1FFF;
    }

    QByteArray m_file;
    quint32 m_definition;
    quint32 m_data = 0;
    RowPlace m_map;
};

TEST_F(DamagedTableTest, IsSoundBeforehand)
{
    EXPECT_EQ(refusalOf(m_file), QString());
}

TEST_F(DamagedTableTest, APointerThatLeadsNowhereOrBackOrTwiceToOneRow)
{
    const int first = start(m_data, 9);
    const int second = start(m_data, 19);
    const quint32 other = qFromLittleEndian<quint32>(m_file.constData() + int(m_data) * 4096 + second);
    EXPECT_EQ(refusalWith32(m_data, first, m_data << 8 | 9), reason::Damage) << "itself";
    EXPECT_EQ(refusalWith32(m_data, first, m_data << 8 | 0), reason::Damage) << "a row that wasn't moved";
    EXPECT_EQ(refusalWith32(m_data, first, m_data << 8 | 0xFF), reason::Damage) << "no row";
    EXPECT_EQ(refusalWith32(m_data, first, 0xFFFFFF00), reason::Damage) << "no page";
    EXPECT_EQ(refusalWith32(m_data, first, other), reason::Damage) << "another's row";
    EXPECT_EQ(refusalWith32(m_data, first, m_map.page << 8), reason::Damage) << "another table's";
}

TEST_F(DamagedTableTest, RowsThatOverlapOrLieInThePagesHead)
{
    EXPECT_EQ(refusalWith16(m_data, 14 + 2, 4096), reason::Damage);
    EXPECT_EQ(refusalWith16(m_data, 14 + 2, 8), reason::Damage);
    EXPECT_EQ(refusalWith16(m_data, 14 + 2, start(m_data, 0) + 2), reason::Damage);
    EXPECT_EQ(refusalWith16(m_data, 12, 0xFFFF), reason::Damage) << "the count of rows";
}

TEST_F(DamagedTableTest, ARowWhosePartsDoNotFit)
{
    const int row = start(m_data, 0);
    const int end = 4096;
    EXPECT_EQ(refusalWith16(m_data, row, 0), reason::Damage) << "columns";
    EXPECT_EQ(refusalWith16(m_data, row, 2), reason::Damage);
    EXPECT_EQ(refusalWith16(m_data, row, 4), reason::Damage);
    EXPECT_EQ(refusalWith16(m_data, row, 0xFFFF), reason::Damage);
    EXPECT_EQ(refusalWith16(m_data, end - 3, 2), reason::Damage) << "texts";
    EXPECT_EQ(refusalWith16(m_data, end - 3, 0xFFFF), reason::Damage);
    EXPECT_EQ(refusalWith16(m_data, end - 7, 1), reason::Damage) << "an offset in the row's head";
    EXPECT_EQ(refusalWith16(m_data, end - 7, 0xFFFF), reason::Damage);
}

TEST_F(DamagedTableTest, ANullThatHasAText)
{
    QByteArray file = m_file;
    file[int(m_data) * 4096 + 4095] = 0b101;
    EXPECT_EQ(refusalOf(file), reason::Damage);
}

TEST_F(DamagedTableTest, AUsageMapThatNamesAStrangersPageOrNone)
{
    const int map = start(m_map.page, 0);
    EXPECT_EQ(refusalWith32(m_map.page, map + 1, 1), reason::Damage);
    EXPECT_EQ(refusalWith32(m_map.page, map + 1, 0xFFFFFFFF), reason::Damage);
    EXPECT_EQ(refusalWith16(m_map.page, map, 2), reason::Damage) << "of an unknown kind";
    EXPECT_EQ(refusalWith32(m_definition, 55, 0), reason::Damage);
    EXPECT_EQ(refusalWith32(m_definition, 55, m_map.page << 8 | 1), reason::Damage);
}

TEST_F(DamagedTableTest, APageOfAnotherOwner)
{
    EXPECT_EQ(refusalWith32(m_data, 4, 2), reason::Damage);
}

TEST_F(DamagedTableTest, ADefinitionThatLeadsBackIntoItselfOrNowhere)
{
    for (const quint32 next : {m_definition, quint32(1), quint32(0xFFFFFFFF)})
        EXPECT_EQ(refusalWith32(m_definition, 4, next), reason::Damage) << next;
    EXPECT_EQ(refusalWith32(m_definition, 51, 0x10000000), reason::Damage) << "indexes";
    EXPECT_EQ(refusalWith16(m_definition, 45, 0), reason::Damage) << "columns";
    EXPECT_EQ(refusalWith16(m_definition, 45, 0xFFFF), reason::Damage);
}

TEST_F(DamagedTableTest, ColumnsThatShareANumberAPlaceOrAName)
{
    const int column = 63 + 12 + 25;
    EXPECT_EQ(refusalWith16(m_definition, column + 5, 0), reason::Damage);
    EXPECT_EQ(refusalWith16(m_definition, column + 5, 3), reason::Damage) << "beyond the most";
    EXPECT_EQ(refusalWith16(m_definition, column + 7, 0), reason::Damage);
    EXPECT_EQ(refusalWith16(m_definition, column + 7, 0xFFFF), reason::Damage);
    const int names = 63 + 12 + 3 * 25;
    EXPECT_EQ(refusalWith16(m_definition, names + 4 + 2, u'a'), reason::Damage);
    EXPECT_EQ(refusalWith16(m_definition, names, 0), reason::Damage) << "no name";
    EXPECT_EQ(refusalWith16(m_definition, names, 3), reason::Damage);
    EXPECT_EQ(refusalWith16(m_definition, names, 0x7FFF), reason::Damage);
}

TEST_F(DamagedTableTest, ACatalogueWithoutItsColumns)
{
    EXPECT_EQ(refusalWith16(2, 63 + 12, 12), reason::Damage);
    EXPECT_EQ(refusalWith16(2, 0, 1), reason::Damage);
}

TEST(JetTableTest, ColumnsAreFoundByTheirExactNameFirst)
{
    Definition definition;
    definition.columns.resize(2);
    definition.columns[0].name = u"GJARIHOGOG"_s;
    definition.columns[1].name = u"GJariHogog"_s;
    EXPECT_EQ(definition.column(u"GJariHogog"), &definition.columns[1]);
    EXPECT_EQ(definition.column(u"gjarihogog"), &definition.columns[0]);
    EXPECT_EQ(definition.column(u"GjariTax"), nullptr);
}

} // namespace
} // namespace zrv::jet
