// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "files/report_writer.h"
#include "tools/zrvcheck/file_output.h"

#include <array>
#include <span>

namespace zrv::checktool {

/// The report that ReportWriter makes, in UTF-8. A report says the same of each line's fields again and again: such texts
/// are made by ReportWriter once and kept.
class Utf8Report : public CheckEvents {
public:
    /// All must outlive it.
    Utf8Report(const FileRules &rules, const CheckOptions &options, const ReportClock &clock, FileOutput &output);

    void finding(const Finding &finding) override;
    void started() override;
    void nameAccepted() override;
    void lineBegins(qint64 line) override;
    void countPassed(qint64 line) override;
    void fieldBegins(const Field &field) override;
    void fieldRead(qint64 line, const Field &field, QStringView value) override;
    void fieldMissing() override;
    void passed(QStringView words) override;
    void surplusBegins(qint64 line, int number) override;
    void finished() override;

private:
    class Text : public ReportSink {
    public:
        void add(QStringView piece) override { text += piece; }
        void endLine() override { text += u"\r\n"; }

        QString text;
    };
    /// A text, known by the address of what it is about.
    struct Kept {
        const void *about = nullptr;
        std::string utf8;
    };
    using Shelf = std::span<Kept>;

    template <typename Event>
    [[nodiscard]] std::string made(Event event);
    template <typename Event>
    void addMade(Event event);
    template <typename Event>
    void addKept(Shelf shelf, std::size_t place, const void *about, Event event);
    void addValue(QStringView value);

    FileKind m_kind;
    FileOutput &m_output;
    Text m_text;
    ReportWriter m_writer;
    std::array<Kept, 64> m_fields; ///< by their numbers
    /// By the words' addresses, which lie within 64 KB; two texts that fall on one place are made again and again.
    std::array<Kept, 1024> m_passed;
    qint64 m_line = -1;
    std::string m_lineTail; ///< behind each value of that line
};

} // namespace zrv::checktool
