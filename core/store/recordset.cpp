// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/store/recordset.h"

#include "core/basic/run_time_error.h"
#include "core/store/code_table.h"
#include "core/store/dialect/tokens.h"
#include "core/store/dialect/translate.h"
#include "core/store/store_file.h"

#include <sqlite3.h>
#include <vector>

namespace zrv {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qint32 NoCurrentRow = 3021;
constexpr qint32 NoSuchColumn = 3265;

dialect::Query translated(const QString &select, StoreFile &file)
{
    const dialect::Statement statement = dialect::parse(select);
    if (!std::holds_alternative<dialect::Select>(statement))
        dialect::refuse(select);
    return translate(std::get<dialect::Select>(statement), file);
}

} // namespace

struct FreeCell {
    void operator()(sqlite3_value *cell) const { sqlite3_value_free(cell); }
};

struct Recordset::Cursor {
    Cursor(std::shared_ptr<StoreFile> openFile, const QString &select)
        : file(std::move(openFile))
        , query(translated(select, *file))
        , statement(file->prepare(query.sql))
    {
        codeTables = bindCodeTables(statement.get(), query.codeTables);
        step();
        while (takenRows < TakenRows && !isOver) {
            take();
            step();
        }
    }

    void step()
    {
        isOver = !file->step(statement);
        if (isOver)
            sqlite3_reset(statement.get()); // the read lock isn't kept longer than the rows are
    }

    void take()
    {
        for (int column = 0; column < int(query.columns.size()); ++column)
            taken.emplace_back(sqlite3_value_dup(sqlite3_column_value(statement.get(), column)));
        ++takenRows;
    }

    void next()
    {
        if (row < takenRows)
            ++row;
        else
            step();
    }

    [[nodiscard]] bool eof() const { return row == takenRows && isOver; }

    /// A cell of the row that it stands on, if it stands on one and has the column.
    [[nodiscard]] sqlite3_value *cell(int column) const
    {
        if (column < 0 || column >= int(query.columns.size()))
            throw RunTimeError(NoSuchColumn, u"فيلد شماره "_s + QString::number(column) + u" در نتيجه وجود ندارد"_s);
        if (eof())
            throw RunTimeError(NoCurrentRow, u"رکورد جاري وجود ندارد"_s);
        if (row == takenRows)
            return sqlite3_column_value(statement.get(), column);
        return taken[row * query.columns.size() + std::size_t(column)].get();
    }

    /// So many rows are taken at once: who has a payer or a payee in hand, and perhaps a box before him, keeps nobody
    /// from the store.
    static constexpr std::size_t TakenRows = 4;

    std::shared_ptr<StoreFile> file;
    dialect::Query query;
    CodeTables codeTables; ///< before the statement, which must not outlive them
    PreparedStatement statement;
    std::vector<std::unique_ptr<sqlite3_value, FreeCell>> taken; ///< the first rows' cells
    std::size_t takenRows = 0;
    std::size_t row = 0; ///< the current one; behind those that were taken the statement stands on it
    bool isOver = false; ///< the statement has no more rows
};

Recordset::Recordset(const Connection &connection, const QString &select)
    : m_cursor(std::make_unique<Cursor>(connection.m_file, select))
{
}

Recordset::~Recordset() = default;
Recordset::Recordset(Recordset &&) noexcept = default;
Recordset &Recordset::operator=(Recordset &&) noexcept = default;

bool Recordset::eof() const
{
    return m_cursor->eof();
}

void Recordset::moveNext()
{
    (void)m_cursor->cell(0);
    m_cursor->next();
}

int Recordset::columnCount() const
{
    return int(m_cursor->query.columns.size());
}

QString Recordset::columnName(int column) const
{
    return m_cursor->query.columns.at(std::size_t(column)).name;
}

Value Recordset::value(int column) const
{
    sqlite3_value *cell = m_cursor->cell(column);
    switch (sqlite3_value_type(cell)) {
    case SQLITE_NULL:
        return {};
    case SQLITE_INTEGER:
        return qint64(sqlite3_value_int64(cell));
    case SQLITE_FLOAT:
        return sqlite3_value_double(cell);
    default:
        const std::string_view text = utf8(column);
        return QString::fromUtf8(text.data(), qsizetype(text.size()));
    }
}

Value Recordset::value(QStringView name) const
{
    return value(columnIndex(name));
}

int Recordset::columnIndex(QStringView name) const
{
    for (int column = 0; column < columnCount(); ++column) {
        if (name.compare(m_cursor->query.columns[std::size_t(column)].name, Qt::CaseInsensitive) == 0)
            return column;
    }
    throw RunTimeError(NoSuchColumn, u"فيلد «"_s + name + u"» در نتيجه وجود ندارد"_s);
}

std::string_view Recordset::utf8(int column) const
{
    // The store's connections are used by one thread, so a cell may be asked as it stands; through the row, text and
    // length would each be looked up and checked anew.
    sqlite3_value *cell = m_cursor->cell(column);
    const auto *text = reinterpret_cast<const char *>(sqlite3_value_text(cell));
    return text ? std::string_view(text, std::size_t(sqlite3_value_bytes(cell))) : std::string_view();
}

int Recordset::recordCount() const
{
    CodeTables codeTables;
    const PreparedStatement count = m_cursor->file->prepare(m_cursor->query.countSql);
    codeTables = bindCodeTables(count.get(), m_cursor->query.codeTables);
    return m_cursor->file->step(count) ? sqlite3_column_int(count.get(), 0) : 0;
}

} // namespace zrv
