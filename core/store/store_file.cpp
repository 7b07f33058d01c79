// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/store/store_file.h"

#include "core/store/code_table.h"
#include "core/store/dialect/sql_text.h"
#include "core/store/foreign_journal.h"
#include "core/store/sql_functions.h"
#include "core/store/store_error.h"
#include "core/store/store_failure.h"

#include <QDir>
#include <QFile>

#include <sqlite3.h>
#include <utility>

namespace zrv {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int LongestWaitMs = 2000; ///< for another program that holds the store

QString textOf(sqlite3_stmt *statement, int column)
{
    const auto *text = reinterpret_cast<const char *>(sqlite3_column_text(statement, column));
    return QString::fromUtf8(text, sqlite3_column_bytes(statement, column));
}

/// "TEXT(13)" gives 13.
int widthOf(const QString &type)
{
    const qsizetype open = type.indexOf(u'(');
    return open < 0 ? 0 : type.mid(open + 1, type.indexOf(u')') - open - 1).toInt();
}

/// What the head of a file tells before SQLite sees it: SQLite takes an empty file for an empty store.
struct Head {
    bool isStore = false;
    bool writesAhead = false; ///< the journal was switched to a mode that can't be trusted on a shared folder
};

Head headOf(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw RunTimeError(store_error::General,
                           u"فايل بانک اطلاعاتي باز نميشود . وجود فايل و دسترسي آنرا بررسي نماييد : "_s + path);
    constexpr qint64 HeadSize = 100;
    constexpr qsizetype WriteVersion = 18;
    const QByteArray bytes = file.read(HeadSize);
    return {bytes.size() == HeadSize && bytes.startsWith(QByteArrayView("SQLite format 3\0", 16)),
            bytes.size() > WriteVersion && bytes.at(WriteVersion) == 2};
}

} // namespace

void CloseStatement::operator()(sqlite3_stmt *statement) const
{
    sqlite3_finalize(statement);
}

