// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/jet/page_file.h"

namespace zrv::jet {

/// A row's place on its page: its bytes, and what its two flags say. A row that was deleted has the first flag, and so
/// has one that was moved here from another page: only a pointer that leads to it tells that it is alive.
struct Slot {
    Bytes bytes;
    bool isSkipped = false; ///< deleted, or moved here
    bool isPointer = false; ///< holds the place that the row was moved to
};

/// A page of rows. They stand from the page's end down, a table of their offsets from its head up.
class DataPage {
public:
    /// Raises Refused for a page that counts more rows than it can hold.
    DataPage(const PageFile &file, quint32 number);

    [[nodiscard]] quint32 number() const { return m_number; }
    /// The page of the definition that the rows belong to.
    [[nodiscard]] quint32 owner() const { return m_page.u32(4); }
    [[nodiscard]] int rowCount() const { return m_page.u16(12); }
    /// A row that the page hasn't got, or that lies in its neighbour or in the page's head, is damage.
    [[nodiscard]] Slot slot(int row) const;

private:
    [[nodiscard]] std::size_t head() const;
    [[nodiscard]] std::size_t start(int row) const;
    [[nodiscard]] std::size_t end(int row) const { return row == 0 ? PageSize : start(row - 1); }

    quint32 m_number;
    Bytes m_page;
};

} // namespace zrv::jet
