// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/jet/bytes.h"

#include <vector>

namespace zrv::jet {

inline constexpr std::size_t PageSize = 4096;

/// The kinds of pages, as their first byte tells them.
enum class PageKind : quint8 { Data = 1, Definition = 2, UsageMap = 5 };

/// Where a row lies. In the file: the page's number, and in the lowest byte the row's.
struct RowPlace {
    quint32 page = 0;
    int row = 0;

    [[nodiscard]] static RowPlace fromFile(quint32 pointer) { return {pointer >> 8, int(pointer & 0xFF)}; }
};

/// The pages of a whole file in memory, in clear.
class PageFile {
public:
    /// Takes the bytes of a file. Raises Refused for what is no such database, is of another version, or is kept with a
    /// password. Pages that are encoded are decoded here.
    explicit PageFile(std::vector<unsigned char> bytes);

    [[nodiscard]] quint32 pageCount() const { return quint32(m_bytes.size() / PageSize); }
    /// Bytes behind the last whole page: the file was cut off, or something was added to it.
    [[nodiscard]] std::size_t extraBytes() const { return m_bytes.size() % PageSize; }

    /// A page behind the first, which must be of this kind. Any other number, or kind, is damage.
    [[nodiscard]] Bytes page(quint32 number, PageKind kind) const;

private:
    std::vector<unsigned char> m_bytes;
};

} // namespace zrv::jet
