// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/jet/data_page.h"

namespace zrv::jet {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr std::size_t Offsets = 14; ///< two bytes for each row
constexpr quint16 Skipped = 0x8000;
constexpr quint16 Pointer = 0x4000;
constexpr quint16 Offset = 0x1FFF;

} // namespace

DataPage::DataPage(const PageFile &file, quint32 number)
    : m_number(number)
    , m_page(file.page(number, PageKind::Data))
{
    if (head() > PageSize)
        damaged(place(number) + u" counts more rows than it can hold"_s);
}

std::size_t DataPage::head() const
{
    return Offsets + 2 * std::size_t(rowCount());
}

std::size_t DataPage::start(int row) const
{
    return m_page.u16(Offsets + 2 * std::size_t(row)) & Offset;
}

Slot DataPage::slot(int row) const
{
    if (row < 0 || row >= rowCount())
        damaged(place(m_number, row) + u" is missing"_s);
    if (start(row) < head() || start(row) > end(row))
        damaged(place(m_number, row) + u" lies where it can't"_s);
    const quint16 flags = m_page.u16(Offsets + 2 * std::size_t(row));
    return {m_page.part(start(row), end(row) - start(row)), (flags & Skipped) != 0, (flags & Pointer) != 0};
}

} // namespace zrv::jet
