// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/jet_writer/old_stores.h"

#include "core/store/schema.h"
#include "tools/sample/sample_store.h"
#include "tools/zrvstore/create.h"
#include "tools/zrvstore/store_folder.h"

#include <QFile>
#include <QTemporaryDir>

#include <algorithm>
#include <sqlite3.h>

namespace zrv::jettest {

using namespace Qt::Literals::StringLiterals;

namespace {

/// The columns that came with later versions stand behind the others in a table that was upgraded.
const QStringList Younger = {u"CodeShobe"_s,
                             u"ShobeName"_s,
                             u"EdareName"_s,
                             u"HomeAddress"_s,
                             u"NJariSayerPardakhtiha"_s,
                             u"NTotalDaramad"_s,
                             u"NJariMoafiate91"_s,
                             u"MaskanStatus"_s,
                             u"MaskanMablagh"_s,
                             u"OtomobilStatus"_s,
                             u"OtomobilMablagh"_s,
                             u"GTotalDaramad"_s,
                             u"NGPTotalDaramadeMashmol"_s,
                             u"SayereMoafiatha"_s,
                             u"FinalDaramadeMashmol"_s,
                             u"FinalTax"_s};

bool isYounger(const QString &table, const QString &column)
{
    // The summary list has had its tax column all along.
    return Younger.contains(column) ? table != u"ZRVtbKholList"_s : table == u"ZRVtbHogog"_s && column == u"JariTax"_s;
}

TableShape shapeOf(const TableShape &current, Age age)
{
    TableShape shape = current;
    if (age == Age::Current)
        return shape;
    std::erase_if(shape.columns, [&](const ColumnShape &column) {
        return isYounger(shape.name, column.name) || column.name.endsWith(u"EzafeTax");
    });
    if (shape.name == u"ZRVtbHogog"_s) {
        for (const auto &[name, width] :
             {std::pair(u"MoafiatSum"_s, 13), std::pair(u"NJariTax"_s, 13), std::pair(u"GjariTax"_s, 13),
              std::pair(u"PjariTax"_s, 13), std::pair(u"EzafeTozih"_s, 50)})
            shape.columns.push_back({name, width});
    }
    if (age == Age::Upgraded) {
        std::ranges::copy_if(current.columns, std::back_inserter(shape.columns),
                             [&](const ColumnShape &column) { return isYounger(shape.name, column.name); });
    }
    return shape;
}

class Sample {
public:
    explicit Sample(const sample::Plan &plan)
        : m_tables(sample::schemaOf(plan))
    {
        storetool::createSample(m_folder.path(), plan);
        sqlite3_open_v2(QFile::encodeName(storetool::storeIn(m_folder.path())).constData(), &m_database,
                        SQLITE_OPEN_READONLY, nullptr);
    }
    ~Sample() { sqlite3_close(m_database); }
    Sample(const Sample &) = delete;
    Sample &operator=(const Sample &) = delete;

    /// The rows of a table, the first so many columns of its shape.
    [[nodiscard]] std::vector<Cells> rows(const TableShape &shape, std::size_t columns) const
    {
        QStringList names;
        for (std::size_t i = 0; i < columns; ++i)
            names.append(isKnown(shape, i) ? shape.columns[i].name : u"'0'"_s);
        const QString sql = u"SELECT "_s + names.join(u',') + u" FROM "_s + shape.name + u" ORDER BY rowid"_s;
        std::vector<Cells> rows;
        sqlite3_stmt *statement = nullptr;
        sqlite3_prepare_v2(m_database, sql.toUtf8().constData(), -1, &statement, nullptr);
        while (sqlite3_step(statement) == SQLITE_ROW) {
            Cells cells;
            for (int i = 0; i < int(columns); ++i) {
                const auto *text = reinterpret_cast<const char *>(sqlite3_column_text(statement, i));
                cells.push_back(text ? Cell(QString::fromUtf8(text)) : Cell());
            }
            rows.push_back(std::move(cells));
        }
        sqlite3_finalize(statement);
        return rows;
    }

private:
    [[nodiscard]] bool isKnown(const TableShape &shape, std::size_t column) const
    {
        const auto table = std::ranges::find(m_tables, shape.name, &TableShape::name);
        return table->column(shape.columns[column].name) != nullptr;
    }

    const std::vector<TableShape> &m_tables;
    QTemporaryDir m_folder;
    sqlite3 *m_database = nullptr;
};

} // namespace

std::vector<Table> oldStore(Age age, int payees, int months)
{
    const Sample sample({.payees = payees, .months = months, .year = 1389, .rng = 7});
    std::vector<Table> tables;
    for (const TableShape &current : storeSchema()) {
        const TableShape shape = shapeOf(current, age);
        // Rows of an upgraded store are older than its last columns.
        const std::size_t columns = shapeOf(current, age == Age::Upgraded ? Age::Old : age).columns.size();
        tables.push_back({shape, sample.rows(shape, columns)});
    }
    return tables;
}

std::vector<Table> oldestStore(int payees, int months)
{
    const sample::Plan plan{.payees = payees, .months = months, .year = 1388, .rng = 7, .old = true};
    const Sample sample(plan);
    std::vector<Table> tables;
    for (const TableShape &shape : sample::schemaOf(plan))
        tables.push_back({shape, sample.rows(shape, shape.columns.size())});
    return tables;
}

Table &tableOf(std::vector<Table> &tables, QStringView name)
{
    return *std::ranges::find_if(tables, [&](const Table &table) { return table.shape.name == name; });
}

Cell &cellOf(Table &table, int row, QStringView column)
{
    const auto found = std::ranges::find(table.shape.columns, column, &ColumnShape::name);
    const auto place = std::size_t(found - table.shape.columns.begin());
    Cells &cells = table.rows[std::size_t(row)];
    if (cells.size() <= place)
        cells.resize(place + 1);
    return cells[place];
}

} // namespace zrv::jettest
