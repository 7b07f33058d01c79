// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringView>

#include <memory>

namespace zrv {

class StoreFile;

/// Puts a value into a statement: the value between single quotes. A value that holds a single quote or a NUL
/// can't stand in a statement and raises store_error::Syntax, so that no text a user types becomes SQL.
[[nodiscard]] QString quoted(QStringView value);

/// The file that a connection string names. Its parts are joined with backslashes, which other systems than Windows would
/// take for letters of a file's name. Raises store_error::General when it names none.
[[nodiscard]] QString storeFilePath(const QString &connectionString);

/// One connection to the store, opened for one operation and dropped behind it.
///
/// The text is the whole connection string, "…;Data Source = FILE;…"; the file is opened and never created.
/// Every failure is a RunTimeError with a number of core/store/store_error.h. Another program that holds the
/// store is waited for a short while.
class Connection {
public:
    explicit Connection(const QString &connectionString);
    ~Connection();
    Connection(Connection &&other) noexcept;
    Connection &operator=(Connection &&other) noexcept;

    /// Runs one complete statement of the store's dialect that writes; returns the number of rows it touched.
    /// The statement takes effect as a whole and is on the disk when the call returns, or nothing has changed.
    int execute(const QString &statement);

private:
    friend class Recordset;
    friend class RowWindow;
    std::shared_ptr<StoreFile> m_file;
};

} // namespace zrv
