// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/zrvcheck/file_output.h"

namespace zrv::checktool {

FileOutput::FileOutput(OrderedOutput *output, std::size_t place)
    : m_output(output)
    , m_place(place)
{
}

FileOutput::~FileOutput()
{
    if (m_output)
        m_output->close(m_place);
}

void FileOutput::addText(const QString &text)
{
    m_block += text.toStdString();
    flushIfFull();
}

void FileOutput::flush()
{
    if (m_output && !m_block.empty())
        m_output->add(m_place, {m_block.data(), static_cast<qsizetype>(m_block.size())});
    m_block.clear();
}

} // namespace zrv::checktool
