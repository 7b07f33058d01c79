// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/jet/usage_map.h"

#include "tools/jet/data_page.h"

namespace zrv::jet {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr quint8 WithinTheRow = 0; ///< a first page, then a bit for each page from there
constexpr quint8 OnPages = 1;      ///< the numbers of pages that hold the bits
constexpr std::size_t BitsOnPage = 4;
constexpr quint64 PagesOfAPage = (PageSize - BitsOnPage) * 8;

void addBits(const PageFile &file, Bytes bits, quint64 first, std::vector<quint32> &pages)
{
    for (std::size_t i = 0; i < bits.size(); ++i) {
        for (int bit = 0; bits.u8(i) >> bit != 0; ++bit) {
            if ((bits.u8(i) >> bit & 1) == 0)
                continue;
            const quint64 page = first + 8 * i + unsigned(bit);
            if (page >= file.pageCount())
                damaged(place(quint32(page)) + u" belongs to a table and is not in the file"_s);
            pages.push_back(quint32(page));
        }
    }
}

} // namespace

std::vector<quint32> pagesOf(const PageFile &file, RowPlace usageMap)
{
    const Bytes map = DataPage(file, usageMap.page).slot(usageMap.row).bytes;
    std::vector<quint32> pages;
    switch (map.u8(0)) {
    case WithinTheRow:
        addBits(file, map.part(5, map.size() - 5), map.u32(1), pages);
        break;
    case OnPages:
        for (std::size_t i = 0; 1 + 4 * (i + 1) <= map.size(); ++i) {
            const quint32 number = map.u32(1 + 4 * i);
            if (number != 0)
                addBits(file, file.page(number, PageKind::UsageMap).part(BitsOnPage, PageSize - BitsOnPage),
                        i * PagesOfAPage, pages);
        }
        break;
    default:
        damaged(place(usageMap.page, usageMap.row) + u": a usage map of an unknown kind"_s);
    }
    return pages;
}

} // namespace zrv::jet
