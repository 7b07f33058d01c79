// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tests/jet_writer/jet_writer.h"
#include "tests/print_text.h"
#include "tools/jet/catalogue.h"
#include "tools/jet/row.h"
#include "tools/jet/table.h"
#include "tools/jet/text.h"

#include <gtest/gtest.h>

namespace zrv::jet {

using namespace Qt::Literals::StringLiterals;
using jettest::Cell;
using jettest::Cells;
using jettest::changedHeader;
using jettest::jetFile;
using jettest::Manner;
using jettest::Table;

inline std::vector<unsigned char> bytesOf(const QByteArray &bytes)
{
    return {bytes.begin(), bytes.end()};
}

/// The rows of a file's only table, as the reader has them; short rows are filled up with NULL.
inline std::vector<Cells> rowsIn(const QByteArray &bytes)
{
    const PageFile file(bytesOf(bytes));
    const std::vector<CatalogueEntry> catalogue = readCatalogue(file);
    const Definition definition = readDefinition(file, catalogue.at(0).page);
    std::vector<Cells> rows;
    for (const PlacedRow &placed : rowsOf(file, definition)) {
        const Row row(placed.bytes, definition);
        Cells cells;
        for (const Column &column : definition.columns) {
            const std::optional<Bytes> value = row.value(column);
            cells.push_back(value ? Cell(textOf(*value)) : Cell());
        }
        rows.push_back(std::move(cells));
    }
    return rows;
}

/// Why a file isn't read; empty if it is.
inline QString refusalOf(const QByteArray &bytes)
{
    try {
        (void)rowsIn(bytes);
    } catch (const Refused &refused) {
        return refused.why().toString();
    }
    return {};
}

/// A table T of columns A, B, C that are 40 wide, with so many rows "a1", "b1", "c1"…
inline Table smallTable(int rows)
{
    Table table{{u"T"_s, {{u"A"_s, 40}, {u"B"_s, 40}, {u"C"_s, 40}}, {}, {}}, {}};
    for (int row = 1; row <= rows; ++row) {
        const QString number = QString::number(row);
        table.rows.push_back({u"a"_s + number, u"ب"_s + number, u"c"_s + number});
    }
    return table;
}

} // namespace zrv::jet
