// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/store/code_table.h"
#include "core/store/dialect/translate.h"
#include "core/store/store_file.h"
#include "tests/core/store/month_query.h"
#include "tests/core/store/store_fixture.h"

#include <QFile>

#include <algorithm>
#include <array>
#include <random>
#include <sqlite3.h>

namespace zrv {

using dialect::CodeLists;

/// A store whose payees have codes of all kinds: known, unknown, in the other case, with blanks, empty, NULL.
class CodeLookups : public StoreTest {
protected:
    static constexpr int Payees = 300;

    CodeLookups()
    {
        QFile::remove(path());
        NewStore store(path());
        std::mt19937 random(11); // NOLINT(cert-msc51-cpp): the same rows in every run
        const auto code = [&]() -> Value {
            static const QStringList codes{u"1"_s, u"2"_s,  u"3"_s, u"1"_s,  u"2"_s,  u"0"_s,   u"a"_s,
                                           u"B"_s, u"99"_s, u""_s,  u"2 "_s, u" 1"_s, u"null"_s};
            const QString &text = codes[qsizetype(random() % std::size_t(codes.size()))];
            return text == "null"_L1 ? Value() : Value(text);
        };
        for (const QStringView list : {u"2", u"12", u"16", u"1", u"10", u"13", u"15", u"8"}) {
            for (const QStringView known : {u"0", u"1", u"2", u"3", u"A", u"b", u""})
                store.addRow(u"ZRVtbCoding", std::array<Value, 4>{list.toString(), Value(), known.toString(),
                                                                  known == u"3" ? Value() : Value(list + known)});
            store.addRow(u"ZRVtbCoding", std::array<Value, 4>{list.toString(), Value(), Value(), u"of NULL"_s});
        }
        for (int i = 0; i < Payees; ++i) {
            std::vector<Value> payee(20, Value(u"x"_s));
            payee[0] = random() % 9 == 0 ? u"9"_s : u"123456789012"_s;
            payee[1] = QString::number(i - (i % 10 == 0)); // some have the number of the one before
            for (const std::size_t column : {6U, 8U, 9U, 11U, 13U, 16U, 17U})
                payee[column] = random() % 3 == 0 ? code() : Value(QString::number(random() % 3));
            if (i % 10 == 0)
                payee[0] = u"8"_s;
            store.addRow(u"ZRVtbKarkonan", payee);
            std::vector<Value> salary(24, Value(u"5"_s));
            salary[0] = u"123456789012"_s;
            salary[1] = QString::number(Payees - i);
            salary[2] = u"1389"_s;
            salary[3] = u"01"_s;
            store.addRow(u"ZRVtbHogog", salary);
        }
        store.finish();
    }

    struct Result {
        QStringList rows;
        qsizetype lookups = 0;
        int count = 0;
    };

    Result run(const QString &select, CodeLists way)
    {
        StoreFile file(path());
        const dialect::Query query = translate(std::get<dialect::Select>(dialect::parse(select)), file, way);
        Result result;
        result.lookups = query.codeTables.size();
        CodeTables tables;
        const PreparedStatement statement = file.prepare(query.sql);
        tables = bindCodeTables(statement.get(), query.codeTables);
        while (file.step(statement)) {
            QStringList cells;
            for (int i = 0; i < sqlite3_column_count(statement.get()); ++i) {
                const auto *text = reinterpret_cast<const char *>(sqlite3_column_text(statement.get(), i));
                cells.append(text ? QString::fromUtf8(text) : u"NULL"_s);
            }
            result.rows.append(cells.join(u'|'));
        }
        CodeTables countTables;
        const PreparedStatement count = file.prepare(query.countSql);
        countTables = bindCodeTables(count.get(), query.codeTables);
        result.count = file.step(count) ? sqlite3_column_int(count.get(), 0) : -1;
        return result;
    }

