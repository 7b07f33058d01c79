// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/jet_writer/jet_writer.h"

#include "tests/jet_writer/jet_pages.h"

#include <QtEndian>

#include <algorithm>
#include <array>
#include <cstring>

namespace zrv::jettest {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr quint8 Integer = 3;
constexpr quint8 Long = 4;
constexpr quint8 Text = 10;
constexpr int HeaderCipher = 0x18;
constexpr int HeaderCipherSize = 0x80;
constexpr double CreationDate = 38143.5;

/// RC4; ciphers and deciphers.
QByteArray ciphered(const QByteArray &key, QByteArray bytes)
{
    std::array<quint8, 256> state{};
    for (std::size_t i = 0; i < 256; ++i)
        state[i] = quint8(i);
    quint8 j = 0;
    for (int i = 0; i < 256; ++i) {
        j = quint8(j + state[std::size_t(i)] + quint8(key[i % key.size()]));
        std::swap(state[std::size_t(i)], state[j]);
    }
    quint8 i = 0;
    j = 0;
    for (char &byte : bytes) {
        ++i;
        j = quint8(j + state[i]);
        std::swap(state[i], state[j]);
        byte = char(quint8(byte) ^ state[quint8(state[i] + state[j])]);
    }
    return bytes;
}

QByteArray headerKey()
{
    return QByteArray::fromHex("C7DA396B");
}

/// A text as a row holds it.
QByteArray storedText(const QString &text, bool isCompressed)
{
    QByteArray plain;
    QByteArray compressed("\xFF\xFE");
    bool isShort = true;
    bool fits = isCompressed && !text.isEmpty();
    for (const QChar letter : text) {
        const char16_t code = letter.unicode();
        append16(plain, code);
        const bool isOneByte = code > 0 && code < 0x100;
        fits = fits && (isOneByte || code % 0x100 != 0); // a low byte of 0 would end the stretch
        if (isOneByte != isShort) {
            compressed.append('\0');
            isShort = isOneByte;
        }
        if (isShort)
            compressed.append(char(code));
        else
            append16(compressed, code);
    }
    return fits && compressed.size() < plain.size() ? compressed : plain;
}

struct StoredColumn {
    QString name;
    quint8 type = Text;
    int size = 0; ///< bytes
    int fixedOffset = -1;
};

/// A row in bytes: `columns` is how many the table had by then, `values` are the texts, `valueBits` the null mask.
QByteArray storedRow(int columns, const QByteArray &fixed, const std::vector<QByteArray> &values,
                     const std::vector<bool> &valueBits)
{
    QByteArray row;
    append16(row, columns);
    row += fixed;
    std::vector<int> offsets;
    for (const QByteArray &value : values) {
        offsets.push_back(int(row.size()));
        row += value;
    }
    offsets.push_back(int(row.size()));
    std::ranges::reverse(offsets);
    for (const int offset : offsets)
        append16(row, offset);
    append16(row, int(values.size()));
    QByteArray mask((columns + 7) / 8, '\0');
    for (int i = 0; i < columns; ++i) {
        if (valueBits[std::size_t(i)])
            mask[i / 8] = char(mask[i / 8] | 1 << (i % 8));
    }
    return row + mask;
}

QByteArray storedRow(const Cells &cells, bool isCompressed)
{
    std::vector<QByteArray> values;
    std::vector<bool> bits;
    for (const Cell &cell : cells) {
        values.push_back(cell ? storedText(*cell, isCompressed) : QByteArray());
        bits.push_back(cell.has_value());
    }
    return storedRow(int(cells.size()), {}, values, bits);
}

/// Builds the file page by page.
class File {
public:
    explicit File(const Manner &manner)
        : m_manner(manner)
    {
        m_pages.add(header());
        m_pages.add(emptyPage(1, 1));
        m_pages.add(QByteArray(PageSize, '\0')); // the catalogue's definition, written last
    }

    void addTable(const Table &table)
    {
        std::vector<QByteArray> rows;
        for (const Cells &row : table.rows)
            rows.push_back(storedRow(row, m_manner.isCompressed));
        std::vector<StoredColumn> columns;
        for (const ColumnShape &column : table.shape.columns)
            columns.push_back({column.name, Text, 2 * column.width});
        const int definition = m_pages.add(QByteArray(PageSize, '\0'));
        write(definition, columns, rows, m_manner);
        m_entries.push_back({table.shape.name, definition});
    }

    QByteArray finished()
    {
        writeCatalogue();
        QByteArray file = m_pages.joined();
        for (int page = 1; m_manner.key != 0 && page * PageSize < file.size(); ++page) {
            QByteArray key;
            append32(key, m_manner.key ^ quint32(page));
            file.replace(page * PageSize, PageSize, ciphered(key, file.mid(page * PageSize, PageSize)));
        }
        return file;
    }

private:
    struct Entry {
        QString name;
        int page;
    };

    [[nodiscard]] QByteArray header() const
    {
        QByteArray page(PageSize, '\0');
        page.replace(0, 20, QByteArray("\0\1\0\0Standard Jet DB\0", 20));
        page[0x14] = char(m_manner.version);
        put32(page, 0x3E, m_manner.key);
        std::memcpy(page.data() + 0x72, &CreationDate, sizeof CreationDate);
        QByteArray password;
        for (const QChar letter : m_manner.password)
            append16(password, letter.unicode());
        password.resize(40, '\0');
        for (int i = 0; i < 40; ++i)
            page[0x42 + i] = char(password[i] ^ char(quint32(CreationDate) >> (8 * (i % 4))));
        page.replace(HeaderCipher, HeaderCipherSize, ciphered(headerKey(), page.mid(HeaderCipher, HeaderCipherSize)));
        return page;
    }

