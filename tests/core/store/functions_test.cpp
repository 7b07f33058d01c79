// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/core/store/store_fixture.h"

namespace zrv {

class Functions : public StoreTest {
protected:
    Value of(QStringView expression) const { return value("SELECT "_L1 + expression + " FROM User_Defination"_L1); }

    Value sumOf(const QStringList &amounts) const
    {
        execute(u"DELETE FROM ZRVtbCoding"_s);
        for (qsizetype i = 0; i < amounts.size(); ++i)
            execute("INSERT INTO ZRVtbCoding VALUES ('1','','"_L1 + QString::number(i) + "',"_L1 + amounts[i] + ")"_L1);
        return value(u"SELECT sum(SDesc) FROM ZRVtbCoding"_s);
    }
};

TEST_F(Functions, ValReadsTheLeadingNumber)
{
    EXPECT_EQ(of(u"val('0012')"), Value(qint64(12)));
    EXPECT_EQ(of(u"val('  1 2 ')"), Value(qint64(12)));
    EXPECT_EQ(of(u"val('12abc')"), Value(qint64(12)));
    EXPECT_EQ(of(u"val('1,234')"), Value(qint64(1)));
    EXPECT_EQ(of(u"val('abc')"), Value(qint64(0)));
    EXPECT_EQ(of(u"val('')"), Value(qint64(0)));
    EXPECT_EQ(of(u"val(null)"), Value(qint64(0)));
    EXPECT_EQ(of(u"val('-5.5')"), Value(-5.5));
    EXPECT_EQ(of(u"val('5.0')"), Value(qint64(5)));
    EXPECT_EQ(of(u"val('9007199254740993')"), Value(qint64(9007199254740993)));
    EXPECT_EQ(of(u"val(7)"), Value(qint64(7)));
}

TEST_F(Functions, SumAddsTextAmountsWithZerosBlanksEmptyTextsAndNull)
{
    EXPECT_EQ(sumOf({u"'0012'"_s, u"' 8 '"_s, u"''"_s, u"null"_s}), Value(qint64(20)));
    EXPECT_EQ(sumOf({u"'1.5'"_s, u"'2'"_s}), Value(3.5));
}

TEST_F(Functions, SumIsExactAndNeverInExponentForm)
{
    const Value sum = sumOf({u"'99999999999999999'"_s, u"'1'"_s, u"'3'"_s});
    EXPECT_EQ(sum.toText(), u"100000000000000003"_s);
    EXPECT_EQ(value(u"SELECT cstr(sum(SDesc)) FROM ZRVtbCoding"_s), Value(u"100000000000000003"_s));
}

TEST_F(Functions, SumWithoutRowsOrOfNullsIsNull)
{
    EXPECT_TRUE(sumOf({}).isNull());
    EXPECT_TRUE(sumOf({u"null"_s}).isNull());
    EXPECT_EQ(value(u"SELECT count(SDesc) FROM ZRVtbCoding"_s), Value(qint64(0)));
    EXPECT_EQ(value(u"SELECT count(*) FROM ZRVtbCoding"_s), Value(qint64(1)));
}

TEST_F(Functions, SumBeyondSixtyFourBitsIsAnErrorAndNoWrongAmount)
{
    EXPECT_THROW(sumOf({u"'9223372036854770000'"_s, u"'9999'"_s}), RunTimeError);
}

TEST_F(Functions, TextFunctions)
{
    EXPECT_EQ(of(u"'['+trim('  a b ')+'|'+ltrim('  a ')+'|'+rtrim(' a  ')+']'"), Value(u"[a b|a | a]"_s));
    EXPECT_EQ(of(u"left('سلام',2)"), Value(u"سل"_s));
    EXPECT_EQ(of(u"right('abc',0)"), Value(u""_s));
    EXPECT_EQ(of(u"right('abc',2)"), Value(u"bc"_s));
    EXPECT_EQ(of(u"mid('abcde',2,3)"), Value(u"bcd"_s));
    EXPECT_EQ(of(u"mid('abcde',4)"), Value(u"de"_s));
    EXPECT_EQ(of(u"ucase('aB')+lcase('aB')"), Value(u"ABab"_s));
    EXPECT_EQ(of(u"len('سلام')"), Value(qint64(4)));
    EXPECT_EQ(of(u"len(120)"), Value(qint64(3)));
    EXPECT_TRUE(of(u"trim(null)").isNull());
    EXPECT_TRUE(of(u"left(null,1)").isNull());
    EXPECT_EQ(of(u"cstr(val('01'))"), Value(u"1"_s));
    EXPECT_TRUE(of(u"cstr(null)").isNull());
}

TEST_F(Functions, IifTakesATextForTrueWhenItsNumberIsNotZero)
{
    EXPECT_EQ(of(u"iif('1','y','n')+iif('0','y','n')+iif('','y','n')+iif(null,'y','n')+iif('x','y','n')"),
              Value(u"ynnnn"_s));
    EXPECT_EQ(of(u"IIF(VAL('2')=2,1,0)"), Value(qint64(1)));
    EXPECT_EQ(of(u"iif(1=1,'a',5)"), Value(u"a"_s));
    EXPECT_EQ(of(u"iif(1=2,'a',5)"), Value(u"5"_s));
}

TEST_F(Functions, FormatKnowsThePicturesOfTheStatements)
{
    EXPECT_EQ(of(u"format('1234567',\"#,##0\")"), Value(u"1,234,567"_s));
    EXPECT_EQ(of(u"format('0012','#,##0')"), Value(u"12"_s));
    EXPECT_EQ(of(u"format('1,234','#,##0')"), Value(u"1,234"_s));
    EXPECT_EQ(of(u"format('','#,##0')"), Value(u""_s));
    EXPECT_EQ(of(u"format(null,'#,##0')"), Value(u""_s));
    EXPECT_EQ(of(u"format('13880102','####/##/##')"), Value(u"1388/01/02"_s));
    EXPECT_EQ(of(u"format(7,'0000')+format('7','00')+format('1,234','0')"), Value(u"0007071234"_s));
    EXPECT_EQ(of(u"format(val('12345678901234567'),'#,##0')"), Value(u"12,345,678,901,234,567"_s));
}

TEST_F(Functions, LikeKnowsTwoWildcardsAndTakesABracketForItself)
{
    const auto like = [&](QStringView text, QStringView pattern) {
        return !rows("SELECT 1 FROM User_Defination WHERE "_L1 + quoted(text) + " LIKE "_L1 + quoted(pattern))
                    .isEmpty();
    };
    EXPECT_TRUE(like(u"abc", u"A%"));
    EXPECT_TRUE(like(u"abc", u"a_c"));
    EXPECT_FALSE(like(u"abc", u"a_"));
    EXPECT_FALSE(like(u"abc", u"b"));
    EXPECT_TRUE(like(u"[a]", u"[A]"));
    EXPECT_FALSE(like(u"a", u"[a]"));
    EXPECT_TRUE(like(u"", u"%"));
    EXPECT_FALSE(like(u"", u"_"));
    EXPECT_TRUE(like(u"aXbXc", u"%x%x%"));
    EXPECT_TRUE(like(u"aaab", u"%ab"));
    EXPECT_FALSE(like(u"abc", u"*"));
}

TEST_F(Functions, LikeFindsANameWhicheverYehOrKafItWasStoredWith)
{
    const auto found = [&](QStringView pattern) {
        return rows("SELECT SCode FROM ZRVtbCoding WHERE MCode='70' AND SDesc LIKE "_L1 + quoted(pattern)).size();
    };
    for (const QStringView name : {u"\u0639\u0644\u064A", u"\u0639\u0644\u06CC", u"\u0639\u0644\u0649"})
        execute("INSERT INTO ZRVtbCoding VALUES ('70','','"_L1 + QString::number(name.back().unicode() % 1000) + "',"_L1
                + quoted(name) + u')');
    execute(u"INSERT INTO ZRVtbCoding VALUES ('70','','1','\u0643\u200C\u06A9')"_s);
    EXPECT_EQ(found(u"\u0639\u0644\u06CC"), 3);
    EXPECT_EQ(found(u"%\u0644\u0649"), 3);
    EXPECT_EQ(found(u"\u06A9\u0643"), 1);
    EXPECT_EQ(found(u"\u06A9\u200C_"), 1);
}

TEST_F(Functions, LikeOfNullIsUnknown)
{
    EXPECT_TRUE(rows(u"SELECT 1 FROM User_Defination WHERE null LIKE '%'"_s).isEmpty());
    EXPECT_TRUE(rows(u"SELECT 1 FROM User_Defination WHERE NOT (null LIKE '%')"_s).isEmpty());
}

TEST_F(Functions, UnknownFunctionOrWrongNumberOfArgumentsIsRefused)
{
    for (const QStringView call : {u"nobody('1')", u"val()", u"val('1','2')", u"iif(1=1,'a')", u"left('a')", u"count()",
                                   u"abs(1)", u"max('1','2')", u"load_extension('x')"})
        EXPECT_THROW(of(call), RunTimeError) << call.toString().toStdString();
}

} // namespace zrv
