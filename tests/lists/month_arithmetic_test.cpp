// SPDX-License-Identifier: GPL-3.0-or-later
// The sums and differences of a payee's month, class by class.
#include "core/public/number_words.h"
#include "tests/lists/paper_sheet.h"

#include <gtest/gtest.h>
#include <map>

namespace zrv {
namespace {

using namespace Qt::Literals::StringLiterals;
using enum MonthField;

class Month : public testing::Test {
protected:
    /// A payee without a row is opened.
    void open(const QString &shakhsMoafCode)
    {
        sheet.rules.readClass(shakhsMoafCode);
        sheet.rules.beginRow();
        sheet.rules.applyClass();
    }

    /// A payee with a saved row is opened; columns that it doesn't name are blank.
    void load(const QString &shakhsMoafCode, const std::map<QString, QString> &row)
    {
        sheet.rules.readClass(shakhsMoafCode);
        sheet.rules.loadRow([&row](QStringView column) {
            const auto cell = row.find(column.toString());
            return cell == row.end() ? QString() : cell->second;
        });
        sheet.rules.applyClass();
    }

    /// Letter by letter at the end of the field, as far as its limit goes.
    void type(MonthField field, QStringView letters)
    {
        for (const QChar letter : letters)
            if (sheet[field].text.size() < columnOf(field).limit)
                sheet.enter(field, sheet[field].text + letter);
    }