    /// A table's definition, usage map and rows; the definition's first page is there already.
    void write(int definition, const std::vector<StoredColumn> &columns, const std::vector<QByteArray> &rows,
               const Manner &manner)
    {
        RowPages pages(m_pages, definition);
        int number = 0;
        const auto isEach = [&](int each) { return each > 0 && number % each == 0; };
        for (const QByteArray &row : rows) {
            ++number;
            if (isEach(manner.movedEach))
                pages.addMoved(row);
            else
                pages.add(row, 0);
            if (isEach(manner.deletedEach))
                pages.add(row, RowPages::Skipped | RowPages::Pointer);
            if (isEach(manner.orphanEach))
                pages.add(row, RowPages::Skipped);
        }
        const quint32 map = writeMap(pages.finish(), manner.hasMapPages);
        writeDefinition(definition, columns, manner.isNotClosed ? 0 : quint32(rows.size()), map, manner.indexes);
    }

    /// The pointer to a usage map that names these pages.
    quint32 writeMap(const std::vector<int> &used, bool onPages)
    {
        constexpr int BitsWithin = 512;
        const int first = used.empty() ? 0 : used.front();
        QByteArray map;
        if (!onPages && (used.empty() || used.back() - first < BitsWithin)) {
            map.append('\0');
            append32(map, quint32(first));
            QByteArray bits(BitsWithin / 8, '\0');
            for (const int page : used)
                bits[(page - first) / 8] = char(bits[(page - first) / 8] | 1 << ((page - first) % 8));
            map += bits;
        } else {
            QByteArray bits(PageSize, '\0');
            bits[0] = 5;
            for (const int page : used)
                bits[4 + page / 8] = char(bits[4 + page / 8] | 1 << (page % 8));
            map.append('\1');
            append32(map, quint32(m_pages.add(bits)));
            map.resize(69, '\0');
        }
        RowPages pages(m_pages, 0);
        return pages.add(map, 0);
    }

    void writeDefinition(int page, const std::vector<StoredColumn> &columns, quint32 rows, quint32 map, int indexes)
    {
        QByteArray bytes(63 + 12 * indexes, '\0');
        bytes[0] = 2;
        put32(bytes, 16, rows);
        put16(bytes, 41, int(columns.size()));
        put16(bytes, 45, int(columns.size()));
        put32(bytes, 51, quint32(indexes));
        put32(bytes, 55, map);
        put32(bytes, 59, map);
        int variable = 0;
        for (std::size_t i = 0; i < columns.size(); ++i) {
            QByteArray entry(25, '\0');
            const bool isFixed = columns[i].fixedOffset >= 0;
            entry[0] = char(columns[i].type);
            put16(entry, 5, int(i));
            put16(entry, 7, variable);
            entry[15] = char(isFixed ? 3 : 2);
            put16(entry, 21, isFixed ? columns[i].fixedOffset : 0);
            put16(entry, 23, columns[i].size);
            variable += !isFixed;
            bytes += entry;
        }
        put16(bytes, 43, variable);
        for (const StoredColumn &column : columns) {
            append16(bytes, int(2 * column.name.size()));
            for (const QChar letter : column.name)
                append16(bytes, letter.unicode());
        }
        m_pages.putDefinition(page, bytes);
    }

    void writeCatalogue()
    {
        constexpr int Catalogue = 2;
        const std::vector<StoredColumn> columns = {
            {u"Flags"_s, Long, 4, 0}, {u"Id"_s, Long, 4, 4}, {u"Name"_s, Text, 510}, {u"Type"_s, Integer, 2, 8}};
        std::vector<QByteArray> rows;
        const auto addRow = [&](const QString &name, quint32 page, int type, quint32 flags) {
            QByteArray fixed;
            append32(fixed, flags);
            append32(fixed, page);
            append16(fixed, type);
            rows.push_back(storedRow(4, fixed, {storedText(name, m_manner.isCompressed)}, {true, true, true, true}));
        };
        addRow(u"MSysObjects"_s, Catalogue, 1, 0x80000000);
        addRow(u"Tables"_s, 0x0F000001, 3, 0x80000000);
        for (const Entry &entry : m_entries)
            addRow(entry.name, quint32(entry.page), 1, 0);
        write(Catalogue, columns, rows, {});
    }

    Manner m_manner;
    Pages m_pages;
    std::vector<Entry> m_entries;
};

} // namespace

QByteArray jetFile(const std::vector<Table> &tables, const Manner &manner)
{
    File file(manner);
    for (const Table &table : tables)
        file.addTable(table);
    return file.finished();
}

QByteArray changedHeader(QByteArray file, const std::function<void(QByteArray &)> &change)
{
    const auto cipherHeader = [&] {
        file.replace(HeaderCipher, HeaderCipherSize, ciphered(headerKey(), file.mid(HeaderCipher, HeaderCipherSize)));
    };
    cipherHeader();
    change(file);
    cipherHeader();
    return file;
}

} // namespace zrv::jettest
