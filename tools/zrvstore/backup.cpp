// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/zrvstore/backup.h"

#include "core/basic/run_time_error.h"
#include "core/store/schema.h"
#include "core/store/store_copy.h"
#include "tools/terminal/failure.h"
#include "tools/zrvstore/database.h"
#include "tools/zrvstore/store_folder.h"
#include "tools/zrvstore/verify.h"

#include <QFileInfo>

namespace zrv::storetool {

using namespace Qt::Literals::StringLiterals;

namespace {

bool hasTableOfStore(const Database &database)
{
    QStringList names;
    for (const TableShape &table : storeSchema())
        names.append(u'\'' + table.name.toLower() + u'\'');
    return Rows(database,
                u"SELECT 1 FROM sqlite_schema WHERE type='table' AND lower(name) IN ("_s + names.join(u',') + u')')
        .next();
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
    if (!hasTableOfStore(source))
        throw Failure(store + u" is not a store: it has none of the store's tables"_s);
    try {
        copyStore(store, copy, force ? EarlierCopy::Replaced : EarlierCopy::Kept);
    } catch (const RunTimeError &error) {
        Findings unheard([](const QString &) {}, 1);
        refuseDamage(source, unheard);
        throw Failure(u"no copy is made: "_s + error.description());
    }
}

} // namespace zrv::storetool
