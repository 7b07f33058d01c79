// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QString>

#include <vector>

namespace zrv::jet {

/// What a file was when it was read, so that whoever replaces it later can tell whether it still is the same.
struct FileState {
    quint64 device = 0;
    quint64 node = 0;
    qint64 size = 0;
    qint64 changedSeconds = 0;
    qint64 changedNanoseconds = 0;

    friend bool operator==(const FileState &, const FileState &) = default;
};

struct FileBytes {
    std::vector<unsigned char> bytes;
    FileState state;
};

/// Reads a file into memory. It must be a regular file of at most 256 MB, and is neither waited for nor reached through
/// a link; one beside which a lock file lies is in use. Raises Refused.
[[nodiscard]] FileBytes readFile(const QString &path);

/// The state of a file now; that of no file if there is none.
[[nodiscard]] FileState stateOf(const QString &path);

} // namespace zrv::jet
