// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// Reads an electronic file, whoever made it and however broken, line by line in the memory of one block.

#include <QString>
#include <QStringView>

#include <limits>
#include <memory>
#include <vector>

namespace zrv {

/// What is odd about a file's bytes. None of it keeps it from being read: every file is taken as UTF-16, little-endian.
struct FileOddities {
    bool hasNoMark = false;    ///< it doesn't begin with the mark of UTF-16, little-endian
    bool isUtf8 = false;       ///< it begins with the mark of UTF-8
    bool isBigEndian = false;  ///< it begins with the mark of the other byte order
    bool hasOddLength = false; ///< its last byte is half a letter, which is left out
};

/// Lines are what CR LF divides; a CR or LF alone is a letter like any other. What stands behind the last CR LF is a
/// line too, an empty one in a well-made file.
///
/// A line may have 16 million letters. Only a regular file can be read: what waits for a sender, or never ends, is
/// refused. Failures are RunTimeErrors: FileNotFound, PathNotFound, PathFileAccess, PermissionDenied, DeviceIo where
/// the disk fails or the file becomes shorter while it is read, and OutOfMemory for a longer line.
class LineReader {
public:
    static constexpr std::size_t DefaultBlock = 131072; ///< 256 KiB

    /// Reads so many units at once, 2 at least.
    explicit LineReader(const QString &path, std::size_t blockUnits = DefaultBlock);
    ~LineReader();
    LineReader(const LineReader &) = delete;
    LineReader &operator=(const LineReader &) = delete;

    /// Nothing in it but a mark.
    [[nodiscard]] bool isEmpty() const { return m_end == m_first; }
    [[nodiscard]] const FileOddities &oddities() const { return m_oddities; }
    /// In bytes.
    [[nodiscard]] qint64 fileSize() const { return m_size; }

    /// The next line, which stays valid until the next call; false behind the last.
    bool next(QStringView &line);
    /// What is in memory of the lines to come, from the next one's beginning on; may be empty, and end in mid-line.
    [[nodiscard]] QStringView ahead() const;
    /// The next line will be the one that begins so many units on, within what is ahead.
    void pass(std::size_t units);
    /// Gives the next line as next() does, known to be whole in memory and so many units long without its CR LF.
    QStringView take(std::size_t units);

    /// Where the line given last, or before any the first one, begins, in bytes from the file's beginning.
    [[nodiscard]] qint64 offset() const { return m_lineOffset; }
    /// Likewise of the next line.
    [[nodiscard]] qint64 position() const { return m_read - static_cast<qint64>(m_used - m_begin) * UnitBytes; }
    /// Behind the last line, which no CR LF ends.
    [[nodiscard]] bool isAtEnd() const { return m_atEnd; }

    static constexpr qint64 Everything = std::numeric_limits<qint64>::max();
    /// The next line will be the one that begins there; of those that begin at `stop` or behind it none is given.
    void seek(qint64 offset, qint64 stop = Everything);

    /// Whether somebody wrote to the file since it was opened.
    [[nodiscard]] bool hasChanged() const;

    /// Another reader of the file as it was opened, for another thread. It refuses lines that are far longer than any
    /// good one.
    [[nodiscard]] std::unique_ptr<LineReader> another() const;

private:
    static constexpr qint64 UnitBytes = sizeof(char16_t);

    LineReader(const LineReader &other, int file);
    void look();
    bool fill();
    [[noreturn]] void fail(qint32 number, const char16_t *reason) const;

    QString m_path;
    int m_file = -1;
    qint64 m_size = 0;
    qint64 m_changed = 0; ///< when it was written last, in nanoseconds
    FileOddities m_oddities;
    qint64 m_first = 0; ///< byte of the first line
    qint64 m_end = 0;   ///< byte behind the last whole letter

    std::size_t m_blockUnits;
    std::size_t m_mostUnits; ///< of a line, with its end
    std::vector<char16_t> m_block;
    std::size_t m_begin = 0;   ///< of what was not given yet
    std::size_t m_scanned = 0; ///< no line ends before it
    std::size_t m_used = 0;
    qint64 m_read = 0; ///< byte up to which the file was read
    qint64 m_stop = Everything;
    qint64 m_lineOffset = 0;
    bool m_atEnd = false;
};

} // namespace zrv
