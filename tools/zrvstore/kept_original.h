// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/jet/read_file.h"

#include <QString>

namespace zrv::storetool {

/// A file that is about to be replaced, under a second name beside its own: at every moment there is the old file or
/// the new one under the first name, and the old one under the second. Unless it is kept, the second name goes again.
class KeptOriginal {
public:
    /// Raises Failure if the file isn't any more what was read. Does nothing else unless it `isReplaced`.
    KeptOriginal(const QString &file, const jet::FileState &asRead, bool isReplaced);
    ~KeptOriginal();
    KeptOriginal(const KeptOriginal &) = delete;
    KeptOriginal &operator=(const KeptOriginal &) = delete;

    void keep() { m_isKept = true; }
    [[nodiscard]] const QString &name() const { return m_name; } ///< without its folder

private:
    QString m_path;
    QString m_name;
    bool m_isKept = false;
};

} // namespace zrv::storetool
