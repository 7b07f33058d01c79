// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/sample/words.h"

#include "tools/sample/dice.h"

#include <string_view>

namespace zrv::sample {

namespace {

using Words = const std::string_view[];

// clang-format off
constexpr Words MenNames = {
    "محمد", "علي", "حسين", "رضا", "مهدي", "امير", "سعيد", "حميد", "مجيد", "ناصر", "بهرام", "کاوه", "آرش", "فرهاد",
    "کيوان", "سياوش", "داريوش", "پيمان", "بابک", "شهرام", "کامران", "احسان", "ميلاد", "پويا", "چنگيز", "ژوبين",
    "گودرز", "منوچهر", "يونس", "عباس", "قاسم", "جواد", "اکبر", "حافظ", "هومن", "وحيد", "محمد رضا", "امير حسين",
};

constexpr Words WomenNames = {
    "زهرا", "فاطمه", "مريم", "نرگس", "سارا", "شيرين", "ليلا", "نسرين", "پروين", "مينا", "الهام", "ندا", "نازنين",
    "سميه", "ژاله", "گلناز", "کتايون", "شکوفه", "پريسا", "مهناز", "ثريا", "طاهره", "بهاره", "يلدا", "هديه", "ويدا",
    "چکاوک", "آزاده", "معصومه", "فرزانه",
};

constexpr Words FamilyStems = {
    "کريم", "رحيم", "بهرام", "شهباز", "سليمان", "يوسف", "طاهر", "فرهاد", "قاسم", "نعمت", "حيدر", "منصور", "اکبر",
    "جعفر", "رستم", "اسکندر", "پرويز", "چنگيز", "ژيان", "گودرز", "هوشنگ", "جمشيد", "نصير", "صفر", "ظفر", "غلام",
    "خليل", "ذوالفقار", "واحد", "ثابت",
};

constexpr Words FamilyEndings = {"ي", "ي", "ي نژاد", " پور", " زاده", "يان", "ي فر", "ي راد"};

constexpr Words WholeFamilies = {
    "چمن آرا", "گلستاني", "پاکدل", "ژاله گون", "چراغي", "گلکار", "پيشه ور", "کشاورز", "آهنگر", "زرگر", "صراف",
    "کتابچي", "آسيابان", "ديبا", "شبان", "مسگر", "روشن ضمير", "بهنام", "سپهر", "ياوري", "افشين منش", "ساده دل",
};

constexpr Words ForeignNames = {
    "نجيب", "فريد", "جاويد", "ظاهر", "طارق", "سليم", "آرمن", "روبن", "تيمور", "عثمان", "گل آقا", "خاتول", "ليلما",
    "آنوش", "مراد", "بشير",
};

constexpr Words ForeignFamilies = {
    "احمد زي", "کاکر", "قادري", "جبوري", "پطروسيان", "حق وردي اف", "چودري", "ييلماز", "نورزي", "سرکيسيان",
    "مردان اف", "دمير", "ملک", "هزاره",
};

constexpr Words Towns = {
    "تهران", "مشهد", "اصفهان", "شيراز", "تبريز", "کرج", "رشت", "يزد", "گرگان", "کرمان", "همدان", "اراک", "زنجان",
};

constexpr Words Streets = {
    "خيابان بهار", "خيابان ياس", "خيابان نسترن", "بلوار کاج", "کوچه شقايق", "خيابان چنار", "ميدان سرو",
    "خيابان دانش", "خيابان صنعت", "کوي پزشکان", "بلوار ژاله", "خيابان گلبرگ", "کوچه چشمه", "خيابان آفتاب",
};
// clang-format on

} // namespace

std::string firstName(Dice &dice)
{
    return std::string(dice.oneIn(3) ? dice.of(WomenNames) : dice.of(MenNames));
}

std::string fatherName(Dice &dice)
{
    return std::string(dice.of(MenNames));
}

std::string familyName(Dice &dice)
{
    if (dice.oneIn(5))
        return std::string(dice.of(WholeFamilies));
    std::string name(dice.of(FamilyStems));
    return name += dice.of(FamilyEndings);
}

std::string foreignFirstName(Dice &dice)
{
    return std::string(dice.of(ForeignNames));
}

std::string foreignFamilyName(Dice &dice)
{
    return std::string(dice.of(ForeignFamilies));
}

std::string address(Dice &dice)
{
    std::string text(dice.of(Towns));
    text += " - ";
    text += dice.of(Streets);
    text += " - پلاک ";
    return text += std::to_string(dice.between(1, 240));
}

} // namespace zrv::sample
