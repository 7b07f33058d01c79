// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/basic/run_time_error.h"
#include "core/public/number_words.h"
#include "tests/print_text.h"

#include <QSet>

#include <gtest/gtest.h>
#include <limits>

namespace zrv {
namespace {

constexpr QStringView Rial = u"ريال";

struct AmountInWords {
    qint64 amount;
    QStringView text;
};

// clang-format off
constexpr AmountInWords Examples[] = {
    {0, u"صفر ريال"},
    {1, u"يك ريال"},
    {10, u"ده ريال"},
    {19, u"نوزده ريال"},
    {20, u"بيست ريال"},
    {99, u"نود و نه ريال"},
    {100, u"يكصد ريال"},
    {115, u"يكصد و پانزده ريال"},
    {121, u"يكصد و بيست و يك ريال"},
    {110, u"يكصد و ده ريال"},
    {999, u"نهصد و نود و نه ريال"},
    {1'000, u"يك هزار ريال"},
    {1'001, u"يك هزار و يك ريال"},
    {115'000, u"يكصد و پانزده هزار ريال"},
    {999'999, u"نهصد و نود و نه هزار و نهصد و نود و نه ريال"},
    {1'000'000, u"يك ميليون  ريال"},
    {1'000'500, u"يك ميليون  و پانصد ريال"},
    {1'500'000, u"يك ميليون  و پانصد هزار ريال"},
    {2'003'004, u"دو ميليون  و سه هزار و چهار ريال"},
    {1'000'000'000, u"يك ميليارد  ريال"},
    {1'000'000'001, u"يك ميليارد  و يك ريال"},
    {5'000'007'000, u"پنج ميليارد  و هفت هزار ريال"},
    {3'004'000'000, u"سه ميليارد  و چهار ميليون  ريال"},
    {999'999'999'999, u"نهصد و نود و نه ميليارد  و نهصد و نود و نه ميليون  و نهصد و نود و نه هزار و نهصد و نود و نه ريال"},
};
// clang-format on

TEST(ThreeDigitWords, JoinsHundredsTensAndOnes)
{
    EXPECT_EQ(ThreeDigitWords(1), u"يك");
    EXPECT_EQ(ThreeDigitWords(10), u"ده");
    EXPECT_EQ(ThreeDigitWords(19), u"نوزده");
    EXPECT_EQ(ThreeDigitWords(20), u"بيست");
    EXPECT_EQ(ThreeDigitWords(99), u"نود و نه");
    EXPECT_EQ(ThreeDigitWords(100), u"يكصد");
    EXPECT_EQ(ThreeDigitWords(115), u"يكصد و پانزده");
    EXPECT_EQ(ThreeDigitWords(121), u"يكصد و بيست و يك");
    EXPECT_EQ(ThreeDigitWords(110), u"يكصد و ده");
    EXPECT_EQ(ThreeDigitWords(999), u"نهصد و نود و نه");
}

TEST(ThreeDigitWords, IsEmptyForZero)
{
    EXPECT_EQ(ThreeDigitWords(0), u"");
}

TEST(ThreeDigitWords, HasWordsOfItsOwnForEveryAmount)
{
    QSet<QString> words;
    for (int amount = 0; amount <= 999; ++amount)
        words += ThreeDigitWords(amount);
    EXPECT_EQ(words.size(), 1000);
}

TEST(ThreeDigitWords, RaisesAnErrorBeyondThreeDigits)
{
    EXPECT_THROW((void)ThreeDigitWords(1000), RunTimeError);
    EXPECT_THROW((void)ThreeDigitWords(-1), RunTimeError);
}

TEST(NumberToWords, WritesAmountsWithTheBlanksThatMillionsAndMilliardsBring)
{
    for (const auto &[amount, text] : Examples)
        EXPECT_EQ(NumberToWords(amount, Rial), text) << amount;
}

TEST(NumberToWords, WritesWholeDoublesLikeAmounts)
{
    for (const auto &[amount, text] : Examples)
        EXPECT_EQ(NumberToWords(double(amount), Rial), text) << amount;
}

TEST(NumberToWords, GivesAsterisksAboveTwelveDigits)
{
    const QString asterisks = QString(27, u'*') + u' ' + Rial;
    EXPECT_EQ(NumberToWords(1'000'000'000'000, Rial), asterisks);
    EXPECT_EQ(NumberToWords(1E12, Rial), asterisks);
    EXPECT_EQ(NumberToWords(999'999'999'999.5, Rial), asterisks);
    EXPECT_EQ(NumberToWords(std::numeric_limits<qint64>::max(), Rial), asterisks);
    EXPECT_EQ(NumberToWords(std::numeric_limits<double>::infinity(), Rial), asterisks);
}

TEST(NumberToWords, HasNoWordsForANegativeAmountOrOneBetweenZeroAndOne)
{
    const QString unitAlone = u' ' + Rial.toString();
    EXPECT_EQ(NumberToWords(-1, Rial), unitAlone);
    EXPECT_EQ(NumberToWords(-1.0, Rial), unitAlone);
    EXPECT_EQ(NumberToWords(-0.5, Rial), unitAlone);
    EXPECT_EQ(NumberToWords(0.5, Rial), unitAlone);
    EXPECT_EQ(NumberToWords(std::numeric_limits<qint64>::min(), Rial), unitAlone);
}

TEST(NumberToWords, DropsTheFractionOfAGreaterAmount)
{
    EXPECT_EQ(NumberToWords(121.75, Rial), NumberToWords(121, Rial));
}

} // namespace
} // namespace zrv
