// SPDX-License-Identifier: GPL-3.0-or-later
// Counting and copying the salary rows of a month.
#include "lists/month_copy.h"
#include "tests/core/screens/quiet_platform.h"
#include "tests/core/store/store_fixture.h"
#include "tests/print_text.h"

namespace zrv {
namespace {

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

} // namespace
} // namespace zrv
