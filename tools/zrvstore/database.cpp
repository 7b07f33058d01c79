// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/zrvstore/database.h"

#include "core/store/foreign_journal.h"
#include "tools/terminal/failure.h"

#include <QFile>
#include <QFileInfo>

#include <sqlite3.h>

namespace zrv::storetool {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int LongestWaitMs = 2'000; ///< for a program that is writing

/// SQLite takes an empty file for an empty database, so the head is looked at first.
void refuseOtherFiles(const QString &path)
{
    const QFileInfo info(path);
    if (!info.exists())
        throw Failure(path + u" does not exist"_s);
    if (!info.isFile())
        throw Failure(path + u" is not a file"_s);
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw Failure(path + u" can't be opened: "_s + file.errorString());
    constexpr qint64 HeadSize = 100;
    const QByteArray head = file.read(HeadSize);
    if (head.size() < HeadSize || !head.startsWith(QByteArrayView("SQLite format 3\0", 16)))
        throw Failure(path + u" is not a store: its head is another one"_s);
}

} // namespace

Database::Database(QString path)
    : m_path(std::move(path))
{
    refuseOtherFiles(m_path);
    if (!setForeignJournalAside(m_path))
        throw Failure(m_path + u"-journal is the rest of another file of that name: move it away first"_s);
    try {
        if (sqlite3_open_v2(QFile::encodeName(m_path).constData(), &m_database,
                            SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX | SQLITE_OPEN_EXRESCODE, nullptr)
            != SQLITE_OK)
            fail();
        sqlite3_busy_timeout(m_database, LongestWaitMs);
        sqlite3_db_config(m_database, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
        run(u"PRAGMA cache_size=-65536"_s); // 64 MB, since whole tables and their indexes are read
    } catch (...) {
        sqlite3_close(m_database);
        throw;
    }
}

Database::~Database()
{
    sqlite3_close(m_database);
}

void Database::run(const QString &sql)
{
    if (sqlite3_exec(m_database, sql.toUtf8().constData(), nullptr, nullptr, nullptr) != SQLITE_OK)
        fail();
}

void Database::fail() const
{
    const int code = sqlite3_errcode(m_database) & 0xFF;
    const QString message = QString::fromUtf8(sqlite3_errmsg(m_database));
    switch (code) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        throw Failure(m_path + u" is busy: another program is writing to it; try again"_s);
    case SQLITE_NOTADB:
        throw Failure(m_path + u" is not a store, or its head is damaged"_s);
    case SQLITE_CORRUPT:
        throw Failure(m_path + u" is damaged: "_s + message);
    case SQLITE_FULL:
        throw Failure(m_path + u": the disk is full"_s);
    default:
        throw Failure(m_path + u": "_s + message);
    }
}

Rows::Rows(const Database &database, const QString &sql)
    : m_database(database)
{
    const QByteArray utf8 = sql.toUtf8();
    sqlite3_stmt *statement = nullptr;
    const int prepared = sqlite3_prepare_v2(database.handle(), utf8.constData(), -1, &statement, nullptr);
    m_statement.reset(statement);
    if (prepared != SQLITE_OK)
        database.fail();
}

bool Rows::next()
{
    const int result = sqlite3_step(m_statement.get());
    if (result != SQLITE_ROW && result != SQLITE_DONE)
        m_database.fail();
    return result == SQLITE_ROW;
}

std::string_view Rows::text(int column) const
{
    const auto *text = reinterpret_cast<const char *>(sqlite3_column_text(m_statement.get(), column));
    return text ? std::string_view(text, std::size_t(sqlite3_column_bytes(m_statement.get(), column)))
                : std::string_view();
}

bool Rows::isText(int column) const
{
    const int type = sqlite3_column_type(m_statement.get(), column);
    return type == SQLITE_TEXT || type == SQLITE_NULL;
}

qint64 Rows::number(int column) const
{
    return sqlite3_column_int64(m_statement.get(), column);
}

void Rows::Finalize::operator()(sqlite3_stmt *statement) const
{
    sqlite3_finalize(statement);
}

QString sqlName(const QString &name)
{
    return u'"' + QString(name).replace(u'"', u"\"\""_s) + u'"';
}

} // namespace zrv::storetool
