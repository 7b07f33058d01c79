// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/store/store_file.h"
#include "tests/core/store/store_fixture.h"

#include <random>
#include <sqlite3.h>

namespace zrv {

namespace {

using Words = QStringList;

Words wordsOf(QStringView statement)
{
    return statement.toString().split(u' ', Qt::SkipEmptyParts);
}

/// Statements to spoil, their words divided by blanks.
const std::vector<Words> &models()
{
    static const std::vector<Words> statements = {
        wordsOf(u"SELECT a . SDesc , count(*) FROM ZRVtbCoding AS a , User_Defination WHERE a . MCode = '5' AND val( "
                "SCode ) > 1 GROUP BY a . SDesc HAVING count(*) > 0 ORDER BY a . SDesc DESC"),
        wordsOf(u"SELECT * FROM ( ZRVtbKarfarma LEFT JOIN ZRVtbCoding ON ZRVtbKarfarma . MMoadiType = ZRVtbCoding . "
                "SCode and ( ZRVtbCoding . MCode ) = '5' ) WHERE Name LIKE '%a%' OR Family IS NOT NULL"),
        wordsOf(u"INSERT INTO ZRVtbCoding VALUES ( '2' , 'x' , '77' , \"y\" )"),
        wordsOf(u"INSERT INTO ZRVtbCoding ( MCode , SCode ) SELECT MCode , '9' + SCode FROM ZRVtbCoding WHERE MCode = "
                "'18'"),
        wordsOf(u"UPDATE ZRVtbCoding Set SDesc = iif( SCode , 'a' , 'b' ) , MDesc = null WHERE MCode = '9'"),
        wordsOf(u"DELETE From ZRVtbCoding WHERE MCode = '19' AND SCode NOT IN ( '1' , '2' )"),
        wordsOf(u"ALTER TABLE User_Defination ADD COLUMN Extra TEXT( 5 )"),
        wordsOf(u"ALTER TABLE User_Defination DROP COLUMN Extra"),
        wordsOf(u"ALTER TABLE User_Defination ALTER COLUMN Family TEXT( 30 )"),
        wordsOf(u"SELECT SCode FROM ZRVtbCoding , ( SELECT MAX( TaxMonth ) as m FROM ZRVtbHogog ) as q WHERE q . m = "
                "SCode BETWEEN '1' AND '2'"),
    };
    return statements;
}

const Words &strayWords()
{
    static const Words words = wordsOf(u"' \" [ ] ( ) , . ; -- /* */ ? :a @b $c \\ | || ! % # ~ ^ + - * / & = <> <= 0 "
                                       "1.5 99999999999999999999 'x' \"y\" NULL NOT SELECT FROM sqlite_schema PRAGMA "
                                       "ATTACH DROP UNION CREATE TABLE rowid ZRVtbCoding SCode [SCode] sum( zrv_has( "
                                       "load_extension( سلام \u06F5");
    return words;
}

class Spoiler {
public:
    QString next()
    {
        Words words = models()[pick(models().size())];
        for (std::size_t changes = pick(20) == 0 ? 0 : 1 + pick(3); changes > 0; --changes)
            change(words);
        return words.join(pick(8) == 0 ? QString() : u" "_s);
    }

private:
    std::size_t pick(std::size_t choices) { return m_random() % choices; }

    void change(Words &words)
    {
        const auto at = qsizetype(pick(std::size_t(words.size()) + 1));
        const Words &other = models()[pick(models().size())];
        switch (pick(5)) {
        case 0:
            words.insert(at, strayWords()[qsizetype(pick(std::size_t(strayWords().size())))]);
            break;
        case 1:
            words.insert(at, other[qsizetype(pick(std::size_t(other.size())))]);
            break;
        case 2:
            words = words.mid(0, at);
            break;
        case 3:
            words.append(other.mid(qsizetype(pick(std::size_t(other.size())))));
            break;
        default:
            if (at < words.size())
                words.removeAt(at);
        }
    }

    std::mt19937 m_random{20}; // NOLINT(cert-msc51-cpp): the same statements in every run
};

} // namespace

class DialectFuzz : public StoreTest {};

TEST_F(DialectFuzz, SpoiltStatementsNeverCrashAndOnlyAWholeOneChangesTheStore)
{
    constexpr int Statements = 20000;
    StoreFile observer(path());
    const PreparedStatement version = observer.prepare(u"PRAGMA data_version"_s);
    const auto currentVersion = [&] {
        EXPECT_TRUE(observer.step(version));
        const int number = sqlite3_column_int(version.get(), 0);
        sqlite3_reset(version.get());
        return number;
    };
    Connection connection(connectionString());
    Spoiler spoiler;
    int refused = 0;
    int written = 0;
    int read = 0;
    for (int i = 0; i < Statements; ++i) {
        const QString statement = spoiler.next();
        const int before = currentVersion();
        try {
            for (Recordset rows(connection, statement); !rows.eof(); rows.moveNext()) {
            }
            ++read;
            EXPECT_EQ(currentVersion(), before) << statement.toStdString();
        } catch (const RunTimeError &) {
            EXPECT_EQ(currentVersion(), before) << statement.toStdString();
        }
        try {
            connection.execute(statement);
            ++written;
        } catch (const RunTimeError &error) {
            ++refused;
            EXPECT_FALSE(error.description().isEmpty());
            EXPECT_EQ(currentVersion(), before) << statement.toStdString();
        }
    }
    EXPECT_GT(read, 200);
    EXPECT_GT(written, 200);
    EXPECT_GT(refused, 5000);
    RecordProperty("read", read);
    RecordProperty("written", written);
    const PreparedStatement check = observer.prepare(u"PRAGMA integrity_check"_s);
    ASSERT_TRUE(observer.step(check));
    EXPECT_STREQ(reinterpret_cast<const char *>(sqlite3_column_text(check.get(), 0)), "ok");
}

} // namespace zrv
