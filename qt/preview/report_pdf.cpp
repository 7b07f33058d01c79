// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/preview/report_pdf.h"

#include "qt/preview/page_painter.h"

#include <QIODevice>
#include <QPageLayout>
#include <QPainter>
#include <QPdfWriter>

namespace zrv {

namespace {

/// Of most office printers, or an integer part of theirs: a bar that is whole dots here is so on paper.
constexpr int DotsPerInch = 300;

} // namespace

bool paintPages(const Report &report, QPagedPaintDevice &device, int resolution, int first, int last,
                const GoesOn &goesOn)
{
    QPainter painter;
    if (!painter.begin(&device))
        return false;
    for (int page = first; page <= last; ++page) {
        if (!goesOn(page) || (page > first && !device.newPage()))
            return false;
        paintPage(painter, report.page(page), resolution / 25.4);
    }
    return painter.end();
}

bool writePdf(const Report &report, QIODevice &device, const GoesOn &goesOn)
{
    if (!device.isWritable())
        return false;
    QPdfWriter writer(&device);
    writer.setTitle(report.title());
    writer.setResolution(DotsPerInch);
    const QPageLayout paper(QPageSize(report.paper(), QPageSize::Millimeter), QPageLayout::Portrait, {});
    if (!writer.setPageLayout(paper))
        return false;
    return paintPages(report, writer, DotsPerInch, 0, report.pageCount() - 1, goesOn);
}

} // namespace zrv
