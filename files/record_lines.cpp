// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/record_lines.h"

#include <algorithm>
#include <utility>

namespace zrv {
namespace {

constexpr std::size_t BlockUnits = 65536; // 128 KiB
constexpr char16_t Mark = 0xFEFF;
constexpr char16_t Separator = u',';

static_assert(Q_BYTE_ORDER == Q_LITTLE_ENDIAN, "the files are little-endian, and so is what is written from memory");

bool isLineEnd(char16_t unit)
{
    return unit == u'\r' || unit == u'\n';
}

char16_t *trim(char16_t *begin, char16_t *end)
{
    while (end > begin && end[-1] == u' ')
        --end;
    const char16_t *first = std::find_if(begin, end, [](char16_t unit) { return unit != u' '; });
    return first == begin ? end : std::copy<const char16_t *>(first, end, begin);
}

} // namespace

RecordLines::RecordLines(SafeFile &file)
    : m_file(file)
    , m_block(BlockUnits)
    // A mark inside a value is a letter of it like any other.
    , m_decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless | QStringDecoder::Flag::ConvertInitialBom)
{
    m_block[m_used++] = Mark;
}

void RecordLines::addTrimmed(std::string_view value, int width)
{
    // A letter has at least as many bytes as units.
    const std::size_t most = width > 0 ? std::min(value.size(), static_cast<std::size_t>(width)) : value.size();
    char16_t *const begin = beginField(most);
    // Nearly all values are digits and Latin letters: nothing to trim, nothing to remove.
    std::size_t plain = 0;
    for (; plain<most &&static_cast<signed char>(value[plain])> ' '; ++plain)
        begin[plain] = static_cast<unsigned char>(value[plain]);
    if (plain == most)
        m_used += most;
    else
        endField(trim(begin, widen(value, begin, most)));
}

void RecordLines::addPadded(std::string_view value, int width)
{
    const auto units = static_cast<std::size_t>(width);
    char16_t *const begin = beginField(units);
    std::fill(widen(value, begin, units), begin + units, u' ');
    endField(begin + units);
}

void RecordLines::endLine()
{
    m_block[m_used++] = u'\r';
    m_block[m_used++] = u'\n';
    m_atLineStart = true;
}

void RecordLines::flush()
{
    m_file.write(m_block.data(), m_used * sizeof(char16_t));
    m_used = 0;
}

/// Puts the separator, and makes room for so many units and the line end behind them.
char16_t *RecordLines::beginField(std::size_t units)
{
    const std::size_t room = 1 + units + 2;
    if (m_used + room > m_block.size())
        flush();
    if (room > m_block.size())
        m_block.resize(room);
    if (!std::exchange(m_atLineStart, false))
        m_block[m_used++] = Separator;
    return m_block.data() + m_used;
}

/// Writes at most so many units of the value and returns their end.
char16_t *RecordLines::widen(std::string_view value, char16_t *out, std::size_t most)
{
    const auto bytes = static_cast<qsizetype>(value.size());
    m_decoded.resize(std::max(m_decoded.size(), static_cast<std::size_t>(m_decoder.requiredSpace(bytes))));
    auto *const letters = reinterpret_cast<QChar *>(m_decoded.data());
    auto units = static_cast<std::size_t>(m_decoder.appendToBuffer(letters, {value.data(), bytes}) - letters);
    if (units > most) {
        units = most;
        if (units > 0 && QChar::isHighSurrogate(m_decoded[units - 1]))
            --units;
    }
    return std::copy_n(m_decoded.data(), units, out);
}

void RecordLines::endField(char16_t *end)
{
    char16_t *const begin = m_block.data() + m_used;
    m_used = static_cast<std::size_t>(std::remove_if(begin, end, isLineEnd) - m_block.data());
}

} // namespace zrv
