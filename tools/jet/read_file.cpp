// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/jet/read_file.h"

#include "tools/jet/refused.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#ifdef Q_OS_UNIX
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace zrv::jet {

using namespace Qt::Literals::StringLiterals;

namespace {

/// A hundred times what the largest payer's store needs.
constexpr qint64 LargestFile = qint64(256) * 1024 * 1024;

[[noreturn]] void refuse(QStringView why, const QString &text)
{
    throw Refused(why, text);
}

/// Other programs keep a lock file beside a database for as long as they have it open.
void refuseFileInUse(const QString &path)
{
    const QFileInfo file(path);
    const QString lock = file.completeBaseName() + u".ldb"_s;
    for (const QString &name : file.dir().entryList(QDir::Files | QDir::Hidden | QDir::System)) {
        if (name.compare(lock, Qt::CaseInsensitive) == 0)
            refuse(reason::InUse, u"is open in another program, as "_s + name
                                      + u" beside it tells; close that program, or remove a lock file that it left"_s);
    }
}

void checkSize(qint64 size)
{
    if (size > LargestFile)
        refuse(reason::TooLarge, u"is larger than 256 MB"_s);
}

} // namespace

#ifdef Q_OS_UNIX

namespace {

FileState stateOf(const struct stat &status)
{
    return {quint64(status.st_dev), quint64(status.st_ino), qint64(status.st_size), qint64(status.st_mtim.tv_sec),
            qint64(status.st_mtim.tv_nsec)};
}

/// A file that is open, for as long as it is read.
class OpenFile {
public:
    explicit OpenFile(const QString &path)
        // Not to block: a pipe would be waited for.
        : m_descriptor(::open(QFile::encodeName(path).constData(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC))
    {
        if (m_descriptor < 0)
            refuse(reason::NoFile, errno == ELOOP ? u"is a link; name the file itself"_s : u"can't be read"_s);
    }
    ~OpenFile() { ::close(m_descriptor); }
    OpenFile(const OpenFile &) = delete;
    OpenFile &operator=(const OpenFile &) = delete;

    [[nodiscard]] struct stat status() const
    {
        struct stat status = {};
        if (::fstat(m_descriptor, &status) != 0 || !S_ISREG(status.st_mode))
            refuse(reason::NoFile, u"is no regular file"_s);
        return status;
    }

    /// One byte more is asked for than the file had: one that grows meanwhile is in use.
    [[nodiscard]] std::vector<unsigned char> read(qint64 size) const
    {
        std::vector<unsigned char> bytes(std::size_t(size) + 1);
        std::size_t got = 0;
        while (got < bytes.size()) {
            const ssize_t count = ::read(m_descriptor, bytes.data() + got, bytes.size() - got);
            if (count < 0 && errno == EINTR)
                continue;
            if (count < 0)
                refuse(reason::NoFile, u"can't be read"_s);
            if (count == 0)
                break;
            got += std::size_t(count);
        }
        if (qint64(got) != size)
            refuse(reason::InUse, u"changes while it is read"_s);
        bytes.resize(got);
        return bytes;
    }

private:
    int m_descriptor;
};

} // namespace

FileBytes readFile(const QString &path)
{
    const OpenFile file(path);
    const FileState state = stateOf(file.status());
    checkSize(state.size);
    refuseFileInUse(path);
    FileBytes read{file.read(state.size), state};
    if (stateOf(file.status()) != state)
        refuse(reason::InUse, u"changes while it is read"_s);
    return read;
}

FileState stateOf(const QString &path)
{
    struct stat status = {};
    return ::lstat(QFile::encodeName(path).constData(), &status) == 0 ? stateOf(status) : FileState();
}

#else

FileBytes readFile(const QString &path)
{
    const QFileInfo info(path);
    if (!info.isFile() || info.isSymLink())
        refuse(reason::NoFile, u"is no regular file"_s);
    checkSize(info.size());
    refuseFileInUse(path);
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        refuse(reason::NoFile, u"can't be read"_s);
    const FileState state = stateOf(path);
    const QByteArray bytes = file.read(LargestFile + 1);
    if (bytes.size() != state.size || stateOf(path) != state)
        refuse(reason::InUse, u"changes while it is read"_s);
    return {{bytes.begin(), bytes.end()}, state};
}

FileState stateOf(const QString &path)
{
    const QFileInfo info(path);
    return info.exists() ? FileState{0, 0, info.size(), info.lastModified().toMSecsSinceEpoch(), 0} : FileState();
}

#endif

} // namespace zrv::jet
