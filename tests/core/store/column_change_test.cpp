// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/store/store_file.h"
#include "tests/core/store/store_fixture.h"

#include <sqlite3.h>

namespace zrv {

class ColumnChange : public StoreTest {};

TEST_F(ColumnChange, AddedColumnIsNullAndKeepsItsWidth)
{
    execute(u"ALTER TABLE User_Defination ADD COLUMN Extra TEXT(2)"_s);
    EXPECT_TRUE(value(u"SELECT Extra FROM User_Defination"_s).isNull());
    EXPECT_EQ(errorOf(u"UPDATE User_Defination Set extra='123'"_s), store_error::ValueTooLong);
    EXPECT_EQ(errorOf(u"UPDATE User_Defination Set extra='12'"_s), 0);
    EXPECT_EQ(rows(u"SELECT UserNamee FROM User_Defination WHERE Extra='12'"_s).size(), 1);
}

TEST_F(ColumnChange, ColumnAlreadyAddedIsTheChangeErrorWhateverItsCase)
{
    EXPECT_EQ(errorOf(u"ALTER TABLE ZRVtbHogog ADD COLUMN NjariSayerPardakhtiha TEXT(10)"_s),
              store_error::ColumnChange);
    EXPECT_EQ(store_error::ColumnChange, -2147217887);
}

TEST_F(ColumnChange, ColumnIsDroppedOnceAndThenTheChangeErrorComes)
{
    execute(u"ALTER TABLE ZRVtbHogog ADD COLUMN MoafiatSum TEXT(10)"_s);
    EXPECT_EQ(errorOf(u"ALTER TABLE ZRVtbHogog DROP COLUMN MoafiatSum "_s), 0);
    EXPECT_EQ(errorOf(u"SELECT MoafiatSum FROM ZRVtbHogog"_s), store_error::MissingColumn);
    EXPECT_EQ(errorOf(u"ALTER TABLE ZRVtbHogog DROP COLUMN MoafiatSum "_s), store_error::ColumnChange);
}

TEST_F(ColumnChange, ColumnOfAKeyIsNotDropped)
{
    EXPECT_NE(errorOf(u"ALTER TABLE ZRVtbHogog DROP COLUMN TFN"_s), 0);
    EXPECT_EQ(rows(u"SELECT TFN FROM ZRVtbHogog"_s).size(), 0);
}

TEST_F(ColumnChange, WidenedColumnTakesLongerValuesAndKeepsRowsOrderAndKeys)
{
    execute(u"DELETE FROM ZRVtbCoding WHERE val(SCode)=3"_s); // leaves gaps in the order of entry
    const QString all = u"SELECT * FROM ZRVtbCoding"_s;
    const QStringList before = rows(all);
    StoreFile file(path());
    const TableShape shape = *file.find(u"ZRVtbCoding");
    const auto rowids = [&] {
        QStringList list;
        const PreparedStatement statement = file.prepare(u"SELECT rowid FROM ZRVtbCoding ORDER BY rowid"_s);
        while (file.step(statement))
            list.append(QString::number(sqlite3_column_int64(statement.get(), 0)));
        return list;
    };
    const QStringList rowidsBefore = rowids();
    execute(u"ALTER TABLE ZRVtbCoding ALTER COLUMN scode TEXT(6)"_s);
    EXPECT_EQ(rows(all), before);
    EXPECT_EQ(rowids(), rowidsBefore);
    file.forgetTables();
    EXPECT_EQ(file.find(u"ZRVtbCoding")->uniqueKeys, shape.uniqueKeys);
    EXPECT_EQ(file.find(u"ZRVtbCoding")->column(u"SCode")->width, 6);
    EXPECT_EQ(errorOf(u"INSERT INTO ZRVtbCoding VALUES ('2','','123456','')"_s), 0);
    EXPECT_EQ(errorOf(u"INSERT INTO ZRVtbCoding VALUES ('2','','1234567','')"_s), store_error::ValueTooLong);
    EXPECT_EQ(errorOf(u"INSERT INTO ZRVtbCoding VALUES ('2','','123456','')"_s), store_error::General);
}

TEST_F(ColumnChange, NarrowerColumnThanARowIsRefusedAndNothingChanges)
{
    const QStringList before = rows(u"SELECT * FROM ZRVtbCoding"_s);
    const RunTimeError failure = error(u"ALTER TABLE ZRVtbCoding ALTER COLUMN SDesc TEXT(3)"_s);
    EXPECT_EQ(failure.number(), store_error::ValueTooLong);
    EXPECT_TRUE(failure.description().contains(u"SDesc"_s));
    EXPECT_EQ(rows(u"SELECT * FROM ZRVtbCoding"_s), before);
    EXPECT_EQ(errorOf(u"UPDATE ZRVtbCoding Set SDesc='longer than three' WHERE MCode='5'"_s), 0);
}

TEST_F(ColumnChange, ColumnOfThatWidthAlreadyIsAltered)
{
    EXPECT_EQ(errorOf(u"ALTER TABLE ZRVtbKarfarma ALTER COLUMN CodeShobe TEXT(5)"_s), 0);
    EXPECT_EQ(errorOf(u"ALTER TABLE ZRVtbKholList ALTER COLUMN ChequeSeriNo TEXT(15)"_s), 0);
}

TEST_F(ColumnChange, MonthIndexSurvivesAChangeOfTheSalaryTable)
{
    StoreFile file(path());
    const TableShape before = *file.find(u"ZRVtbHogog");
    execute(u"ALTER TABLE ZRVtbHogog ALTER COLUMN JariTax TEXT(15)"_s);
    file.forgetTables();
    EXPECT_EQ(file.find(u"ZRVtbHogog")->indexes, before.indexes);
    EXPECT_EQ(file.find(u"ZRVtbHogog")->uniqueKeys, before.uniqueKeys);
    EXPECT_EQ(before.indexes.size(), 2U);
}

TEST_F(ColumnChange, TableIsCreatedOnce)
{
    EXPECT_EQ(errorOf(u"CREATE TABLE Notes (Id TEXT(3), [Some Text] TEXT)"_s), 0);
    execute(u"INSERT INTO Notes VALUES ('1','x')"_s);
    EXPECT_EQ(rows(u"SELECT [Some Text] FROM notes"_s), QStringList{u"x"_s});
    EXPECT_EQ(errorOf(u"INSERT INTO Notes VALUES ('1234','x')"_s), store_error::ValueTooLong);
    EXPECT_EQ(errorOf(u"CREATE TABLE notes (Id TEXT(3))"_s), store_error::General);
    EXPECT_EQ(errorOf(u"CREATE TABLE Twice (Id TEXT(3), ID TEXT(4))"_s), store_error::Syntax);
    EXPECT_EQ(errorOf(u"ALTER TABLE Notes ADD COLUMN x TEXT(0)"_s), store_error::Syntax);
    EXPECT_EQ(errorOf(u"ALTER TABLE Notes ADD COLUMN x INTEGER"_s), store_error::Syntax);
}

TEST_F(ColumnChange, TooLongAValueIsToldInTheWordsOfItsScreen)
{
    EXPECT_TRUE(error(u"INSERT INTO ZRVtbKarfarma (TFN,CodeShobe) VALUES ('1','123456')"_s)
                    .description()
                    .contains(u"«کد شعبه» (CodeShobe)"_s));
}

} // namespace zrv
