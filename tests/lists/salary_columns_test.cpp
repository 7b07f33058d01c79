// SPDX-License-Identifier: GPL-3.0-or-later
// The table of the salary columns against the store's own.
#include "core/store/schema.h"
#include "lists/salary_columns.h"
#include "tests/print_text.h"

#include <QStringList>

#include <algorithm>
#include <gtest/gtest.h>

namespace zrv {
namespace {

using namespace Qt::Literals::StringLiterals;

TEST(SalaryColumns, AreThoseOfTheStoreInItsOrder)
{
    const auto &tables = storeSchema();
    const auto table = std::ranges::find(tables, u"ZRVtbHogog"_s, &TableShape::name);
    ASSERT_NE(table, tables.end());
    ASSERT_EQ(table->columns.size(), SalaryColumns.size());
    for (std::size_t i = 0; i < SalaryColumns.size(); ++i)
        EXPECT_EQ(SalaryColumns[i].name, table->columns[i].name);
}

TEST(SalaryColumns, OriginTellsWhatCanBeEntered)
{
    QStringList derived;
    QStringList required;
    for (const SalaryColumn &column : SalaryColumns) {
        EXPECT_EQ(column.limit, column.origin == Origin::Entered ? 13 : 0) << column.name.toString().toStdString();
        if (column.origin == Origin::Derived)
            derived += column.name.toString();
        if (column.required)
            required += column.name.toString();
    }
    EXPECT_EQ(derived.join(u' '), u"NTotalDaramad NDaramadeMashmol GTotalDaramad NGPTotalDaramadeMashmol");
    EXPECT_EQ(required.join(u' '), u"NJariHogog JariEzafeKar NJariMoafiate91 MaskanStatus OtomobilStatus "
                                   "FinalDaramadeMashmol JariTax FinalTax");
}

TEST(SalaryColumns, FieldsAreTheColumnsBehindTheKey)
{
    EXPECT_EQ(columnOf(MonthField::NJariHogog).name, u"NJariHogog");
    EXPECT_EQ(columnOf(MonthField::MaskanStatus).name, u"MaskanStatus");
    EXPECT_EQ(columnOf(MonthField::GTotalDaramad).name, u"GTotalDaramad");
    EXPECT_EQ(columnOf(MonthField::SayereMoafiatha).name, u"SayereMoafiatha");
    EXPECT_EQ(columnOf(MonthField::FinalTax).name, u"FinalTax");
}

} // namespace
} // namespace zrv
