// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/sample/people.h"

namespace zrv::sample {

/// A payee's salary row of a month. Amounts in whole rials, at most ten digits each.
struct Salary {
    std::string TFN, MelliCode, TaxYear, TaxMonth, MaskanStatus, OtomobilStatus;
    qint64 NJariHogog = 0, JariEzafeKar = 0, NJariSayerPardakhtiha = 0, NTotalDaramad = 0, NJariMoafiate91 = 0,
           NDaramadeMashmol = 0, GJariHogog = 0, MaskanMablagh = 0, OtomobilMablagh = 0, GTotalDaramad = 0,
           GDaramadeMashmol = 0, PJariHogog = 0, PDaramadeMashmol = 0, NGPTotalDaramadeMashmol = 0, SayereMoafiatha = 0,
           FinalDaramadeMashmol = 0, JariTax = 0, FinalTax = 0;
};

/// The figures are thrown; the sums between them are those of the salary screen, by the payee's exemption class. What
/// the payer reckons outside the program (exemptions, taxable income, tax) is a flat reckoning of the sample's own.
[[nodiscard]] Salary salary(const Plan &plan, const Payee &payee, int month);
[[nodiscard]] std::span<const Column<Salary>> salaryColumns();

/// The summary row of a month. Amounts in whole rials.
struct Summary {
    std::string TFN, KholListType, TaxYear, TaxMonth, RoznameDate, KarkonanNo, KharejiNo, NahveyePardakht, ChequeSeriNo,
        ChequeDate, BankName, ShobeName, HesabNo;
    qint64 JariSumHogog = 0, JariSumMashmol = 0, JariTax = 0, JariJarimeDo = 0, JariJarimeBist = 0, JariBedehiTax = 0,
           GablSumHogog = 0, GablSumMashmol = 0, GablTax = 0, GablJarimeDo = 0, GablJarimeBist = 0, GablBedehiTax = 0,
           MablagPardakhti = 0;
};
[[nodiscard]] std::span<const Column<Summary>> summaryColumns();

/// Makes the summary rows, month by month: `add` each salary row of a month, then `close` the month.
class SummaryBook {
public:
    SummaryBook(const Plan &plan, std::string tfn);

    void add(const Payee &payee, const Salary &salary);
    /// The row of the month whose salary rows were added since the last call. Months are paid in cash, by cheque and
    /// not at all in turn; a month behind an unpaid one owes its tax and a fifth of it.
    [[nodiscard]] Summary close();

private:
    void setPayment(Summary &row, int month) const;

    Plan m_plan;
    Summary m_open;    ///< the month's sums so far
    Summary m_earlier; ///< the last closed month
    int m_month = 1;
    int m_payees = 0;
    int m_foreigners = 0;
};

} // namespace zrv::sample