StoreFile::StoreFile(QString path)
    : m_path(std::move(path))
{
    const Head head = headOf(m_path);
    if (!head.isStore)
        throw RunTimeError(store_error::General,
                           u"فايل بانک اطلاعاتي قابل خواندن نيست . فايل پشتيبان را جايگزين نماييد : "_s + m_path);
    if (!setForeignJournalAside(m_path))
        throw RunTimeError(store_error::General,
                           u"در کنار بانک اطلاعاتي باقيمانده عمليات ناتمام فايل ديگري وجود دارد . آنرا حذف نماييد : "_s
                               + m_path + u"-journal"_s);
    try {
        open(m_path.toUtf8().constData(), SQLITE_OPEN_READWRITE);
        sqlite3_busy_timeout(m_database, LongestWaitMs);
        // A doctored file must not run code of ours from its triggers and checks.
        sqlite3_db_config(m_database, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
        sqlite3_db_config(m_database, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
        sqlite3_db_config(m_database, SQLITE_DBCONFIG_DQS_DML, 0, nullptr);
        if (head.writesAhead)
            run(u"PRAGMA journal_mode=DELETE"_s);
    } catch (...) {
        sqlite3_close(m_database);
        throw;
    }
}

StoreFile::StoreFile()
    : m_path(QDir::tempPath())
{
    try {
        open("", SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE);
        for (const auto setting :
             {"journal_mode=OFF"_L1, "synchronous=OFF"_L1, "temp_store=FILE"_L1, "cache_size=-16384"_L1})
            run("PRAGMA "_L1 + setting);
    } catch (...) {
        sqlite3_close(m_database);
        throw;
    }
}

void StoreFile::open(const char *path, int flags)
{
    if (sqlite3_open_v2(path, &m_database, flags | SQLITE_OPEN_NOMUTEX | SQLITE_OPEN_EXRESCODE, nullptr) != SQLITE_OK)
        throw storeFailure(m_database, m_path, false);
    addSqlFunctions(m_database);
    addCodeFunctions(m_database);
}

StoreFile::~StoreFile()
{
    sqlite3_close(m_database);
}

PreparedStatement StoreFile::prepare(const QString &sql)
{
    const QByteArray utf8 = sql.toUtf8();
    sqlite3_stmt *statement = nullptr;
    if (sqlite3_prepare_v2(m_database, utf8.constData(), int(utf8.size()), &statement, nullptr) != SQLITE_OK)
        throw storeFailure(m_database, m_path, true);
    return PreparedStatement(statement);
}

bool StoreFile::step(const PreparedStatement &statement)
{
    const int result = sqlite3_step(statement.get());
    if (result == SQLITE_ROW)
        return true;
    if (result == SQLITE_DONE)
        return false;
    raise(statement.get());
}

void StoreFile::raise(sqlite3_stmt *failed)
{
    sqlite3_reset(failed); // lets go of the store's lock, and keeps what is known of the failure
    if (m_stopped)
        std::rethrow_exception(std::exchange(m_stopped, nullptr));
    throw storeFailure(m_database, m_path, false);
}

void StoreFile::askWhileRunning(std::function<bool()> goesOn)
{
    constexpr int StepsBetweenQuestions = 20000; // of SQLite's machine; some milliseconds
    const auto endsStatement = [](void *file) { return static_cast<StoreFile *>(file)->ask() ? 0 : 1; };
    m_goesOn = std::move(goesOn);
    sqlite3_progress_handler(m_database, m_goesOn ? StepsBetweenQuestions : 0, endsStatement, this);
}

/// No exception finds its way through SQLite.
bool StoreFile::ask() noexcept
{
    m_isAsking = true;
    try {
        if (!m_goesOn())
            throw StatementStopped();
    } catch (...) {
        m_stopped = std::current_exception();
    }
    m_isAsking = false;
    return !m_stopped;
}

int StoreFile::run(const QString &sql)
{
    const PreparedStatement statement = prepare(sql);
    while (step(statement)) {
    }
    return sqlite3_changes(m_database);
}

const TableShape *StoreFile::find(QStringView table)
{
    const QString key = table.toString().toLower();
    auto known = m_tables.find(key);
    if (known == m_tables.end())
        known = m_tables.emplace(key, readTable(table)).first;
    return known->second ? &*known->second : nullptr;
}

bool StoreFile::hasAtMost(const QString &sql, int rows)
{
    const PreparedStatement statement =
        prepare("SELECT 1 FROM ("_L1 + sql + ") LIMIT 1 OFFSET "_L1 + QString::number(rows));
    return !step(statement);
}

std::optional<TableShape> StoreFile::readTable(QStringView name)
{
    const PreparedStatement table = prepare("SELECT name FROM sqlite_schema WHERE type='table' AND name NOT LIKE "
                                            "'sqlite!_%' ESCAPE '!' AND name="_L1
                                            + dialect::sqlText(name) + " COLLATE NOCASE"_L1);
    if (!step(table))
        return std::nullopt;
    TableShape shape{textOf(table.get(), 0), {}, {}, {}};
    const QString quotedName = dialect::sqlName(shape.name);
    const PreparedStatement columns = prepare("PRAGMA table_info("_L1 + quotedName + u')');
    while (step(columns))
        shape.columns.push_back({textOf(columns.get(), 1), widthOf(textOf(columns.get(), 2))});
    const PreparedStatement indexes = prepare("PRAGMA index_list("_L1 + quotedName + u')');
    while (step(indexes)) {
        const bool unique = sqlite3_column_int(indexes.get(), 2) != 0;
        // SQLite lists them from the latest back.
        std::vector<QStringList> &list = unique ? shape.uniqueKeys : shape.indexes;
        list.insert(list.begin(), indexColumns(textOf(indexes.get(), 1)));
    }
    return shape;
}

QStringList StoreFile::indexColumns(const QString &index)
{
    QStringList names;
    const PreparedStatement columns = prepare("PRAGMA index_info("_L1 + dialect::sqlName(index) + u')');
    while (step(columns))
        names.append(textOf(columns.get(), 2));
    return names;
}

void StoreFile::copyPages(const QString &path) const
{
    struct Close {
        void operator()(sqlite3 *database) const { sqlite3_close(database); }
    };
    sqlite3 *opened = nullptr;
    const int result = sqlite3_open_v2(path.toUtf8().constData(), &opened,
                                       SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX | SQLITE_OPEN_EXRESCODE, nullptr);
    const std::unique_ptr<sqlite3, Close> target(opened);
    // Nobody sees the copy before it is whole: it needs no journal.
    if (result != SQLITE_OK
        || sqlite3_exec(opened, "PRAGMA journal_mode=OFF;PRAGMA synchronous=OFF", nullptr, nullptr, nullptr)
               != SQLITE_OK)
        throw storeFailure(opened, path, false);
    sqlite3_backup *const pages = sqlite3_backup_init(opened, "main", m_database, "main");
    const bool isDone = pages && sqlite3_backup_step(pages, -1) == SQLITE_DONE;
    if (pages)
        sqlite3_backup_finish(pages);
    if (!isDone)
        throw storeFailure(opened, path, false);
}

void StoreFile::expectLargeChange()
{
    // 256 MB at most, in KiB as the minus says: on a million rows it saves a quarter of the time, and nothing is
    // taken that isn't used.
    run(u"PRAGMA cache_size=-262144"_s);
}

Transaction::Transaction(StoreFile &file)
    : m_file(file)
{
    m_file.run(u"BEGIN IMMEDIATE"_s);
}

Transaction::~Transaction()
{
    if (!m_open)
        return;
    try {
        m_file.run(u"ROLLBACK"_s);
    } catch (const RunTimeError &) {
        // SQLite has rolled back by itself, or does so when the file is closed.
    }
}

void Transaction::commit()
{
    m_file.run(u"COMMIT"_s);
    m_open = false;
}

} // namespace zrv
