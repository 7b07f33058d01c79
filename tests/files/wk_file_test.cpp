// SPDX-License-Identifier: GPL-3.0-or-later

// What stands in the WK file, seen from the rows of a store.

#include "tests/files/month_fixture.h"

namespace zrv {
namespace {

class WkFile : public MonthTest {
protected:
    WkFile() { rows.addPayee(); }
    Row &summary() { return rows.summaries[0]; }
};

TEST_F(WkFile, IsUtf16LittleEndianWithAMarkAndEndsInCrLf)
{
    run();
    const QByteArray file = bytes(wkPath());
    EXPECT_EQ(file.first(2).toHex(), "fffe");
    EXPECT_EQ(file.last(4).toHex(), "0d000a00");
}

TEST_F(WkFile, HasOneLineOf25FieldsAndNoOther)
{
    run();
    const QStringList file = lines(wkPath());
    ASSERT_EQ(file.size(), 2);
    EXPECT_EQ(file[0].count(u','), 24);
    EXPECT_EQ(file[1], QString());
}

TEST_F(WkFile, HasALinePerListType)
{
    rows.summaries.push_back(MonthRows::summary(u"2"_s));
    rows.summaries[0][u"JariTax"_s] = u"100"_s;
    rows.summaries[1][u"JariTax"_s] = u"200"_s;
    run();
    EXPECT_EQ(lines(wkPath()).size(), 3);
    EXPECT_EQ(field(wkPath(), 0, 6), u"100"_s);
    EXPECT_EQ(field(wkPath(), 1, 6), u"200"_s);
}

TEST_F(WkFile, TfnOfTenDigitsKeepsTwoBlanksBehindIt)
{
    summary()[u"TFN"_s] = u"1234567890"_s;
    open();
    program.PayerTFN = u"1234567890"_s;
    run();
    EXPECT_EQ(summaryField(1), u"1234567890  "_s);
    EXPECT_EQ(summaryField(2), u"1389"_s);
    EXPECT_EQ(summaryField(3), u"02"_s);
}

TEST_F(WkFile, MissingSumIsWrittenAsZeroAndMissingAccountNumberAsNothing)
{
    summary()[u"GablTax"_s] = Value();
    summary()[u"HesabNo"_s] = Value();
    run();
    EXPECT_EQ(summaryField(12), u"0"_s);
    EXPECT_EQ(summaryField(24), QString());
}

TEST_F(WkFile, AllSumsAndThePaymentAreZeroWhenMissingAndFields16To24Empty)
{
    run();
    for (int number = 4; number <= 15; ++number)
        EXPECT_EQ(summaryField(number), u"0"_s) << number;
    for (int number = 16; number <= 24; ++number)
        EXPECT_EQ(summaryField(number), QString()) << number;
    EXPECT_EQ(summaryField(25), u"0"_s);
}

TEST_F(WkFile, BlankSumIsWrittenAsZero)
{
    summary()[u"JariTax"_s] = u"   "_s;
    summary()[u"GablTax"_s] = QString();
    summary()[u"MablagPardakhti"_s] = u" "_s;
    run();
    EXPECT_EQ(summaryField(6), u"0"_s);
    EXPECT_EQ(summaryField(12), u"0"_s);
    EXPECT_EQ(summaryField(25), u"0"_s);
}

TEST_F(WkFile, SumsAreTrimmedAndNotFormatted)
{
    summary()[u"JariTax"_s] = u" 007 "_s;
    run();
    EXPECT_EQ(summaryField(6), u"007"_s);
}

TEST_F(WkFile, ChequeNumberOfEightDigitsIsWrittenWithItsFirstSix)
{
    summary()[u"NahveyePardakht"_s] = u"2"_s;
    summary()[u"ChequeSeriNo"_s] = u"12345678"_s;
    run();
    EXPECT_EQ(summaryField(19), u"2"_s);
    EXPECT_EQ(summaryField(20), u"123456"_s);
}

TEST_F(WkFile, ChequeFieldsAreWrittenAsStoredWhateverTheMannerOfPayment)
{
    summary()[u"NahveyePardakht"_s] = u"1"_s;
    summary()[u"BankName"_s] = u"11"_s;
    run();
    EXPECT_EQ(summaryField(22), u"11"_s);
}

TEST_F(WkFile, StoredLineEndCantBreakTheLine)
{
    summary()[u"ShobeName"_s] = u"ميدان\r\nآزادي"_s;
    run();
    EXPECT_EQ(lines(wkPath()).size(), 2);
    EXPECT_EQ(summaryField(23), u"ميدانآزادي"_s);
}

} // namespace
} // namespace zrv
