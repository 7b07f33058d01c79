// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/zrvstore/store_folder.h"

#include "tools/terminal/failure.h"

#include <QDir>
#include <QFileInfo>

namespace zrv::storetool {

using namespace Qt::Literals::StringLiterals;

QString storeIn(const QString &folder)
{
    return QDir(folder).filePath(u"DBZorvan.mdb"_s);
}

void refuseForeignJournal(const QString &path)
{
    for (const QString &suffix : {u"-journal"_s, u"-wal"_s}) {
        if (QFileInfo::exists(path + suffix))
            throw Failure(path + suffix + u" is the rest of another file of that name: move it away first"_s);
    }
}

} // namespace zrv::storetool
