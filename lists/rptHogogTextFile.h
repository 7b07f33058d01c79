// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/forms/grid.h"
#include "core/report/report.h"

#include <QDate>

namespace zrv {

using namespace Qt::Literals::StringLiterals;

/// Rows for a report, and which column of theirs holds which field.
struct ReportRows {
    std::shared_ptr<const RowSource> source;
    QStringList fields;
};

/// The rows that a grid shows, in its order.
[[nodiscard]] ReportRows rowsOf(const Grid &grid);

/// The month's salary list: a table of payees on lying A4 pages, with the grand totals behind the last row. The salary
/// list's screen shows it for its grid, the display of electronic files for the payees of a file.
///
/// A page takes twenty rows, or as many less one as the totals' line needs, which never stands on a page without a
/// row. Pages are made from their rows alone; the totals are added up when the last page is made.
class rptHogogTextFile : public Report {
public:
    /// What the caller puts into the page header.
    struct Header {
        QString TaxMonth; ///< the month's name
        QString txtYear;
        QString txtName;                ///< the payer, as the main form's status bar names it
        QDate today;                    ///< the day of the report
        QString lblVaziat = u"وضعيت"_s; ///< caption of the column of CodeMelliState; the salary list blanks it
    };

    /// A field that the rows lack prints empty cells.
    rptHogogTextFile(ReportRows rows, Header header);

    [[nodiscard]] int pageCount() const override;
    [[nodiscard]] report::Page page(int number) const override;

    /// Sums over all rows of a field's amounts, in whole rials.
    [[nodiscard]] qint64 total(QStringView field) const;

private:
    [[nodiscard]] int rowCount() const { return m_rows.source->rowCount(); }
    [[nodiscard]] int firstRowOf(int page) const;
    [[nodiscard]] QString cell(int row, QStringView field) const;
    void addPageHeader(report::Page &page, int number) const;
    void addTableHeader(report::Page &page) const;
    void addRow(report::Page &page, int row, double top) const;
    void addTotals(report::Page &page, double top) const;

    ReportRows m_rows;
    Header m_header;
};

} // namespace zrv
