// SPDX-License-Identifier: GPL-3.0-or-later
// bench_preview [ROUNDS]: opens the preview of a list of 19 payees and of one of 20,000 in turn, each to its first
// paint, and prints the medians and their ratio, which is to stay near 1; then the time and size of PDF files of ten,
// a hundred and a thousand pages, each as parts of the one before, which are to be near 10.
#include "lists/rptHogogTextFile.h"
#include "qt/look.h"
#include "qt/preview/page_view.h"
#include "qt/preview/preview_window.h"
#include "qt/preview/report_pdf.h"
#include "qt/qt_platform.h"
#include "tests/lists/payee_rows.h"

#include <QApplication>
#include <QBuffer>
#include <QElapsedTimer>

#include <algorithm>
#include <cstdio>
#include <vector>

namespace {

using namespace zrv;

rptHogogTextFile list(int payees)
{
    return {{std::make_shared<PayeeRows>(payees), PayeeRows::fields()}, PayeeRows::header()};
}

/// Milliseconds from nothing to the first page on the screen.
double firstPage(int payees)
{
    QElapsedTimer timer;
    timer.start();
    const rptHogogTextFile report = list(payees);
    QtPlatform platform;
    PreviewWindow window(report, platform, nullptr);
    window.open();
    window.grab();
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

double median(std::vector<double> times)
{
    std::ranges::sort(times);
    return times[times.size() / 2];
}

struct Pdf {
    double milliseconds;
    qint64 bytes;
};

Pdf pdf(int payees)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QElapsedTimer timer;
    timer.start();
    if (!writePdf(list(payees), buffer))
        std::fputs("the PDF was not written\n", stderr);
    return {static_cast<double>(timer.nsecsElapsed()) / 1e6, buffer.size()};
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    look::setUp(application);
    const int rounds = argc > 1 ? std::max(1, QString::fromUtf8(argv[1]).toInt()) : 15;
    std::vector<double> shortLists;
    std::vector<double> longLists;
    firstPage(19); // fills the caches of letters
    for (int round = 0; round < rounds; ++round) {
        shortLists.push_back(firstPage(19));
        longLists.push_back(firstPage(20'000));
    }
    std::printf("first page     19 payees %7.1f ms   20,000 payees %7.1f ms   ratio %.2f\n", median(shortLists),
                median(longLists), median(longLists) / median(shortLists));
    Pdf before{};
    for (const int payees : {199, 1'999, 19'999}) {
        const Pdf now = pdf(payees);
        std::printf("PDF of %4d pages   %9.1f ms  %8.1f kB", (payees + 1) / 20, now.milliseconds,
                    static_cast<double>(now.bytes) / 1024);
        if (before.bytes > 0)
            std::printf("   time x %.1f   size x %.1f", now.milliseconds / before.milliseconds,
                        static_cast<double>(now.bytes) / static_cast<double>(before.bytes));
        std::printf("\n");
        before = now;
    }
    return 0;
}