    /// Both ways must give the same; returns the rows.
    QStringList compare(const QString &select, qsizetype lookups)
    {
        Result joined = run(select, CodeLists::Joined);
        Result lookedUp = run(select, CodeLists::InMemory);
        EXPECT_EQ(joined.lookups, 0);
        EXPECT_EQ(lookedUp.lookups, lookups) << select.toStdString();
        EXPECT_EQ(joined.count, joined.rows.size());
        EXPECT_EQ(lookedUp.count, joined.count);
        // Rows of one and the same first row may come in either order.
        std::sort(joined.rows.begin(), joined.rows.end());
        std::sort(lookedUp.rows.begin(), lookedUp.rows.end());
        EXPECT_EQ(joined.rows, lookedUp.rows) << select.toStdString();
        return joined.rows;
    }

    QString planOf(const QString &select, CodeLists way = CodeLists::InMemory)
    {
        StoreFile file(path());
        const dialect::Query query = translate(std::get<dialect::Select>(dialect::parse(select)), file, way);
        const PreparedStatement plan = file.prepare("EXPLAIN QUERY PLAN "_L1 + query.sql);
        QString text;
        while (file.step(plan))
            text += QString::fromUtf8(reinterpret_cast<const char *>(sqlite3_column_text(plan.get(), 3))) + u'\n';
        return text;
    }
};

TEST_F(CodeLookups, MonthQueryGivesTheSameRowsAsTheJoin)
{
    const QStringList rows = compare(monthQuery(), 8);
    EXPECT_GT(rows.size(), 20);
    EXPECT_LT(rows.size(), Payees) << "rows whose code is unknown drop out";
}

TEST_F(CodeLookups, LeftJoinsKeepRowsWithoutACode)
{
    const QString select =
        u"SELECT k.MelliCode,a.SDesc,a.SCode,b.SDesc,c.* FROM ((ZRVtbKarkonan AS k LEFT JOIN ZRVtbCoding AS a ON "
        "k.Madrak=a.SCode AND (a.MCode)='1') LEFT JOIN ZRVtbCoding AS b ON b.SCode=trim(k.Rasteh) AND "
        "'10'=b.MCode) LEFT JOIN ZRVtbCoding AS c ON (k.Semat=c.SCode AND c.MCode='2')"_s;
    EXPECT_EQ(compare(select, 3).size(), Payees);
    EXPECT_FALSE(compare(select + " WHERE a.SDesc IS NULL AND b.SDesc LIKE '10%'"_L1, 3).isEmpty());
    compare(select + " ORDER BY a.SDesc DESC,k.MelliCode"_L1, 3);
}

TEST_F(CodeLookups, InnerAndLeftJoinsMix)
{
    compare(
        u"SELECT k.MelliCode,a.SDesc,b.SDesc FROM (ZRVtbKarkonan k INNER JOIN ZRVtbCoding a ON k.Madrak=a.SCode AND "
        "a.MCode='1' AND k.TFN<>'9') LEFT JOIN ZRVtbCoding b ON k.Rasteh=b.SCode AND b.MCode='10' WHERE "
        "a.SDesc<>'12'"_s,
        2);
    compare(u"SELECT k.MelliCode,a.SDesc FROM ZRVtbKarkonan k INNER JOIN ZRVtbCoding a ON k.Madrak=a.SCode WHERE "
            "a.MCode='1'"_s,
            1);
    compare(u"SELECT a.SDesc,count(*),max(a.SCode) FROM ZRVtbKarkonan k,ZRVtbCoding a WHERE k.Madrak=a.SCode AND "
            "a.MCode='1' GROUP BY a.SDesc HAVING count(*)>2 ORDER BY a.SDesc"_s,
            1);
    compare(u"SELECT DISTINCT a.SCode FROM ZRVtbKarkonan k,ZRVtbCoding a WHERE k.Madrak=a.SCode AND a.MCode='1'"_s, 1);
    compare(u"SELECT * FROM ZRVtbKarkonan k,(SELECT k2.MelliCode AS m,a.SDesc AS d FROM ZRVtbKarkonan k2,ZRVtbCoding a "
            "WHERE k2.Madrak=a.SCode AND a.MCode='1') AS q WHERE q.m=k.MelliCode AND q.d='11'"_s,
            1);
}

TEST_F(CodeLookups, JoinsOfAnotherKindStayJoins)
{
    compare(u"SELECT k.MelliCode,a.SDesc FROM ZRVtbKarkonan k,ZRVtbCoding a WHERE k.Madrak=a.SCode"_s, 0);
    compare(u"SELECT k.MelliCode,a.SDesc FROM ZRVtbKarkonan k,ZRVtbCoding a WHERE a.MCode='1'"_s, 0);
    compare(u"SELECT k.MelliCode,a.SDesc FROM ZRVtbKarkonan k,ZRVtbCoding a WHERE k.Madrak=a.SCode OR a.MCode='1'"_s,
            0);
    compare(u"SELECT k.MelliCode,a.SDesc FROM ZRVtbKarkonan k LEFT JOIN ZRVtbCoding a ON k.Madrak=a.SCode AND "
            "a.MCode='1' AND k.TFN='8'"_s,
            0);
    compare(u"SELECT k.MelliCode,a.SDesc FROM ZRVtbKarkonan k RIGHT JOIN ZRVtbCoding a ON k.Madrak=a.SCode AND "
            "a.MCode='1'"_s,
            0);
    compare(u"SELECT a.SCode,b.SDesc FROM ZRVtbCoding a,ZRVtbCoding b WHERE a.SCode=b.SCode AND b.MCode='1' AND "
            "a.MCode='2'"_s,
            1);
    compare(u"SELECT k.MelliCode,a.SDesc,b.SDesc FROM ZRVtbKarkonan k,ZRVtbCoding a,ZRVtbCoding b WHERE "
            "k.Madrak=a.SCode AND a.MCode='1' AND a.SCode=b.SCode AND b.MCode='10'"_s,
            1);
}

TEST_F(CodeLookups, JoinedTablesAreReadInTheOrderWrittenEvenWhereNoOrderIsNeeded)
{
    const QString count = "SELECT count(*) "_L1 + monthQuery().mid(monthQuery().indexOf("FROM ZRVtbHogog"_L1));
    for (const QString &select : {monthQuery(), count}) {
        const QString plan = planOf(select, CodeLists::Joined);
        EXPECT_TRUE(plan.startsWith("SEARCH ZRVtbHogog USING"_L1)) << plan.toStdString();
        EXPECT_FALSE(plan.contains("TEMP B-TREE"_L1)) << plan.toStdString();
    }
}

TEST_F(CodeLookups, MonthIsReadByItsIndexAndNotSorted)
{
    for (const QString &select :
         {monthQuery(),
          u"SELECT * FROM ZRVtbHogog,ZRVtbKarkonan WHERE  ZRVtbHogog.TFN = '1' AND ZRVtbHogog.TaxYear = '1389' AND "
          "ZRVtbHogog.TaxMonth = '01' AND ZRVtbHogog.MelliCode = ZRVtbKarkonan.MelliCode"_s,
          u"SELECT * FROM ZRVtbHogog WHERE TFN = '1' AND TaxYear = '1389' AND TaxMonth = '01'"_s}) {
        const QString plan = planOf(select);
        EXPECT_TRUE(plan.contains("ZRVtbHogog_by_TFN_TaxYear_TaxMonth"_L1)) << plan.toStdString();
        EXPECT_FALSE(plan.contains("TEMP B-TREE"_L1)) << plan.toStdString();
        EXPECT_FALSE(plan.contains("SCAN"_L1)) << plan.toStdString();
    }
    EXPECT_TRUE(planOf(u"SELECT * FROM ZRVtbHogog WHERE MelliCode = '5'"_s).contains("ZRVtbHogog_by_MelliCode"_L1));
    EXPECT_TRUE(
        planOf(u"SELECT SDesc FROM ZRVtbCoding WHERE MCode='5' AND SCode='1'"_s).contains("ZRVtbCoding_key_"_L1));
}

} // namespace zrv
