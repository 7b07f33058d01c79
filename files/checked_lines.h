// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/forms/report_box.h"
#include "files/check_report.h"

#include <memory>
#include <utility>

namespace zrv {

/// A check's report for the box that shows it.
class CheckedLines : public ReportLines {
public:
    explicit CheckedLines(std::shared_ptr<CheckReport> report)
        : m_report(std::move(report))
    {
    }

    [[nodiscard]] qint64 lineCount() override { return m_report->lineCount(); }
    [[nodiscard]] qint64 length() override { return m_report->length(); }
    [[nodiscard]] QString lines(qint64 first, qint64 count) override { return m_report->lines(first, count); }
    [[nodiscard]] qint64 nextError(qint64 line) override { return m_report->nextError(line); }

private:
    std::shared_ptr<CheckReport> m_report;
};

} // namespace zrv
