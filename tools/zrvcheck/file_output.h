// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// One file's way into an output that several threads write: by blocks, and in UTF-8.

#include "files/report_writer.h"
#include "tools/zrvcheck/ordered_output.h"

#include <QByteArray>

#include <array>

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
    [[nodiscard]] QByteArray &block() { return m_block; }
    void flushIfFull()
    {
        if (m_block.size() >= BlockBytes)
            flush();
    }
    void flush();

private:
    static constexpr qsizetype BlockBytes = 65536;

    OrderedOutput *m_output;
    std::size_t m_place;
    QByteArray m_block;
};

/// Writes a report into such an output. What stays the same is turned into UTF-8 once.
class Utf8Report : public ReportSink {
public:
    explicit Utf8Report(FileOutput &output)
        : m_output(output)
    {
    }

    void add(QStringView piece) override;
    void addFixed(QStringView piece) override;
    void endLine() override;

private:
    struct Fixed {
        QStringView piece;
        QByteArray utf8;
    };

    FileOutput &m_output;
    std::array<Fixed, 512> m_fixed; ///< by a piece's address, or at the next free place
    std::size_t m_kept = 0;
};

} // namespace zrv::checktool
