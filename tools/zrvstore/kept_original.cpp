// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/zrvstore/kept_original.h"

#include "tools/terminal/failure.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

namespace zrv::storetool {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int MostNames = 100;

/// A second name where the file system has them, a copy where it hasn't; never over another file.
bool giveSecondName(const QString &file, const QString &name)
{
#ifdef Q_OS_UNIX
    if (::link(QFile::encodeName(file).constData(), QFile::encodeName(name).constData()) == 0)
        return true;
#endif
    return QFile::copy(file, name);
}

} // namespace

KeptOriginal::KeptOriginal(const QString &file, const jet::FileState &asRead, bool isReplaced)
{
    if (jet::stateOf(file) != asRead)
        throw Failure(file + u" changes while it is read [in-use]"_s);
    if (!isReplaced)
        return;
    const QDir folder = QFileInfo(file).dir();
    for (int number = 1; number <= MostNames; ++number) {
        m_name = u"Jet"_s + (number == 1 ? QString() : QString::number(number)) + QFileInfo(file).fileName();
        const QString path = folder.filePath(m_name);
        if (QFileInfo::exists(path) || QFileInfo(path).isSymLink())
            continue;
        if (!giveSecondName(file, path))
            break;
        m_path = path;
        return;
    }
    throw Failure(u"can't keep "_s + file + u" under another name [can-not-write]"_s);
}

KeptOriginal::~KeptOriginal()
{
    if (!m_isKept && !m_path.isEmpty())
        QFile::remove(m_path);
}

} // namespace zrv::storetool
