// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/basic/safe_file.h"

#include "core/basic/run_time_error.h"

#include <QFile>

#include <array>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace zrv {
namespace {

struct WriteFailure {
    int cause;
    qint32 number;
    QStringView remedy;
};

constexpr QStringView FullDisk = u"فضاي ديسک پر شده است. لطفا فضاي ديسک را آزاد و دوباره اقدام نماييد";
constexpr QStringView NoPermission =
    u"اجازه نوشتن در اين پوشه وجود ندارد. لطفا دسترسي پوشه را اصلاح و دوباره اقدام نماييد";
constexpr QStringView NoFolder = u"پوشه آن وجود ندارد. لطفا پوشه را ايجاد و دوباره اقدام نماييد";

constexpr std::array<WriteFailure, 9> WriteFailures = {{
    {ENOSPC, error::DiskFull, FullDisk},
    {EDQUOT, error::DiskFull, u"سهم شما از فضاي ديسک پر شده است. لطفا فضاي ديسک را آزاد و دوباره اقدام نماييد"},
    {EFBIG, error::DiskFull, u"اندازه فايل از حد مجاز بيشتر ميباشد. لطفا اين حد را افزايش داده و دوباره اقدام نماييد"},
    {EACCES, error::PermissionDenied, NoPermission},
    {EPERM, error::PermissionDenied, NoPermission},
    {EROFS, error::PermissionDenied, u"اين ديسک فقط خواندني ميباشد. لطفا برنامه را از ديسک ديگري اجرا نماييد"},
    {ENOENT, error::PathNotFound, NoFolder},
    {ENOTDIR, error::PathNotFound, NoFolder},
    {EIO, error::DeviceIo, u"ديسک خطا داد. لطفا سلامت ديسک را بررسي و دوباره اقدام نماييد"},
}};

constexpr QStringView OtherRemedy = u"لطفا بررسي نماييد که پوشه اي به همين نام وجود نداشته و نام فايل معتبر باشد";

/// The path stands on a line of its own, where text from right to left can't scramble it.
RunTimeError writeFailure(qint32 number, QStringView remedy, const QString &path)
{
    return RunTimeError(number, QStringLiteral("فايل زير ايجاد نشد و فايل قبلي ، در صورت وجود ، بدون تغيير باقي ماند. ")
                                    + remedy + QStringLiteral(":\n") + path);
}

/// Brings the folder's own entry to the disk. Not every file system can, and none has to be asked twice: if the
/// entry is lost in a power cut, the old file is back, whole.
void syncFolderOf(QByteArray path)
{
    path.truncate(path.lastIndexOf('/') + 1);
    const int folder = ::open(path.isEmpty() ? "." : path.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (folder < 0)
        return;
    ::fsync(folder);
    ::close(folder);
}

} // namespace

SafeFile::SafeFile(const QString &path)
    : m_path(path)
    , m_target(QFile::encodeName(path))
    , m_temporary(m_target + ".tmp")
{
    // A device or a pipe would be taken away for good, and with it what others do with it.
    struct stat there {};
    if (::lstat(m_target.constData(), &there) == 0 && !S_ISREG(there.st_mode) && !S_ISLNK(there.st_mode))
        throw writeFailure(error::PathFileAccess, OtherRemedy, m_path);
    ::unlink(m_temporary.constData());
    m_file = ::open(m_temporary.constData(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, S_IRUSR | S_IWUSR);
    expect(m_file >= 0);
}

SafeFile::~SafeFile()
{
    if (m_file < 0)
        return;
    if (isStillOurs())
        ::unlink(m_temporary.constData());
    ::close(m_file);
}

void SafeFile::expect(bool done) const
{
    if (done)
        return;
    for (const WriteFailure &failure : WriteFailures) {
        if (errno == failure.cause)
            throw writeFailure(failure.number, failure.remedy, m_path);
    }
    throw writeFailure(error::PathFileAccess, OtherRemedy, m_path);
}

void SafeFile::write(const void *bytes, std::size_t size)
{
    const char *rest = static_cast<const char *>(bytes);
    while (size > 0) {
        const ssize_t written = ::write(m_file, rest, size);
        if (written < 0 && errno == EINTR)
            continue;
        expect(written >= 0);
        rest += written;
        size -= static_cast<std::size_t>(written);
        m_unsynced += written;
    }
    beginSync();
}

/// A long file goes to the disk while the rest is made, so that commit() has little left to wait for.
void SafeFile::beginSync()
{
#ifdef SYNC_FILE_RANGE_WRITE
    constexpr off_t LongBytes = 16 << 20;
    if (m_unsynced < LongBytes)
        return;
    // Whether it can be begun early doesn't matter: commit() waits for all of it, and hears of any failure.
    ::sync_file_range(m_file, ::lseek(m_file, 0, SEEK_CUR) - m_unsynced, m_unsynced, SYNC_FILE_RANGE_WRITE);
    m_unsynced = 0;
#endif
}

/// Whether the temporary name still leads to this file: another program may have begun to write it anew.
bool SafeFile::isStillOurs() const
{
    struct stat ours {};
    struct stat named {};
    return ::fstat(m_file, &ours) == 0 && ::lstat(m_temporary.constData(), &named) == 0 && ours.st_ino == named.st_ino
           && ours.st_dev == named.st_dev;
}

void SafeFile::commit()
{
    expect(::fsync(m_file) == 0);
    if (!isStillOurs()) {
        throw writeFailure(error::PermissionDenied,
                           u"برنامه ديگري در حال ايجاد همين فايل ميباشد. لطفا پس از پايان آن دوباره اقدام نماييد",
                           m_path);
    }
    expect(::rename(m_temporary.constData(), m_target.constData()) == 0);
    ::close(std::exchange(m_file, -1));
    syncFolderOf(m_target);
}

} // namespace zrv
