// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/core/store/store_fixture.h"

#include <functional>

namespace zrv {

class StoreRecordset : public StoreTest {
protected:
    Recordset open(const QString &select) const { return {Connection(connectionString()), select}; }
};

TEST_F(StoreRecordset, RowsAreWalkedForward)
{
    Recordset set = open(u"SELECT SCode FROM ZRVtbCoding WHERE MCode='9'"_s);
    QString codes;
    for (; !set.eof(); set.moveNext())
        codes += set.value(0).toText();
    EXPECT_EQ(codes, u"123"_s);
    EXPECT_TRUE(open(u"SELECT SCode FROM ZRVtbCoding WHERE MCode='none'"_s).eof());
}

TEST_F(StoreRecordset, AFewRowsKeepNobodyFromTheStoreAndManyDo)
{
    const auto writes = [this] {
        try {
            return Connection(connectionString()).execute(u"UPDATE ZRVtbCoding SET SDesc=SDesc WHERE MCode='9'"_s) == 3;
        } catch (const RunTimeError &) {
            return false;
        }
    };
    Recordset few = open(u"SELECT SCode,SDesc,MCode FROM ZRVtbCoding WHERE MCode='9' ORDER BY SCode"_s);
    EXPECT_TRUE(writes());
    few.moveNext();
    EXPECT_EQ(few.value(0).toText(), u"2"_s) << "and they are read on all the same";
    EXPECT_EQ(few.utf8(2), "9");
    Recordset many = open(u"SELECT SCode FROM ZRVtbCoding WHERE MCode='4' ORDER BY val(SCode)"_s);
    EXPECT_FALSE(writes());
    QStringList months;
    for (; !many.eof(); many.moveNext())
        months += many.value(0).toText();
    EXPECT_EQ(months.join(u' '), u"01 02 03 04 05 06 07 08 09 10 11 12"_s);
    EXPECT_TRUE(writes());
}

TEST_F(StoreRecordset, ColumnsAreFoundByNameWithoutCase)
{
    const Recordset set = open(u"SELECT SCode,SDesc AS Meaning FROM ZRVtbCoding WHERE MCode='9'"_s);
    EXPECT_EQ(set.columnCount(), 2);
    EXPECT_EQ(set.columnIndex(u"meaning"), 1);
    EXPECT_EQ(set.value(u"MEANING").toText(), u"نقدي"_s);
    EXPECT_EQ(set.columnName(1), u"Meaning"_s);
}

TEST_F(StoreRecordset, UnknownColumnIsError3265)
{
    const Recordset set = open(u"SELECT SCode FROM ZRVtbCoding"_s);
    for (const auto &read : std::initializer_list<std::function<void()>>{
             [&] { (void)set.value(u"SDesc"); }, [&] { (void)set.value(1); }, [&] { (void)set.utf8(-1); }}) {
        try {
            read();
            ADD_FAILURE();
        } catch (const RunTimeError &error) {
            EXPECT_EQ(error.number(), 3265);
        }
    }
}

TEST_F(StoreRecordset, NoRowBehindTheLastIsError3021)
{
    Recordset set = open(u"SELECT UserNamee FROM User_Defination"_s);
    set.moveNext();
    for (const auto &read :
         std::initializer_list<std::function<void()>>{[&] { (void)set.value(0); }, [&] { set.moveNext(); }}) {
        try {
            read();
            ADD_FAILURE();
        } catch (const RunTimeError &error) {
            EXPECT_EQ(error.number(), 3021);
        }
    }
}

TEST_F(StoreRecordset, CountsItsRowsWithoutMoving)
{
    Recordset set = open(u"SELECT SCode FROM ZRVtbCoding WHERE MCode='9' ORDER BY SCode"_s);
    set.moveNext();
    EXPECT_EQ(set.recordCount(), 3);
    EXPECT_EQ(set.value(0).toText(), u"2"_s);
    EXPECT_EQ(open(u"SELECT count(*) FROM ZRVtbCoding"_s).recordCount(), 1);
    EXPECT_EQ(open(u"SELECT DISTINCT MCode FROM ZRVtbCoding"_s).recordCount(), 18);
    EXPECT_EQ(open(u"SELECT * FROM User_Defination,ZRVtbCoding WHERE MCode='5'"_s).recordCount(), 2);
}

TEST_F(StoreRecordset, BytesAreReadInPlaceAndNullGivesNone)
{
    const Recordset set = open(u"SELECT SDesc,null,1 FROM ZRVtbCoding WHERE MCode='9'"_s);
    EXPECT_EQ(set.utf8(0), "نقدي");
    EXPECT_EQ(set.utf8(0).data(), set.utf8(0).data());
    EXPECT_TRUE(set.utf8(1).empty());
    EXPECT_EQ(set.utf8(2), "1");
}

TEST_F(StoreRecordset, KeepsItsFileOpenWhenTheConnectionIsGone)
{
    Recordset set = open(u"SELECT SCode FROM ZRVtbCoding WHERE MCode='9'"_s);
    Recordset moved = std::move(set);
    moved.moveNext();
    EXPECT_EQ(moved.value(0).toText(), u"2"_s);
}

} // namespace zrv
