// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/store/dialect/scope.h"

#include <QString>

#include <exception>
#include <functional>
#include <map>
#include <memory>
#include <optional>

struct sqlite3;
struct sqlite3_stmt;

namespace zrv {

struct CloseStatement {
    void operator()(sqlite3_stmt *statement) const;
};

/// A prepared statement in SQLite's SQL.
using PreparedStatement = std::unique_ptr<sqlite3_stmt, CloseStatement>;

/// Thrown by a statement that was not to go on.
struct StatementStopped {};

/// The open file of a store and what was learnt of its tables. Connections and recordsets share it; the last of them
/// closes it. One thread uses it.
class StoreFile : public dialect::Catalog {
public:
    /// Opens an existing file for reading and writing. Raises store_error::General where it is missing or no store.
    explicit StoreFile(QString path);
    /// An empty file of SQLite's own where temporary files lie: it has no name and goes with the object. Nothing in it
    /// is safe from a power cut, and of its pages no more than 16 MB are in memory.
    StoreFile();
    ~StoreFile() override;
    StoreFile(const StoreFile &) = delete;
    StoreFile &operator=(const StoreFile &) = delete;

    [[nodiscard]] PreparedStatement prepare(const QString &sql);
    /// True if there is a row.
    [[nodiscard]] bool step(const PreparedStatement &statement);
    /// Runs one statement to its end; returns the number of rows it changed.
    int run(const QString &sql);

    /// Asked now and then in the course of this file's statements, which may take long; false ends the statement in
    /// StatementStopped, and what is thrown goes on to whoever runs it. Null for none.
    void askWhileRunning(std::function<bool()> goesOn);
    /// True while it is asked: no other statement of this file can be run meanwhile.
    [[nodiscard]] bool isAsking() const { return m_isAsking; }

    [[nodiscard]] const TableShape *find(QStringView table) override;
    [[nodiscard]] bool hasAtMost(const QString &sql, int rows) override;
    /// To be called when a statement has changed the shape of tables.
    void forgetTables() { m_tables.clear(); }

    /// Copies every page into a new file. Inside a transaction the copy is of that moment.
    void copyPages(const QString &path) const;

    /// Gives this connection the memory that a statement over a whole table needs to be fast.
    void expectLargeChange();

private:
    void open(const char *path, int flags);
    [[noreturn]] void raise(sqlite3_stmt *failed);
    [[nodiscard]] bool ask() noexcept;
    [[nodiscard]] std::optional<TableShape> readTable(QStringView name);
    [[nodiscard]] QStringList indexColumns(const QString &index);

    QString m_path;
    sqlite3 *m_database = nullptr;
    std::function<bool()> m_goesOn;
    bool m_isAsking = false;
    std::exception_ptr m_stopped;                          ///< why the statement that runs is to end
    std::map<QString, std::optional<TableShape>> m_tables; ///< by name in lower case
};

/// Several statements that take effect together: rolled back unless committed.
class Transaction {
public:
    explicit Transaction(StoreFile &file);
    ~Transaction();
    Transaction(const Transaction &) = delete;
    Transaction &operator=(const Transaction &) = delete;

    void commit();

private:
    StoreFile &m_file;
    bool m_open = true;
};

} // namespace zrv
