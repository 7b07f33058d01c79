// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/store/code_table.h"

#include "core/store/store_file.h"

#include <new>
#include <sqlite3.h>

namespace zrv {

namespace {

constexpr const char *PointerType = "zrv code table";

std::string textOf(const unsigned char *text, int size)
{
    return {reinterpret_cast<const char *>(text), std::size_t(size)};
}

/// Latin letters alone have a case in the store's comparisons.
std::string folded(std::string key)
{
    for (char &c : key) {
        if (c >= 'A' && c <= 'Z')
            c = char(c - 'A' + 'a');
    }
    return key;
}

/// The row that a call asks for, whose arguments are the table, others and the key at last.
const CodeTable::Cells *rowOf(sqlite3_context *context, int count, sqlite3_value **arguments)
{
    auto *table = static_cast<CodeTable *>(sqlite3_value_pointer(arguments[0], PointerType));
    sqlite3_value *key = arguments[count - 1];
    sqlite3 *database = sqlite3_context_db_handle(context);
    if (!table || !table->load(database)) {
        sqlite3_result_error(context, sqlite3_errmsg(database), -1);
        return nullptr;
    }
    if (sqlite3_value_type(key) == SQLITE_NULL)
        return nullptr;
    const unsigned char *text = sqlite3_value_text(key);
    return text ? table->find(textOf(text, sqlite3_value_bytes(key))) : nullptr;
}

void has(sqlite3_context *context, int count, sqlite3_value **arguments)
{
    try {
        if (rowOf(context, count, arguments))
            sqlite3_result_int(context, 1);
    } catch (const std::bad_alloc &) {
        sqlite3_result_error_nomem(context);
    }
}

void code(sqlite3_context *context, int count, sqlite3_value **arguments)
{
    try {
        const CodeTable::Cells *row = rowOf(context, count, arguments);
        const auto column = std::size_t(sqlite3_value_int(arguments[1]));
        if (row && column < row->size() && (*row)[column])
            sqlite3_result_text(context, (*row)[column]->data(), int((*row)[column]->size()), SQLITE_STATIC);
    } catch (const std::bad_alloc &) {
        sqlite3_result_error_nomem(context);
    }
}

} // namespace

bool CodeTable::load(sqlite3 *database)
{
    if (m_loaded)
        return true;
    sqlite3_stmt *prepared = nullptr;
    if (sqlite3_prepare_v2(database, m_rowsSql.constData(), -1, &prepared, nullptr) != SQLITE_OK)
        return false;
    const PreparedStatement rows(prepared);
    int result = sqlite3_step(prepared);
    for (; result == SQLITE_ROW; result = sqlite3_step(prepared)) {
        if (sqlite3_column_type(prepared, 0) == SQLITE_NULL)
            continue;
        Cells &cells = m_rows[folded(textOf(sqlite3_column_text(prepared, 0), sqlite3_column_bytes(prepared, 0)))];
        cells.clear();
        for (int i = 1; i < sqlite3_column_count(prepared); ++i) {
            const unsigned char *text = sqlite3_column_text(prepared, i);
            cells.emplace_back(text ? std::optional(textOf(text, sqlite3_column_bytes(prepared, i))) : std::nullopt);
        }
    }
    m_loaded = result == SQLITE_DONE;
    return m_loaded;
}

const CodeTable::Cells *CodeTable::find(std::string key) const
{
    const auto found = m_rows.find(folded(std::move(key)));
    return found == m_rows.end() ? nullptr : &found->second;
}

void addCodeFunctions(sqlite3 *database)
{
    sqlite3_create_function_v2(database, "zrv_has", 2, SQLITE_UTF8, nullptr, has, nullptr, nullptr, nullptr);
    sqlite3_create_function_v2(database, "zrv_code", 3, SQLITE_UTF8, nullptr, code, nullptr, nullptr, nullptr);
}

CodeTables bindCodeTables(sqlite3_stmt *statement, const QStringList &rowsSql)
{
    CodeTables tables;
    for (const QString &sql : rowsSql) {
        tables.push_back(std::make_unique<CodeTable>(sql));
        sqlite3_bind_pointer(statement, int(tables.size()), tables.back().get(), PointerType, nullptr);
    }
    return tables;
}

} // namespace zrv
