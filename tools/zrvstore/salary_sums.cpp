// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/zrvstore/salary_sums.h"

#include <algorithm>
#include <initializer_list>

namespace zrv::storetool {

namespace {

struct Expected {
    Amount amount;
    qint64 value;
};

WrongSum firstWrong(const Amounts &row, std::initializer_list<Expected> expected)
{
    for (const Expected &each : expected) {
        if (row[each.amount] != each.value)
            return {each.amount, each.value};
    }
    return {};
}

} // namespace

Exemption exemptionOf(std::string_view code)
{
    return code == "0" ? Exemption::GMoaf : code == "1" ? Exemption::KTosehe : Exemption::Moaf;
}

std::string_view nameOf(Exemption exemption)
{
    constexpr std::string_view Names[] = {"GMoaf", "KTosehe", "Moaf"};
    return Names[std::size_t(exemption)];
}

WrongSum wrongTotal(const Amounts &row)
{
    return firstWrong(row, {
                               {NTotalDaramad, row[NJariHogog] + row[JariEzafeKar] + row[NJariSayerPardakhtiha]},
                               {GTotalDaramad, row[GJariHogog] + row[MaskanMablagh] + row[OtomobilMablagh]},
                           });
}

WrongSum wrongRemainder(const Amounts &row, Exemption exemption)
{
    if (exemption == Exemption::Moaf) {
        return firstWrong(row, {
                                   {NGPTotalDaramadeMashmol, row[NTotalDaramad] + row[GTotalDaramad] + row[PJariHogog]},
                                   {NJariMoafiate91, 0},
                                   {NDaramadeMashmol, 0},
                                   {GDaramadeMashmol, 0},
                                   {PDaramadeMashmol, 0},
                                   {FinalDaramadeMashmol, 0},
                                   {JariTax, 0},
                                   {FinalTax, 0},
                                   {SayereMoafiatha, 0},
                               });
    }
    // The exemption may have been accepted before the pay fell below it.
    const qint64 cash = std::max<qint64>(row[NTotalDaramad] - row[NJariMoafiate91], 0);
    const qint64 remainders = row[NDaramadeMashmol] + row[GDaramadeMashmol] + row[PDaramadeMashmol];
    const qint64 tax = exemption == Exemption::GMoaf ? row[JariTax] : row[FinalTax];
    return firstWrong(row, {{NDaramadeMashmol, cash}, {NGPTotalDaramadeMashmol, remainders}, {FinalTax, tax}});
}

bool fitsFormer(const Amounts &row, Exemption former)
{
    const qint64 rest = row[JariTax] - 2 * row[FinalTax];
    if (former == Exemption::KTosehe && (rest < -1 || rest > 1))
        return false;
    return wrongRemainder(row, former).amount == AmountCount;
}

} // namespace zrv::storetool
