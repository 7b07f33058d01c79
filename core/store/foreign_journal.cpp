// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/store/foreign_journal.h"

#include <QFile>
#include <QtEndian>

#include <optional>

namespace zrv {

using namespace Qt::Literals::StringLiterals;

namespace {

// A journal is one or more segments: a head in a sector of its own, and behind it pages as they were before, each with
// its number before it and a sum behind it. Numbers have their high byte first.
constexpr qint64 HeadSize = 28;
constexpr QByteArrayView Magic("\xD9\xD5\x05\xF9\x20\xA1\x63\xD7", 8);
constexpr quint32 UncountedRecords = 0xFFFFFFFF;
constexpr quint32 LargestPage = 65'536;

// Places on the first page of a store.
constexpr qsizetype ChangesAt = 24; ///< counts the statements that changed the store
constexpr qsizetype PagesAt = 28;
constexpr qint64 FirstPageHead = 32;

quint32 number(const QByteArray &bytes, qsizetype at)
{
    return at + 4 <= bytes.size() ? qFromBigEndian<quint32>(bytes.constData() + at) : 0;
}

struct Journal {
    quint32 nonce = 0;              ///< another for each statement
    quint32 pages = 0;              ///< of the store before the statement
    std::optional<quint32> changes; ///< of the store before it; not there if the statement didn't come that far

    bool operator==(const Journal &) const = default;
};

/// Nothing for a file that nobody would undo anything from.
std::optional<Journal> readJournal(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    std::optional<Journal> journal;
    for (qint64 segment = 0; file.seek(segment);) {
        const QByteArray head = file.read(HeadSize);
        const qint64 sector = number(head, 20);
        const qint64 page = number(head, 24);
        if (!head.startsWith(Magic) || sector < HeadSize || sector > LargestPage || page > LargestPage)
            break;
        if (!journal)
            journal = Journal{number(head, 12), number(head, 16), {}};
        const quint32 records = number(head, 8);
        qint64 at = segment + sector;
        for (quint32 i = 0; i < records && file.seek(at); ++i, at += page + 8) {
            const QByteArray record = file.read(4 + FirstPageHead);
            if (record.size() < 4 + FirstPageHead)
                return journal;
            if (number(record, 0) == 1) {
                journal->changes = number(record, 4 + ChangesAt);
                return journal;
            }
        }
        if (records == 0 || records == UncountedRecords)
            break;
        segment = (at + sector - 1) / sector * sector;
    }
    return journal;
}

/// A statement adds one to the changes, and writes the first page as the last of all.
bool belongs(const Journal &journal, const QByteArray &store)
{
    const quint32 changes = number(store, ChangesAt);
    if (journal.changes)
        return changes == *journal.changes || changes == *journal.changes + 1;
    return number(store, PagesAt) == journal.pages;
}

QByteArray firstPageHead(const QString &store)
{
    QFile file(store);
    return file.open(QIODevice::ReadOnly) ? file.read(FirstPageHead) : QByteArray();
}

} // namespace

bool setForeignJournalAside(const QString &store)
{
    const QString path = store + u"-journal"_s;
    if (!QFile::exists(path))
        return true;
    const std::optional<Journal> journal = readJournal(path);
    // Another program may be writing just now: only what was the same journal all the time can be judged.
    if (!journal || belongs(*journal, firstPageHead(store)) || readJournal(path) != journal)
        return true;
    const QString aside = path + u".foreign"_s;
    QFile::remove(aside);
    return QFile::rename(path, aside);
}

} // namespace zrv
