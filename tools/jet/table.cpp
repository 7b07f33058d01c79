// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/jet/table.h"

#include "tools/jet/data_page.h"
#include "tools/jet/usage_map.h"

#include <set>
#include <utility>

namespace zrv::jet {

using namespace Qt::Literals::StringLiterals;

namespace {

/// More than any payer has; each takes some memory.
constexpr std::size_t MostRows = 4'000'000;

/// The rows behind the pointers that rows leave when they are moved. Each is one row's.
class MovedRows {
public:
    MovedRows(const PageFile &file, quint32 owner)
        : m_file(file)
        , m_owner(owner)
    {
    }

    Bytes follow(Bytes pointer, RowPlace from)
    {
        const RowPlace to = RowPlace::fromFile(pointer.u32(0));
        const DataPage page(m_file, to.page);
        const Slot slot = page.slot(to.row);
        if (page.owner() != m_owner || !slot.isSkipped || slot.isPointer || !m_taken.insert({to.page, to.row}).second)
            damaged(place(from.page, from.row) + u" was moved to where it isn't"_s);
        return slot.bytes;
    }

private:
    const PageFile &m_file;
    quint32 m_owner;
    std::set<std::pair<quint32, int>> m_taken;
};

} // namespace

std::vector<PlacedRow> rowsOf(const PageFile &file, const Definition &definition)
{
    std::vector<PlacedRow> rows;
    MovedRows moved(file, definition.page);
    for (const quint32 number : pagesOf(file, definition.usageMap)) {
        const DataPage page(file, number);
        if (page.owner() != definition.page)
            damaged(place(number) + u" belongs to another table"_s);
        for (int row = 0; row < page.rowCount(); ++row) {
            const Slot slot = page.slot(row);
            const RowPlace at{number, row};
            if (!slot.isSkipped)
                rows.push_back({slot.isPointer ? moved.follow(slot.bytes, at) : slot.bytes, at});
        }
        if (rows.size() > MostRows)
            damaged(u"a table of more than "_s + QString::number(MostRows) + u" rows"_s);
    }
    return rows;
}

} // namespace zrv::jet
