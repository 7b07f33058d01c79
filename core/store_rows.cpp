// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/store_rows.h"

namespace zrv {

namespace {

class StoreRows : public RowSource {
public:
    explicit StoreRows(RowWindow rows)
        : m_rows(std::move(rows))
    {
    }

    [[nodiscard]] int rowCount() const override { return m_rows.rowCount(); }
    [[nodiscard]] QString cell(int row, int column) const override { return m_rows.cell(row, column); }

private:
    RowWindow m_rows;
};

} // namespace

std::shared_ptr<const RowSource> openRows(Program &program, const QString &select)
{
    return openRows(RowWindow(program.StoreConnectionString, select));
}

std::shared_ptr<const RowSource> openRows(RowWindow rows)
{
    return std::make_shared<StoreRows>(std::move(rows));
}

} // namespace zrv
