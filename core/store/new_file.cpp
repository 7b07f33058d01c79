// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/store/new_file.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#ifdef Q_OS_UNIX
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace zrv {

using namespace Qt::Literals::StringLiterals;

namespace {

bool isRunning(qint64 process);

/// Removes what processes that are gone were building under this name.
void removeLeftovers(const QString &path)
{
    const QFileInfo file(path);
    const QString prefix = file.fileName() + u".new"_s;
    QDir folder(file.absolutePath());
    for (const QString &name : folder.entryList(QDir::Files | QDir::Hidden | QDir::System)) {
        if (!name.startsWith(prefix))
            continue;
        bool isNumber = false;
        const qint64 process = QStringView(name).sliced(prefix.size()).toLongLong(&isNumber);
        if (isNumber && process > 0 && (process == QCoreApplication::applicationPid() || !isRunning(process)))
            folder.remove(name);
    }
}

} // namespace

QString temporaryName(const QString &path)
{
    removeLeftovers(path);
    return path + u".new"_s + QString::number(QCoreApplication::applicationPid());
}

#ifdef Q_OS_UNIX

namespace {

/// A process of somebody else's runs as well as ours.
bool isRunning(qint64 process)
{
    return ::kill(pid_t(process), 0) == 0 || errno != ESRCH;
}

bool flush(const QString &path)
{
    const int descriptor = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC);
    if (descriptor < 0)
        return false;
    const bool flushed = ::fsync(descriptor) == 0;
    return ::close(descriptor) == 0 && flushed;
}

} // namespace

bool createPrivateFile(const QString &path)
{
    const int descriptor =
        ::open(QFile::encodeName(path).constData(), O_CREAT | O_EXCL | O_RDWR | O_CLOEXEC, S_IRUSR | S_IWUSR);
    if (descriptor < 0)
        return false;
    // A mask may have taken away even the owner's own rights.
    const bool isPrivate = ::fchmod(descriptor, S_IRUSR | S_IWUSR) == 0;
    return ::close(descriptor) == 0 && isPrivate;
}

bool giveName(const QString &temporary, const QString &path)
{
    if (!flush(temporary))
        return false;
    // A second name can't replace a file; a file system without second names is asked beforehand instead.
    if (::link(QFile::encodeName(temporary).constData(), QFile::encodeName(path).constData()) == 0)
        ::unlink(QFile::encodeName(temporary).constData());
    else if (errno == EEXIST || !QFile::rename(temporary, path))
        return false;
    return flush(QFileInfo(path).absolutePath());
}

bool replaceFile(const QString &temporary, const QString &path)
{
    return flush(temporary)
           && std::rename(QFile::encodeName(temporary).constData(), QFile::encodeName(path).constData()) == 0
           && flush(QFileInfo(path).absolutePath());
}

#else

namespace {

/// Without a way to ask, a file in the making is left alone.
bool isRunning(qint64)
{
    return true;
}

} // namespace

bool createPrivateFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadWrite | QIODevice::NewOnly)
           && file.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner);
}

bool giveName(const QString &temporary, const QString &path)
{
    return QFile::rename(temporary, path);
}

bool replaceFile(const QString &temporary, const QString &path)
{
    return (!QFile::exists(path) || QFile::remove(path)) && QFile::rename(temporary, path);
}

#endif

} // namespace zrv
