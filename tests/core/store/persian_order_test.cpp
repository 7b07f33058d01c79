// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/store/persian_order.h"
#include "tests/core/store/store_fixture.h"

#include <algorithm>
#include <random>

namespace zrv {

namespace {

std::string key(QStringView text)
{
    return persianOrderKey(text.toUtf8().toStdString());
}

} // namespace

TEST(PersianOrder, AlphabetIsInItsOrderWithItsOwnFourLettersInTheirPlaces)
{
    const QString alphabet = u"آابپتثجچحخدذرزژسشصضطظعغفقکگلمنوهي"_s;
    ASSERT_EQ(alphabet.size(), 33);
    for (qsizetype i = 1; i < alphabet.size(); ++i)
        EXPECT_LT(key(alphabet.mid(i - 1, 1)), key(alphabet.mid(i, 1))) << i;
}

TEST(PersianOrder, VariantsOfALetterAreOfEqualRank)
{
    EXPECT_EQ(key(u"\u0639\u0644\u064A"), key(u"\u0639\u0644\u06CC"));
    EXPECT_EQ(key(u"\u0649"), key(u"\u06CC"));
    EXPECT_EQ(key(u"\u0643"), key(u"\u06A9"));
    EXPECT_EQ(key(u"\u0647"), key(u"\u0629"));
    EXPECT_EQ(key(u"Ali"), key(u"aLI"));
    EXPECT_EQ(key(u"1"), key(u"\u06F1"));
    EXPECT_EQ(key(u"1"), key(u"\u0661"));
}

TEST(PersianOrder, MarksKashidaAndJoinersDoNotCount)
{
    EXPECT_EQ(key(u"\u0645\u0640\u0640\u0627\u0647"), key(u"\u0645\u0627\u0647"));
    EXPECT_EQ(key(u"\u0639\u0644\u0651\u064A"), key(u"\u0639\u0644\u064A"));
    EXPECT_EQ(key(u"\u0645\u06CC\u200C\u0631\u0648\u062F"), key(u"\u0645\u06CC\u0631\u0648\u062F"));
}

TEST(PersianOrder, BlanksSignsDigitsLatinPersian)
{
    const QStringList ordered{u""_s, u" "_s, u"("_s, u"0"_s, u"10"_s, u"2"_s, u"a"_s, u"Z"_s, u"é"_s, u"آ"_s, u"ي"_s};
    for (qsizetype i = 1; i < ordered.size(); ++i)
        EXPECT_LT(key(ordered[i - 1]), key(ordered[i])) << i;
    EXPECT_LT(key(u"علي"), key(u"علي اکبر")) << "a shorter name goes before one that continues it";
    EXPECT_LT(key(u"علي رضا"), key(u"عليرضا")) << "a blank goes before every letter";
}

TEST(PersianOrder, AnyBytesHaveAKey)
{
    std::mt19937 random(7); // NOLINT(cert-msc51-cpp): the same texts in every run
    for (int round = 0; round < 2000; ++round) {
        std::string bytes(random() % 12, '\0');
        std::generate(bytes.begin(), bytes.end(), [&] { return char(random() & 0xFF); });
        EXPECT_LE(persianOrderKey(bytes).size(), bytes.size() * 4);
    }
}

class PersianOrderOfRows : public StoreTest {};

TEST_F(PersianOrderOfRows, OrderByGoesByTheAlphabetAndEqualNamesByTheNextColumn)
{
    execute(u"DELETE FROM User_Defination"_s);
    const char16_t *const users[][2] = {{u"\u0639\u0644\u06CC", u"2"},
                                        {u"\u0639\u0644\u064A", u"1"},
                                        {u"ژاله", u"3"},
                                        {u"زهرا", u"4"},
                                        {u"\u0639\u0644\u0649", u"5"},
                                        {u"پري", u"6"},
                                        {u"تارا", u"7"},
                                        {u"گيتي", u"8"},
                                        {u"لادن", u"9"}};
    for (const auto &[name, code] : users)
        execute("INSERT INTO User_Defination VALUES ("_L1 + quoted(code) + ",'x',"_L1 + quoted(name) + ",null,'0')"_L1);
    const auto order = [&](QStringView terms) {
        return rows("SELECT UserNamee FROM User_Defination ORDER BY "_L1 + terms).join(QString());
    };
    EXPECT_EQ(order(u"Name"), u"674321589"_s) << "equal names in the order of entry";
    EXPECT_EQ(order(u"Name,UserNamee"), u"674312589"_s);
    EXPECT_EQ(order(u"Name DESC,UserNamee"), u"981253476"_s);
}

TEST_F(PersianOrderOfRows, NullGoesBeforeTheEmptyText)
{
    execute(u"UPDATE User_Defination Set Name=''"_s);
    execute(u"INSERT INTO User_Defination VALUES ('B','x',null,null,'0')"_s);
    EXPECT_EQ(rows(u"SELECT UserNamee FROM User_Defination ORDER BY Name"_s), (QStringList{u"B"_s, u"ADMIN"_s}));
}

} // namespace zrv
