// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/store/new_store.h"
#include "core/store/schema.h"
#include "core/store/store_file.h"
#include "tests/core/store/store_fixture.h"

#include <QDir>
#include <QFile>

#include <array>
#include <sys/stat.h>

namespace zrv {

class NewStoreTest : public StoreTest {
protected:
    QStringList files() const { return QDir(m_folder.path()).entryList(QDir::Files | QDir::Hidden); }
};

TEST_F(NewStoreTest, FreshStoreHasTheSixTablesAtTheirWidths)
{
    StoreFile file(path());
    for (const TableShape &table : storeSchema()) {
        const TableShape *found = file.find(table.name);
        ASSERT_TRUE(found) << table.name.toStdString();
        ASSERT_EQ(found->columns.size(), table.columns.size());
        for (std::size_t i = 0; i < table.columns.size(); ++i) {
            EXPECT_EQ(found->columns[i].name, table.columns[i].name);
            EXPECT_EQ(found->columns[i].width, table.columns[i].width) << table.columns[i].name.toStdString();
        }
        EXPECT_EQ(found->uniqueKeys, table.uniqueKeys);
    }
    EXPECT_EQ(storeSchema().size(), 6U);
    EXPECT_EQ(file.find(u"ZRVtbHogog")->column(u"FinalTax")->width, 13);
    EXPECT_EQ(file.find(u"ZRVtbKholList")->column(u"GablTax")->width, 17);
    EXPECT_EQ(file.find(u"ZRVtbKarkonan")->columns.back().name, u"IDSeri"_s);
}

TEST_F(NewStoreTest, EveryCodeThatTheProgramNamesHasARow)
{
    const auto codes = [&](int list) {
        return rows("SELECT SCode FROM ZRVtbCoding WHERE MCode='"_L1 + QString::number(list)
                    + "' ORDER BY val(SCode)"_L1)
            .join(u' ');
    };
    EXPECT_EQ(codes(1), u"1 2 3 4 5 6 7 8"_s);
    EXPECT_EQ(codes(4), u"01 02 03 04 05 06 07 08 09 10 11 12"_s)
        << "the end-date condition joins them behind the year";
    EXPECT_EQ(codes(5), u"1 2"_s);
    EXPECT_EQ(codes(6), u"1 2 3 4 5 6 7"_s);
    EXPECT_EQ(codes(8), u"0 1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17"_s);
    EXPECT_EQ(codes(9), u"1 2 3"_s);
    EXPECT_EQ(codes(10), u"0 1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17 18"_s);
    EXPECT_EQ(codes(11), u"1 2"_s);
    EXPECT_EQ(codes(13), u"0 1 2 3 4 5 6 7 8 9 10 11"_s);
    EXPECT_EQ(codes(14), u"1"_s);
    EXPECT_EQ(codes(15), u"0 1 2 3 4 5 6 7 8 9 10"_s);
    EXPECT_EQ(codes(16), u"0 1 2 3"_s);
    EXPECT_EQ(rows(u"SELECT SCode,SDesc FROM ZRVtbCoding WHERE MCode='17'"_s), QStringList{u"1388|50000000"_s});
    EXPECT_EQ(codes(18) + codes(19), u"1 2 31 2 3"_s);
    for (const QStringView list : {u"2", u"8", u"10", u"15", u"16"})
        EXPECT_EQ(value("SELECT SDesc FROM ZRVtbCoding WHERE SCode='0' AND MCode="_L1 + quoted(list)),
                  Value(u"ساير"_s));
    EXPECT_EQ(value(u"SELECT SDesc FROM ZRVtbCoding WHERE SCode='0' AND MCode='13'"_s), Value(u"عدم معافيت"_s));
    EXPECT_EQ(value(u"SELECT SDesc FROM ZRVtbCoding WHERE SCode='1' AND MCode='1'"_s), Value(u"بي سواد و کم سواد"_s));
    EXPECT_EQ(value(u"SELECT SDesc FROM ZRVtbCoding WHERE SCode='2' AND MCode='11'"_s), Value(u"خارجي"_s));
    EXPECT_TRUE(rows(u"SELECT MCode FROM ZRVtbCoding WHERE MDesc='' OR MDesc IS NULL OR SDesc='' OR SDesc IS NULL"_s)
                    .isEmpty());
}

TEST_F(NewStoreTest, OnlyItsOwnerReadsTheFileWhateverTheMask)
{
    for (const mode_t mask : {mode_t(0), mode_t(0777)}) {
        const QString file = m_folder.filePath(QString::number(mask));
        const mode_t before = ::umask(mask);
        createStore(file);
        ::umask(before);
        struct stat status {};
        ASSERT_EQ(::stat(QFile::encodeName(file).constData(), &status), 0);
        EXPECT_EQ(status.st_mode & 07777U, 0600U);
    }
}

TEST_F(NewStoreTest, ExistingFileIsNotReplaced)
{
    execute(u"UPDATE User_Defination Set Name='x'"_s);
    EXPECT_THROW(createStore(path()), RunTimeError);
    EXPECT_EQ(value(u"SELECT Name FROM User_Defination"_s), Value(u"x"_s));
    EXPECT_EQ(files(), QStringList{u"DBZorvan.mdb"_s});
}

TEST_F(NewStoreTest, FileThatCameMeanwhileIsNotReplaced)
{
    const QString other = m_folder.filePath(u"other.mdb"_s);
    NewStore store(other);
    QFile meanwhile(other);
    ASSERT_TRUE(meanwhile.open(QIODevice::WriteOnly));
    meanwhile.write("kept");
    meanwhile.close();
    EXPECT_THROW(store.finish(), RunTimeError);
    EXPECT_EQ(meanwhile.size(), 4);
}

TEST_F(NewStoreTest, UnfinishedStoreLeavesNothing)
{
    {
        NewStore store(m_folder.filePath(u"other.mdb"_s));
        EXPECT_EQ(files().size(), 2);
        EXPECT_FALSE(QFile::exists(m_folder.filePath(u"other.mdb"_s)));
    }
    EXPECT_EQ(files(), QStringList{u"DBZorvan.mdb"_s});
    EXPECT_THROW(createStore(m_folder.filePath(u"none/other.mdb"_s)), RunTimeError);
}

TEST_F(NewStoreTest, RowsTakeQuotesAndNullAndAreCheckedLikeAnyOther)
{
    NewStore store(m_folder.filePath(u"other.mdb"_s));
    store.addRow(u"zrvtbcoding", std::array<Value, 4>{u"1"_s, Value(), u"1"_s, u"O'Brien"_s});
    const auto numberOf = [&](QStringView table, std::span<const Value> values) {
        try {
            store.addRow(table, values);
        } catch (const RunTimeError &error) {
            return error.number();
        }
        return 0;
    };
    EXPECT_EQ(numberOf(u"ZRVtbCoding", std::array<Value, 4>{u"123456"_s, Value(), Value(), Value()}),
              store_error::ValueTooLong);
    EXPECT_EQ(numberOf(u"ZRVtbCoding", std::array<Value, 1>{u"1"_s}), store_error::Syntax);
    EXPECT_EQ(numberOf(u"Nothing", std::array<Value, 1>{u"1"_s}), store_error::MissingTable);
    store.finish();
    const Connection connection("Data Source = "_L1 + m_folder.filePath(u"other.mdb"_s));
    const Recordset row(connection, u"SELECT * FROM ZRVtbCoding"_s);
    EXPECT_EQ(row.recordCount(), 1) << "a row that was refused is not there";
    EXPECT_TRUE(row.value(1).isNull());
    EXPECT_EQ(row.value(3), Value(u"O'Brien"_s));
}

TEST_F(NewStoreTest, KeyThatStandsTwiceIsRefusedAtTheEnd)
{
    NewStore store(m_folder.filePath(u"other.mdb"_s));
    for (int i = 0; i < 2; ++i)
        store.addRow(u"ZRVtbCoding", std::array<Value, 4>{u"1"_s, Value(), u"1"_s, Value()});
    EXPECT_THROW(store.finish(), RunTimeError);
    EXPECT_FALSE(QFile::exists(m_folder.filePath(u"other.mdb"_s)));
}

TEST_F(NewStoreTest, FirstUserIsASupervisorOfTheGivenName)
{
    const QString other = m_folder.filePath(u"other.mdb"_s);
    createStore(other, {u"BOSS"_s, u"PASS1"_s});
    const Recordset user(Connection("Data Source = "_L1 + other), u"SELECT * FROM User_Defination"_s);
    EXPECT_EQ(user.value(0), Value(u"BOSS"_s));
    EXPECT_EQ(user.value(1), Value(u"PASS1"_s));
    EXPECT_EQ(user.value(4), Value(u"1"_s));
    EXPECT_EQ(user.recordCount(), 1);
}

} // namespace zrv
