// SPDX-License-Identifier: GPL-3.0-or-later
// The sums and differences of a payee's month, class by class.
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

} // namespace
} // namespace zrv
