// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/store/new_file.h"

#include <QFile>
#include <QFileInfo>

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace zrv {

#ifdef Q_OS_UNIX

namespace {

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

#else

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

#endif

} // namespace zrv
