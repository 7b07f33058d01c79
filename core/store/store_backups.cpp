// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/store/store_backups.h"

#include "core/store/soundness.h"
#include "core/store/store_copy.h"
#include "core/store/store_error.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>

namespace zrv {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QStringView NameBegin = u"DBZorvan-";
constexpr QStringView NameEnd = u".mdb";

bool isUnchangedSince(const QString &store, const QString &copy)
{
    return QFileInfo(store).lastModified() <= QFileInfo(copy).lastModified();
}

/// The copy that was just made stays, whatever its name: a clock that was set back would make it the oldest.
void removeOldest(const QString &store, const QString &justMade)
{
    const QDir folder(backupFolder(store));
    const QStringList names = backupNames(store);
    for (qsizetype i = MostBackups; i < names.size(); ++i) {
        if (names[i] != justMade)
            QFile::remove(folder.filePath(names[i]));
    }
}

} // namespace

QString backupFolder(const QString &store)
{
    return QFileInfo(store).dir().filePath(u"Backups"_s);
}

QStringList backupNames(const QString &store)
{
    static const QRegularExpression name(u"^DBZorvan-[0-9]{8}-[0-9]{6}\\.mdb$"_s);
    QStringList names = QDir(backupFolder(store)).entryList(QDir::Files, QDir::Name | QDir::Reversed);
    names.removeIf([](const QString &file) { return !name.match(file).hasMatch(); });
    return names;
}

void backUpStore(const QString &store, const QString &moment)
{
    const QDir folder(backupFolder(store));
    const QStringList names = backupNames(store);
    if (std::ranges::any_of(names, [&](const QString &name) { return isUnchangedSince(store, folder.filePath(name)); }))
        return;
    if (!QDir().mkpath(folder.path()))
        throw RunTimeError(store_error::General, u"پوشه نسخه هاي پشتيبان ايجاد نشد : "_s + folder.path());
    const QString name = NameBegin + moment + NameEnd;
    copyStore(store, folder.filePath(name));
    removeOldest(store, name);
}

QString newestSoundBackup(const QString &store)
{
    const QDir folder(backupFolder(store));
    const QStringList names = backupNames(store);
    const auto sound = std::ranges::find_if(
        names, [&](const QString &name) { return soundnessOf(folder.filePath(name)) == Soundness::Sound; });
    return sound == names.end() ? QString() : *sound;
}

} // namespace zrv
