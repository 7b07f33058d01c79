// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/report_writer.h"

#include "core/basic/safe_file.h"

#include <algorithm>
#include <array>

namespace zrv {
namespace {

constexpr QStringView LineEnd = u"\r\n";
constexpr qsizetype BlockUnits = 65536; // 128 KiB

/// Of a summary list these fields are said to be of a salary list. Its readers know the report so.
constexpr std::array<int, 4> SummaryFieldsOfSalaryList = {16, 17, 19, 23};

QStringView listOf(FileKind kind, const Field &field)
{
    const bool isSummary =
        kind == FileKind::Wk
        && std::ranges::find(SummaryFieldsOfSalaryList, field.number) == SummaryFieldsOfSalaryList.end();
    return isSummary ? report_words::OfSummaryList : report_words::OfSalaryList;
}

/// The words of a wrong number of fields are of two lines, and those of an empty file begin on the next one. 0 where the
/// words alone tell: the version that a file names may have line ends of its own.
int linesOf(FindingKind kind)
{
    switch (kind) {
    case FindingKind::FieldCount:
    case FindingKind::EmptyFile:
        return 2;
    case FindingKind::OtherVersion:
        return 0;
    default:
        return 1;
    }
}

} // namespace

ReportWriter::ReportWriter(const FileRules &rules, const CheckOptions &options, const ReportClock &clock,
                           ReportSink &sink)
    : m_rules(rules)
    , m_options(options)
    , m_words(checkWords(rules.kind))
    , m_clock(clock)
    , m_sink(sink)
{
}

void ReportWriter::finding(const Finding &finding)
{
    const int lines = linesOf(finding.kind);
    if (lines > 0 && !m_sink.wantsText()) {
        for (int line = 0; line < lines; ++line)
            m_sink.endLine();
        return;
    }
    switch (finding.kind) {
    case FindingKind::EmptyFile:
        m_sink.endLine();
        [[fallthrough]];
    case FindingKind::NoFile:
    case FindingKind::WrongName:
        add(report_words::ErrorOfFile);
        break;
    default:
        add(report_words::Error);
    }
    add(finding.number);
    add(report_words::NumberEnds);
    addWords(findingWords(m_rules, finding, m_options.programVersion));
}

void ReportWriter::started()
{
    add(m_words.starting);
    add(report_words::StartTime);
    add(m_clock());
    addLine(report_words::TimeEnds);
}

void ReportWriter::nameAccepted()
{
    addLine(m_words.rightName);
    addLine(m_words.reading);
}

void ReportWriter::lineBegins(qint64 line)
{
    add(report_words::Line);
    add(line);
    addLine(m_words.lineOfFile);
    add(report_words::Counting);
    add(line);
    addLine(report_words::CountingOfFile);
}

void ReportWriter::countPassed(qint64 line)
{
    if (m_options.onlyErrors)
        return;
    add(report_words::CountPassed);
    add(line);
    addLine(report_words::CountPassedEnds);
}

void ReportWriter::fieldBegins(const Field &field)
{
    add(report_words::Field);
    add(field.number);
    add(field.label);
}

void ReportWriter::fieldRead(qint64 line, const Field &field, QStringView value)
{
    add(report_words::Value);
    add(value);
    add(report_words::ValueEnds);
    add(line);
    addLine(listOf(m_rules.kind, field));
}

void ReportWriter::fieldMissing()
{
    m_sink.endLine();
}

void ReportWriter::passed(QStringView words)
{
    if (!m_options.onlyErrors)
        addLine(words);
}

void ReportWriter::surplusBegins(qint64 line, int number)
{
    if (!m_sink.wantsText())
        return m_sink.endLine();
    add(report_words::Field);
    add(number);
    add(report_words::SurplusOfRecord);
    add(line);
    addLine(report_words::OfSalaryList);
}

void ReportWriter::finished()
{
    add(m_words.finishing);
    add(report_words::EndTime);
    add(m_clock());
    addLine(report_words::TimeEnds);
}

void ReportWriter::add(qint64 number)
{
    std::array<char16_t, 20> digits{};
    auto first = digits.end();
    do {
        *--first = static_cast<char16_t>(u'0' + number % 10);
        number /= 10;
    } while (number > 0);
    m_sink.add(QStringView(first, digits.end()));
}

void ReportWriter::addLine(QStringView piece)
{
    m_sink.add(piece);
    m_sink.endLine();
}

/// Some words are of two lines.
void ReportWriter::addWords(QStringView words)
{
    for (qsizetype end = words.indexOf(LineEnd); end >= 0; end = words.indexOf(LineEnd)) {
        addLine(words.first(end));
        words = words.sliced(end + LineEnd.size());
    }
    addLine(words);
}

ReportLog::ReportLog(SafeFile &file)
    : m_file(file)
{
    m_block.reserve(BlockUnits);
    m_block.append(QChar(QChar::ByteOrderMark));
}

void ReportLog::add(QStringView piece)
{
    m_block.append(piece);
    if (m_block.size() >= BlockUnits)
        flush();
}

void ReportLog::endLine()
{
    add(LineEnd);
}

void ReportLog::finish()
{
    endLine();
    flush();
}

void ReportLog::flush()
{
    m_file.write(m_block.constData(), static_cast<std::size_t>(m_block.size()) * sizeof(QChar));
    m_block.resize(0);
    m_block.reserve(BlockUnits);
}

} // namespace zrv
