// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/zrvcheck/utf8_report.h"

#include <cstdint>

namespace zrv::checktool {

Utf8Report::Utf8Report(const FileRules &rules, const CheckOptions &options, const ReportClock &clock,
                       FileOutput &output)
    : m_kind(rules.kind)
    , m_output(output)
    , m_writer(rules, options, clock, m_text)
{
}

/// What the writer says of an event.
template <typename Event>
std::string Utf8Report::made(Event event)
{
    m_text.text.resize(0);
    event();
    return m_text.text.toStdString();
}

template <typename Event>
void Utf8Report::addMade(Event event)
{
    m_output.block() += made(event);
    m_output.flushIfFull();
}

template <typename Event>
void Utf8Report::addKept(Shelf shelf, std::size_t place, const void *about, Event event)
{
    Kept &kept = shelf[place % shelf.size()];
    if (kept.about != about)
        kept = {about, made(event)};
    m_output.block() += kept.utf8;
}

void Utf8Report::finding(const Finding &finding)
{
    addMade([&] { m_writer.finding(finding); });
}

void Utf8Report::started()
{
    addMade([this] { m_writer.started(); });
}

void Utf8Report::nameAccepted()
{
    addMade([this] { m_writer.nameAccepted(); });
}

void Utf8Report::lineBegins(qint64 line)
{
    addMade([&] { m_writer.lineBegins(line); });
}

void Utf8Report::countPassed(qint64 line)
{
    addMade([&] { m_writer.countPassed(line); });
}

void Utf8Report::fieldBegins(const Field &field)
{
    addKept(m_fields, static_cast<std::size_t>(field.number), &field, [&] { m_writer.fieldBegins(field); });
}

/// Behind the value stands the same for all fields of a line, but for those of a summary list.
void Utf8Report::fieldRead(qint64 line, const Field &field, QStringView value)
{
    static const std::string Head = report_words::Value.toString().toStdString();
    if (line != m_line || m_kind == FileKind::Wk) {
        m_lineTail = made([&] { m_writer.fieldRead(line, field, {}); }).substr(Head.size());
        m_line = line;
    }
    m_output.block() += Head;
    addValue(value);
    m_output.block() += m_lineTail;
    m_output.flushIfFull();
}

/// Values are digits and Persian letters, of one byte and of two; whatever else stands in one is left to Qt.
void Utf8Report::addValue(QStringView value)
{
    constexpr char16_t FirstOfTwoBytes = 0x80;
    constexpr char16_t FirstOfThreeBytes = 0x800;
    std::string &block = m_output.block();
    const std::size_t begin = block.size();
    block.resize(begin + 2 * static_cast<std::size_t>(value.size()));
    char *to = block.data() + begin;
    for (const QChar letter : value) {
        const char16_t code = letter.unicode();
        if (code >= FirstOfThreeBytes) {
            block.replace(begin, std::string::npos, value.toString().toStdString());
            return;
        }
        if (code >= FirstOfTwoBytes)
            *to++ = static_cast<char>(0xC0 | code >> 6);
        *to++ = static_cast<char>(code < FirstOfTwoBytes ? code : 0x80 | (code & 0x3F));
    }
    block.resize(static_cast<std::size_t>(to - block.data()));
}

void Utf8Report::fieldMissing()
{
    addMade([this] { m_writer.fieldMissing(); });
}

void Utf8Report::passed(QStringView words)
{
    constexpr std::uintptr_t Apart = 64; // the words of a line are longer
    addKept(m_passed, reinterpret_cast<std::uintptr_t>(words.data()) / Apart, words.data(),
            [&] { m_writer.passed(words); });
}

void Utf8Report::surplusBegins(qint64 line, int number)
{
    addMade([&] { m_writer.surplusBegins(line, number); });
}

void Utf8Report::finished()
{
    addMade([this] { m_writer.finished(); });
}

} // namespace zrv::checktool
