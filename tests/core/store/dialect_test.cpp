// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/core/store/store_fixture.h"

namespace zrv {

class Dialect : public StoreTest {};

TEST_F(Dialect, KeywordsAndNamesHaveNoCase)
{
    EXPECT_EQ(rows(u"sElEcT sdesc fRoM zrvtbcoding wHeRe mcode='5' OrDeR bY scode dEsC"_s),
              (QStringList{u"حقوقي"_s, u"حقيقي"_s}));
}

TEST_F(Dialect, OddSpacingAndATrailingSemicolonAreRead)
{
    EXPECT_EQ(rows(u" \t select  SDesc\r\nfrom ZRVtbCoding where(MCode)='5'and SCode='1' ; \n"_s),
              QStringList{u"حقيقي"_s});
    EXPECT_EQ(rows(u"SELECT count(*)AS n FROM ZRVtbCoding WHERE MCode='5'"_s), QStringList{u"2"_s});
}

TEST_F(Dialect, SecondStatementInOneTextIsRefusedAndNothingRuns)
{
    EXPECT_EQ(errorOf(u"DELETE FROM ZRVtbCoding; DELETE FROM ZRVtbCoding"_s), store_error::Syntax);
    EXPECT_EQ(errorOf(u"DELETE FROM ZRVtbCoding DELETE FROM ZRVtbCoding"_s), store_error::Syntax);
    EXPECT_EQ(errorOf(u"DELETE FROM ZRVtbCoding;;"_s), store_error::Syntax);
    EXPECT_EQ(rows(u"SELECT SCode FROM ZRVtbCoding WHERE MCode='5'"_s).size(), 2);
}

TEST_F(Dialect, CommentsAreRefused)
{
    EXPECT_EQ(errorOf(u"SELECT * FROM ZRVtbCoding -- all"_s), store_error::Syntax);
    EXPECT_EQ(errorOf(u"SELECT /* all */ * FROM ZRVtbCoding"_s), store_error::Syntax);
    EXPECT_EQ(rows(u"SELECT '-- /* */' FROM User_Defination"_s), QStringList{u"-- /* */"_s})
        << "in a text they are text";
}

TEST_F(Dialect, StatementsThatTheDialectLacksAreRefused)
{
    for (const QStringView statement : {u"DROP TABLE ZRVtbCoding",
                                        u"PRAGMA journal_mode=OFF",
                                        u"ATTACH 'x' AS y",
                                        u"VACUUM",
                                        u"BEGIN",
                                        u"",
                                        u"SELECT",
                                        u"SELECT * FROM",
                                        u"SELECT 1 UNION SELECT 2",
                                        u"SELECT * FROM ZRVtbCoding WHERE",
                                        u"SELECT * FROM ZRVtbCoding LIMIT 1 2",
                                        u"UPDATE ZRVtbCoding",
                                        u"INSERT INTO ZRVtbCoding",
                                        u"CREATE INDEX i ON ZRVtbCoding(MCode)",
                                        u"ALTER TABLE ZRVtbCoding RENAME TO x",
                                        u"SELECT load_extension('x') FROM ZRVtbCoding",
                                        u"SELECT zrv_val('1') FROM ZRVtbCoding",
                                        u"SELECT 5WHERE",
                                        u"SELECT 'open",
                                        u"SELECT [open",
                                        u"SELECT * FROM ZRVtbCoding WHERE SCode = ?"})
        EXPECT_EQ(errorOf(statement.toString()), store_error::Syntax) << statement.toString().toStdString();
}

TEST_F(Dialect, ReadingNeedsARecordsetAndWritingAConnection)
{
    const Connection connection(connectionString());
    EXPECT_THROW(Connection(connectionString()).execute(u"SELECT * FROM ZRVtbCoding"_s), RunTimeError);
    EXPECT_THROW(Recordset(connection, u"DELETE FROM ZRVtbCoding"_s), RunTimeError);
    EXPECT_FALSE(rows(u"SELECT * FROM ZRVtbCoding"_s).isEmpty());
}

TEST_F(Dialect, UnknownColumnIsMissingWhereverItStands)
{
    for (const QStringView statement :
         {u"SELECT Nobody FROM ZRVtbCoding", u"SELECT ZRVtbCoding.Nobody FROM ZRVtbCoding",
          u"SELECT Other.SCode FROM ZRVtbCoding", u"SELECT Other.* FROM ZRVtbCoding",
          u"SELECT [Nobody] FROM ZRVtbCoding", u"SELECT SCode FROM ZRVtbCoding WHERE Nobody='1'",
          u"SELECT SCode FROM ZRVtbCoding ORDER BY Nobody", u"SELECT count(*) FROM ZRVtbCoding GROUP BY Nobody",
          u"SELECT val(Nobody) FROM ZRVtbCoding", u"SELECT SCode AS x FROM ZRVtbCoding WHERE x='1'",
          u"SELECT a.SCode FROM ZRVtbCoding AS a LEFT JOIN ZRVtbCoding AS b ON a.SCode=b.Nobody",
          u"UPDATE ZRVtbCoding Set Nobody='1'", u"UPDATE ZRVtbCoding Set SDesc=Nobody",
          u"DELETE FROM ZRVtbCoding WHERE Nobody='1'", u"INSERT INTO ZRVtbCoding (Nobody) VALUES ('1')",
          u"INSERT INTO ZRVtbCoding VALUES (Nobody,'','','')", u"ALTER TABLE ZRVtbCoding ALTER COLUMN Nobody TEXT(5)"})
        EXPECT_EQ(errorOf(statement.toString()), store_error::MissingColumn) << statement.toString().toStdString();
    EXPECT_EQ(store_error::MissingColumn, -2147217904);
    EXPECT_TRUE(error(u"SELECT ZRVtbCoding.Nobody FROM ZRVtbCoding"_s).description().contains(u"ZRVtbCoding.Nobody"_s));
}

TEST_F(Dialect, UnknownTableIsMissing)
{
    for (const QStringView statement :
         {u"SELECT * FROM Nothing", u"DELETE FROM Nothing", u"UPDATE Nothing Set a='1'",
          u"INSERT INTO Nothing VALUES ('1')", u"ALTER TABLE Nothing ADD COLUMN a TEXT(1)",
          u"SELECT * FROM sqlite_schema", u"SELECT * FROM sqlite_master", u"SELECT * FROM pragma_table_info"})
        EXPECT_EQ(errorOf(statement.toString()), store_error::MissingTable) << statement.toString().toStdString();
}

TEST_F(Dialect, DoubleQuotesHoldATextEvenOneThatNamesAColumn)
{
    EXPECT_EQ(rows(u"SELECT \"SCode\" FROM User_Defination"_s), QStringList{u"SCode"_s});
    EXPECT_EQ(rows(u"SELECT UserNamee FROM User_Defination WHERE \"it's\" = \"IT'S\""_s), QStringList{u"ADMIN"_s});
}

TEST_F(Dialect, NameOfTwoTablesMustBeQualified)
{
    EXPECT_EQ(errorOf(u"SELECT SCode FROM ZRVtbCoding,ZRVtbCoding AS b"_s), store_error::Syntax);
    EXPECT_EQ(errorOf(u"SELECT a.SCode FROM ZRVtbCoding a,ZRVtbCoding a"_s), store_error::Syntax);
    EXPECT_EQ(rows(u"SELECT a.SCode FROM ZRVtbCoding a,User_Defination WHERE a.MCode='5'"_s).size(), 2)
        << "an alias needs no AS";
}

TEST_F(Dialect, TextIsNotComparedWithANumber)
{
    EXPECT_EQ(errorOf(u"SELECT * FROM ZRVtbCoding WHERE MCode = 5"_s), store_error::TypeMismatch);
    EXPECT_EQ(errorOf(u"SELECT * FROM ZRVtbCoding WHERE MCode IN ('5', 6)"_s), store_error::TypeMismatch);
    EXPECT_EQ(rows(u"SELECT SCode FROM ZRVtbCoding WHERE val(MCode) = 5 AND SCode IN ('2')"_s), QStringList{u"2"_s});
}

TEST_F(Dialect, NullAndEmptyTextAreKeptApart)
{
    execute(u"INSERT INTO ZRVtbCoding VALUES ('40',null,'1','')"_s);
    EXPECT_EQ(rows(u"SELECT SDesc,MDesc FROM ZRVtbCoding WHERE MCode='40'"_s), QStringList{u"|NULL"_s});
    EXPECT_EQ(rows(u"SELECT SCode FROM ZRVtbCoding WHERE MCode='40' AND MDesc=''"_s).size(), 0);
    EXPECT_EQ(rows(u"SELECT SCode FROM ZRVtbCoding WHERE MCode='40' AND MDesc Is Null AND SDesc IS NOT NULL"_s).size(),
              1);
    EXPECT_TRUE(value(u"SELECT MDesc + 'x' FROM ZRVtbCoding WHERE MCode='40'"_s).isNull());
    EXPECT_EQ(value(u"SELECT MDesc & 'x' FROM ZRVtbCoding WHERE MCode='40'"_s), Value(u"x"_s));
    EXPECT_TRUE(value(u"SELECT MDesc & null FROM ZRVtbCoding WHERE MCode='40'"_s).isNull());
}

TEST_F(Dialect, PlusJoinsTextsAndAddsNumbers)
{
    EXPECT_EQ(rows(u"SELECT 1+2, '1'+2, 1+'2', val('1')+val('2'), 7-2*3, 3/2, -(2)+5 FROM User_Defination"_s),
              QStringList{u"3|12|12|3|1|1.5|3"_s});
}

TEST_F(Dialect, ConditionsNestAndNegate)
{
    const auto count = [&](QStringView condition) {
        return value("SELECT count(*) FROM ZRVtbCoding WHERE MCode='18' AND "_L1 + condition);
    };
    EXPECT_EQ(count(u"(SCode='1' OR SCode='2' AND SCode='3')"), Value(qint64(1))) << "AND binds closer";
    EXPECT_EQ(count(u"NOT SCode='1'"), Value(qint64(2)));
    EXPECT_EQ(count(u"SCode NOT IN ('1','2')"), Value(qint64(1)));
    EXPECT_EQ(count(u"SCode BETWEEN '1' AND '2' AND SCode<>'1'"), Value(qint64(1)));
    EXPECT_EQ(count(u"SCode NOT BETWEEN '1' AND '2'"), Value(qint64(1)));
    EXPECT_EQ(count(u"SDesc NOT LIKE '%با%'"), Value(qint64(2)));
    EXPECT_EQ(count(u"IIf(SCode='1',0,1)"), Value(qint64(2)));
}

TEST_F(Dialect, GroupsAndHavingCountLists)
{
    EXPECT_EQ(rows(u"SELECT MCode,count(*) AS n FROM ZRVtbCoding GROUP BY MCode HAVING count(*)=17+1 ORDER BY "
                   "val(MCode) DESC"_s),
              QStringList{u"8|18"_s});
    execute(u"INSERT INTO ZRVtbCoding VALUES ('a','x','1','')"_s);
    execute(u"INSERT INTO ZRVtbCoding VALUES ('A','X','2','')"_s);
    EXPECT_EQ(rows(u"SELECT count(*) FROM ZRVtbCoding WHERE MDesc='x' GROUP BY MCode"_s), QStringList{u"2"_s});
    EXPECT_EQ(rows(u"SELECT DISTINCT MDesc + '' FROM ZRVtbCoding WHERE MDesc='x'"_s).size(), 1);
}

TEST_F(Dialect, BracketsOnTheRightOfAJoinAreKept)
{
    EXPECT_EQ(rows(u"SELECT a.SCode,b.SCode,c.SCode FROM ZRVtbCoding AS a LEFT JOIN (ZRVtbCoding AS b INNER JOIN "
                   "ZRVtbCoding AS c ON b.SCode=c.SCode AND c.MCode='18') ON a.SCode=b.SCode AND b.MCode='5' WHERE "
                   "a.MCode='19' ORDER BY a.SCode"_s),
              (QStringList{u"1|1|1"_s, u"2|2|2"_s, u"3|NULL|NULL"_s}));
    EXPECT_EQ(rows(u"SELECT a.SCode,b.SCode FROM ZRVtbCoding AS a RIGHT JOIN ZRVtbCoding AS b ON a.SCode=b.SCode AND "
                   "a.MCode='5' WHERE b.MCode='18' ORDER BY b.SCode"_s),
              (QStringList{u"1|1"_s, u"2|2"_s, u"NULL|3"_s}));
}

TEST_F(Dialect, UnsortedRowsComeInTheOrderOfEntry)
{
    execute(u"DELETE FROM ZRVtbCoding WHERE MCode='18'"_s);
    for (const QStringView code : {u"9", u"2", u"7", u"1"})
        execute("INSERT INTO ZRVtbCoding VALUES ('18','',"_L1 + quoted(code) + ",'')"_L1);
    EXPECT_EQ(rows(u"SELECT SCode FROM ZRVtbCoding WHERE MCode='18'"_s), (QStringList{u"9"_s, u"2"_s, u"7"_s, u"1"_s}));
}

TEST_F(Dialect, ResultsWithoutANameAreNumbered)
{
    const Recordset set(Connection(connectionString()), u"SELECT UserNamee,1,Name AS n,'x' FROM User_Defination"_s);
    EXPECT_EQ(set.columnName(1), u"Expr1001"_s);
    EXPECT_EQ(set.columnName(3), u"Expr1003"_s);
    EXPECT_EQ(set.columnName(2), u"n"_s);
}

TEST_F(Dialect, StatementsOfAnyDepthAreReadOrRefused)
{
    const auto nested = [](int depth) {
        return QString("SELECT "_L1 + u"("_s.repeated(depth) + u'1' + u")"_s.repeated(depth)
                       + " FROM User_Defination"_L1);
    };
    EXPECT_EQ(rows(nested(20)), QStringList{u"1"_s});
    EXPECT_EQ(errorOf(nested(10000)), store_error::Syntax);
    const auto chained = [](int terms) {
        return QString("SELECT UserNamee FROM User_Defination WHERE Name='x'"_L1 + u" OR Name='x'"_s.repeated(terms));
    };
    EXPECT_EQ(errorOf(chained(300)), 0);
    EXPECT_EQ(errorOf(chained(100000)), store_error::Syntax);
    EXPECT_EQ(errorOf("SELECT UserNamee FROM User_Defination WHERE NOT "_L1 + u"NOT "_s.repeated(5000) + "1"_L1),
              store_error::Syntax);
}

TEST_F(Dialect, ValueWithAQuoteCannotEnterAStatement)
{
    for (const QString &value : {u"O'Brien"_s, u"' OR '1'='1"_s, u"''"_s, u"a\0b"_s}) {
        try {
            (void)quoted(value);
            ADD_FAILURE() << value.toStdString();
        } catch (const RunTimeError &error) {
            EXPECT_EQ(error.number(), store_error::Syntax);
        }
    }
    EXPECT_EQ(quoted(u"a\"b"), u"'a\"b'"_s);
    EXPECT_EQ(errorOf(u"INSERT INTO ZRVtbCoding VALUES ('2','x','60','O'Brien')"_s), store_error::Syntax);
    EXPECT_TRUE(rows(u"SELECT * FROM ZRVtbCoding WHERE SCode='60'"_s).isEmpty());
}

} // namespace zrv
