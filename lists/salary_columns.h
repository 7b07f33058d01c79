// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringView>

#include <array>
#include <cstddef>

namespace zrv {

/// The fields of one payee's month. Each shows the column of its name: txtNJariHogog, dcbMaskanStatus.
enum class MonthField {
    NJariHogog,
    JariEzafeKar,
    NJariSayerPardakhtiha,
    NTotalDaramad,
    NJariMoafiate91,
    NDaramadeMashmol,
    GJariHogog,
    MaskanStatus,
    MaskanMablagh,
    OtomobilStatus,
    OtomobilMablagh,
    GTotalDaramad,
    GDaramadeMashmol,
    PJariHogog,
    PDaramadeMashmol,
    NGPTotalDaramadeMashmol,
    SayereMoafiatha,
    FinalDaramadeMashmol,
    JariTax,
    FinalTax,
};

/// Where a column's value comes from.
enum class Origin {
    Key,
    Entered,
    Derived, ///< by a formula; the field is locked
    Status,  ///< a code list's
};

struct SalaryColumn {
    QStringView name;
    Origin origin;
    bool required = false;
    int limit = 0; ///< letters that a user can enter, thousands separators included; 0 for what isn't entered
};

/// An entered amount has ten digits at most, 9,999,999,999: what the electronic file has room for.
inline constexpr int AmountLimit = 13;

// clang-format off
/// The columns of ZRVtbHogog in the order in which a new row names them. Behind the four of the key they stand in the
/// order of MonthField.
inline constexpr std::array<SalaryColumn, 24> SalaryColumns = {{
    {u"TFN",                     Origin::Key},
    {u"MelliCode",               Origin::Key},
    {u"TaxYear",                 Origin::Key},
    {u"TaxMonth",                Origin::Key},
    {u"NJariHogog",              Origin::Entered, true,  AmountLimit},
    {u"JariEzafeKar",            Origin::Entered, true,  AmountLimit},
    {u"NJariSayerPardakhtiha",   Origin::Entered, false, AmountLimit},
    {u"NTotalDaramad",           Origin::Derived},
    {u"NJariMoafiate91",         Origin::Entered, true,  AmountLimit}, // and never above NTotalDaramad
    {u"NDaramadeMashmol",        Origin::Derived},
    {u"GJariHogog",              Origin::Entered, false, AmountLimit},
    {u"MaskanStatus",            Origin::Status,  true},
    {u"MaskanMablagh",           Origin::Entered, false, AmountLimit}, // where MaskanStatus isn't 1
    {u"OtomobilStatus",          Origin::Status,  true},
    {u"OtomobilMablagh",         Origin::Entered, false, AmountLimit}, // where OtomobilStatus isn't 1
    {u"GTotalDaramad",           Origin::Derived},
    {u"GDaramadeMashmol",        Origin::Entered, false, AmountLimit},
    {u"PJariHogog",              Origin::Entered, false, AmountLimit},
    {u"PDaramadeMashmol",        Origin::Entered, false, AmountLimit},
    {u"NGPTotalDaramadeMashmol", Origin::Derived},
    {u"SayereMoafiatha",         Origin::Entered, false, AmountLimit},
    {u"FinalDaramadeMashmol",    Origin::Entered, true,  AmountLimit},
    {u"JariTax",                 Origin::Entered, true,  AmountLimit},
    {u"FinalTax",                Origin::Entered, true,  AmountLimit}, // or the copy of JariTax, by the payee's class
}};
// clang-format on

inline constexpr std::size_t SalaryKeyColumns = 4;
inline constexpr std::size_t MonthFields = SalaryColumns.size() - SalaryKeyColumns;

[[nodiscard]] constexpr const SalaryColumn &columnOf(MonthField field)
{
    return SalaryColumns[SalaryKeyColumns + static_cast<std::size_t>(field)];
}

static_assert(static_cast<std::size_t>(MonthField::FinalTax) + 1 == MonthFields);

} // namespace zrv
