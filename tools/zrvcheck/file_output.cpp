// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/zrvcheck/file_output.h"

#include <algorithm>

namespace zrv::checktool {

FileOutput::FileOutput(OrderedOutput *output, std::size_t place)
    : m_output(output)
    , m_place(place)
{
    constexpr qsizetype LongestPiece = 8192; // most are far shorter; a longer one makes the block grow
    m_block.reserve(BlockBytes + LongestPiece);
}

FileOutput::~FileOutput()
{
    if (m_output)
        m_output->close(m_place);
}

void FileOutput::addText(const QString &text)
{
    m_block.append(text.toUtf8());
    flushIfFull();
}

void FileOutput::flush()
{
    if (m_output && !m_block.isEmpty())
        m_output->add(m_place, m_block);
    m_block.resize(0);
}

/// Most of what changes from line to line is digits.
void Utf8Report::add(QStringView piece)
{
    constexpr char16_t FirstOfTwoBytes = 0x80;
    QByteArray &block = m_output.block();
    const qsizetype begin = block.size();
    block.resize(begin + piece.size());
    char *to = block.data() + begin;
    for (const QChar letter : piece) {
        if (letter.unicode() >= FirstOfTwoBytes) {
            block.resize(begin);
            block.append(piece.toUtf8());
            break;
        }
        *to++ = static_cast<char>(letter.unicode());
    }
    m_output.flushIfFull();
}

void Utf8Report::addFixed(QStringView piece)
{
    const auto sameAs = [piece](const QStringView other) {
        return other.data() == piece.data() && other.size() == piece.size();
    };
    std::size_t place = reinterpret_cast<std::uintptr_t>(piece.data()) / sizeof(QChar) % m_fixed.size();
    while (!sameAs(m_fixed[place].piece)) {
        if (m_fixed[place].piece.isNull()) {
            if (m_kept == m_fixed.size() / 2)
                return add(piece);
            ++m_kept;
            m_fixed[place] = {piece, piece.toUtf8()};
            break;
        }
        place = (place + 1) % m_fixed.size();
    }
    m_output.block().append(m_fixed[place].utf8);
    m_output.flushIfFull();
}

void Utf8Report::endLine()
{
    m_output.block().append("\r\n", 2);
}

} // namespace zrv::checktool
