// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/check_rules.h"
#include "files/wh_layout.h"
#include "files/wk_layout.h"
#include "tests/print_text.h"

#include <QStringList>

#include <algorithm>
#include <gtest/gtest.h>

namespace zrv {
namespace {

const Field &payer(int number)
{
    return whPayerFields()[static_cast<std::size_t>(number) - 1];
}

const Field &payee(int number)
{
    return whPayeeFields()[static_cast<std::size_t>(number) - 1];
}

const Field &summary(int number)
{
    return wkFields()[static_cast<std::size_t>(number) - 1];
}

/// The limit that the check puts on a field's length.
const CheckRule &lengthRule(const LineRules &line, int field)
{
    return *std::ranges::find_if(line.rules,
                                 [field](const CheckRule &rule) { return rule.field == field && rule.limit > 0; });
}

TEST(RecordLayouts, PayerHas22FieldsPayee34SummaryList25)
{
    EXPECT_EQ(whPayerFields().size(), 22u);
    EXPECT_EQ(whPayeeFields().size(), 34u);
    EXPECT_EQ(wkFields().size(), 25u);
}

TEST(RecordLayouts, EveryFieldButTheControlFieldHasAWidthAndALabelInBrackets)
{
    for (const auto &fields : {whPayerFields(), whPayeeFields(), wkFields()}) {
        for (const Field &field : fields) {
            if (field.fill == Fill::VersionControl)
                continue;
            EXPECT_GT(field.width, 0) << field.name.toUtf8().constData();
            EXPECT_TRUE(field.label.startsWith(u'(') && field.label.endsWith(u')')) << field.name.toUtf8().constData();
        }
    }
}

TEST(RecordLayouts, BranchCodeIsWrittenShorterThanTheCheckAllows)
{
    EXPECT_EQ(payer(2).width, 2);
    EXPECT_EQ(lengthRule(whRules().first, 2).asks, Asks::UpTo);
    EXPECT_EQ(lengthRule(whRules().first, 2).limit, 5);
}

TEST(RecordLayouts, PostIsWrittenLongerThanTheCheckAllows)
{
    EXPECT_EQ(payee(7).name, u"Semat");
    EXPECT_EQ(payee(7).width, 30);
    EXPECT_EQ(lengthRule(whRules().rest, 7).limit, 20);
}

TEST(RecordLayouts, ChequeNumberIsWrittenShorterAndBankCodeLongerThanTheCheckAllows)
{
    EXPECT_EQ(summary(20).width, 6);
    EXPECT_EQ(lengthRule(wkRules().first, 20).limit, 15);
    EXPECT_EQ(summary(22).width, 4);
    EXPECT_EQ(lengthRule(wkRules().first, 22).limit, 2);
}

TEST(RecordLayouts, BonusAndItsRemainderShareALabel)
{
    EXPECT_EQ(payee(28).name, u"PJariHogog");
    EXPECT_EQ(payee(29).name, u"PDaramadeMashmol");
    EXPECT_EQ(payee(28).label, payee(29).label);
}

TEST(RecordLayouts, AllAmountsOfAPayeeAreTenWideAndUnlessEmptyNumbers)
{
    for (int number = 17; number <= 34; ++number) {
        EXPECT_EQ(payee(number).table, u"ZRVtbHogog");
        EXPECT_EQ(payee(number).width, 10);
        EXPECT_EQ(lengthRule(whRules().rest, number).asks, Asks::AtMost);
        EXPECT_EQ(lengthRule(whRules().rest, number).limit, 10);
    }
}

TEST(RecordLayouts, NamesWithinALineAreDifferent)
{
    for (const auto &fields : {whPayerFields(), whPayeeFields(), wkFields()}) {
        QStringList names;
        for (const Field &field : fields)
            names << field.name.toString();
        EXPECT_EQ(names.removeDuplicates(), 0);
    }
}

} // namespace
} // namespace zrv
