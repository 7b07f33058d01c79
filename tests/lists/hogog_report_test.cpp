// SPDX-License-Identifier: GPL-3.0-or-later
// The printed salary list: every cell, total, word and page, without a window.
#include "core/basic/number_format.h"
#include "lists/rptHogogTextFile.h"
#include "tests/lists/payee_rows.h"
#include "tests/lists/report_text.h"

namespace zrv {
namespace {

class HogogReport : public testing::TestWithParam<int> {
protected:
    static std::vector<report::Text> textsBelowHeader(const report::Page &page)
    {
        std::vector<report::Text> texts;
        for (const report::Item &item : page.items)
            if (const auto *text = std::get_if<report::Text>(&item); text && text->box.top() > 33)
                texts.push_back(*text);
        return texts;
    }
};

constexpr std::array<QStringView, 18> FieldsInOrder{u"Radif",
                                                    u"MelliCode",
                                                    u"CodeMelliState",
                                                    u"Name",
                                                    u"Family",
                                                    u"FatherName",
                                                    u"PostCode",
                                                    u"Semat",
                                                    u"Sabege",
                                                    u"Madrak",
                                                    u"Rasteh",
                                                    u"ShakhsMoafCode",
                                                    u"EstekhdamType",
                                                    u"BimehType",
                                                    u"InsuNo",
                                                    u"JariSumHogog",
                                                    u"FinalDaramadeMashmol",
                                                    u"FinalTax"};

bool isAmount(QStringView field)
{
    return field == u"JariSumHogog" || field == u"FinalDaramadeMashmol" || field == u"FinalTax";
}

TEST_P(HogogReport, PrintsEveryCellOfEveryRowInTheOrderOfTheColumns)
{
    const int payees = GetParam();
    const auto rows = std::make_shared<PayeeRows>(payees);
    const rptHogogTextFile report({rows, PayeeRows::fields()}, PayeeRows::header());
    ASSERT_EQ(report.pageCount(), payees / 20 + 1);
    int row = 0;
    for (int number = 0; number < report.pageCount(); ++number) {
        const std::vector<report::Text> texts = textsBelowHeader(report.page(number));
        size_t at = 0;
        for (; at < texts.size() && texts[at].control == u"Radif"; ++row) {
            double right = 300;
            for (const QStringView field : FieldsInOrder) {
                const report::Text &cell = texts.at(at++);
                const QString stored = field == u"Radif" ? QString::number(row + 1) : rows->cell(row, field);
                ASSERT_EQ(cell.control, field) << "row " << row;
                ASSERT_EQ(cell.text, isAmount(field) ? Format(stored, u"#,##0") : stored) << "row " << row;
                ASSERT_LT(cell.box.right(), right);
                right = cell.box.left() + 1e-6;
            }
            ASSERT_EQ(texts.at(at++).text, u"********");
        }
        ASSERT_EQ(texts.size() - at, number == report.pageCount() - 1 ? 6u : 0u);
    }
    EXPECT_EQ(row, payees);
}

TEST_P(HogogReport, AddsUpTheGrandTotalsOnTheLastPageAlone)
{
    const int payees = GetParam();
    const auto rows = std::make_shared<PayeeRows>(payees);
    const rptHogogTextFile report({rows, PayeeRows::fields()}, PayeeRows::header());
    const report::Page last = report.page(report.pageCount() - 1);
    for (const QStringView field : {u"JariSumHogog", u"FinalDaramadeMashmol", u"FinalTax"}) {
        qint64 sum = 0;
        for (int row = 0; row < payees; ++row)
            sum += rows->cell(row, field).toLongLong();
        EXPECT_EQ(textsOf(last, field).constLast(), Format(sum, u"#,##0")) << field.toUtf8().constData();
    }
    const QString text = report::textOf(last);
    for (const QStringView caption :
         {u"  : جمع کل حقوق پرداختي ", u"  : جمع کل درآمد مشمول ", u"  : جمع کل ماليات متعلقه"}) {
        EXPECT_TRUE(text.contains(caption));
        EXPECT_TRUE(report.pageCount() == 1 || !report::textOf(report.page(0)).contains(caption));
    }
}

TEST_P(HogogReport, EveryPageHasItsHeaderItsNumberAndTheTablesHead)
{
    const int payees = GetParam();
    const rptHogogTextFile report({std::make_shared<PayeeRows>(payees), PayeeRows::fields()}, PayeeRows::header());
    for (int number = 0; number < report.pageCount(); ++number) {
        const report::Page page = report.page(number);
        ASSERT_EQ(textsOf(page, u"PageShomare"), QStringList(QString::number(number + 1)));
        ASSERT_EQ(textsOf(page, u"txtMonth"), QStringList(u"ليست حقوق ارديبهشت ماه سال 1389"_s));
        ASSERT_EQ(textsOf(page, u"txtName"), QStringList(u"شرکت نمونه - دفتر مرکزي"_s));
        ASSERT_EQ(textsOf(page, u"txtDate"), QStringList(u"1389/03/03"_s));
        ASSERT_EQ(textsOf(page, u"txtKarkonanTedad"), QStringList(Format(payees, u"#,##0")));
        const QString text = u'\n' + report::textOf(page) + u'\n';
        for (const QStringView caption : {u": تاريخ گزارشگيري",
                                          u": صفحه ",
                                          u" : تعداد کارکنان",
                                          u" رديف",
                                          u"کد ملي",
                                          u"وضعيت",
                                          u"نام",
                                          u"نام خانوادگي",
                                          u"نام پدر",
                                          u"کد پستي",
                                          u"سمت يا شغل",
                                          u"سابقه",
                                          u"مدرک",
                                          u"رسته",
                                          u"معافيت",
                                          u"نوع استخدام",
                                          u"نوع بيمه",
                                          u"شماره بيمه",
                                          u"جمع حقوق",
                                          u"درآمد مشمول",
                                          u"ماليات ",
                                          u"*******"})
            ASSERT_TRUE(text.contains(u'\n' + caption.toString() + u'\n')) << caption.toUtf8().constData();
    }
}

TEST_P(HogogReport, NoTextReachesIntoAnother)
{
    const rptHogogTextFile report({std::make_shared<PayeeRows>(GetParam()), PayeeRows::fields()}, PayeeRows::header());
    expectApart(report, 0);
    expectApart(report, report.pageCount() - 1);
}

INSTANTIATE_TEST_SUITE_P(Payees, HogogReport, testing::Values(1, 19, 20, 21, 39, 40, 500, 20'000));

QStringList runningNumbers(const rptHogogTextFile &report, int page)
{
    return textsOf(report.page(page), u"Radif");
}

TEST(HogogReportPages, TheRunningNumberGoesOnAcrossPages)
{
    const rptHogogTextFile report({std::make_shared<PayeeRows>(45), PayeeRows::fields()}, PayeeRows::header());
    EXPECT_EQ(runningNumbers(report, 0).constLast(), u"20");
    EXPECT_EQ(runningNumbers(report, 1).constFirst(), u"21");
    EXPECT_EQ(runningNumbers(report, 2), (QStringList{u"41"_s, u"42"_s, u"43"_s, u"44"_s, u"45"_s}));
}

TEST(HogogReportPages, TheTotalsNeverStandWithoutARow)
{
    const rptHogogTextFile full({std::make_shared<PayeeRows>(40), PayeeRows::fields()}, PayeeRows::header());
    ASSERT_EQ(full.pageCount(), 3);
    EXPECT_EQ(runningNumbers(full, 1).constLast(), u"39");
    EXPECT_EQ(runningNumbers(full, 2), QStringList(u"40"_s));
    const rptHogogTextFile fits({std::make_shared<PayeeRows>(39), PayeeRows::fields()}, PayeeRows::header());
    EXPECT_EQ(fits.pageCount(), 2);
}

TEST(HogogReportPages, NoRowIsCutInTwo)
{
    const rptHogogTextFile report({std::make_shared<PayeeRows>(40), PayeeRows::fields()}, PayeeRows::header());
    for (int number = 0; number < 3; ++number)
        for (const report::Item &item : report.page(number).items)
            EXPECT_LE(report::boxOf(item).bottom(), 205);
}

TEST(HogogReportPages, APageIsMadeFromItsOwnRowsAlone)
{
    const auto rows = std::make_shared<PayeeRows>(20'000);
    const rptHogogTextFile report({rows, PayeeRows::fields()}, PayeeRows::header());
    EXPECT_EQ(report.pageCount(), 1001);
    EXPECT_EQ(rows->cellsRead, 0);
    EXPECT_EQ(runningNumbers(report, 499).constFirst(), u"9981");
    EXPECT_EQ(rows->cellsRead, 20 * 17);
}

TEST(HogogReportPages, AListOfNoRowsIsOnePageOfHeadersAndZeros)
{
    const rptHogogTextFile report({std::make_shared<PayeeRows>(0), PayeeRows::fields()}, PayeeRows::header());
    ASSERT_EQ(report.pageCount(), 1);
    EXPECT_TRUE(runningNumbers(report, 0).isEmpty());
    EXPECT_EQ(textsOf(report.page(0), u"FinalTax"), QStringList(u"0"_s));
}

TEST(HogogReportCells, TheCaptionOfTheStateIsTheCallers)
{
    rptHogogTextFile::Header header = PayeeRows::header();
    const ReportRows rows{std::make_shared<PayeeRows>(1), PayeeRows::fields()};
    EXPECT_EQ(textsOf(rptHogogTextFile(rows, header).page(0), u"lblVaziat"), QStringList(u"وضعيت"_s));
    header.lblVaziat.clear();
    EXPECT_EQ(textsOf(rptHogogTextFile(rows, header).page(0), u"lblVaziat"), QStringList(QString()));
}

TEST(HogogReportCells, AFieldThatTheRowsLackIsEmpty)
{
    QStringList fields = PayeeRows::fields();
    fields[fields.indexOf(u"Semat")] = u"Other"_s;
    const rptHogogTextFile report({std::make_shared<PayeeRows>(1), fields}, PayeeRows::header());
    EXPECT_EQ(textsOf(report.page(0), u"Semat"), QStringList(QString()));
}

TEST(HogogReportCells, BlankAmountsStayBlankAndCountAsNothing)
{
    auto rows = std::make_shared<PayeeRows>(3);
    rows->finalTax = QString();
    const rptHogogTextFile report({rows, PayeeRows::fields()}, PayeeRows::header());
    EXPECT_EQ(textsOf(report.page(0), u"FinalTax"), (QStringList{QString(), QString(), QString(), u"0"_s}));
}

TEST(HogogReportCells, ATotalBeyond64BitsStaysAtItsEnd)
{
    auto rows = std::make_shared<PayeeRows>(3);
    rows->finalTax = u"9223372036854775807"_s;
    const rptHogogTextFile report({rows, PayeeRows::fields()}, PayeeRows::header());
    EXPECT_EQ(report.total(u"FinalTax"), std::numeric_limits<qint64>::max());
    rows->finalTax = u"-9223372036854775807"_s;
    EXPECT_EQ(report.total(u"FinalTax"), -std::numeric_limits<qint64>::max());
}

TEST(HogogReportCells, KindOfInsuranceAsANumberIsGroupedAndAsATextStays)
{
    auto rows = std::make_shared<PayeeRows>(1);
    const rptHogogTextFile report({rows, PayeeRows::fields()}, PayeeRows::header());
    rows->bimehType = u"1000"_s;
    EXPECT_EQ(textsOf(report.page(0), u"BimehType"), QStringList(u"1,000"_s));
    rows->bimehType = u"تامين اجتماعي"_s;
    EXPECT_EQ(textsOf(report.page(0), u"BimehType"), QStringList(u"تامين اجتماعي"_s));
}

TEST(HogogReportApproved, AListOfTwoPages)
{
    const rptHogogTextFile report({std::make_shared<PayeeRows>(22), PayeeRows::fields()}, PayeeRows::header());
    EXPECT_EQ(report.title(), u"پيش نمايش ليست حقوق");
    compareWithApproved(writtenReport(report),
                        QStringLiteral(ZRV_SOURCE_DIR "/tests/lists/approved/rptHogogTextFile.txt"));
}

} // namespace
} // namespace zrv
