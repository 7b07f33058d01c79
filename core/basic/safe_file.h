// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// A file that replaces an older one only when it is whole and on the disk.

#include <QByteArray>
#include <QString>

#include <cstddef>

namespace zrv {

/// Writes a file beside its place, under the name with ".tmp" behind it, and commit() gives it the name.
///
/// Until then the file of that name stays as it was. Without commit() nothing remains; a program that was
/// killed leaves the ".tmp" file, which the next one to write this file removes. Of two programs that write the
/// same file at once the later wins, and the other's commit() fails. The file is for its owner's eyes alone.
///
/// QSaveFile isn't used: it passes over an answer of the disk that the bytes did not arrive, and its names
/// differ from run to run, so what a killed program leaves behind would pile up.
///
/// Failures are RunTimeErrors: DiskFull, PermissionDenied, PathNotFound, DeviceIo, and PathFileAccess for
/// anything else, such as a folder, a device or a pipe of that name; their descriptions name the file and the way out.
class SafeFile {
public:
    /// The folder must be there.
    explicit SafeFile(const QString &path);
    ~SafeFile();
    SafeFile(const SafeFile &) = delete;
    SafeFile &operator=(const SafeFile &) = delete;

    /// Bytes behind those already written. They go straight to the system: callers bring them in large blocks.
    void write(const void *bytes, std::size_t size);

    /// Waits until the bytes are on the disk, then replaces the old file. Nothing may be written afterwards.
    void commit();

private:
    void expect(bool done) const;
    void beginSync();
    [[nodiscard]] bool isStillOurs() const;

    QString m_path;
    QByteArray m_target;
    QByteArray m_temporary;
    int m_file = -1;
    qint64 m_unsynced = 0; ///< bytes written that the system isn't yet asked to bring to the disk
};

} // namespace zrv
