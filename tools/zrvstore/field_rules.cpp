// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/zrvstore/field_rules.h"

#include <algorithm>

namespace zrv::storetool {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr bool Required = true;
constexpr std::string_view Karfarma = "ZRVtbKarfarma";
constexpr std::string_view Karkonan = "ZRVtbKarkonan";
constexpr std::string_view Hogog = "ZRVtbHogog";
constexpr std::string_view KholList = "ZRVtbKholList";
constexpr std::string_view Coding = "ZRVtbCoding";
constexpr std::string_view Users = "User_Defination";

// clang-format off
constexpr FieldRule Rules[] = {
    {Karfarma, "TFN", Form::Tfn, 0, Required},
    {Karfarma, "CodeShobe", Form::Digits, 0, Required},
    {Karfarma, "MMoadiType", Form::Code, 5, Required},
    {Karfarma, "SMoadiType", Form::Code, 6},
    {Karfarma, "MohasebeType", Form::Code, 7, Required},
    {Karfarma, "Family", Form::Text, 0, Required},
    {Karfarma, "ShobeName", Form::Text, 0, Required},
    {Karfarma, "Tin", Form::Digits, 0, Required},
    {Karfarma, "PostCode", Form::Digits, 10, Required},
    {Karfarma, "CodeHozeh", Form::Digits, 6},
    {Karfarma, "TelNo", Form::Digits, 0, Required},
    {Karfarma, "Address", Form::Text, 0, Required},
    {Karfarma, "MelliCode1", Form::Letters, 0, Required},
    {Karfarma, "EmzaName1", Form::Text, 0, Required},
    {Karfarma, "EmzaFamily1", Form::Text, 0, Required},
    {Karfarma, "EmzaSemat1", Form::Text, 0, Required},
    {Karfarma, "MelliCode2", Form::Letters},

    {Karkonan, "TFN", Form::Tfn, 0, Required},
    {Karkonan, "MelliCode", Form::Letters, 0, Required},
    {Karkonan, "Name", Form::Text, 0, Required},
    {Karkonan, "Family", Form::Text, 0, Required},
    {Karkonan, "FatherName", Form::Text, 0, Required},
    {Karkonan, "PostCode", Form::Digits, 10},
    {Karkonan, "Semat", Form::Code, 2, Required},
    {Karkonan, "Sabege", Form::Digits, 0, Required},
    {Karkonan, "Madrak", Form::Code, 1, Required},
    {Karkonan, "Rasteh", Form::Code, 10, Required},
    {Karkonan, "InsuNo", Form::Digits},
    {Karkonan, "ShakhsMoafCode", Form::Code, 13, Required},
    {Karkonan, "MelliatCode", Form::Code, 11, Required},
    {Karkonan, "KeshvarCode", Form::Code, 12, Required},
    {Karkonan, "BeginDate", Form::Date},
    {Karkonan, "EndDate", Form::Date},
    {Karkonan, "EstekhdamType", Form::Code, 15, Required},
    {Karkonan, "BimehType", Form::Code, 16, Required},
    {Karkonan, "IDSeri", Form::Code, 3},

    {Hogog, "TFN", Form::Tfn, 0, Required},
    {Hogog, "MelliCode", Form::Letters, 0, Required},
    {Hogog, "TaxYear", Form::Digits, 4, Required},
    {Hogog, "TaxMonth", Form::Code, 4, Required},
    {Hogog, "NJariHogog", Form::Digits},
    {Hogog, "JariEzafeKar", Form::Digits},
    {Hogog, "NJariSayerPardakhtiha", Form::Digits},
    {Hogog, "NTotalDaramad", Form::Digits},
    {Hogog, "NJariMoafiate91", Form::Digits},
    {Hogog, "NDaramadeMashmol", Form::Digits},
    {Hogog, "GJariHogog", Form::Digits},
    {Hogog, "MaskanStatus", Form::Code, 18, Required},
    {Hogog, "MaskanMablagh", Form::Digits},
    {Hogog, "OtomobilStatus", Form::Code, 19, Required},
    {Hogog, "OtomobilMablagh", Form::Digits},
    {Hogog, "GTotalDaramad", Form::Digits},
    {Hogog, "GDaramadeMashmol", Form::Digits},
    {Hogog, "PJariHogog", Form::Digits},
    {Hogog, "PDaramadeMashmol", Form::Digits},
    {Hogog, "NGPTotalDaramadeMashmol", Form::Digits},
    {Hogog, "SayereMoafiatha", Form::Digits},
    {Hogog, "FinalDaramadeMashmol", Form::Digits},
    {Hogog, "JariTax", Form::Digits},
    {Hogog, "FinalTax", Form::Digits},

    {KholList, "TFN", Form::Tfn, 0, Required},
    {KholList, "KholListType", Form::Code, 14, Required},
    {KholList, "TaxYear", Form::Digits, 4, Required},
    {KholList, "TaxMonth", Form::Code, 4, Required},
    {KholList, "JariSumHogog", Form::Digits},
    {KholList, "JariSumMashmol", Form::Digits},
    {KholList, "JariTax", Form::Digits},
    {KholList, "JariJarimeDo", Form::Digits},
    {KholList, "JariJarimeBist", Form::Digits},
    {KholList, "JariBedehiTax", Form::Digits},
    {KholList, "JariEzafeTax", Form::Digits},
    {KholList, "GablSumHogog", Form::Digits},
    {KholList, "GablSumMashmol", Form::Digits},
    {KholList, "GablTax", Form::Digits},
    {KholList, "GablJarimeDo", Form::Digits},
    {KholList, "GablJarimeBist", Form::Digits},
    {KholList, "GablBedehiTax", Form::Digits},
    {KholList, "GablEzafeTax", Form::Digits},
    {KholList, "RoznameDate", Form::Date, 0, Required},
    {KholList, "KarkonanNo", Form::Number, 0, Required}, // a new row keeps the separators that the screen shows
    {KholList, "KharejiNo", Form::Number},
    {KholList, "NahveyePardakht", Form::Code, 9, Required},
    {KholList, "ChequeSeriNo", Form::Digits},
    {KholList, "ChequeDate", Form::Date},
    {KholList, "BankName", Form::Code, 8},
    {KholList, "HesabNo", Form::Digits},
    {KholList, "MablagPardakhti", Form::Digits},

    {Coding, "MCode", Form::Digits, 0, Required},
    {Coding, "MDesc", Form::Text, 0, Required},
    {Coding, "SCode", Form::Digits, 0, Required},
    {Coding, "SDesc", Form::Text, 0, Required},

    {Users, "UserNamee", Form::Letters, 0, Required},
    {Users, "Passwordd", Form::Letters, 0, Required},
    {Users, "Access_Level", Form::Digits, 1, Required},
};
// clang-format on

/// The calendar's months have 31 days up to the sixth; the screens take a 30th day of the last month in any year.
bool isDate(std::string_view value)
{
    if (value.size() != 8 || !isDigits(value))
        return false;
    const auto two = [&](std::size_t at) { return (value[at] - '0') * 10 + (value[at + 1] - '0'); };
    const int month = two(4);
    const int day = two(6);
    return month >= 1 && month <= 12 && day >= 1 && day <= (month <= 6 ? 31 : 30);
}

bool isLetters(std::string_view value)
{
    return std::ranges::all_of(value, [](char letter) {
        return (letter >= '0' && letter <= '9') || (letter >= 'A' && letter <= 'Z') || (letter >= 'a' && letter <= 'z');
    });
}

/// "1,234" and "1234", but neither "12,34" nor ",123".
bool isNumber(std::string_view value)
{
    const std::size_t first = value.find(',');
    if (first == value.npos)
        return isDigits(value);
    if (first == 0 || first > 3 || value.size() % 4 != first % 4)
        return false;
    for (std::size_t i = 0; i < value.size(); ++i) {
        const bool isComma = i >= first && (i - first) % 4 == 0;
        if (isComma ? value[i] != ',' : value[i] < '0' || value[i] > '9')
            return false;
    }
    return true;
}

} // namespace

