// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/store_rows.h"

#include "core/store/recordset.h"

namespace zrv {

namespace {

class TextRows : public RowSource {
public:
    TextRows(Program &program, const QString &select)
    {
        const Connection connection(program.StoreConnectionString);
        Recordset rows(connection, select);
        for (; !rows.eof(); rows.moveNext()) {
            QStringList cells;
            for (int column = 0; column < rows.columnCount(); ++column)
                cells << rows.value(column).toText();
            m_rows.push_back(std::move(cells));
        }
    }

    [[nodiscard]] int rowCount() const override { return static_cast<int>(m_rows.size()); }
    [[nodiscard]] QString cell(int row, int column) const override
    {
        return m_rows.at(static_cast<size_t>(row)).value(column);
    }

private:
    std::vector<QStringList> m_rows;
};

} // namespace

std::shared_ptr<const RowSource> openRows(Program &program, const QString &select)
{
    return std::make_shared<TextRows>(program, select);
}

} // namespace zrv
