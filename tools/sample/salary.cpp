// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/sample/dice.h"
#include "tools/sample/months.h"
#include "tools/sample/numbers.h"

#include <algorithm>

namespace zrv::sample {

namespace {

// clang-format off
constexpr Column<Salary> SalaryColumns[] = {
    {"TFN", &Salary::TFN}, {"MelliCode", &Salary::MelliCode}, {"TaxYear", &Salary::TaxYear},
    {"TaxMonth", &Salary::TaxMonth},
    {"NJariHogog", &Salary::NJariHogog}, {"JariEzafeKar", &Salary::JariEzafeKar},
    {"NJariSayerPardakhtiha", &Salary::NJariSayerPardakhtiha}, {"NTotalDaramad", &Salary::NTotalDaramad},
    {"NJariMoafiate91", &Salary::NJariMoafiate91}, {"NDaramadeMashmol", &Salary::NDaramadeMashmol},
    {"GJariHogog", &Salary::GJariHogog}, {"MaskanStatus", &Salary::MaskanStatus},
    {"MaskanMablagh", &Salary::MaskanMablagh}, {"OtomobilStatus", &Salary::OtomobilStatus},
    {"OtomobilMablagh", &Salary::OtomobilMablagh}, {"GTotalDaramad", &Salary::GTotalDaramad},
    {"GDaramadeMashmol", &Salary::GDaramadeMashmol}, {"PJariHogog", &Salary::PJariHogog},
    {"PDaramadeMashmol", &Salary::PDaramadeMashmol},
    {"NGPTotalDaramadeMashmol", &Salary::NGPTotalDaramadeMashmol}, {"SayereMoafiatha", &Salary::SayereMoafiatha},
    {"FinalDaramadeMashmol", &Salary::FinalDaramadeMashmol}, {"JariTax", &Salary::JariTax},
    {"FinalTax", &Salary::FinalTax},
};
// clang-format on

constexpr qint64 MonthlyExemption = 4'333'333; ///< a twelfth of the sample's yearly exemption
constexpr qint64 Taxes = 10;                   ///< one rial of so many

enum class Class { None, Half, Whole };

Class classOf(const Payee &payee)
{
    return payee.ShakhsMoafCode == "0" ? Class::None : payee.ShakhsMoafCode == "1" ? Class::Half : Class::Whole;
}

qint64 aboveZero(qint64 amount)
{
    return std::max<qint64>(amount, 0);
}

/// The month's pay in cash: a base that stays the year over, overtime, now and then something else.
void setCash(Salary &row, qint64 base, Dice &dice)
{
    row.NJariHogog = base;
    row.JariEzafeKar = dice.oneIn(3) ? 0 : base / 100 * dice.between(1, 30);
    row.NJariSayerPardakhtiha = dice.oneIn(8) ? dice.between(100, 1'500) * 1'000 : 0;
    row.NTotalDaramad = row.NJariHogog + row.JariEzafeKar + row.NJariSayerPardakhtiha;
}

/// What isn't cash: goods, a flat, a car. An amount stands only where the flat or the car is used.
void setNonCash(Salary &row, qint64 base, Dice &benefits, Dice &dice)
{
    const int flat = benefits.oneIn(8) ? benefits.between(2, 3) : 1;
    const int car = benefits.oneIn(15) ? benefits.between(2, 3) : 1;
    row.MaskanStatus = std::to_string(flat);
    row.MaskanMablagh = flat == 1 ? 0 : base / 100 * (flat == 2 ? 25 : 20);
    row.OtomobilStatus = std::to_string(car);
    row.OtomobilMablagh = car == 1 ? 0 : base / 100 * (car == 2 ? 10 : 5);
    row.GJariHogog = dice.oneIn(4) ? dice.between(200, 1'200) * 1'000 : 0;
    row.GTotalDaramad = row.GJariHogog + row.MaskanMablagh + row.OtomobilMablagh;
}

/// Two months' pay at the end of the year, and a reward now and then.
void setBonus(Salary &row, qint64 base, int month, Dice &dice)
{
    row.PJariHogog = month == 12 ? 2 * base : dice.oneIn(15) ? base / 100 * dice.between(10, 100) : 0;
}

void setTax(Salary &row, Class exemption, Dice &dice)
{
    if (exemption == Class::Whole) {
        row.NGPTotalDaramadeMashmol = row.NTotalDaramad + row.GTotalDaramad + row.PJariHogog;
        return;
    }
    row.NJariMoafiate91 = row.NTotalDaramad / 1'000 * 70;
    row.NDaramadeMashmol = row.NTotalDaramad - row.NJariMoafiate91;
    row.GDaramadeMashmol = aboveZero(row.GTotalDaramad - MonthlyExemption / 6);
    row.PDaramadeMashmol = aboveZero(row.PJariHogog - MonthlyExemption);
    row.NGPTotalDaramadeMashmol = row.NDaramadeMashmol + row.GDaramadeMashmol + row.PDaramadeMashmol;
    row.SayereMoafiatha = dice.oneIn(10) ? row.NGPTotalDaramadeMashmol / 50 : 0;
    row.FinalDaramadeMashmol = aboveZero(row.NGPTotalDaramadeMashmol - row.SayereMoafiatha - MonthlyExemption);
    row.JariTax = row.FinalDaramadeMashmol / Taxes;
    row.FinalTax = exemption == Class::Half ? row.JariTax / 2 : row.JariTax;
}

} // namespace

Salary salary(const Plan &plan, const Payee &payee, int month)
{
    Salary row;
    row.TFN = payee.TFN;
    row.MelliCode = payee.MelliCode;
    row.TaxYear = std::to_string(plan.year);
    row.TaxMonth = monthText(month);

    Dice yearly(plan.rng, "pay", quint64(payee.number));
    const qint64 base = qint64(yearly.between(3'030, yearly.oneIn(6) ? 26'000 : 9'500)) * 1'000;
    Dice dice(plan.rng, "month", quint64(payee.number) * 12 + quint64(month));
    setCash(row, base, dice);
    setNonCash(row, base, yearly, dice);
    setBonus(row, base, month, dice);
    setTax(row, classOf(payee), dice);
    return row;
}

std::span<const Column<Salary>> salaryColumns()
{
    return SalaryColumns;
}

} // namespace zrv::sample
