// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QtGlobal>

#include <memory>
#include <string_view>

struct sqlite3;
struct sqlite3_stmt;

namespace zrv::storetool {

/// The file of a store as SQLite sees it, below the store's dialect: what a damaged or older file holds can't be asked
/// through statements that trust its shape. Every failure is a Failure that names the file.
class Database {
public:
    /// Opens a file that is there; one that isn't, or is no database, raises Failure. A statement that a crash left
    /// half done is undone, as by every program that opens the store.
    explicit Database(QString path);
    ~Database();
    Database(const Database &) = delete;
    Database &operator=(const Database &) = delete;

    void run(const QString &sql);
    [[nodiscard]] sqlite3 *handle() const { return m_database; }
    [[nodiscard]] const QString &path() const { return m_path; }

    /// The failure that SQLite reported last.
    [[noreturn]] void fail() const;

private:
    QString m_path;
    sqlite3 *m_database = nullptr;
};

/// The rows of one query, read forward. Must not outlive its database.
class Rows {
public:
    Rows(const Database &database, const QString &sql);

    /// Moves to the first row and then to the next; false behind the last.
    [[nodiscard]] bool next();
    /// UTF-8, valid until next(); empty for NULL.
    [[nodiscard]] std::string_view text(int column) const;
    [[nodiscard]] bool isText(int column) const; ///< or NULL
    [[nodiscard]] qint64 number(int column) const;

private:
    struct Finalize {
        void operator()(sqlite3_stmt *statement) const;
    };
    const Database &m_database;
    std::unique_ptr<sqlite3_stmt, Finalize> m_statement;
};

/// A name of the file as SQL takes it, in double quotes.
[[nodiscard]] QString sqlName(const QString &name);

} // namespace zrv::storetool