    PaperSheet sheet;
};

const QString TooHigh =
    u" تــوجه  | مقدار معافيت ماده 91 نميتواند بزرگتر از (جمع کل مبالغ پرداختي/ تخصيصي نقدي) باشد."_s;

// clang-format off
const std::map<QString, QString> SavedRow = {
    {u"NJariHogog"_s, u"12000000"_s}, {u"JariEzafeKar"_s, u"1500000"_s}, {u"NJariMoafiate91"_s, u"500000"_s},
    {u"NTotalDaramad"_s, u"1"_s}, {u"NDaramadeMashmol"_s, u"2"_s}, {u"GJariHogog"_s, u"800000"_s},
    {u"MaskanStatus"_s, u"2"_s}, {u"MaskanMablagh"_s, u"400000"_s}, {u"OtomobilStatus"_s, u"1"_s}, {u"OtomobilMablagh"_s, u"0"_s},
    {u"GTotalDaramad"_s, u"1200000"_s}, {u"GDaramadeMashmol"_s, u"1000000"_s}, {u"PJariHogog"_s, u"3000000"_s},
    {u"PDaramadeMashmol"_s, u"2000000"_s}, {u"NGPTotalDaramadeMashmol"_s, u"3"_s}, {u"SayereMoafiatha"_s, u"100000"_s},
    {u"FinalDaramadeMashmol"_s, u"15000000"_s}, {u"JariTax"_s, u"950000"_s}, {u"FinalTax"_s, u"475000"_s},
};
// clang-format on

// The worked examples ----------------------------------------------------------------------------------------

/// What the first three examples begin with.
void enterFirstAmounts(PaperSheet &sheet)
{
    sheet.enter(NJariHogog, u"12000000"_s);
    sheet.enter(JariEzafeKar, u"1500000"_s);
    sheet.enter(GJariHogog, u"800000"_s);
    sheet.enter(MaskanStatus, u"2"_s);
    sheet.enter(MaskanMablagh, u"400000"_s);
    sheet.enter(PJariHogog, u"3000000"_s);
}

void enterRemainders(PaperSheet &sheet)
{
    sheet.enter(NJariMoafiate91, u"500000"_s);
    sheet.enter(GDaramadeMashmol, u"1000000"_s);
    sheet.enter(PDaramadeMashmol, u"2000000"_s);
    sheet.enter(SayereMoafiatha, u"100000"_s);
    sheet.enter(FinalDaramadeMashmol, u"15000000"_s);
    sheet.enter(JariTax, u"950000"_s);
}

TEST_F(Month, WithoutExemptionAddsTheRemaindersAndCopiesTheTax)
{
    open(u"0"_s);
    enterFirstAmounts(sheet);
    enterRemainders(sheet);
    EXPECT_EQ(sheet.text(NTotalDaramad), u"13,500,000");
    EXPECT_EQ(sheet.text(NDaramadeMashmol), u"13,000,000");
    EXPECT_EQ(sheet.text(GTotalDaramad), u"1,200,000");
    EXPECT_EQ(sheet.text(NGPTotalDaramadeMashmol), u"16,000,000");
    EXPECT_EQ(sheet.text(FinalTax), u"950,000");
    EXPECT_EQ(sheet.warnings, QStringList());
}

TEST_F(Month, FullExemptionAddsTheGrossAmountsAndHasNoRemaindersAndNoTax)
{
    open(u"2"_s);
    enterFirstAmounts(sheet);
    EXPECT_EQ(sheet.text(NTotalDaramad), u"13,500,000");
    EXPECT_EQ(sheet.text(GTotalDaramad), u"1,200,000");
    EXPECT_EQ(sheet.text(NGPTotalDaramadeMashmol), u"17,700,000");
    for (const MonthField field : {NJariMoafiate91, NDaramadeMashmol, GDaramadeMashmol, PDaramadeMashmol,
                                   SayereMoafiatha, FinalDaramadeMashmol, JariTax, FinalTax}) {
        EXPECT_EQ(sheet.text(field), u"0") << columnOf(field).name.toString().toStdString();
        EXPECT_FALSE(sheet[field].enabled) << columnOf(field).name.toString().toStdString();
    }
}

TEST_F(Month, LessDevelopedRegionTakesBothTaxesAsEntered)
{
    open(u"1"_s);
    enterFirstAmounts(sheet);
    enterRemainders(sheet);
    EXPECT_EQ(sheet.text(FinalTax), QString()) << "the tax isn't copied";
    for (const QString &tax : {u"475,000"_s, u"950,000"_s, u"1"_s}) {
        sheet.enter(FinalTax, tax);
        EXPECT_EQ(sheet.text(JariTax), u"950,000");
        EXPECT_EQ(sheet.text(FinalTax), tax);
    }
    EXPECT_EQ(sheet.text(NGPTotalDaramadeMashmol), u"16,000,000");
    EXPECT_TRUE(sheet[FinalTax].enabled);
}

TEST_F(Month, TotalThatFallsBelowAnAcceptedExemptionLeavesItWithoutAWarning)
{
    open(u"0"_s);
    sheet.enter(NJariHogog, u"1000000"_s);
    sheet.enter(JariEzafeKar, u"0"_s);
    sheet.enter(NJariMoafiate91, u"800000"_s);
    EXPECT_EQ(sheet.text(NDaramadeMashmol), u"200,000");
    sheet.enter(NJariHogog, u"500000"_s);
    EXPECT_EQ(sheet.text(NTotalDaramad), u"500,000");
    EXPECT_EQ(sheet.text(NDaramadeMashmol), u"0");
    EXPECT_EQ(sheet.text(NJariMoafiate91), u"800,000");
    EXPECT_EQ(sheet.warnings, QStringList());
}

// What reaches a sum and what doesn't ------------------------------------------------------------------------

TEST_F(Month, BlankAmountsAddUpToZero)
{
    for (const QString &code : {u"0"_s, u"1"_s, u"2"_s}) {
        sheet.clear();
        open(code);
        sheet.enter(NJariHogog, u"5"_s);
        sheet.enter(NJariHogog, QString());
        EXPECT_EQ(sheet.text(NTotalDaramad), u"0") << code.toStdString();
        EXPECT_EQ(sheet.text(NGPTotalDaramadeMashmol), u"0") << code.toStdString();
    }
}

TEST_F(Month, GrossAmountsOfATaxedPayeeDoNotReachTheTotalOfRemainders)
{
    for (const QString &code : {u"0"_s, u"1"_s}) {
        sheet.clear();
        open(code);
        sheet.enter(GJariHogog, u"800"_s);
        sheet.enter(PJariHogog, u"3000"_s);
        EXPECT_EQ(sheet.text(GTotalDaramad), u"800");
        EXPECT_EQ(sheet.text(NGPTotalDaramadeMashmol), QString()) << "not even as a zero";
        sheet.enter(GDaramadeMashmol, u"7"_s);
        EXPECT_EQ(sheet.text(NGPTotalDaramadeMashmol), u"7");
    }
}

TEST_F(Month, RemaindersHaveNoFormulaOfTheirOwn)
{
    open(u"0"_s);
    enterFirstAmounts(sheet);
    enterRemainders(sheet);
    sheet.assigned.clear();
    sheet.enter(SayereMoafiatha, u"5"_s);
    sheet.enter(FinalDaramadeMashmol, u"6"_s);
    EXPECT_EQ(sheet.assigned, QStringList());
    sheet.enter(GJariHogog, u"1"_s);
    sheet.enter(PJariHogog, u"2"_s);
    EXPECT_EQ(sheet.text(GDaramadeMashmol), u"1,000,000");
    EXPECT_EQ(sheet.text(PDaramadeMashmol), u"2,000,000");
    EXPECT_EQ(sheet.text(JariTax), u"950,000");
}

TEST_F(Month, ChangeThatLeavesASumTheSameGoesNoFurther)
{
    open(u"0"_s);
    sheet.enter(NJariHogog, u"100"_s);
    sheet.enter(NJariMoafiate91, u"100"_s);
    sheet.assigned.clear();
    sheet.enter(NJariHogog, u"90"_s);
    EXPECT_EQ(sheet.assigned, QStringList{u"NTotalDaramad=90"_s}) << "the remainder is 0 as it was";
}

// The exemption of article 91 --------------------------------------------------------------------------------

TEST_F(Month, ExemptionEqualToTheTotalIsAccepted)
{
    open(u"0"_s);
    sheet.enter(NJariHogog, u"1500"_s);
    sheet.enter(NJariMoafiate91, u"1500"_s);
    EXPECT_EQ(sheet.warnings, QStringList());
    EXPECT_EQ(sheet.text(NJariMoafiate91), u"1,500");
    EXPECT_EQ(sheet.text(NDaramadeMashmol), u"0");
}

TEST_F(Month, ExemptionIsWarnedOfAtTheFirstDigitThatMakesItTooHigh)
{
    open(u"1"_s);
    sheet.enter(NJariHogog, u"1300"_s);
    type(NJariMoafiate91, u"123");
    EXPECT_EQ(sheet.warnings, QStringList());
    type(NJariMoafiate91, u"4");
    EXPECT_EQ(sheet.warnings, QStringList()) << "1,234 of 1,300";
    type(NJariMoafiate91, u"5");
    EXPECT_EQ(sheet.warnings, QStringList{TooHigh}) << "told once";
    EXPECT_EQ(sheet.text(NJariMoafiate91), u"0");
    EXPECT_EQ(sheet.text(NDaramadeMashmol), u"1,300");
    type(NJariMoafiate91, u"67");
    EXPECT_EQ(sheet.text(NJariMoafiate91), u"67");
    EXPECT_EQ(sheet.warnings.size(), 1);
}

TEST_F(Month, ExemptionWithoutAnyTotalIsTooHigh)
{
    open(u"0"_s);
    sheet.enter(NJariMoafiate91, u"1"_s);
    EXPECT_EQ(sheet.warnings, QStringList{TooHigh});
    EXPECT_EQ(sheet.text(NJariMoafiate91), u"0");
}

TEST_F(Month, LoadedExemptionAboveItsTotalIsWarnedOfLikeATypedOne)
{
    load(u"0"_s, {{u"NJariHogog"_s, u"5"_s}, {u"NJariMoafiate91"_s, u"6"_s}});
    EXPECT_EQ(sheet.warnings, QStringList{TooHigh});
    EXPECT_EQ(sheet.text(NJariMoafiate91), u"0");
}

// Housing and car --------------------------------------------------------------------------------------------

TEST_F(Month, NewRowBeginsWithoutHousingAndCar)
{
    open(u"0"_s);
    for (const auto &[status, amount] : {std::pair{MaskanStatus, MaskanMablagh}, {OtomobilStatus, OtomobilMablagh}}) {
        EXPECT_EQ(sheet.text(status), u"1");
        EXPECT_FALSE(sheet[amount].enabled);
        EXPECT_FALSE(sheet[amount].colouredOpen);
    }
}

TEST_F(Month, StatusWithoutUseClearsItsAmountAndLeavesTheRemainder)
{
    for (const auto &[status, amount] : {std::pair{MaskanStatus, MaskanMablagh}, {OtomobilStatus, OtomobilMablagh}}) {
        sheet.clear();
        open(u"0"_s);
        sheet.enter(GJariHogog, u"800"_s);
        sheet.enter(status, u"3"_s);
        EXPECT_TRUE(sheet[amount].enabled);
        EXPECT_TRUE(sheet[amount].colouredOpen);
        sheet.enter(amount, u"400"_s);
        sheet.enter(GDaramadeMashmol, u"1000"_s);
        EXPECT_EQ(sheet.text(GTotalDaramad), u"1,200");
        sheet.enter(status, QString());
        EXPECT_TRUE(sheet[amount].enabled) << "a blank status changes nothing";
        EXPECT_EQ(sheet.text(amount), u"400");
        sheet.enter(status, u"1"_s);
        EXPECT_FALSE(sheet[amount].enabled);
        EXPECT_FALSE(sheet[amount].colouredOpen);
        EXPECT_EQ(sheet.text(amount), QString());
        EXPECT_EQ(sheet.text(GTotalDaramad), u"800");
        EXPECT_EQ(sheet.text(GDaramadeMashmol), u"1,000");
        sheet.enter(status, QString());
        EXPECT_FALSE(sheet[amount].enabled) << "nor does it open the amount";
    }
}

// Classes ----------------------------------------------------------------------------------------------------

TEST_F(Month, AnyCodeButZeroAndOneExemptsInFull)
{
    EXPECT_EQ(exemptionClassOf(u"0"), ExemptionClass::GMoaf);
    EXPECT_EQ(exemptionClassOf(u"1"), ExemptionClass::KTosehe);
    for (const QStringView code : {u"2", u"7", u"11", u"12", u"00", u"-1", u"x", u""})
        EXPECT_EQ(exemptionClassOf(code), ExemptionClass::Moaf) << code.toString().toStdString();
    EXPECT_EQ(exemptionText(ExemptionClass::GMoaf), u"عدم معافيت");
    EXPECT_EQ(exemptionText(ExemptionClass::KTosehe), u"مناطق کمتر توسعه يافته-50% معافيت");
    EXPECT_EQ(exemptionText(ExemptionClass::Moaf), u"معافيت کامل");
}

TEST_F(Month, PayeeThatIsNotThereIsToldAndLeavesTheClass)
{
    sheet.rules.readClass(u"7"_s);
    sheet.rules.readClass(std::nullopt);
    EXPECT_EQ(sheet.rules.exemptionClass(), ExemptionClass::Moaf);
    EXPECT_EQ(sheet.warnings, QStringList{u" تــوجه  | مشخصات اين دريافت کننده حقوق وارد سيستم نگرديده است "_s});
}

TEST_F(Month, FullExemptionZeroesAndDisablesInOrder)
{
    open(u"7"_s);
    QStringList order;
    for (const QString &line : sheet.assigned)
        if (line.endsWith(u" disabled"_s))
            order += line.chopped(9);
    EXPECT_EQ(order,
              (QStringList{u"NJariMoafiate91"_s, u"NDaramadeMashmol"_s, u"GDaramadeMashmol"_s, u"PDaramadeMashmol"_s,
                           u"FinalDaramadeMashmol"_s, u"JariTax"_s, u"FinalTax"_s, u"SayereMoafiatha"_s}));
    EXPECT_TRUE(sheet.assigned.contains(u"SayereMoafiatha=0"_s));
}

TEST_F(Month, WithoutExemptionOnlyTheFinalTaxIsDisabledAndFollowsTheTax)
{
    open(u"0"_s);
    for (std::size_t i = 0; i < MonthFields; ++i) {
        const auto field = static_cast<MonthField>(i);
        const bool open = field != FinalTax && field != MaskanMablagh && field != OtomobilMablagh;
        EXPECT_EQ(sheet[field].enabled, open) << columnOf(field).name.toString().toStdString();
    }
    sheet.enter(JariTax, u"1234"_s);
    EXPECT_EQ(sheet.text(FinalTax), u"1,234");
    sheet.enter(JariTax, QString());
    EXPECT_EQ(sheet.text(FinalTax), QString());
}

TEST_F(Month, FinalTaxIsToldInWordsAndABlankOneInNone)
{
    open(u"1"_s);
    sheet.enter(FinalTax, u"1000"_s);
    EXPECT_EQ(sheet.taxInWords, NumberToWords(1000, u"ريال"));
    sheet.enter(FinalTax, u"0"_s);
    EXPECT_EQ(sheet.taxInWords, u"صفر ريال");
    sheet.enter(FinalTax, QString());
    EXPECT_EQ(sheet.taxInWords, QString());
}

// Saved rows -------------------------------------------------------------------------------------------------

TEST_F(Month, SavedRowRebuildsThreeSumsAndKeepsItsFinalTax)
{
    load(u"0"_s, SavedRow);
    EXPECT_EQ(sheet.text(NTotalDaramad), u"13,500,000");
    EXPECT_EQ(sheet.text(NDaramadeMashmol), u"13,000,000");
    EXPECT_EQ(sheet.text(NGPTotalDaramadeMashmol), u"16,000,000");
    EXPECT_EQ(sheet.text(NJariSayerPardakhtiha), QString());
    EXPECT_EQ(sheet.text(JariTax), u"950,000");
    EXPECT_EQ(sheet.text(FinalTax), u"475,000") << "the stored one wins over the copy";
    sheet.enter(SayereMoafiatha, u"1"_s);
    EXPECT_EQ(sheet.text(FinalTax), u"475,000");
    sheet.enter(JariTax, u"950001"_s);
    EXPECT_EQ(sheet.text(FinalTax), u"950,001");
}

TEST_F(Month, StoredNonCashTotalWinsUntilOneOfItsPartsChanges)
{
    std::map<QString, QString> row = SavedRow;
    row[u"GTotalDaramad"_s] = u"77"_s;
    load(u"2"_s, row);
    EXPECT_EQ(sheet.text(GTotalDaramad), u"77");
    EXPECT_EQ(sheet.text(NGPTotalDaramadeMashmol), u"16,500,077");
    sheet.enter(GJariHogog, u"800001"_s);
    EXPECT_EQ(sheet.text(GTotalDaramad), u"1,200,001");
    EXPECT_EQ(sheet.text(NGPTotalDaramadeMashmol), u"17,700,001");
}

TEST_F(Month, SavedRowOfAPayeeOfFullExemptionIsOverwrittenWithZeros)
{
    load(u"2"_s, SavedRow);
    EXPECT_EQ(sheet.text(NJariMoafiate91), u"0");
    EXPECT_EQ(sheet.text(FinalTax), u"0");
    EXPECT_EQ(sheet.text(FinalDaramadeMashmol), u"0");
    EXPECT_EQ(sheet.text(NGPTotalDaramadeMashmol), u"17,700,000");
}

TEST_F(Month, SavedRowIsShownInItsOrder)
{
    sheet.rules.readClass(u"1"_s);
    QStringList order;
    sheet.rules.loadRow([&order](QStringView column) {
        order += column.toString();
        return QString();
    });
    EXPECT_EQ(order.join(u", "_s),
              u"NJariHogog, JariEzafeKar, NJariSayerPardakhtiha, NJariMoafiate91, GJariHogog, MaskanStatus, "
              "MaskanMablagh, OtomobilStatus, OtomobilMablagh, GTotalDaramad, GDaramadeMashmol, PJariHogog, "
              "PDaramadeMashmol, SayereMoafiatha, FinalDaramadeMashmol, JariTax, FinalTax");
}

// Amounts as texts -------------------------------------------------------------------------------------------

TEST_F(Month, SeparatorsAppearWhileTypingAndTheCaretGoesBehindTheLastDigit)
{
    open(u"1"_s);
    type(NJariHogog, u"0012");
    EXPECT_EQ(sheet.text(NJariHogog), u"12");
    type(NJariHogog, u"34");
    EXPECT_EQ(sheet.text(NJariHogog), u"1,234");
    EXPECT_EQ(sheet[NJariHogog].caret, 5);
    sheet.enter(NJariHogog, u"1,34"_s); // the 2 was deleted
    EXPECT_EQ(sheet.text(NJariHogog), u"134");
    sheet.enter(NJariHogog, u"129"_s);
    EXPECT_EQ(sheet[NJariHogog].caret, 3) << "also where there is nothing to format";
}

TEST_F(Month, AmountEndsAtItsTenthDigitTypedOrPasted)
{
    open(u"1"_s);
    type(GJariHogog, u"98765432109876");
    EXPECT_EQ(sheet.text(GJariHogog), u"9,876,543,210");
    for (const QString &pasted : {u"1234567890123"_s, u"123456789012"_s, u"12345678901"_s, u"1234567890"_s}) {
        sheet.enter(GJariHogog, QString());
        sheet.enter(GJariHogog, pasted);
        EXPECT_EQ(sheet.text(GJariHogog), u"1,234,567,890") << pasted.toStdString();
    }
}

TEST_F(Month, StoredAmountOfMoreDigitsIsShownWhole)
{
    load(u"1"_s, {{u"GJariHogog"_s, u"1234567890123"_s},
                  {u"NJariHogog"_s, u"9999999999999"_s},
                  {u"JariEzafeKar"_s, u"9999999999999"_s}});
    EXPECT_EQ(sheet.text(GJariHogog), u"1,234,567,890,123");
    EXPECT_EQ(sheet.text(NTotalDaramad), u"19,999,999,999,998") << "whole to the last digit";
}

TEST_F(Month, AmountIsStoredAsPlainDigitsAndABlankOneAsZero)
{
    EXPECT_EQ(storedAmount(u"1,234,567"_s), u"1234567");
    EXPECT_EQ(storedAmount(u" 12 "_s), u"12");
    EXPECT_EQ(storedAmount(QString()), u"0");
    EXPECT_EQ(storedAmount(u" "_s), u"0");
    EXPECT_EQ(shownAmount(u"0001234"_s), u"1,234");
    EXPECT_EQ(shownAmount(QString()), QString());
}

TEST_F(Month, TextThatIsNoAmountNeitherHangsNorOverflows)
{
    open(u"1"_s);
    for (const QString &odd : {u"9E999999"_s, u"1E18"_s, u"-5"_s, u"x"_s, u","_s, u"1.5"_s}) {
        for (const MonthField field : {NJariHogog, JariEzafeKar, NJariSayerPardakhtiha, GJariHogog})
            sheet.rules.loadRow([&](QStringView column) { return column == columnOf(field).name ? odd : QString(); });
        sheet.rules.loadRow([&](QStringView) { return odd; });
        EXPECT_FALSE(sheet.text(NTotalDaramad).contains(u'E')) << odd.toStdString();
    }
}

} // namespace
} // namespace zrv
