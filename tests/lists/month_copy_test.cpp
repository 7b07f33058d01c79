// SPDX-License-Identifier: GPL-3.0-or-later
// Counting and copying the salary rows of a month.
#include "lists/month_copy.h"
#include "tests/core/screens/quiet_platform.h"
#include "tests/core/store/store_fixture.h"
#include "tests/print_text.h"

#include <QFile>

namespace zrv {
namespace {

// clang-format off
const QString Clash = u"0||برخي و يا تمام اطلاعات انتخاب شده در مبدا ، در مقصد موجود ميباشد.ادامه عمليات انتقال امکان پذير نميباشد"_s;
// clang-format on

/// Remembers the boxes: style, title and text, bars between.
class BoxReader : public QuietPlatform {
public:
    QStringList boxes;

    Answer messageBox(int style, const QString &title, const QString &text) override
    {
        boxes += QString::number(style) + u'|' + title + u'|' + text;
        return Answer::Ok;
    }
};

class MonthCopy : public StoreTest {
protected:
    MonthCopy()
    {
        program.StoreConnectionString = connectionString();
        program.PayerTFN = u"123456789012"_s;
        addPayee(u"1"_s, u"''"_s);
        addPayee(u"2"_s, u"'13890415'"_s);
        addPayee(u"3"_s, u"NULL"_s);
        for (const QString &payee : {u"1"_s, u"2"_s, u"3"_s, u"9"_s})
            addSalary(payee, {u"1389"_s, u"01"_s});
    }

    void addPayee(const QString &code, const QString &endDate)
    {
        execute(u"INSERT INTO ZRVtbKarkonan (TFN,MelliCode,Name,Family,EndDate) VALUES ('123456789012','"_s + code
                + u"','نام','فاميل',"_s + endDate + u')');
    }

    void addSalary(const QString &code, const ListMonth &month, const QString &tfn = u"123456789012"_s)
    {
        execute(u"INSERT INTO ZRVtbHogog (TFN,MelliCode,TaxYear,TaxMonth,NJariHogog,NTotalDaramad,MaskanStatus,"
                "GTotalDaramad,PJariHogog,NGPTotalDaramadeMashmol,FinalDaramadeMashmol,JariTax,FinalTax) VALUES ('"_s
                + tfn + u"','"_s + code + u"','"_s + month.year + u"','"_s + month.month
                + u"','0500','500','2','','30','7','100','20','10')"_s);
    }

    /// The row of the count, columns between bars.
    QString counted(const ListMonth &source, const ListMonth &target = {})
    {
        const Recordset row = CountTransferable(program, source, target);
        QStringList columns;
        for (const QString &name :
             {u"KarkonanNo"_s, u"SUMNGPTotalDaramadeMashmol"_s, u"SUMFinalDaramadeMashmol"_s, u"SUMFinalTax"_s})
            columns += row.value(name).isNull() ? u"NULL"_s : row.value(name).toText();
        return columns.join(u'|');
    }

    QStringList payeesOf(const ListMonth &month)
    {
        return rows(u"SELECT MelliCode FROM ZRVtbHogog WHERE TaxYear="_s + quoted(month.year) + u" AND TaxMonth="_s
                    + quoted(month.month));
    }

