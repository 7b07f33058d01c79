// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/store/row_window.h"
#include "tests/core/store/store_fixture.h"

namespace zrv {
namespace {

const QString Payees = u"SELECT MelliCode,Name,ZRVtbCoding.SDesc AS Semat FROM ZRVtbKarkonan LEFT JOIN ZRVtbCoding ON "
                       "ZRVtbKarkonan.Semat = ZRVtbCoding.SCode and ZRVtbCoding.MCode = '2'"_s;

class RowWindowTest : public StoreTest {
protected:
    void addPayees(int count)
    {
        for (int number = 0; number < count; ++number)
            execute(u"INSERT INTO ZRVtbKarkonan (TFN,MelliCode,Name,Semat) VALUES ('1','%1','%2','%3')"_s
                        .arg(number * 7919 % 100003)
                        .arg(QChar(u'ا' + number % 3))
                        .arg(number % 11));
    }

    [[nodiscard]] std::vector<QStringList> walked(const QString &select)
    {
        std::vector<QStringList> rows;
        const Connection connection(connectionString());
        for (Recordset set(connection, select); !set.eof(); set.moveNext()) {
            QStringList cells;
            for (int column = 0; column < set.columnCount(); ++column)
                cells += set.value(column).toText();
            rows.push_back(cells);
        }
        return rows;
    }

    void expectSameRows(const QString &select)
    {
        const RowWindow window(connectionString(), select);
        const std::vector<QStringList> rows = walked(select);
        ASSERT_EQ(window.rowCount(), int(rows.size())) << qPrintable(select);
        // Backwards, so that pages come in another order than they were walked.
        for (int row = window.rowCount() - 1; row >= 0; --row)
            for (int column = 0; column < rows[0].size(); ++column)
                ASSERT_EQ(window.cell(row, column), rows[std::size_t(row)].at(column)) << row << qPrintable(select);
    }
};

TEST_F(RowWindowTest, GivesTheRowsOfARecordsetInItsOrder)
{
    addPayees(700);
    expectSameRows(Payees);
    expectSameRows(Payees + u" ORDER BY Name,MelliCode DESC"_s);
    expectSameRows(Payees + u" WHERE Name LIKE '%ا%' OR MelliCode = '7919' ORDER BY val(MelliCode)"_s);
}

TEST_F(RowWindowTest, GivesWhatACodeMeansAndDropsRowsWithoutOneWhereItsListIsJoinedInner)
{
    addPayees(300);
    execute(u"DELETE FROM ZRVtbCoding WHERE MCode = '2' AND SCode = '5'"_s);
    const QString inner =
        u"SELECT MelliCode,c.SDesc AS Semat FROM ZRVtbKarkonan,ZRVtbCoding AS c WHERE Semat = c.SCode "
        "AND c.MCode = '2'"_s;
    expectSameRows(Payees + u" WHERE ZRVtbCoding.SDesc LIKE '%ر%' ORDER BY ZRVtbCoding.SDesc"_s);
    expectSameRows(inner);
    expectSameRows(inner + u" AND Name = 'ا' ORDER BY c.SDesc DESC"_s);
    EXPECT_LT(RowWindow(connectionString(), inner).rowCount(), 300);
}

TEST_F(RowWindowTest, HoldsAQueryThatCombinesRowsWhole)
{
    addPayees(30);
    expectSameRows(u"SELECT DISTINCT Name FROM ZRVtbKarkonan ORDER BY Name"_s);
    expectSameRows(u"SELECT Name,sum(MelliCode) AS S FROM ZRVtbKarkonan GROUP BY Name ORDER BY Name"_s);
}

TEST_F(RowWindowTest, GivesEachResultOfARowThatAJoinMultiplies)
{
    addPayees(3);
    expectSameRows(u"SELECT ZRVtbKarkonan.MelliCode,ZRVtbCoding.SCode FROM ZRVtbKarkonan,ZRVtbCoding WHERE "
                   "ZRVtbCoding.MCode = '5' ORDER BY ZRVtbKarkonan.MelliCode,ZRVtbCoding.SCode"_s);
}

TEST_F(RowWindowTest, GivesEmptyCellsForARowDeletedMeanwhile)
{
    addPayees(2);
    const RowWindow window(connectionString(), Payees);
    execute(u"DELETE FROM ZRVtbKarkonan WHERE MelliCode = '0'"_s);
    EXPECT_EQ(window.rowCount(), 2);
    EXPECT_EQ(window.cell(0, 0), QString());
    EXPECT_EQ(window.cell(1, 0), u"7919"_s);
}

TEST_F(RowWindowTest, HasNoRowsWhenTheQueryHasNone)
{
    EXPECT_EQ(RowWindow(connectionString(), Payees).rowCount(), 0);
}

TEST_F(RowWindowTest, RaisesTheStoresErrors)
{
    const auto numberOf = [this](const QString &statement) {
        try {
            (void)RowWindow(connectionString(), statement);
        } catch (const RunTimeError &failure) {
            return failure.number();
        }
        return 0;
    };
    EXPECT_EQ(numberOf(u"SELECT Nothing FROM ZRVtbKarkonan"_s), store_error::MissingColumn);
    EXPECT_EQ(numberOf(u"DELETE FROM ZRVtbKarkonan"_s), store_error::Syntax);
}

} // namespace
} // namespace zrv
