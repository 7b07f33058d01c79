// SPDX-License-Identifier: GPL-3.0-or-later
// The printed summary list, without a window.
#include "core/basic/run_time_error.h"
#include "lists/rptKhol.h"
#include "tests/core/screens/quiet_platform.h"
#include "tests/core/store/store_fixture.h"
#include "tests/lists/report_text.h"

#include <algorithm>

namespace zrv {
namespace {

QString only(const report::Page &page, QStringView control)
{
    const QStringList texts = textsOf(page, control);
    EXPECT_EQ(texts.size(), 1) << control.toUtf8().constData();
    return texts.value(0);
}

/// The ticked boxes of the kinds of payment, in order.
QString ticks(const report::Page &page)
{
    QString seen;
    for (const report::Item &item : page.items)
        if (const auto *mark = std::get_if<report::CheckMark>(&item))
            seen += mark->ticked ? u'x' : u'.';
    return seen;
}

class KholReport : public StoreTest {
protected:
    KholReport()
    {
        program.StoreConnectionString = connectionString();
        execute(u"INSERT INTO ZRVtbKarfarma (TFN,CodeShobe,Name,Family,ShobeName,Address,TelNo,PostCode) VALUES ("
                "'123456789012','1','مريم','آذري','دفتر مرکزي','تهران، خيابان نمونه، پلاک 5','02112345678',"
                "'1134567890')"_s);
    }

    /// A saved cheque row of the second month of 1389 with these columns in place of the usual ones.
    void addRow(const QHash<QString, QString> &changes = {})
    {
        QHash<QString, QString> row{{u"TFN"_s, u"123456789012"_s},
                                    {u"KholListType"_s, u"1"_s},
                                    {u"TaxYear"_s, u"1389"_s},
                                    {u"TaxMonth"_s, u"02"_s},
                                    {u"JariSumHogog"_s, u"1234567890"_s},
                                    {u"JariSumMashmol"_s, u"987654321"_s},
                                    {u"JariTax"_s, u"98765432"_s},
                                    {u"JariJarimeDo"_s, u"1000"_s},
                                    {u"JariJarimeBist"_s, u"20000"_s},
                                    {u"JariBedehiTax"_s, u"300000"_s},
                                    {u"GablSumHogog"_s, u"2234567890"_s},
                                    {u"GablSumMashmol"_s, u"1987654321"_s},
                                    {u"GablTax"_s, u"198765432"_s},
                                    {u"GablJarimeDo"_s, u""_s},
                                    {u"GablJarimeBist"_s, u"0"_s},
                                    {u"GablBedehiTax"_s, u"7"_s},
                                    {u"RoznameDate"_s, u"13890225"_s},
                                    {u"KarkonanNo"_s, u"17"_s},
                                    {u"KharejiNo"_s, u"2"_s},
                                    {u"NahveyePardakht"_s, u"2"_s},
                                    {u"ChequeSeriNo"_s, u"445566"_s},
                                    {u"ChequeDate"_s, u"13890301"_s},
                                    {u"BankName"_s, u"1"_s},
                                    {u"ShobeName"_s, u"ميدان مرکزي"_s},
                                    {u"HesabNo"_s, u"0101234567008"_s},
                                    {u"MablagPardakhti"_s, u"115"_s}};
        row.insert(changes);
        QStringList columns;
        QStringList values;
        for (auto cell = row.cbegin(); cell != row.cend(); ++cell) {
            columns += cell.key();
            values += cell->isNull() ? u"NULL"_s : u'\'' + *cell + u'\'';
        }
        execute(u"INSERT INTO ZRVtbKholList ("_s + columns.join(u',') + u") VALUES ("_s + values.join(u',') + u')');
    }

    [[nodiscard]] KholRow readRow() const
    {
        return readKholRow(program, u"123456789012"_s, u"1"_s, u"1389"_s, u"02"_s);
    }
    [[nodiscard]] report::Page page() const { return rptKhol(program, readRow()).page(0); }

