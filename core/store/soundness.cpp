// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/store/soundness.h"

#include "core/store/foreign_journal.h"

#include <QFile>
#include <QFileInfo>

#include <memory>
#include <sqlite3.h>

namespace zrv {

namespace {

struct Close {
    void operator()(sqlite3 *database) const { sqlite3_close(database); }
    void operator()(sqlite3_stmt *statement) const { sqlite3_finalize(statement); }
};

constexpr int LongestWaitMs = 2'000; ///< for a program that is writing

Soundness meaningOf(int code)
{
    const int kind = code & 0xFF;
    return kind == SQLITE_CORRUPT || kind == SQLITE_NOTADB ? Soundness::Damaged : Soundness::Unknown;
}

/// SQLite takes an empty file for an empty database, so the head is looked at first.
Soundness ofTheHead(const QString &path)
{
    constexpr qint64 HeadSize = 100;
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return Soundness::Unknown;
    const QByteArray head = file.read(HeadSize);
    const bool isStore = head.size() == HeadSize && head.startsWith(QByteArrayView("SQLite format 3\0", 16));
    return isStore ? Soundness::Sound : Soundness::Damaged;
}

} // namespace

Soundness soundnessOf(const QString &path)
{
    if (const Soundness head = ofTheHead(path); head != Soundness::Sound)
        return head;
    if (!setForeignJournalAside(path))
        return Soundness::Unknown;
    sqlite3 *opened = nullptr;
    int code =
        sqlite3_open_v2(path.toUtf8().constData(), &opened, SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX, nullptr);
    const std::unique_ptr<sqlite3, Close> database(opened);
    if (code != SQLITE_OK)
        return meaningOf(code);
    sqlite3_busy_timeout(opened, LongestWaitMs);
    sqlite3_db_config(opened, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
    sqlite3_stmt *prepared = nullptr;
    code = sqlite3_prepare_v2(opened, "PRAGMA integrity_check", -1, &prepared, nullptr);
    const std::unique_ptr<sqlite3_stmt, Close> check(prepared);
    if (code != SQLITE_OK)
        return meaningOf(code);
    while ((code = sqlite3_step(prepared)) == SQLITE_ROW) {
        const QByteArrayView fault(reinterpret_cast<const char *>(sqlite3_column_text(prepared, 0)));
        if (fault != QByteArrayView("ok") && !fault.startsWith("CHECK constraint failed"))
            return Soundness::Damaged;
    }
    return code == SQLITE_DONE ? Soundness::Sound : meaningOf(code);
}

} // namespace zrv
