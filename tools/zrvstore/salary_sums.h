// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>

#include <array>
#include <string_view>

namespace zrv::storetool {

/// The amounts of a salary row, in whole rials, in the order of `AmountNames`.
enum Amount {
    NJariHogog,
    JariEzafeKar,
    NJariSayerPardakhtiha,
    NTotalDaramad,
    NJariMoafiate91,
    NDaramadeMashmol,
    GJariHogog,
    MaskanMablagh,
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
    AmountCount
};

inline constexpr std::array<std::string_view, AmountCount> AmountNames = {
    "NJariHogog",
    "JariEzafeKar",
    "NJariSayerPardakhtiha",
    "NTotalDaramad",
    "NJariMoafiate91",
    "NDaramadeMashmol",
    "GJariHogog",
    "MaskanMablagh",
    "OtomobilMablagh",
    "GTotalDaramad",
    "GDaramadeMashmol",
    "PJariHogog",
    "PDaramadeMashmol",
    "NGPTotalDaramadeMashmol",
    "SayereMoafiatha",
    "FinalDaramadeMashmol",
    "JariTax",
    "FinalTax",
};

using Amounts = std::array<qint64, AmountCount>;

/// What a payee's exemption makes of the month: none, half the tax (an underdeveloped region), all of it.
enum class Exemption { GMoaf, KTosehe, Moaf };

/// By the payee's ShakhsMoafCode; whatever is neither 0 nor 1 exempts altogether.
[[nodiscard]] Exemption exemptionOf(std::string_view code);
[[nodiscard]] std::string_view nameOf(Exemption exemption);

/// An amount that isn't what the others make it.
struct WrongSum {
    Amount amount = AmountCount; ///< AmountCount: every sum is right
    qint64 expected = 0;
};

/// The first wrong one of the sums that hold for every payee.
[[nodiscard]] WrongSum wrongTotal(const Amounts &row);
/// The first wrong one of the sums that depend on the exemption.
[[nodiscard]] WrongSum wrongRemainder(const Amounts &row, Exemption exemption);

/// True if a row whose sums are wrong for its payee's exemption may have been reckoned under another one, which the
/// payee had then. A row of half the tax must show the half: any tax at all would fit it otherwise.
[[nodiscard]] bool fitsFormer(const Amounts &row, Exemption former);

} // namespace zrv::storetool
