// SPDX-License-Identifier: GPL-3.0-or-later

// What stands in the WH file, seen from the rows of a store.

#include "core/mdlEncriptDecript.h"
#include "files/file_writer.h"
#include "tests/files/month_fixture.h"

namespace zrv {
namespace {

using WhFile = MonthTest;

TEST(MonthFilesTest, NamesAndFoldersAreMadeOfYearAndMonth)
{
    const MonthFiles files(u"program"_s, u"1389"_s, u"02"_s);
    EXPECT_EQ(files.folder, u"program/ERSAL/138902"_s);
    EXPECT_EQ(files.wh, u"program/ERSAL/138902/WH138902.TXT"_s);
    EXPECT_EQ(files.wk, u"program/ERSAL/138902/WK138902.TXT"_s);
}

TEST_F(WhFile, IsUtf16LittleEndianWithAMarkAndEveryLineEndsInCrLf)
{
    rows.addPayee();
    run();
    const QByteArray file = bytes(whPath());
    EXPECT_EQ(file.first(2).toHex(), "fffe");
    EXPECT_EQ(file.last(4).toHex(), "0d000a00");
    EXPECT_EQ(file.count(QByteArray("\x0d\x00\x0a\x00", 4)), 2);
}

TEST_F(WhFile, HasThePayerInItsFirstLineAndAPayeePerLineInTheOrderOfTheStore)
{
    rows.addPayee({{u"Family"_s, u"پ"_s}});
    rows.addPayee({{u"Family"_s, u"الف"_s}});
    rows.addPayee({{u"Family"_s, u"ب"_s}});
    run();
    const QStringList file = lines(whPath());
    ASSERT_EQ(file.size(), 5);
    EXPECT_EQ(file[0].count(u','), 21);
    EXPECT_EQ(field(whPath(), 1, 3), u"پ"_s);
    EXPECT_EQ(field(whPath(), 2, 3), u"الف"_s);
    EXPECT_EQ(field(whPath(), 3, 3), u"ب"_s);
    EXPECT_EQ(file[4], QString());
    for (int line = 1; line <= 3; ++line)
        EXPECT_EQ(file[line].count(u','), 33);
}

TEST_F(WhFile, ControlFieldIsTheVersionTextInBase64)
{
    rows.addPayee();
    run();
    EXPECT_EQ(DecodeBase64(payerField(22)), u"( نسخه 1.1.38 - 89/03/03 )"_s);
}

TEST_F(WhFile, YearAndMonthOfThePayerLineAreTheScreens)
{
    rows.addPayee();
    run();
    EXPECT_EQ(payerField(3), u"1389"_s);
    EXPECT_EQ(payerField(4), u"02"_s);
}

TEST_F(WhFile, StoredBranchCodeOfThreeDigitsIsWrittenWithItsFirstTwo)
{
    rows.payers[0][u"CodeShobe"_s] = u"123"_s;
    rows.addPayee();
    run();
    EXPECT_EQ(payerField(2), u"12"_s);
}

TEST_F(WhFile, PayerColumnsLoseTheirBlanksBeforeTheyAreCutAndPayeeColumnsAfterwards)
{
    rows.payers[0][u"CodeShobe"_s] = u"  123"_s;
    rows.addPayee({{u"Sabege"_s, u" 7"_s}, {u"Name"_s, u"     آفتاب گردا"_s}});
    run();
    EXPECT_EQ(payerField(2), u"12"_s);
    EXPECT_EQ(payeeField(8), u"7"_s);
    EXPECT_EQ(payeeField(2), u"آفتاب گردا"_s);
}

TEST_F(WhFile, MissingPayerColumnsAreEmptyFields)
{
    rows.addPayee();
    run();
    for (const int number : {7, 11, 12, 13, 14, 15, 16, 17, 18, 19, 20, 21})
        EXPECT_EQ(payerField(number), QString()) << number;
}

TEST_F(WhFile, BlankPostCodeMissingInsuranceNumberAndMissingAmountAreEmptyFields)
{
    rows.addPayee(
        {{u"PostCode"_s, u"   "_s}, {u"InsuNo"_s, Value()}, {u"NJariHogog"_s, Value()}, {u"JariTax"_s, u"5"_s}});
    run();
    const QString line = lines(whPath())[1];
    EXPECT_EQ(line.count(u','), 33);
    EXPECT_EQ(payeeField(6), QString());
    EXPECT_EQ(payeeField(16), QString());
    EXPECT_EQ(payeeField(17), QString());
    EXPECT_EQ(payeeField(33), u"5"_s);
}

TEST_F(WhFile, CommaInAStoredNameShiftsTheFieldsBehindIt)
{
    rows.addPayee({{u"Name"_s, u"مريم,زهرا"_s}});
    run();
    EXPECT_EQ(lines(whPath())[1].count(u','), 34);
    EXPECT_EQ(payeeField(3), u"زهرا"_s);
    EXPECT_EQ(payeeField(4), u"آذري"_s);
}

TEST_F(WhFile, StoredLineEndCantBreakALine)
{
    rows.payers[0][u"Address"_s] = u"خيابان يک\r\nپلاک 2\rطبقه\n3"_s;
    rows.addPayee({{u"Family"_s, u"آذري\r\nنيا"_s}});
    run();
    EXPECT_EQ(lines(whPath()).size(), 3);
    EXPECT_EQ(payerField(13), u"خيابان يکپلاک 2طبقه3"_s);
    EXPECT_EQ(payeeField(3), u"آذرينيا"_s);
}

TEST_F(WhFile, AmountOfMoreThanTenDigitsIsCutToTen)
{
    rows.addPayee({{u"NJariHogog"_s, u"1234567890123"_s}});
    run();
    EXPECT_EQ(payeeField(17), u"1234567890"_s);
}

TEST_F(WhFile, OtherInsurersCodeIsWrittenAsZeroWithItsName)
{
    rows.addCode(u"16"_s, u"4"_s, u"بيمه نمونه"_s);
    rows.addPayee({{u"BimehType"_s, u"4"_s}});
    run();
    EXPECT_EQ(payeeField(14), u"0"_s);
    EXPECT_EQ(payeeField(15), u"بيمه نمونه"_s);
}

TEST_F(WhFile, NamedInsurersCodeIsWrittenAsItIsWithoutAName)
{
    rows.addPayee({{u"BimehType"_s, u"2"_s}});
    run();
    EXPECT_EQ(payeeField(14), u"2"_s);
    EXPECT_EQ(payeeField(15), QString());
}

TEST_F(WhFile, InsurersCodeThreeIsTheLastNamedOne)
{
    rows.addPayee({{u"BimehType"_s, u"3"_s}});
    run();
    EXPECT_EQ(payeeField(14), u"3"_s);
    EXPECT_EQ(payeeField(15), QString());
}

TEST_F(WhFile, InsurersNameOfMoreThanFifteenLettersIsCut)
{
    rows.addCode(u"16"_s, u"12"_s, u"صندوق بازنشستگي کارکنان نمونه"_s);
    rows.addPayee({{u"BimehType"_s, u"12"_s}});
    run();
    EXPECT_EQ(payeeField(14), u"0"_s);
    EXPECT_EQ(payeeField(15), u"صندوق بازنشستگي"_s);
}

TEST_F(WhFile, ForeignersCountryIsWritten)
{
    rows.addPayee({{u"MelliatCode"_s, u"2"_s}, {u"KeshvarCode"_s, u"4"_s}});
    run();
    EXPECT_EQ(payeeField(12), u"2"_s);
    EXPECT_EQ(payeeField(13), u"عراق"_s);
}

TEST_F(WhFile, NationalsCountryIsLeftOutEvenWhenOneIsNamed)
{
    rows.addPayee({{u"MelliatCode"_s, u"1"_s}, {u"KeshvarCode"_s, u"4"_s}});
    run();
    EXPECT_EQ(payeeField(12), u"1"_s);
    EXPECT_EQ(payeeField(13), QString());
}

TEST_F(WhFile, NationalityIsComparedAsANumber)
{
    rows.addPayee({{u"MelliatCode"_s, u"02"_s}, {u"KeshvarCode"_s, u"4"_s}});
    rows.addPayee({{u"MelliatCode"_s, u"12"_s}, {u"KeshvarCode"_s, u"4"_s}});
    rows.addPayee({{u"MelliatCode"_s, Value()}, {u"KeshvarCode"_s, u"4"_s}});
    run();
    EXPECT_EQ(field(whPath(), 1, 13), u"عراق"_s);
    EXPECT_EQ(field(whPath(), 2, 13), QString());
    EXPECT_EQ(field(whPath(), 3, 13), QString());
}

TEST_F(WhFile, PostOfTwentyFiveLettersIsWrittenInFullThoughTheCheckAllowsTwenty)
{
    const QString post = u"کارشناس ارشد برنامه ريزيي"_s;
    ASSERT_EQ(post.size(), 25);
    rows.addCode(u"2"_s, u"40"_s, post);
    rows.addPayee({{u"Semat"_s, u"40"_s}});
    run();
    EXPECT_EQ(payeeField(7), post);
}

TEST_F(WhFile, LetterOfTwoUnitsAtAWidthsEndIsLeftOut)
{
    rows.addPayee();
    rows.payers[0][u"CodeShobe"_s] = u"1\U00020000"_s;
    run();
    EXPECT_EQ(payerField(2), u"1"_s);
}

TEST_F(WhFile, OtherMonthsAndPayersRowsStayOut)
{
    rows.addPayees(2);
    rows.salaries[1][u"TaxMonth"_s] = u"03"_s;
    rows.addPayee({{u"TFN"_s, u"999999999999"_s}});
    run();
    EXPECT_EQ(lines(whPath()).size(), 3);
}

} // namespace
} // namespace zrv
