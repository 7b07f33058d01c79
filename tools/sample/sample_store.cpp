// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/sample/sample_store.h"

#include "core/store/new_store.h"
#include "core/store/schema.h"
#include "tools/sample/months.h"
#include "tools/sample/people.h"

#include <algorithm>
#include <array>

namespace zrv::sample {

namespace {

using namespace Qt::Literals::StringLiterals;

QString text(std::string_view utf8)
{
    return QString::fromUtf8(utf8.data(), qsizetype(utf8.size()));
}

/// Puts rows of one kind into their table. Columns that the sample doesn't know stay NULL, as they do on the screens.
template <typename Row>
class Inserter {
public:
    Inserter(NewStore &store, const QString &table, std::span<const Column<Row>> columns)
        : m_store(store)
        , m_table(table)
    {
        const auto shape = std::ranges::find(storeSchema(), table, &TableShape::name);
        for (const Column<Row> &column : columns) {
            const auto place = std::ranges::find(shape->columns, text(column.name), &ColumnShape::name);
            m_cells.push_back({place - shape->columns.begin(), column.cell});
        }
        m_values.resize(shape->columns.size());
    }

    void add(const Row &row)
    {
        for (const Cell &cell : m_cells)
            m_values[std::size_t(cell.place)] =
                std::visit([&](auto member) { return value(row.*member); }, cell.member);
        m_store.addRow(m_table, m_values);
    }

private:
    struct Cell {
        std::ptrdiff_t place;
        decltype(Column<Row>::cell) member;
    };

    static Value value(const std::string &cell) { return text(cell); }
    static Value value(qint64 amount) { return QString::number(amount); }

    NewStore &m_store;
    QString m_table;
    std::vector<Cell> m_cells;
    std::vector<Value> m_values;
};

void addCodeRows(NewStore &store, const Plan &plan)
{
    for (const CodeRow &row : codeRows(plan))
        store.addRow(u"ZRVtbCoding",
                     std::array<Value, 4>{text(row.list), text(row.listName), text(row.code), text(row.description)});
}

void addMonths(NewStore &store, const Plan &plan, const std::string &tfn)
{
    Inserter<Salary> salaries(store, u"ZRVtbHogog"_s, salaryColumns());
    Inserter<Summary> summaries(store, u"ZRVtbKholList"_s, summaryColumns());
    SummaryBook book(plan, tfn);
    for (int month = 1; month <= plan.months; ++month) {
        for (int number = 0; number < plan.payees; ++number) {
            const Payee someone = payee(plan, tfn, number);
            if (!someone.isPaidIn(month))
                continue;
            const Salary row = salary(plan, someone, month);
            salaries.add(row);
            book.add(someone, row);
        }
        summaries.add(book.close());
    }
}

} // namespace

void addSampleRows(NewStore &store, const Plan &plan)
{
    addFreshRows(store, {});
    addCodeRows(store, plan);
    const Payer theirPayer = payer(plan);
    Inserter<Payer>(store, u"ZRVtbKarfarma"_s, payerColumns()).add(theirPayer);
    Inserter<Payee> payees(store, u"ZRVtbKarkonan"_s, payeeColumns());
    for (int number = 0; number < plan.payees; ++number)
        payees.add(payee(plan, theirPayer.TFN, number));
    addMonths(store, plan, theirPayer.TFN);
}

} // namespace zrv::sample