    QuietPlatform platform;
    Program program{platform};
};

TEST_F(KholReport, PrintsEveryFieldOfTheSavedRow)
{
    addRow();
    const report::Page form = page();
    const QString bank = rows(u"SELECT SDesc FROM ZRVtbCoding WHERE MCode = '8' AND SCode = '1'"_s).value(0);
    ASSERT_FALSE(bank.isEmpty());
    const std::vector<std::pair<QStringView, QString>> fields{
        {u"KholListType", u" خلاصه ليست ماليات بر حقوق "_s},
        {u"TaxMonth", u"ارديبهشت"_s},
        {u"TaxYear", u"1389"_s},
        {u"TFN", u"123456789012"_s},
        {u"KarfarmaName", u"مريم آذري - شعبه دفتر مرکزي"_s},
        {u"Address", u"تهران، خيابان نمونه، پلاک 5"_s},
        {u"TelNo", u"02112345678"_s},
        {u"PostCode", u"1134567890"_s},
        {u"JariSumHogog", u"1,234,567,890"_s},
        {u"JariSumMashmol", u"987,654,321"_s},
        {u"JariTax", u"98,765,432"_s},
        {u"JariJarimeDo", u"1,000"_s},
        {u"JariJarimeBist", u"20,000"_s},
        {u"JariBedehiTax", u"300,000"_s},
        {u"GablSumHogog", u"2,234,567,890"_s},
        {u"GablSumMashmol", u"1,987,654,321"_s},
        {u"GablTax", u"198,765,432"_s},
        {u"GablJarimeBist", u"0"_s},
        {u"GablBedehiTax", u"7"_s},
        {u"RoznameDate", u"1389/02/25"_s},
        {u"KarkonanNo", u"17"_s},
        {u"KharejiNo", u"2"_s},
        {u"ChequeSeriNo", u"445566"_s},
        {u"ChequeDate", u"1389/03/01"_s},
        {u"BankName", bank},
        {u"ShobeName", u"ميدان مرکزي"_s},
        {u"HesabNo", u"0101234567008"_s},
        {u"MablagPardakhti", u"115"_s},
        {u"MablaghBeHorof", u"يكصد و پانزده ريال"_s},
    };
    for (const auto &[control, value] : fields)
        EXPECT_EQ(only(form, control), value) << control.toUtf8().constData();
    EXPECT_EQ(ticks(form), u".x.");
}

TEST_F(KholReport, ABlankEarlierPenaltyIsAnEmptyCell)
{
    addRow();
    EXPECT_EQ(only(page(), u"GablJarimeDo"), u"");
    EXPECT_TRUE(rows(u"SELECT GablJarimeDo FROM ZRVtbKholList"_s).contains(u""_s));
}

TEST_F(KholReport, AListWithoutPaymentTicksTheThirdBoxAndPrintsZeroWithItsWords)
{
    addRow({{u"NahveyePardakht"_s, u"3"_s},
            {u"MablagPardakhti"_s, u"0"_s},
            {u"ChequeSeriNo"_s, u""_s},
            {u"ChequeDate"_s, u""_s},
            {u"BankName"_s, u""_s},
            {u"ShobeName"_s, u""_s},
            {u"HesabNo"_s, u""_s}});
    const report::Page form = page();
    EXPECT_EQ(ticks(form), u"..x");
    EXPECT_EQ(only(form, u"MablagPardakhti"), u"0");
    EXPECT_EQ(only(form, u"MablaghBeHorof"), u"صفر ريال");
    for (const QStringView control : {u"ChequeSeriNo", u"ChequeDate", u"BankName", u"ShobeName", u"HesabNo"})
        EXPECT_EQ(only(form, control), u"") << control.toUtf8().constData();
}

TEST_F(KholReport, OneBoxIsTickedForEachKindOfPaymentAndNoneForAnyOther)
{
    addRow({{u"NahveyePardakht"_s, u"1"_s}});
    EXPECT_EQ(ticks(page()), u"x..");
    execute(u"UPDATE ZRVtbKholList Set NahveyePardakht = '7'"_s);
    EXPECT_EQ(ticks(page()), u"...");
    execute(u"UPDATE ZRVtbKholList Set NahveyePardakht = NULL"_s);
    EXPECT_EQ(ticks(page()), u"...");
}

TEST_F(KholReport, AMissingPayerLeavesItsBlockBlank)
{
    addRow();
    execute(u"DELETE FROM ZRVtbKarfarma"_s);
    const report::Page form = page();
    EXPECT_EQ(only(form, u"TFN"), u"123456789012");
    for (const QStringView control : {u"KarfarmaName", u"Address", u"TelNo", u"PostCode"})
        EXPECT_EQ(only(form, control), u"") << control.toUtf8().constData();
}

TEST_F(KholReport, AKeyWithoutARowGivesAnEmptyForm)
{
    EXPECT_TRUE(readRow().isEmpty());
    const report::Page form = page();
    EXPECT_EQ(only(form, u"TFN"), u"");
    EXPECT_EQ(ticks(form), u"...");
}

TEST_F(KholReport, OnlyTheRowOfThatMonthYearNumberAndTypeIsRead)
{
    addRow({{u"TaxMonth"_s, u"03"_s}});
    addRow({{u"TaxYear"_s, u"1388"_s}});
    addRow({{u"KholListType"_s, u"2"_s}});
    addRow({{u"TFN"_s, u"210987654321"_s}});
    EXPECT_TRUE(readRow().isEmpty());
}

TEST_F(KholReport, AQuoteInAKeyIsRefusedAsTheStoreRefusesIt)
{
    EXPECT_THROW(readKholRow(program, u"1'2"_s, u"1"_s, u"1389"_s, u"02"_s), RunTimeError);
}

TEST_F(KholReport, AFigureBelowZeroStandsInBrackets)
{
    const report::Page form = rptKhol(program, {{u"JariBedehiTax"_s, u"-1234"_s}}).page(0);
    EXPECT_EQ(only(form, u"JariBedehiTax"), u"(1,234)");
}

TEST_F(KholReport, TheAmountStandsInWords)
{
    const std::vector<std::pair<QString, QString>> amounts{
        {u"0"_s, u"صفر ريال"_s},
        {u"1"_s, u"يك ريال"_s},
        {u"1000"_s, u"يك هزار ريال"_s},
        {u"115"_s, u"يكصد و پانزده ريال"_s},
        {u"999999999999"_s,
         u"نهصد و نود و نه ميليارد  و نهصد و نود و نه ميليون  و نهصد و نود و نه هزار و نهصد و نود و نه ريال"_s},
        {u"1000000000000"_s, QString(27, u'*') + u" ريال"_s},
        {u""_s, u"صفر ريال"_s},
    };
    for (const auto &[amount, words] : amounts)
        EXPECT_EQ(only(rptKhol(program, {{u"MablagPardakhti"_s, amount}}).page(0), u"MablaghBeHorof"), words);
}

TEST_F(KholReport, BarCodeOfASavedListReadsTheNumberAndTwoCommasUntilAFileIsDisplayed)
{
    addRow();
    const rptKhol report(program, readRow());
    EXPECT_EQ(report.barCodeText(), u"123456789012,,");
    program.DisplayedTFN = u" 210987654321 "_s;
    program.DisplayedTaxYear = u"1388 "_s;
    program.DisplayedTaxMonth = u" 11"_s;
    EXPECT_EQ(report.barCodeText(), u"210987654321,1388,11");
    EXPECT_TRUE(report::textOf(report.page(0)).contains(u"\n210987654321,1388,11\n")
                || report::textOf(report.page(0)).startsWith(u"210987654321,1388,11\n"));
}

TEST_F(KholReport, HasSixRulingLinesAPictureAndABarCode)
{
    const report::Page form = rptKhol(program, {}).page(0);
    const auto count = [&](auto kind) {
        return std::ranges::count_if(
            form.items, [](const report::Item &item) { return std::holds_alternative<decltype(kind)>(item); });
    };
    EXPECT_EQ(count(report::Line{}), 6);
    EXPECT_EQ(count(report::Emblem{}), 1);
    EXPECT_EQ(count(report::BarCode{}), 1);
}

TEST_F(KholReport, NoTextReachesIntoAnother)
{
    addRow();
    const rptKhol report(program, readRow());
    EXPECT_EQ(report.pageCount(), 1);
    expectApart(report, 0);
}

TEST_F(KholReport, IsAsApproved)
{
    addRow();
    const rptKhol report(program, readRow());
    compareWithApproved(writtenReport(report), QStringLiteral(ZRV_SOURCE_DIR "/tests/lists/approved/rptKhol.txt"));
}

} // namespace
} // namespace zrv
