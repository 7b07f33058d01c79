// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/sample/sample_store.h"

#include "core/store/new_store.h"
#include "core/store/schema.h"
#include "tools/sample/months.h"
#include "tools/sample/old_version.h"
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

/// Puts rows of one kind into their table. Columns that the sample doesn't know stay NULL, as they do on the screens,
/// and what an old table has no column for is left out.
template <typename Row>
class Inserter {
public:
    Inserter(NewStore &store, const Plan &plan, const QString &table, std::span<const Column<Row>> columns)
        : m_store(store)
        , m_table(table)
    {
        const auto shape = std::ranges::find(schemaOf(plan), table, &TableShape::name);
        for (const Column<Row> &column : columns) {
            const auto place = std::ranges::find(shape->columns, text(column.name), &ColumnShape::name);
            if (place != shape->columns.end())
                m_cells.push_back({place - shape->columns.begin(), column.cell});
        }
        for (const ColumnShape &column : shape->columns)
            m_values.push_back(plan.old ? oldValue(column.name) : Value());
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
    std::vector<CodeRow> rows = plan.old ? oldCodes() : std::vector<CodeRow>();
    std::ranges::copy(codeRows(plan), std::back_inserter(rows));
    for (const CodeRow &row : rows)
        store.addRow(u"ZRVtbCoding",
                     std::array<Value, 4>{text(row.list), text(row.listName), text(row.code), text(row.description)});
}

void addMonths(NewStore &store, const Plan &plan, const std::string &tfn)
{
    Inserter<Salary> salaries(store, plan, u"ZRVtbHogog"_s, salaryColumns());
    Inserter<Summary> summaries(store, plan, u"ZRVtbKholList"_s, summaryColumns());
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
        summaries.add(plan.old ? asOld(book.close()) : book.close());
    }
}

} // namespace

const std::vector<TableShape> &schemaOf(const Plan &plan)
{
    return plan.old ? oldSchema() : storeSchema();
}

void addSampleRows(NewStore &store, const Plan &plan)
{
    if (plan.old)
        addUser(store, {});
    else
        addFreshRows(store, {});
    addCodeRows(store, plan);
    const Payer theirPayer = payer(plan);
    Inserter<Payer>(store, plan, u"ZRVtbKarfarma"_s, payerColumns()).add(plan.old ? asOld(theirPayer) : theirPayer);
    Inserter<Payee> payees(store, plan, u"ZRVtbKarkonan"_s, payeeColumns());
    for (int number = 0; number < plan.payees; ++number) {
        const Payee someone = payee(plan, theirPayer.TFN, number);
        payees.add(plan.old ? asOld(someone) : someone);
    }
    addMonths(store, plan, theirPayer.TFN);
}

} // namespace zrv::sample
