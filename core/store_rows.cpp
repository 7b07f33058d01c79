// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/store_rows.h"

#include "core/store/row_window.h"

namespace zrv {

namespace {

class StoreRows : public RowSource {
public:
    StoreRows(const QString &connectionString, const QString &select)
        : m_rows(connectionString, select)
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
    return std::make_shared<StoreRows>(program.StoreConnectionString, select);
}

} // namespace zrv
