// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/zrvstore/restore.h"

#include "core/basic/run_time_error.h"
#include "core/mdlPublic.h"
#include "core/store/new_file.h"
#include "core/store/soundness.h"
#include "core/store/store_backups.h"
#include "core/store/store_lock.h"
#include "tools/terminal/failure.h"
#include "tools/zrvstore/database.h"
#include "tools/zrvstore/store_folder.h"
#include "tools/zrvstore/verify.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace zrv::storetool {

using namespace Qt::Literals::StringLiterals;

namespace {

const QString Journal = u"-journal"_s;

QString oneValue(const Database &database, const QString &sql)
{
    Rows rows(database, sql);
    if (!rows.next())
        return {};
    const std::string_view text = rows.text(0);
    return QString::fromUtf8(text.data(), qsizetype(text.size()));
}

QString contentsOf(const Database &database)
{
    const QString month =
        oneValue(database, u"SELECT TaxYear || '/' || TaxMonth FROM ZRVtbHogog ORDER BY TaxYear DESC,TaxMonth DESC"_s);
    return oneValue(database, u"SELECT count(*) FROM ZRVtbKarkonan"_s) + u" payees, "_s
           + oneValue(database, u"SELECT count(*) FROM ZRVtbHogog"_s) + u" salary rows"_s
           + (month.isEmpty() ? QString() : u", the last of "_s + month);
}

QString presentMoment()
{
    const QDateTime now = QDateTime::currentDateTime();
    return SolarDate(now.date(), true) + u'-' + now.time().toString(u"HHmmss"_s);
}

/// A file that is gone at the end unless it has become the store.
class Draft {
public:
    explicit Draft(const QString &store)
        : path(temporaryName(store))
    {
        if (!createPrivateFile(path))
            throw Failure(u"can't make the file "_s + path);
    }
    ~Draft() { QFile::remove(path); }
    Q_DISABLE_COPY_MOVE(Draft)

    const QString path;
};

/// Copies the bytes, so that nothing that is done with them can touch the copy.
void copyBytes(const QString &copy, const QString &draft)
{
    QFile source(copy);
    QFile made(draft);
    if (!source.open(QIODevice::ReadOnly))
        throw Failure(u"can't read "_s + copy + u": "_s + source.errorString());
    bool goesOn = made.open(QIODevice::WriteOnly);
    constexpr qint64 Share = 1 << 20;
    while (goesOn && !source.atEnd()) {
        const QByteArray bytes = source.read(Share);
        goesOn = !bytes.isEmpty() && made.write(bytes) == bytes.size();
    }
    if (!goesOn || !made.flush())
        throw Failure(u"can't copy "_s + copy + u": "_s + made.errorString());
}

void refuseUnsound(const QString &copy, const QString &draft)
{
    try {
        Database database(draft);
        Findings unheard([](const QString &) {}, 1);
        refuseDamage(database, unheard);
        (void)contentsOf(database);
    } catch (const Failure &failure) {
        throw Failure(QString(failure.reason()).replace(draft, copy));
    }
}

/// What is damaged can't be copied as a store, but may still hold what somebody will miss. What a crash left half done
/// goes with it: beside another store it would be taken for that one's.
void keepDamaged(const QString &store, const QString &moment, const Findings::Sink &sink)
{
    const QString kept = QDir(backupFolder(store)).filePath(u"Damaged-"_s + moment + u".mdb"_s);
    if (!QDir().mkpath(backupFolder(store)) || !QFile::copy(store, kept))
        throw Failure(u"can't keep the present store as "_s + kept);
    if (QFile::exists(store + Journal) && !QFile::rename(store + Journal, kept + Journal))
        throw Failure(u"can't keep the present store's journal as "_s + kept + Journal);
    sink(u"the present store is damaged; it is kept as "_s + kept);
}

void keepPresent(const QString &store, const Findings::Sink &sink)
{
    if (!QFileInfo::exists(store)) {
        refuseForeignJournal(store);
        return;
    }
    const QString moment = presentMoment();
    if (soundnessOf(store) == Soundness::Damaged) {
        keepDamaged(store, moment, sink);
        return;
    }
    try {
        backUpStore(store, moment);
    } catch (const RunTimeError &failure) {
        throw Failure(u"the present store can't be kept: "_s + failure.description());
    }
    sink(u"the present store is kept in "_s + backupFolder(store));
}

} // namespace

qint64 listCopies(const QString &folder, const Findings::Sink &sink)
{
    const QString store = storeIn(folder);
    const QDir copies(backupFolder(store));
    qint64 damaged = 0;
    for (const QString &name : backupNames(store)) {
        const QString path = copies.filePath(name);
        QString contents = u"damaged"_s;
        if (soundnessOf(path) == Soundness::Sound) {
            contents = contentsOf(Database(path));
        } else {
            ++damaged;
        }
        sink(name + u"  "_s + QString::number(QFileInfo(path).size()) + u" bytes  "_s + contents);
    }
    return damaged;
}

void restore(const QString &folder, const QString &copy, const Findings::Sink &sink)
{
    const QString store = storeIn(folder);
    const StoreLock lock(store);
    if (lock.state() == StoreLock::State::HeldHere || lock.state() == StoreLock::State::HeldAfar)
        throw Failure(u"the program runs on this store, on "_s + lock.machine() + u" as process "_s
                      + QString::number(lock.process()) + u": end it first"_s);
    const QString named = QDir(backupFolder(store)).filePath(copy);
    const QString source = QFileInfo::exists(named) ? named : copy;
    if (!QFileInfo(source).isFile())
        throw Failure(u"there is no copy "_s + copy + u"; zrvstore list "_s + folder + u" names them"_s);
    refuseForeignJournal(source);
    const Draft draft(store);
    copyBytes(source, draft.path);
    refuseUnsound(source, draft.path);
    keepPresent(store, sink);
    if (!replaceFile(draft.path, store))
        throw Failure(u"can't put the copy in the place of "_s + store);
    sink(store + u" is now "_s + source);
}

} // namespace zrv::storetool
