// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The pages of a database in the making, and the numbers in them: little-endian all.

#include <QByteArray>
#include <QtEndian>

#include <utility>
#include <vector>

namespace zrv::jettest {

inline constexpr int PageSize = 4096;

inline void put16(QByteArray &bytes, int at, int value)
{
    qToLittleEndian(quint16(value), bytes.data() + at);
}
inline void put32(QByteArray &bytes, int at, quint32 value)
{
    qToLittleEndian(value, bytes.data() + at);
}
inline void append16(QByteArray &bytes, int value)
{
    bytes.resize(bytes.size() + 2);
    put16(bytes, int(bytes.size()) - 2, value);
}
inline void append32(QByteArray &bytes, quint32 value)
{
    bytes.resize(bytes.size() + 4);
    put32(bytes, int(bytes.size()) - 4, value);
}

/// A page without rows.
inline QByteArray emptyPage(char kind, quint32 owner)
{
    QByteArray page(PageSize, '\0');
    page[0] = kind;
    put32(page, 4, owner);
    return page;
}

class Pages {
public:
    /// Adds a page; its number.
    int add(const QByteArray &page)
    {
        m_pages.push_back(page);
        return int(m_pages.size()) - 1;
    }
    QByteArray &operator[](int number) { return m_pages[std::size_t(number)]; }

    /// Lays a definition on its first page, and what is too long for that on further ones.
    void putDefinition(int first, QByteArray bytes)
    {
        int number = first;
        for (int at = 0; at < bytes.size();) {
            const int head = at == 0 ? 0 : 8;
            QByteArray page = emptyPage(2, 0);
            const int size = int(std::min<qsizetype>(PageSize - head, bytes.size() - at));
            page.replace(head, size, bytes.mid(at, size));
            at += size;
            const int next = at < bytes.size() ? add({}) : 0;
            put32(page, 4, quint32(next));
            m_pages[std::size_t(number)] = page;
            number = next;
        }
    }

    [[nodiscard]] QByteArray joined() const
    {
        QByteArray file;
        for (const QByteArray &page : m_pages)
            file += page;
        return file;
    }

private:
    std::vector<QByteArray> m_pages;
};

/// Lays rows on pages of one owner, from each page's end down.
class RowPages {
public:
    static constexpr int Skipped = 0x8000;
    static constexpr int Pointer = 0x4000;

    RowPages(Pages &pages, int owner)
        : m_pages(pages)
        , m_owner(owner)
    {
    }

    /// The place of the row, as pointers give it.
    quint32 add(const QByteArray &row, int flags)
    {
        constexpr int MostRows = 250; // a pointer has a byte for the row
        if (m_used.empty() || m_end - row.size() < 14 + 2 * (m_rows + 1) || m_rows == MostRows)
            begin();
        m_end -= int(row.size());
        QByteArray &page = m_pages[m_used.back()];
        page.replace(m_end, row.size(), row);
        put16(page, 14 + 2 * m_rows, m_end | flags);
        put16(page, 12, ++m_rows);
        return quint32(m_used.back()) << 8 | quint32(m_rows - 1);
    }

    /// A row that was moved: it comes behind all others, and where it was is a pointer to it.
    void addMoved(const QByteArray &row)
    {
        const quint32 place = add(QByteArray(4, '\0'), Pointer);
        m_moved.push_back({place, row});
    }

    /// The numbers of the pages, ascending.
    std::vector<int> finish()
    {
        for (const auto &[from, row] : m_moved) {
            const quint32 to = add(row, Skipped);
            QByteArray &page = m_pages[int(from >> 8)];
            const int slot = int(from & 0xFF);
            put32(page, qFromLittleEndian<quint16>(page.constData() + 14 + 2 * slot) & 0x1FFF, to);
        }
        return m_used;
    }

private:
    void begin()
    {
        m_used.push_back(m_pages.add(emptyPage(1, quint32(m_owner))));
        m_end = PageSize;
        m_rows = 0;
    }

    Pages &m_pages;
    int m_owner;
    std::vector<int> m_used;
    int m_end = 0;
    int m_rows = 0;
    std::vector<std::pair<quint32, QByteArray>> m_moved;
};

} // namespace zrv::jettest
