// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/store/code_lists.h"
#include "tests/core/store/store_fixture.h"

namespace zrv {

class CodeLists : public StoreTest {
protected:
    static QString codes(const std::vector<CodeRow> &list)
    {
        QStringList bound;
        for (const CodeRow &row : list)
            bound.append(row.bound);
        return bound.join(u' ');
    }
};

TEST_F(CodeLists, RecordExistsWhenASelectGivesARow)
{
    EXPECT_TRUE(recordExists(connectionString(), u"SELECT * FROM User_Defination"_s));
    EXPECT_FALSE(recordExists(connectionString(), u"SELECT * FROM ZRVtbKarfarma"_s));
    EXPECT_THROW((void)recordExists(connectionString(), u"SELECT Nobody FROM ZRVtbKarfarma"_s), RunTimeError);
}

TEST_F(CodeLists, CodesComeInTextOrderOrByValueUpAndDown)
{
    EXPECT_EQ(codes(codeList(connectionString(), u"16"_s)), u"0 1 2 3"_s);
    EXPECT_EQ(codes(codeList(connectionString(), u"13"_s)), u"0 1 10 11 2 3 4 5 6 7 8 9"_s);
    EXPECT_EQ(codes(codeListByValue(connectionString(), u"13"_s)), u"0 1 2 3 4 5 6 7 8 9 10 11"_s);
    EXPECT_EQ(codes(codeListByValue(connectionString(), u"13"_s, true)), u"11 10 9 8 7 6 5 4 3 2 1 0"_s);
    EXPECT_EQ(codeList(connectionString(), u"5"_s).front(), (CodeRow{u"حقيقي"_s, u"1"_s}));
    EXPECT_TRUE(codeListByValue(connectionString(), u"3"_s).empty());
}

TEST_F(CodeLists, MasterListHasEachListOnceByNumber)
{
    const std::vector<CodeRow> lists = masterList(connectionString());
    EXPECT_EQ(codes(lists), u"1 2 4 5 6 7 8 9 10 11 12 13 14 15 16 17 18 19"_s);
    EXPECT_EQ(lists[0], (CodeRow{u"مدرک تحصيلي"_s, u"1"_s}));
}

TEST_F(CodeLists, QueryListTakesTwoColumnsOfAnyQuery)
{
    EXPECT_EQ(
        queryList(connectionString(), u"SELECT UserNamee,Family + '!' AS F FROM User_Defination"_s, u"f", u"usernamee"),
        (std::vector<CodeRow>{{u"سيستم!"_s, u"ADMIN"_s}}));
    EXPECT_THROW((void)queryList(connectionString(), u"SELECT UserNamee FROM User_Defination"_s, u"x", u"y"),
                 RunTimeError);
}

TEST_F(CodeLists, CodeDescriptionIsEmptyForABlankCodeAndInvalidForAnUnknownOne)
{
    EXPECT_EQ(codeDescription(connectionString(), u"5"_s, u"2"_s), u"حقوقي"_s);
    EXPECT_EQ(codeDescription(connectionString(), u"5"_s, u"  "_s), QString());
    EXPECT_EQ(codeDescription(connectionString(), u"5"_s, u"3"_s), u"کد نامعتبر"_s);
}

TEST_F(CodeLists, QuoteInAListNumberDoesNotReachTheStatement)
{
    EXPECT_THROW((void)codeList(connectionString(), u"5' OR '1'='1"_s), RunTimeError);
    EXPECT_THROW((void)codeDescription(connectionString(), u"5"_s, u"'"_s), RunTimeError);
}

} // namespace zrv