std::span<const FieldRule> fieldRules()
{
    return Rules;
}

QString complaint(const FieldRule &rule, std::string_view value)
{
    switch (rule.form) {
    case Form::Text:
    case Form::Code:
        return {};
    case Form::Digits:
        if (isDigits(value) && (rule.number == 0 || value.size() == std::size_t(rule.number)))
            return {};
        return rule.number == 0 ? u"is not plain digits"_s : u"is not "_s + QString::number(rule.number) + u" digits"_s;
    case Form::Number:
        return isNumber(value) ? QString() : u"is not a number"_s;
    case Form::Date:
        return isDate(value) ? QString() : u"is not a date of eight digits"_s;
    case Form::Letters:
        return isLetters(value) ? QString() : u"is not Latin letters and digits"_s;
    case Form::Tfn:
        if (!isDigits(value) || value.size() != 12)
            return u"is not 12 digits"_s;
        return value.front() == '4' || value.front() == '5' ? u"begins as an economic number does"_s : QString();
    }
    return {};
}

bool isDigits(std::string_view value)
{
    return std::ranges::all_of(value, [](char letter) { return letter >= '0' && letter <= '9'; });
}

bool isBlank(std::string_view value)
{
    return std::ranges::all_of(value, [](char letter) { return letter == ' '; });
}

} // namespace zrv::storetool
