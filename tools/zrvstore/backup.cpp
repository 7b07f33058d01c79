// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/zrvstore/backup.h"

#include "core/store/new_file.h"
#include "core/store/schema.h"
#include "tools/zrvstore/database.h"
#include "tools/zrvstore/failure.h"
#include "tools/zrvstore/store_folder.h"
#include "tools/zrvstore/verify.h"

#include <QFile>
#include <QFileInfo>

#include <chrono>
#include <map>
#include <memory>
#include <sqlite3.h>
#include <thread>

namespace zrv::storetool {

using namespace Qt::Literals::StringLiterals;

namespace {

/// Rows of each table that stands in the file.
using RowCounts = std::map<QString, qint64>;

RowCounts rowCounts(const Database &database)
{
    RowCounts counts;
    for (const TableShape &table : storeSchema()) {
        Rows known(database,
                   u"SELECT 1 FROM sqlite_schema WHERE type='table' AND name='"_s + table.name + u"' COLLATE NOCASE"_s);
        if (!known.next())
            continue;
        Rows rows(database, u"SELECT count(*) FROM "_s + sqlName(table.name));
        if (rows.next())
            counts[table.name] = rows.number(0);
    }
    return counts;
}

/// A file in the making, removed unless it is given its name.
class Copy {
public:
    explicit Copy(const QString &path)
        : m_temporary(temporaryName(path))
    {
        if (!createPrivateFile(m_temporary))
            throw Failure(u"can't make the file "_s + m_temporary);
    }
    ~Copy()
    {
        if (!m_temporary.isEmpty())
            QFile::remove(m_temporary);
    }
    Copy(const Copy &) = delete;
    Copy &operator=(const Copy &) = delete;

    [[nodiscard]] const QString &path() const { return m_temporary; }

    void finish(const QString &path, bool force)
    {
        if (!(force ? replaceFile(m_temporary, path) : giveName(m_temporary, path)))
            throw Failure(u"can't give the copy its name "_s + path + u", or flush it to the disk"_s);
        m_temporary.clear();
    }

private:
    QString m_temporary;
};

/// Copies page by page. Between two shares of pages other programs may write; what they change is copied anew. The
/// last share is read in one view of the store with the row counts, so that both are of one moment.
class PageCopy {
public:
    PageCopy(Database &source, const QString &target)
        : m_source(source)
    {
        sqlite3 *database = nullptr;
        const int opened =
            sqlite3_open_v2(QFile::encodeName(target).constData(), &database,
                            SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX | SQLITE_OPEN_EXRESCODE, nullptr);
        m_target.reset(database);
        // Nobody sees the copy before it is whole and flushed.
        if (opened != SQLITE_OK
            || sqlite3_exec(database, "PRAGMA journal_mode=OFF;PRAGMA synchronous=OFF", nullptr, nullptr, nullptr)
                   != SQLITE_OK)
            fail(opened);
        m_backup = sqlite3_backup_init(database, "main", source.handle(), "main");
        if (!m_backup)
            fail(SQLITE_ERROR);
    }
    ~PageCopy() { sqlite3_backup_finish(m_backup); }
    PageCopy(const PageCopy &) = delete;
    PageCopy &operator=(const PageCopy &) = delete;

    /// Gives the row counts of the store that was copied.
    RowCounts run()
    {
        step(0); // learns the number of pages
        for (;;) {
            const bool isLast = sqlite3_backup_remaining(m_backup) <= Share || m_restarts > MostRestarts;
            if (isLast)
                m_source.run(u"BEGIN"_s);
            RowCounts counts = isLast ? rowCounts(m_source) : RowCounts();
            const int remaining = sqlite3_backup_remaining(m_backup);
            const bool isDone = step(isLast && m_restarts > MostRestarts ? -1 : Share);
            if (isLast)
                m_source.run(u"COMMIT"_s);
            if (isDone)
                return counts;
            // What was written meanwhile begins the copy anew. Where that happens again and again, the rest is
            // copied in one go, and who writes waits.
            if (sqlite3_backup_remaining(m_backup) >= remaining)
                ++m_restarts;
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        }
    }

private:
    static constexpr int Share = 2'000; ///< pages: some 8 MB, copied in a blink
    static constexpr int MostRestarts = 5;

    struct Close {
        void operator()(sqlite3 *database) const { sqlite3_close(database); }
    };

    /// True when all is copied.
    bool step(int pages)
    {
        const int result = sqlite3_backup_step(m_backup, pages);
        if (result != SQLITE_OK && result != SQLITE_DONE)
            fail(result);
        return result == SQLITE_DONE;
    }

    [[noreturn]] void fail(int code)
    {
        switch (code & 0xFF) {
        case SQLITE_BUSY:
        case SQLITE_LOCKED:
            throw Failure(m_source.path() + u" is busy: another program is writing to it; try again"_s);
        case SQLITE_FULL:
            throw Failure(u"the disk is full; no copy is made"_s);
        default:
            throw Failure(u"can't copy "_s + m_source.path() + u": "_s + QString::fromUtf8(sqlite3_errstr(code)));
        }
    }

    Database &m_source;
    std::unique_ptr<sqlite3, Close> m_target;
    sqlite3_backup *m_backup = nullptr;
    int m_restarts = 0;
};

void verifyCopy(const QString &path, const RowCounts &counts)
{
    Database copy(path);
    Findings unheard([](const QString &) {}, 1);
    refuseDamage(copy, unheard);
    if (rowCounts(copy) != counts)
        throw Failure(u"the copy has not as many rows as the store; it is not kept"_s);
}

void refuseTarget(const QString &store, const QString &copy, bool force)
{
    const QFileInfo target(copy);
    if (target.canonicalFilePath() == QFileInfo(store).canonicalFilePath())
        throw Failure(copy + u" is the store itself"_s);
    if (target.isDir())
        throw Failure(copy + u" is a folder"_s);
    if ((target.exists() || target.isSymLink()) && !force)
        throw Failure(copy + u" exists; --force replaces it"_s);
    refuseForeignJournal(copy);
}

} // namespace

void backup(const QString &store, const QString &copy, bool force)
{
    Database source(store);
    refuseTarget(store, copy, force);
    Copy file(copy);
    const RowCounts counts = PageCopy(source, file.path()).run();
    if (counts.empty())
        throw Failure(store + u" is not a store: it has none of the store's tables"_s);
    verifyCopy(file.path(), counts);
    file.finish(copy, force);
}

} // namespace zrv::storetool
