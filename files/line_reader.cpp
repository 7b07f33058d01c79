// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/line_reader.h"

#include "core/basic/run_time_error.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <array>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace zrv {
namespace {

constexpr std::size_t MostUnits = 16777216;
constexpr std::size_t MostUnitsOfAnother = 262144;
constexpr qint64 BehindStop = 4096; // bytes read beyond the stop at once, for the rest of the last line

static_assert(Q_BYTE_ORDER == Q_LITTLE_ENDIAN, "the files are little-endian, and so is what is read into memory");

qint64 timeOfChange(const struct stat &status)
{
    constexpr qint64 NanosecondsPerSecond = 1'000'000'000;
    return qint64(status.st_mtim.tv_sec) * NanosecondsPerSecond + status.st_mtim.tv_nsec;
}

/// The number under which a failed opening is known.
qint32 openingFailure(int cause, const QString &path)
{
    switch (cause) {
    case ENOENT:
        return QFileInfo(QFileInfo(path).path()).isDir() ? error::FileNotFound : error::PathNotFound;
    case ENOTDIR:
        return error::PathNotFound;
    case EACCES:
    case EPERM:
        return error::PermissionDenied;
    case EIO:
        return error::DeviceIo;
    default:
        return error::PathFileAccess;
    }
}

} // namespace

LineReader::LineReader(const QString &path, std::size_t blockUnits)
    : m_path(path)
    , m_blockUnits(blockUnits)
    , m_mostUnits(MostUnits)
{
    // Without O_NONBLOCK a pipe would keep us waiting for whoever writes into it.
    m_file = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    if (m_file < 0)
        fail(openingFailure(errno, path), u"فايل باز نشد");
    try {
        look();
    } catch (...) {
        ::close(m_file);
        throw;
    }
}

LineReader::LineReader(const LineReader &other, int file)
    : m_path(other.m_path)
    , m_file(file)
    , m_size(other.m_size)
    , m_changed(other.m_changed)
    , m_oddities(other.m_oddities)
    , m_first(other.m_first)
    , m_end(other.m_end)
    , m_blockUnits(other.m_blockUnits)
    , m_mostUnits(MostUnitsOfAnother)
{
    seek(m_first);
}

std::unique_ptr<LineReader> LineReader::another() const
{
    const int file = ::fcntl(m_file, F_DUPFD_CLOEXEC, 0);
    if (file < 0)
        fail(error::PathFileAccess, u"فايل باز نشد");
    return std::unique_ptr<LineReader>(new LineReader(*this, file));
}

LineReader::~LineReader()
{
    ::close(m_file);
}

/// Takes the file's measures and its first bytes.
void LineReader::look()
{
    struct stat status {};
    if (::fstat(m_file, &status) != 0 || !S_ISREG(status.st_mode))
        fail(error::PathFileAccess, u"آنچه انتخاب شده يک فايل معمولي نيست");
    m_size = status.st_size;
    m_changed = timeOfChange(status);
    ::posix_fadvise(m_file, 0, 0, POSIX_FADV_SEQUENTIAL);

    std::array<uchar, 3> head{};
    const ssize_t read = ::pread(m_file, head.data(), head.size(), 0);
    if (read < 0)
        fail(error::DeviceIo, u"خواندن فايل با خطا روبرو شد");
    const bool hasMark = read >= UnitBytes && head[0] == 0xFF && head[1] == 0xFE;
    m_oddities.hasNoMark = !hasMark;
    m_oddities.isUtf8 = read == 3 && head[0] == 0xEF && head[1] == 0xBB && head[2] == 0xBF;
    m_oddities.isBigEndian = read >= UnitBytes && head[0] == 0xFE && head[1] == 0xFF;
    m_oddities.hasOddLength = m_size % UnitBytes != 0;
    m_first = hasMark ? UnitBytes : 0;
    m_end = m_size - m_size % UnitBytes;
    seek(m_first);
}

void LineReader::seek(qint64 offset, qint64 stop)
{
    m_begin = m_scanned = m_used = 0;
    m_read = m_lineOffset = offset;
    m_stop = stop;
    m_atEnd = false;
}

bool LineReader::next(QStringView &line)
{
    if (m_atEnd || position() >= m_stop)
        return false;
    for (;;) {
        const QStringView unscanned(m_block.data() + m_scanned, m_block.data() + m_used);
        const qsizetype lineFeed = unscanned.indexOf(u'\n');
        if (lineFeed < 0 && !fill()) {
            line = QStringView(m_block.data() + m_begin, m_block.data() + m_used);
            m_atEnd = true;
            break;
        }
        if (lineFeed < 0)
            continue;
        m_scanned += static_cast<std::size_t>(lineFeed) + 1;
        if (m_scanned >= m_begin + 2 && m_block[m_scanned - 2] == u'\r') {
            line = QStringView(m_block.data() + m_begin, m_block.data() + m_scanned - 2);
            break;
        }
    }
    m_lineOffset = position();
    m_begin = m_atEnd ? m_used : m_scanned;
    return true;
}

QStringView LineReader::ahead() const
{
    const qint64 units = std::min(static_cast<qint64>(m_used - m_begin), (m_stop - position()) / UnitBytes);
    return {m_block.data() + m_begin, std::max<qint64>(units, 0)};
}

void LineReader::pass(std::size_t units)
{
    m_begin += units;
    m_scanned = m_begin;
}

QStringView LineReader::take(std::size_t units)
{
    constexpr std::size_t LineEnd = 2;
    const QStringView line(m_block.data() + m_begin, static_cast<qsizetype>(units));
    m_lineOffset = position();
    pass(units + LineEnd);
    return line;
}

/// Reads on behind what is there, false at the file's end.
bool LineReader::fill()
{
    if (m_read >= m_end)
        return false;
    if (m_begin > 0) {
        std::copy(m_block.begin() + qsizetype(m_begin), m_block.begin() + qsizetype(m_used), m_block.begin());
        m_used -= m_begin;
        m_begin = 0;
    }
    m_scanned = m_used;
    if (m_used == m_block.size()) {
        if (m_used >= m_mostUnits)
            fail(error::OutOfMemory, u"يکي از خطوط فايل بيش از 16 ميليون حرف دارد و فايل حقوق يا خلاصه ليست نيست");
        m_block.resize(std::max(m_blockUnits, m_block.size() * 2));
    }
    qint64 wanted = std::min(static_cast<qint64>(m_block.size() - m_used) * UnitBytes, m_end - m_read);
    wanted = std::min(wanted, std::max(m_stop - m_read, BehindStop));
    ssize_t read = 0;
    do {
        read = ::pread(m_file, m_block.data() + m_used, static_cast<std::size_t>(wanted), m_read);
    } while (read < 0 && errno == EINTR);
    if (read < 0)
        fail(error::DeviceIo, u"خواندن فايل با خطا روبرو شد");
    // Half a letter is read again with its other half.
    read -= read % UnitBytes;
    if (read == 0)
        fail(error::DeviceIo, u"فايل هنگام خواندن کوتاه شده است");
    m_used += static_cast<std::size_t>(read / UnitBytes);
    m_read += read;
    return true;
}

bool LineReader::hasChanged() const
{
    struct stat status {};
    return ::fstat(m_file, &status) != 0 || status.st_size != m_size || timeOfChange(status) != m_changed;
}

/// The path stands on a line of its own, where text from right to left can't scramble it.
void LineReader::fail(qint32 number, const char16_t *reason) const
{
    throw RunTimeError(number, QString::fromUtf16(reason) + u":\n" + m_path);
}

} // namespace zrv