    BoxReader platform;
    Program program{platform};
    const ListMonth firstMonth{u"1389"_s, u"01"_s};
};

TEST_F(MonthCopy, NoTargetMonthExcludesNobody)
{
    EXPECT_EQ(counted(firstMonth), u"3|1590|300|30");
}

TEST_F(MonthCopy, EndWithinTheTargetMonthKeepsThePayee)
{
    EXPECT_EQ(counted(firstMonth, {u"1389"_s, u"04"_s}), u"3|1590|300|30");
    EXPECT_EQ(counted(firstMonth, {u"1389"_s, u"05"_s}), u"2|1060|200|20");
    CopyMonth(program, firstMonth, {u"1389"_s, u"04"_s});
    CopyMonth(program, firstMonth, {u"1389"_s, u"05"_s});
    EXPECT_EQ(payeesOf({u"1389"_s, u"04"_s}), (QStringList{u"1"_s, u"2"_s, u"3"_s}));
    EXPECT_EQ(payeesOf({u"1389"_s, u"05"_s}), (QStringList{u"1"_s, u"3"_s}));
    EXPECT_EQ(platform.boxes, QStringList());
}

TEST_F(MonthCopy, EndOnTheFirstDayKeepsThePayeeAndTheDayBeforeDoesNot)
{
    execute(u"UPDATE ZRVtbKarkonan SET EndDate='13890501' WHERE MelliCode='2'"_s);
    EXPECT_EQ(counted(firstMonth, {u"1389"_s, u"05"_s}), u"3|1590|300|30");
    execute(u"UPDATE ZRVtbKarkonan SET EndDate='13890431' WHERE MelliCode='2'"_s);
    EXPECT_EQ(counted(firstMonth, {u"1389"_s, u"05"_s}), u"2|1060|200|20");
}

TEST_F(MonthCopy, RowWithoutAPayeeFallsOutOfTheCountAndOfTheCopy)
{
    EXPECT_EQ(payeesOf(firstMonth).size(), 4);
    EXPECT_EQ(counted(firstMonth), u"3|1590|300|30");
    CopyMonth(program, firstMonth, {u"1390"_s, u"02"_s});
    EXPECT_FALSE(payeesOf({u"1390"_s, u"02"_s}).contains(u"9"_s));
}

TEST_F(MonthCopy, EmptyMonthCountsZeroWithoutSumsAndCopiesNothing)
{
    EXPECT_EQ(counted({u"1389"_s, u"07"_s}), u"0|NULL|NULL|NULL");
    CopyMonth(program, {u"1389"_s, u"07"_s}, {u"1390"_s, u"02"_s});
    EXPECT_EQ(payeesOf({u"1390"_s, u"02"_s}), QStringList());
    EXPECT_EQ(platform.boxes, QStringList());
}

TEST_F(MonthCopy, RowsOfAnotherPayerAreNeitherCountedNorCopied)
{
    addSalary(u"1"_s, {u"1389"_s, u"01"_s}, u"999999999999"_s);
    EXPECT_EQ(counted(firstMonth), u"3|1590|300|30");
    CopyMonth(program, firstMonth, {u"1390"_s, u"02"_s});
    EXPECT_EQ(payeesOf({u"1390"_s, u"02"_s}).size(), 2);
}

TEST_F(MonthCopy, RowsAreCopiedAsTheyStandWithNullsAndBlanks)
{
    CopyMonth(program, firstMonth, {u"1390"_s, u"02"_s});
    EXPECT_EQ(rows(u"SELECT * FROM ZRVtbHogog WHERE TaxYear='1390' AND MelliCode='1'"_s),
              QStringList{u"123456789012|1|1390|02|0500|NULL|NULL|500|NULL|NULL|NULL|2|NULL|NULL|NULL||NULL|30|NULL|7|"
                          "NULL|100|20|10"_s});
    EXPECT_EQ(payeesOf(firstMonth).size(), 4) << "the source stays";
}

TEST_F(MonthCopy, RowThatIsThereAlreadyLetsNothingBeCopied)
{
    const ListMonth target{u"1389"_s, u"02"_s};
    addSalary(u"3"_s, target);
    CopyMonth(program, firstMonth, target);
    EXPECT_EQ(platform.boxes, QStringList{Clash});
    EXPECT_EQ(payeesOf(target), QStringList{u"3"_s});
}

TEST_F(MonthCopy, OtherGeneralFailuresAreToldInTheWordsOfTheKeyClash)
{
    ASSERT_TRUE(QFile::remove(path()));
    CopyMonth(program, firstMonth, {u"1389"_s, u"02"_s});
    EXPECT_EQ(platform.boxes, QStringList{Clash});
}

TEST_F(MonthCopy, FailureOfAnotherNumberIsToldWithIt)
{
    CopyMonth(program, firstMonth, {u"13890"_s, u"02"_s});
    ASSERT_EQ(platform.boxes.size(), 1);
    EXPECT_TRUE(platform.boxes[0].contains(QString::number(store_error::ValueTooLong)))
        << platform.boxes[0].toStdString();
    EXPECT_EQ(payeesOf({u"13890"_s, u"02"_s}), QStringList());
    execute(u"ALTER TABLE ZRVtbHogog DROP COLUMN FinalTax"_s);
    CopyMonth(program, firstMonth, {u"1390"_s, u"02"_s});
    ASSERT_EQ(platform.boxes.size(), 2);
    EXPECT_TRUE(platform.boxes[1].contains(QString::number(store_error::MissingColumn)));
}

TEST_F(MonthCopy, NoQuoteInAMonthBecomesPartOfTheStatement)
{
    CopyMonth(program, firstMonth, {u"1389"_s, u"02' OR '1'='1"_s});
    ASSERT_EQ(platform.boxes.size(), 1);
    EXPECT_TRUE(platform.boxes[0].contains(QString::number(store_error::Syntax)));
    EXPECT_THROW((void)CountTransferable(program, {u"1389"_s, u"'"_s}), RunTimeError);
    EXPECT_EQ(rows(u"SELECT MelliCode FROM ZRVtbHogog"_s).size(), 4);
}

} // namespace
} // namespace zrv
