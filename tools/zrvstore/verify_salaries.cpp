// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/zrvstore/amount.h"
#include "tools/zrvstore/salary_sums.h"
#include "tools/zrvstore/verify_months.h"

#include <algorithm>
#include <optional>

namespace zrv::storetool {

using namespace Qt::Literals::StringLiterals;

namespace {

QString text(std::string_view utf8)
{
    return QString::fromUtf8(utf8.data(), qsizetype(utf8.size()));
}

/// A status of 1, no use, leaves its amount no room.
struct Benefit {
    std::string_view status;
    Amount amount;
};
constexpr Benefit Benefits[] = {{"MaskanStatus", MaskanMablagh}, {"OtomobilStatus", OtomobilMablagh}};

class SalaryCheck {
public:
    SalaryCheck(const FoundTable &table, Findings &findings)
        : m_findings(findings)
        , m_tfn(placeOf(*table.shape, "TFN"))
        , m_year(placeOf(*table.shape, "TaxYear"))
        , m_month(placeOf(*table.shape, "TaxMonth"))
    {
        for (std::size_t i = 0; i < AmountCount; ++i) {
            m_places[i] = placeOf(*table.shape, AmountNames[i]);
            // In an older store the sums have no place; there is nothing to add up before the upgrade.
            m_canAdd = m_canAdd && table.has(m_places[i]);
        }
        for (std::size_t i = 0; i < std::size(Benefits); ++i)
            m_statuses[i] = placeOf(*table.shape, Benefits[i].status);
    }

    /// `exemption` is the payee's code, nothing where the payee is missing.
    void check(const TableReader &row, std::optional<std::string_view> exemption)
    {
        Amounts amounts;
        for (std::size_t i = 0; i < AmountCount; ++i)
            amounts[i] = amountOf(row.value(m_places[i]));
        add(row, amounts);
        if (!m_canAdd)
            return;
        report(row, wrongTotal(amounts), amounts, {});
        for (std::size_t i = 0; i < std::size(Benefits); ++i) {
            if (row.value(m_statuses[i]) == "1" && amounts[Benefits[i].amount] != 0)
                report(row, {Benefits[i].amount, 0}, amounts, u" while its status is 1"_s);
        }
        if (exemption)
            checkRemainders(row, amounts, exemptionOf(*exemption));
    }

    [[nodiscard]] const SumsOfMonths &sums() const { return m_sums; }

private:
    void add(const TableReader &row, const Amounts &amounts)
    {
        // Rows of a month lie together, so the last month is mostly the one.
        if (!m_current || row.value(m_month) != std::get<2>(m_current->first)
            || row.value(m_year) != std::get<1>(m_current->first)
            || row.value(m_tfn) != std::get<0>(m_current->first)) {
            const Month month{row.value(m_tfn), row.value(m_year), row.value(m_month)};
            m_current = &*m_sums.try_emplace(month).first;
        }
        MonthSums &sums = m_current->second;
        ++sums.payees;
        sums.paid += amounts[NTotalDaramad] + amounts[GTotalDaramad] + amounts[PJariHogog];
        sums.taxable += amounts[FinalDaramadeMashmol];
        sums.tax += amounts[FinalTax];
    }

    void checkRemainders(const TableReader &row, const Amounts &amounts, Exemption exemption)
    {
        const WrongSum wrong = wrongRemainder(amounts, exemption);
        if (wrong.amount == AmountCount)
            return;
        for (const Exemption former : {Exemption::GMoaf, Exemption::KTosehe, Exemption::Moaf}) {
            if (fitsFormer(amounts, former)) {
                m_findings.note(finding::OtherClass, row.where(AmountNames[wrong.amount]),
                                u"the row is reckoned for "_s + text(nameOf(former)) + u", the payee is now "_s
                                    + text(nameOf(exemption)));
                return;
            }
        }
        report(row, wrong, amounts, u" for "_s + text(nameOf(exemption)));
    }

    void report(const TableReader &row, WrongSum wrong, const Amounts &amounts, const QString &when)
    {
        if (wrong.amount != AmountCount)
            m_findings.add(finding::RowSum, row.where(AmountNames[wrong.amount]),
                           u"is "_s + QString::number(amounts[wrong.amount]) + u", the row makes "_s
                               + QString::number(wrong.expected) + when);
    }

    Findings &m_findings;
    std::size_t m_tfn, m_year, m_month;
    std::array<std::size_t, AmountCount> m_places{};
    std::array<std::size_t, std::size(Benefits)> m_statuses{};
    bool m_canAdd = true;
    SumsOfMonths m_sums;
    SumsOfMonths::value_type *m_current = nullptr;
};

} // namespace

SumsOfMonths checkSalaries(const Database &database, const FoundTable &salaries, const FoundTable &payees,
                           const CodeLists &lists, const Payers &payers, Findings &findings)
{
    if (!salaries.isThere)
        return {};
    const bool canJoin = payees.isThere && payees.has(placeOf(*payees.shape, "MelliCode"))
                         && payees.has(placeOf(*payees.shape, "ShakhsMoafCode"))
                         && salaries.has(placeOf(*salaries.shape, "MelliCode"));
    const FieldCheck fields(salaries, lists);
    const std::size_t tfn = placeOf(*salaries.shape, "TFN");
    SalaryCheck check(salaries, findings);
    // A salary row belongs to the payee by the national code alone.
    TableReader row(database, salaries,
                    canJoin ? u"LEFT JOIN ZRVtbKarkonan AS k ON k.MelliCode=t.MelliCode"_s : QString(),
                    canJoin ? u"k.rowid,k.ShakhsMoafCode"_s : QString());
    qint64 last = 0;
    while (row.next()) {
        if (row.rowId() == last) // the code stands twice among the payees
            continue;
        last = row.rowId();
        fields.check(row, findings);
        checkOrphan(row, row.value(tfn), payers, findings);
        const bool hasPayee = canJoin && !row.joined(0).empty();
        if (canJoin && !hasPayee)
            findings.add(finding::MissingPayee, row.where("MelliCode"), u"no payee has this code"_s);
        check.check(row, hasPayee ? std::optional(row.joined(1)) : std::nullopt);
    }
    return check.sums();
}

} // namespace zrv::storetool
