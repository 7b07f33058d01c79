// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/store/store_failure.h"
#include "core/store/store_file.h"
#include "tests/core/store/store_fixture.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>

#include <sqlite3.h>

namespace zrv {

namespace {

/// Another program that has the store open.
class OtherProgram {
public:
    explicit OtherProgram(const QString &path) { sqlite3_open(path.toUtf8().constData(), &m_database); }
    ~OtherProgram() { sqlite3_close(m_database); }
    OtherProgram(const OtherProgram &) = delete;
    OtherProgram &operator=(const OtherProgram &) = delete;

    int run(const char *sql) { return sqlite3_exec(m_database, sql, nullptr, nullptr, nullptr); }

private:
    sqlite3 *m_database = nullptr;
};

RunTimeError openingError(const QString &connectionString)
{
    try {
        const Connection connection(connectionString);
    } catch (const RunTimeError &error) {
        return error;
    }
    return {0, {}};
}

} // namespace

class StoreConnection : public StoreTest {};

TEST_F(StoreConnection, BackslashOfTheConnectionStringIsASeparatorEverywhere)
{
    EXPECT_EQ(rows(u"SELECT UserNamee FROM User_Defination"_s), QStringList{u"ADMIN"_s});
    EXPECT_EQ(openingError("data source="_L1 + path()).number(), 0) << "a plain path, and no other setting";
    QDir(m_folder.path()).mkdir(u"2"_s);
    QFile::copy(path(), m_folder.filePath(u"2/DBZorvan.mdb"_s));
    EXPECT_EQ(openingError("Data Source = "_L1 + m_folder.path() + "\\2\\DBZorvan.mdb;x=1"_L1).number(), 0);
}

TEST_F(StoreConnection, FolderWithASemicolonOrABlankIsFound)
{
    const QString folder = m_folder.filePath(u"a; b"_s);
    QDir().mkdir(folder);
    createStore(folder + "/DBZorvan.mdb"_L1);
    EXPECT_EQ(openingError("Provider=x;Data Source = "_L1 + folder + "\\DBZorvan.mdb;Persist Security Info=False"_L1)
                  .number(),
              0);
}

TEST_F(StoreConnection, OpeningNeverCreatesAndNamesTheMissingFile)
{
    const QString missing = m_folder.filePath(u"none.mdb"_s);
    const RunTimeError error = openingError("Data Source = "_L1 + missing);
    EXPECT_EQ(error.number(), store_error::General);
    EXPECT_EQ(error.number(), -2147467259);
    EXPECT_TRUE(error.description().contains(missing));
    EXPECT_FALSE(QFile::exists(missing));
    EXPECT_EQ(openingError(u"Provider = x"_s).number(), store_error::General);
    EXPECT_EQ(openingError("Data Source = "_L1 + m_folder.path()).number(), store_error::General);
}

TEST_F(StoreConnection, EmptyAndForeignFilesAreNoStores)
{
    for (const QByteArray &content : {QByteArray(), QByteArray("SQLite format 3"), QByteArray(5000, 'x')}) {
        const QString file = m_folder.filePath(u"other.mdb"_s);
        QFile other(file);
        ASSERT_TRUE(other.open(QIODevice::WriteOnly | QIODevice::Truncate));
        other.write(content);
        other.close();
        EXPECT_EQ(openingError("Data Source = "_L1 + file).number(), store_error::General);
        EXPECT_EQ(QFile(file).size(), content.size()) << "left as it was";
    }
}

TEST_F(StoreConnection, DamagedFileIsAGeneralErrorThatNamesIt)
{
    QFile file(path());
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    file.seek(100);
    file.write(QByteArray(4000, '\xAA'));
    file.close();
    const RunTimeError failure = error(u"SELECT * FROM ZRVtbCoding"_s);
    EXPECT_EQ(failure.number(), store_error::General);
    EXPECT_TRUE(failure.description().contains(path()));
}

TEST_F(StoreConnection, FinishedStatementsAreOnTheDiskWithAJournalThatIsDeleted)
{
    StoreFile file(path());
    const auto setting = [&](QStringView name) {
        const PreparedStatement statement = file.prepare("PRAGMA "_L1 + name);
        EXPECT_TRUE(file.step(statement));
        return QByteArray(reinterpret_cast<const char *>(sqlite3_column_text(statement.get(), 0)));
    };
    EXPECT_EQ(setting(u"journal_mode"), "delete");
    EXPECT_EQ(setting(u"synchronous"), "2");
    execute(u"DELETE FROM ZRVtbCoding"_s);
    EXPECT_EQ(QDir(m_folder.path()).entryList(QDir::Files), QStringList{u"DBZorvan.mdb"_s});
}

TEST_F(StoreConnection, AnotherProgramsJournalModeIsTakenBack)
{
    {
        OtherProgram other(path());
        ASSERT_EQ(other.run("PRAGMA journal_mode=WAL"), SQLITE_OK);
        ASSERT_EQ(other.run("DELETE FROM ZRVtbCoding"), SQLITE_OK);
    }
    EXPECT_EQ(rows(u"SELECT * FROM ZRVtbCoding"_s).size(), 0);
    OtherProgram other(path());
    EXPECT_EQ(other.run("BEGIN EXCLUSIVE; ROLLBACK"), SQLITE_OK);
    EXPECT_FALSE(QFile::exists(path() + "-wal"_L1));
}

TEST_F(StoreConnection, StoreHeldByAnotherProgramIsWaitedForAndThenAGeneralError)
{
    OtherProgram other(path());
    ASSERT_EQ(other.run("BEGIN EXCLUSIVE"), SQLITE_OK);
    QElapsedTimer waited;
    waited.start();
    const RunTimeError failure = error(u"DELETE FROM ZRVtbCoding"_s);
    EXPECT_EQ(failure.number(), store_error::General);
    EXPECT_TRUE(failure.description().contains(path()));
    EXPECT_GE(waited.elapsed(), 1000);
    ASSERT_EQ(other.run("ROLLBACK"), SQLITE_OK);
    EXPECT_EQ(errorOf(u"DELETE FROM ZRVtbCoding"_s), 0);
}

TEST_F(StoreConnection, NoLockIsLeftBehindByStatementsThatEndedOrFailed)
{
    const Connection kept(connectionString());
    Recordset finished(kept, u"SELECT * FROM User_Defination"_s);
    finished.moveNext();
    EXPECT_TRUE(finished.eof());
    {
        const Recordset dropped(kept, u"SELECT * FROM ZRVtbCoding"_s);
        EXPECT_FALSE(dropped.eof());
    }
    Connection failed(connectionString());
    EXPECT_THROW(failed.execute(u"INSERT INTO ZRVtbCoding SELECT * FROM ZRVtbCoding"_s), RunTimeError);
    OtherProgram other(path());
    EXPECT_EQ(other.run("BEGIN EXCLUSIVE; ROLLBACK"), SQLITE_OK);
}

TEST_F(StoreConnection, StatementTakesEffectAsAWholeOrNotAtAll)
{
    execute(u"INSERT INTO ZRVtbCoding VALUES ('99','','1','')"_s);
    const QStringList before = rows(u"SELECT * FROM ZRVtbCoding"_s);
    EXPECT_EQ(errorOf(u"UPDATE ZRVtbCoding Set MCode='99'"_s), store_error::General);
    EXPECT_EQ(errorOf(u"UPDATE ZRVtbCoding Set SCode=SCode+'xxx' WHERE MCode='8'"_s), store_error::ValueTooLong);
    EXPECT_EQ(rows(u"SELECT * FROM ZRVtbCoding"_s), before);
}

TEST_F(StoreConnection, ValueThatIsTooLongIsRefusedUnderItsNumberAndNamesColumnAndWidth)
{
    const RunTimeError failure = error(u"INSERT INTO User_Defination VALUES ('U','12345678901','n','f','0')"_s);
    EXPECT_EQ(failure.number(), store_error::ValueTooLong);
    EXPECT_EQ(failure.number(), -2147217833);
    EXPECT_TRUE(failure.description().contains(u"Passwordd"_s));
    EXPECT_TRUE(failure.description().contains(u"10"_s));
    EXPECT_EQ(errorOf(u"INSERT INTO User_Defination VALUES ('U','ده حرف است','n','f','0')"_s), 0)
        << "a width counts letters and not bytes";
    EXPECT_EQ(errorOf(u"UPDATE User_Defination Set Access_Level='10'"_s), store_error::ValueTooLong);
}

TEST_F(StoreConnection, KeyClashIsAGeneralErrorWhateverTheCase)
{
    EXPECT_EQ(errorOf(u"INSERT INTO User_Defination VALUES ('admin','Admin','n','f','0')"_s), store_error::General);
    EXPECT_EQ(errorOf(u"INSERT INTO User_Defination VALUES ('admin','other','n','f','0')"_s), 0);
}

TEST_F(StoreConnection, WriteThatTheFileForbidsSaysWhatToMend)
{
    sqlite3 *database = nullptr;
    ASSERT_EQ(sqlite3_open_v2(path().toUtf8().constData(), &database, SQLITE_OPEN_READONLY, nullptr), SQLITE_OK);
    EXPECT_NE(sqlite3_exec(database, "DELETE FROM ZRVtbCoding", nullptr, nullptr, nullptr), SQLITE_OK);
    const RunTimeError failure = storeFailure(database, path(), false);
    sqlite3_close(database);
    EXPECT_EQ(failure.number(), store_error::General);
    EXPECT_TRUE(failure.description().startsWith(u"نوشتن در بانک اطلاعاتي مجاز نيست"_s));
    EXPECT_TRUE(failure.description().endsWith(path()));
}

TEST_F(StoreConnection, ExecuteTellsTheRowsItTouched)
{
    EXPECT_EQ(execute(u"UPDATE ZRVtbCoding Set MDesc='x' WHERE MCode='5'"_s), 2);
    EXPECT_EQ(execute(u"DELETE FROM ZRVtbCoding WHERE MCode='none'"_s), 0);
}

TEST_F(StoreConnection, InsertFillsNamedColumnsOrAllAndRefusesAnyOtherNumber)
{
    execute(u"INSERT INTO ZRVtbCoding (SCode,MCode) VALUES ('1','50')"_s);
    EXPECT_EQ(rows(u"SELECT * FROM ZRVtbCoding WHERE MCode='50'"_s), QStringList{u"50|NULL|1|NULL"_s});
    EXPECT_EQ(errorOf(u"INSERT INTO ZRVtbCoding VALUES ('1','2','3')"_s), store_error::Syntax);
    EXPECT_EQ(errorOf(u"INSERT INTO ZRVtbCoding (MCode,SCode) VALUES ('1')"_s), store_error::Syntax);
    EXPECT_EQ(errorOf(u"INSERT INTO ZRVtbCoding (MCode,mcode) VALUES ('1','2')"_s), store_error::Syntax);
    EXPECT_EQ(errorOf(u"INSERT INTO ZRVtbCoding (MCode) SELECT * FROM ZRVtbCoding"_s), store_error::Syntax);
    execute(u"INSERT INTO ZRVtbCoding SELECT '51',MDesc,val(SCode)+1,count(*) FROM ZRVtbCoding WHERE MCode='50' GROUP "
            "BY MDesc,SCode"_s);
    EXPECT_EQ(rows(u"SELECT * FROM ZRVtbCoding WHERE MCode='51'"_s), QStringList{u"51|NULL|2|1"_s});
    EXPECT_TRUE(value(u"SELECT SCode FROM ZRVtbCoding WHERE MCode='51'"_s).isText());
}

} // namespace zrv
