// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/store/store_copy.h"

#include "core/store/new_file.h"
#include "core/store/soundness.h"
#include "core/store/store_error.h"
#include "core/store/store_file.h"

#include <QFile>
#include <QFileInfo>

#include <map>
#include <sqlite3.h>

namespace zrv {

using namespace Qt::Literals::StringLiterals;

namespace {

[[noreturn]] void refuse(QStringView reason, const QString &path)
{
    throw RunTimeError(store_error::General, reason + u" : "_s + path);
}

QString text(const PreparedStatement &statement)
{
    return QString::fromUtf8(reinterpret_cast<const char *>(sqlite3_column_text(statement.get(), 0)));
}

/// The rows of each table.
std::map<QString, qint64> rowCounts(StoreFile &file)
{
    std::map<QString, qint64> counts;
    const PreparedStatement tables =
        file.prepare(u"SELECT name FROM sqlite_schema WHERE type='table' AND name NOT LIKE 'sqlite!_%' ESCAPE '!'"_s);
    while (file.step(tables)) {
        const QString name = text(tables);
        const PreparedStatement rows =
            file.prepare(u"SELECT count(*) FROM \""_s + QString(name).replace(u'"', u"\"\""_s) + u'"');
        (void)file.step(rows);
        counts[name] = sqlite3_column_int64(rows.get(), 0);
    }
    return counts;
}

std::map<QString, qint64> rowsOf(const QString &path)
{
    StoreFile file(path);
    return rowCounts(file);
}

/// A file in the making, removed unless it takes the copy's name.
class Draft {
public:
    explicit Draft(const QString &copy)
        : path(temporaryName(copy))
    {
        if (!createPrivateFile(path))
            refuse(u"فايل پشتيبان ايجاد نشد . فضاي ديسک و دسترسي پوشه را بررسي نماييد", copy);
    }
    ~Draft() { QFile::remove(path); }
    Q_DISABLE_COPY_MOVE(Draft)

    const QString path;
};

} // namespace

void copyStore(const QString &store, const QString &copy, EarlierCopy earlier)
{
    // A journal that is left of another file would be taken for the copy's own, and overwrite it.
    if (QFileInfo::exists(copy + u"-journal"_s) || QFileInfo(copy).isDir())
        refuse(u"فايل پشتيبان ايجاد نشد . فايل يا پوشه ديگري در محل آن وجود دارد", copy);
    StoreFile source(store);
    const Draft draft(copy);
    // Pages and counts are of one moment, whoever else writes.
    source.run(u"BEGIN"_s);
    const std::map<QString, qint64> counts = rowCounts(source);
    source.copyPages(draft.path);
    source.run(u"COMMIT"_s);
    if (soundnessOf(draft.path) != Soundness::Sound || rowsOf(draft.path) != counts)
        refuse(u"فايل پشتيبان ايجاد شده سالم نيست", copy);
    const bool isNamed = earlier == EarlierCopy::Replaced ? replaceFile(draft.path, copy) : giveName(draft.path, copy);
    if (!isNamed)
        refuse(u"فايل پشتيبان ايجاد نشد . فضاي ديسک و دسترسي پوشه را بررسي نماييد", copy);
}

void compactStore(const QString &store)
{
    StoreFile(store).run(u"VACUUM"_s);
}

} // namespace zrv
