// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/zrvcheck/file_list.h"

#include "core/basic/text.h"

#include <QDirIterator>
#include <QFileInfo>

#include <algorithm>

namespace zrv::checktool {

namespace {

bool isNamedAsElectronicFile(const QString &name)
{
    constexpr qsizetype NameLength = 12;
    const QStringView number = QStringView(name).mid(2, 6);
    return name.size() == NameLength && name.endsWith(u".TXT", Qt::CaseInsensitive)
           && (name.startsWith(u"WH", Qt::CaseInsensitive) || name.startsWith(u"WK", Qt::CaseInsensitive))
           && std::ranges::all_of(number, isAsciiDigit);
}

QStringList filesIn(const QString &folder)
{
    QStringList found;
    if (!QFileInfo(folder).isReadable())
        return {folder};
    QDirIterator entries(folder, QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot | QDir::Hidden,
                         QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        const QString path = entries.next();
        const QFileInfo entry = entries.fileInfo();
        const bool isToTell =
            entry.isDir() ? !entry.isSymLink() && !entry.isReadable() : isNamedAsElectronicFile(entries.fileName());
        if (isToTell)
            found.append(path);
    }
    found.sort();
    return found;
}

} // namespace

QStringList filesOf(const QStringList &paths)
{
    QStringList files;
    for (const QString &path : paths)
        files += QFileInfo(path).isDir() ? filesIn(path) : QStringList{path};
    return files;
}

} // namespace zrv::checktool
