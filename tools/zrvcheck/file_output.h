// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// One file's way into an output that several threads write: in UTF-8, by blocks.

#include "tools/zrvcheck/ordered_output.h"

#include <QString>

#include <string>

namespace zrv::checktool {

class FileOutput {
public:
    /// Without an output nothing is written. The place is the file's.
    FileOutput(OrderedOutput *output, std::size_t place);
    ~FileOutput();
    FileOutput(const FileOutput &) = delete;
    FileOutput &operator=(const FileOutput &) = delete;

    void addText(const QString &text);
    /// Text may be put behind the block; who does calls flushIfFull() before long.
    [[nodiscard]] std::string &block() { return m_block; }
    void flushIfFull()
    {
        if (m_block.size() >= BlockBytes)
            flush();
    }
    void flush();

private:
    static constexpr std::size_t BlockBytes = 131072;

    OrderedOutput *m_output;
    std::size_t m_place;
    std::string m_block;
};

} // namespace zrv::checktool
