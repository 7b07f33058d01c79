// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The lines of an electronic file, made field by field: cut, trimmed, joined by commas, in UTF-16.

#include "core/basic/safe_file.h"

#include <QStringDecoder>

#include <string_view>
#include <vector>

namespace zrv {

/// Writes lines into a file. Values come as UTF-8, the way the store keeps them; widths count UTF-16 units, and
/// a letter of two units that would be cut in half is left out whole, since half of it is no letter.
/// Line ends inside a value (CR, LF) vanish, after cutting and trimming.
///
/// Made for files of any length: it needs the memory of one block, and no text object per value.
class RecordLines {
public:
    /// Writes the byte-order mark.
    explicit RecordLines(SafeFile &file);

    /// Cut to the width (0: not at all), then trimmed of blanks at both ends.
    void addTrimmed(std::string_view value, int width);
    /// Cut or filled with blanks to the width exactly.
    void addPadded(std::string_view value, int width);
    /// CR LF.
    void endLine();

    /// What is still held back goes to the file. To be called before the file is committed.
    void flush();

private:
    char16_t *beginField(std::size_t units);
    char16_t *widen(std::string_view value, char16_t *out, std::size_t most);
    void endField(char16_t *end);

    SafeFile &m_file;
    std::vector<char16_t> m_block;
    std::vector<char16_t> m_decoded;
    std::size_t m_used = 0;
    bool m_atLineStart = true;
    QStringDecoder m_decoder;
};

} // namespace zrv
