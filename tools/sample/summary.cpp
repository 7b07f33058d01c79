// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/sample/dice.h"
#include "tools/sample/months.h"
#include "tools/sample/numbers.h"

#include <utility>

namespace zrv::sample {

namespace {

// clang-format off
constexpr Column<Summary> SummaryColumns[] = {
    {"TFN", &Summary::TFN}, {"KholListType", &Summary::KholListType}, {"TaxYear", &Summary::TaxYear},
    {"TaxMonth", &Summary::TaxMonth},
    {"JariSumHogog", &Summary::JariSumHogog}, {"JariSumMashmol", &Summary::JariSumMashmol},
    {"JariTax", &Summary::JariTax}, {"JariJarimeDo", &Summary::JariJarimeDo},
    {"JariJarimeBist", &Summary::JariJarimeBist}, {"JariBedehiTax", &Summary::JariBedehiTax},
    {"GablSumHogog", &Summary::GablSumHogog}, {"GablSumMashmol", &Summary::GablSumMashmol},
    {"GablTax", &Summary::GablTax}, {"GablJarimeDo", &Summary::GablJarimeDo},
    {"GablJarimeBist", &Summary::GablJarimeBist}, {"GablBedehiTax", &Summary::GablBedehiTax},
    {"RoznameDate", &Summary::RoznameDate}, {"KarkonanNo", &Summary::KarkonanNo}, {"KharejiNo", &Summary::KharejiNo},
    {"NahveyePardakht", &Summary::NahveyePardakht}, {"ChequeSeriNo", &Summary::ChequeSeriNo},
    {"ChequeDate", &Summary::ChequeDate}, {"BankName", &Summary::BankName}, {"ShobeName", &Summary::ShobeName},
    {"HesabNo", &Summary::HesabNo}, {"MablagPardakhti", &Summary::MablagPardakhti},
};
// clang-format on

enum Payment { Cash = 1, Cheque, None };

} // namespace

SummaryBook::SummaryBook(const Plan &plan, std::string tfn)
    : m_plan(plan)
{
    m_open.TFN = std::move(tfn);
    m_open.KholListType = "1";
    m_open.TaxYear = std::to_string(plan.year);
}

void SummaryBook::add(const Payee &payee, const Salary &salary)
{
    ++m_payees;
    m_foreigners += payee.isForeign();
    m_open.JariSumHogog += salary.NTotalDaramad + salary.GTotalDaramad + salary.PJariHogog;
    m_open.JariSumMashmol += salary.FinalDaramadeMashmol;
    m_open.JariTax += salary.FinalTax;
}

Summary SummaryBook::close()
{
    Summary row = m_open;
    row.TaxMonth = monthText(m_month);
    row.KarkonanNo = std::to_string(m_payees);
    row.KharejiNo = std::to_string(m_foreigners);
    row.GablSumHogog = m_earlier.GablSumHogog + m_earlier.JariSumHogog;
    row.GablSumMashmol = m_earlier.GablSumMashmol + m_earlier.JariSumMashmol;
    row.GablTax = m_earlier.GablTax + m_earlier.JariTax;
    row.GablJarimeDo = m_earlier.GablJarimeDo + m_earlier.JariJarimeDo;
    row.GablJarimeBist = m_earlier.GablJarimeBist + m_earlier.JariJarimeBist;
    row.GablBedehiTax = m_earlier.GablBedehiTax + m_earlier.JariBedehiTax;
    if (m_earlier.NahveyePardakht == std::to_string(None)) {
        row.JariBedehiTax = m_earlier.JariTax;
        row.JariJarimeBist = m_earlier.JariTax / 5;
    }
    setPayment(row, m_month);
    m_earlier = row;
    m_open.JariSumHogog = m_open.JariSumMashmol = m_open.JariTax = 0;
    m_payees = m_foreigners = 0;
    ++m_month;
    return row;
}

void SummaryBook::setPayment(Summary &row, int month) const
{
    constexpr Payment Turns[] = {Cash, Cheque, None};
    Dice dice(m_plan.rng, "payment", quint64(month));
    row.RoznameDate = dateText(m_plan.year, month, 28);
    const qint64 due = row.JariTax + row.JariJarimeDo + row.JariJarimeBist + row.JariBedehiTax;
    Payment payment = Turns[(month - 1) % 3];
    if (payment == Cheque && due == 0) // nobody writes a cheque over nothing
        payment = Cash;
    row.NahveyePardakht = std::to_string(payment);
    row.MablagPardakhti = payment == None ? 0 : due;
    if (payment != Cheque)
        return;
    row.ChequeSeriNo = digits(dice, 6);
    row.ChequeDate = dateText(m_plan.year, month, 29);
    row.BankName = std::to_string(dice.between(1, 17));
    row.ShobeName = "شعبه مرکزي";
    row.HesabNo = digits(dice, 13);
}

std::span<const Column<Summary>> summaryColumns()
{
    return SummaryColumns;
}

} // namespace zrv::sample
