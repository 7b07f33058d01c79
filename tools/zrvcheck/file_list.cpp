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

} // namespace

QStringList filesOf(const QStringList &paths)
{
    QStringList files;
    for (const QString &path : paths) {
        if (!QFileInfo(path).isDir()) {
            files.append(path);
            continue;
        }
        QStringList found;
        QDirIterator entries(path, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
        while (entries.hasNext()) {
            const QString file = entries.next();
            if (isNamedAsElectronicFile(entries.fileName()))
                found.append(file);
        }
        found.sort();
        files.append(found);
    }
    return files;
}

} // namespace zrv::checktool
