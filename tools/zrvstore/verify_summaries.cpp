// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/zrvstore/amount.h"
#include "tools/zrvstore/verify_months.h"

#include <iterator>

namespace zrv::storetool {

using namespace Qt::Literals::StringLiterals;

namespace {

/// The sums that the following months of a year carry on, and under which names.
struct Carried {
    std::string_view monthly;
    std::string_view earlier;
};
constexpr Carried CarriedSums[] = {
    {"JariSumHogog", "GablSumHogog"},
    {"JariSumMashmol", "GablSumMashmol"},
    {"JariTax", "GablTax"},
};

/// The columns of a cheque, which stand with payment kind 2 alone.
constexpr std::string_view ChequeColumns[] = {"ChequeSeriNo", "ChequeDate", "BankName", "ShobeName", "HesabNo"};

QString number(qint64 amount)
{
    return QString::number(amount);
}

/// One summary row at a time, by names.
class SummaryCheck {
public:
    SummaryCheck(const TableReader &row, Findings &findings)
        : m_row(row)
        , m_findings(findings)
    {
    }

    std::string_view operator[](std::string_view column) const { return m_row.value(placeOf(m_row.shape(), column)); }
    qint64 amount(std::string_view column) const { return amountOf((*this)[column]); }

    void expect(QStringView kind, std::string_view column, qint64 expected, const QString &source) const
    {
        if (m_row.has(placeOf(m_row.shape(), column)) && amount(column) != expected)
            report(kind, column, u"is "_s + number(amount(column)) + u", "_s + source + u' ' + number(expected));
    }
    void report(QStringView kind, std::string_view column, const QString &what) const
    {
        m_findings.add(kind, m_row.where(column), what);
    }

private:
    const TableReader &m_row;
    Findings &m_findings;
};

void checkMonth(const SummaryCheck &row, const SumsOfMonths &sums)
{
    if (row["KholListType"] != "1") // the other kinds aren't made from the salary list
        return;
    const auto found =
        sums.find(Month{std::string(row["TFN"]), std::string(row["TaxYear"]), std::string(row["TaxMonth"])});
    const MonthSums month = found == sums.end() ? MonthSums() : found->second;
    const QString source = u"the month's salary rows make"_s;
    row.expect(finding::SummarySum, "KarkonanNo", month.payees, source);
    row.expect(finding::SummarySum, "JariSumHogog", month.paid, source);
    row.expect(finding::SummarySum, "JariSumMashmol", month.taxable, source);
    row.expect(finding::SummarySum, "JariTax", month.tax, source);
}

void checkPayment(const SummaryCheck &row)
{
    const std::string_view kind = row["NahveyePardakht"];
    const bool isCheque = kind == "2";
    for (const std::string_view column : ChequeColumns) {
        if (isCheque && isBlank(row[column]))
            row.report(finding::Payment, column, u"is empty, and the tax is paid by cheque"_s);
        else if (!isCheque && !isBlank(row[column]))
            row.report(finding::Payment, column, shown(row[column]) + u" stands though no cheque is paid"_s);
    }
    const qint64 paid = row.amount("MablagPardakhti");
    if (isCheque && paid == 0)
        row.report(finding::Payment, "MablagPardakhti", u"is 0, and the tax is paid by cheque"_s);
    else if (kind == "3" && paid != 0)
        row.report(finding::Payment, "MablagPardakhti", u"is "_s + number(paid) + u", and nothing is paid"_s);
}

/// The sums of a year's summary rows by month, for what later months carry.
class Carry {
public:
    using Series = std::tuple<std::string, std::string, std::string>; ///< file number, kind of list, year

    void read(const SummaryCheck &row)
    {
        auto &month = m_series[seriesOf(row)][row.amount("TaxMonth")];
        for (std::size_t i = 0; i < std::size(CarriedSums); ++i)
            month[i] += row.amount(CarriedSums[i].monthly);
    }

    void check(const SummaryCheck &row) const
    {
        std::array<qint64, std::size(CarriedSums)> sums{};
        const auto series = m_series.find(seriesOf(row));
        for (const auto &[month, amounts] : series->second) {
            if (month >= row.amount("TaxMonth"))
                break;
            for (std::size_t i = 0; i < sums.size(); ++i)
                sums[i] += amounts[i];
        }
        for (std::size_t i = 0; i < sums.size(); ++i)
            row.expect(finding::CarriedSum, CarriedSums[i].earlier, sums[i], u"the earlier months make"_s);
    }

private:
    static Series seriesOf(const SummaryCheck &row)
    {
        return {std::string(row["TFN"]), std::string(row["KholListType"]), std::string(row["TaxYear"])};
    }

    std::map<Series, std::map<qint64, std::array<qint64, std::size(CarriedSums)>>> m_series;
};

} // namespace

void checkSummaries(const Database &database, const FoundTable &table, const CodeLists &lists, const Payers &payers,
                    const SumsOfMonths &sums, Findings &findings)
{
    if (!table.isThere)
        return;
    // Earlier months may stand behind later ones, so all are read before any is judged.
    Carry carry;
    for (TableReader row(database, table); row.next();)
        carry.read({row, findings});

    const FieldCheck fields(table, lists);
    TableReader row(database, table);
    while (row.next()) {
        const SummaryCheck summary(row, findings);
        fields.check(row, findings);
        checkOrphan(row, summary["TFN"], payers, findings);
        checkMonth(summary, sums);
        carry.check(summary);
        checkPayment(summary);
    }
}

} // namespace zrv::storetool
