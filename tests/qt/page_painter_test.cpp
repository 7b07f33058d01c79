// SPDX-License-Identifier: GPL-3.0-or-later
// What is on the paper: texts within their boxes, bars that a reader reads, and a PDF whose text can be taken out.
#include "lists/rptHogogTextFile.h"
#include "qt/preview/bar_code.h"
#include "qt/preview/page_painter.h"
#include "qt/preview/report_pdf.h"
#include "tests/lists/payee_rows.h"
#include "tests/print_text.h"

#include <QBuffer>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace zrv::test {

namespace {

constexpr double PixelsPerMillimetre = 300 / 25.4;

QImage painted(const report::Page &page, QSizeF millimetres, double scale = PixelsPerMillimetre)
{
    QImage image((millimetres * scale).toSize(), QImage::Format_Grayscale8);
    image.fill(Qt::white);
    QPainter painter(&image);
    paintPage(painter, page, scale);
    return image;
}

/// The dark pixels of a picture; empty when it is white.
QRect ink(const QImage &image)
{
    QRect dark;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (image.constScanLine(y)[x] < 128)
                dark |= QRect(x, y, 1, 1);
    return dark;
}

/// The bands of ink, from top to bottom.
std::vector<QRect> linesOf(const QImage &image)
{
    std::vector<QRect> lines;
    bool between = true;
    for (int y = 0; y < image.height(); ++y) {
        const QRect row = ink(image.copy(0, y, image.width(), 1));
        if (!row.isEmpty() && between)
            lines.push_back(row.translated(0, y));
        else if (!row.isEmpty())
            lines.back() |= row.translated(0, y);
        between = row.isEmpty();
    }
    return lines;
}

QRect inkOf(const QString &text, double width, double height, bool leftToRight = false,
            report::Side side = report::Side::Right)
{
    report::Page page;
    page.items.push_back(report::Text{
        .box = {20, 20, width, height}, .text = text, .points = 7, .side = side, .leftToRight = leftToRight});
    return ink(painted(page, {60, 50}));
}

void expectWithin(const QRect &dark, double width, double height)
{
    EXPECT_FALSE(dark.isEmpty());
    const QRectF box(20 * PixelsPerMillimetre, 20 * PixelsPerMillimetre, width * PixelsPerMillimetre,
                     height * PixelsPerMillimetre);
    EXPECT_TRUE(box.adjusted(-2, -2, 2, 2).contains(dark))
        << dark.left() - box.left() << ' ' << dark.top() - box.top() << ' ' << box.right() - dark.right() << ' '
        << box.bottom() - dark.bottom();
}

QString outputOf(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    EXPECT_TRUE(process.waitForFinished()) << program.toStdString();
    return QString::fromUtf8(process.readAllStandardOutput());
}

/// What a reader of bar codes sees in a picture.
QString scanned(const QImage &image)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"bars.png"_s);
    EXPECT_TRUE(image.save(path));
    return outputOf(u"zbarimg"_s, {u"--quiet"_s, u"--raw"_s, path}).trimmed();
}

report::Page barCodePage(const QString &text)
{
    report::Page page;
    page.items.push_back(report::BarCode{{5, 5, 74, 20}, text});
    return page;
}

/// Presentation forms, in which PDF readers give joined letters back, as letters; marks of direction dropped.
QString plain(const QString &text)
{
    QString letters;
    for (const QChar letter : text) {
        const char16_t code = letter.unicode();
        if ((code >= 0xFB50 && code <= 0xFDFF) || (code >= 0xFE70 && code <= 0xFEFF))
            letters += QString(letter).normalized(QString::NormalizationForm_KC);
        else if (code != 0x200E && code != 0x200F && !(code >= 0x202A && code <= 0x202E))
            letters += letter;
    }
    return letters;
}

} // namespace

TEST(PagePainter, ATextStaysInItsBox)
{
    expectWithin(inkOf(u"مريم"_s, 20, 8), 20, 8);
    expectWithin(inkOf(u"حسيني علوي طباطبايي خوراسگاني اصل دولت آبادي بزرگ"_s, 19, 8), 19, 8);
    expectWithin(inkOf(QString(50, u'ب'), 19, 8), 19, 8);
    expectWithin(inkOf(QString(500, u'ش'), 19, 8), 19, 8);
    expectWithin(inkOf(u"9,223,372,036,854,775,807"_s, 18, 8, true), 18, 8);
    expectWithin(inkOf(u"W"_s.repeated(40), 12, 8, true, report::Side::Centre), 12, 8);
}

TEST(PagePainter, AShortTextKeepsItsSizeAndStandsAtItsSide)
{
    const QRect right = inkOf(u"115"_s, 30, 8, true, report::Side::Right);
    const QRect left = inkOf(u"115"_s, 30, 8, true, report::Side::Left);
    const QRect centre = inkOf(u"115"_s, 30, 8, true, report::Side::Centre);
    EXPECT_GT(right.right(), 49 * PixelsPerMillimetre);
    EXPECT_LT(left.left(), 21 * PixelsPerMillimetre);
    EXPECT_NEAR(centre.center().x(), 35 * PixelsPerMillimetre, 4);
    EXPECT_NEAR(right.height(), inkOf(u"115"_s, 10, 8, true).height(), 1);
}

TEST(PagePainter, ALongNameWrapsBeforeItShrinks)
{
    const QRect one = inkOf(u"حسيني"_s, 19, 8);
    const QRect two = inkOf(u"حسيني علوي طباطبايي خوراسگاني"_s, 19, 8);
    EXPECT_GT(two.height(), one.height() * 3 / 2);
}

TEST(PagePainter, ANameOfFiftyLettersTakesThreeLinesAndKeepsThreeQuartersOfItsSize)
{
    // No letter of the word goes below its line, so the lines stand apart.
    const QString word = u"السادات"_s;
    report::Page page;
    page.items.push_back(
        report::Text{.box = {20, 20, 19, 8.2}, .text = QStringList(6, word).join(u' ') + u" دوم"_s, .points = 7});
    const QImage name = painted(page, {60, 50});
    expectWithin(ink(name), 19, 8.2);
    const std::vector<QRect> lines = linesOf(name);
    ASSERT_EQ(lines.size(), 3U);
    EXPECT_GT(lines.front().height(), inkOf(word, 19, 8).height() * 3 / 4);
}

TEST(PagePainter, ANumberIsNeverBroken)
{
    const QRect number = inkOf(u"1234567890123456789012345"_s, 15, 8, true);
    EXPECT_LT(number.height(), 3 * PixelsPerMillimetre);
}

TEST(PagePainter, LinesBreakAtTheSamePlacesAtEverySize)
{
    const QString name = u"حسيني علوي طباطبايي خوراسگاني اصل"_s;
    report::Page page;
    page.items.push_back(report::Text{.box = {5, 5, 19, 8}, .text = name, .points = 7});
    const QRect small = ink(painted(page, {40, 20}, 8));
    const QRect large = ink(painted(page, {40, 20}, 32));
    EXPECT_NEAR(small.width() * 4, large.width(), 12);
    EXPECT_NEAR(small.height() * 4, large.height(), 12);
}

TEST(BarCode, AReaderReadsTheText)
{
    for (const QString &text : {u"123456789012,1389,02"_s, u"123456789012,,"_s, u",,"_s})
        EXPECT_EQ(scanned(painted(barCodePage(text), {84, 30})), text);
}

TEST(BarCode, AReaderReadsItOffTheScreensPictureToo)
{
    EXPECT_EQ(scanned(painted(barCodePage(u"123456789012,1389,02"_s), {84, 30}, 4)), u"123456789012,1389,02");
}

TEST(BarCode, BarsAreWholePixelsWithQuietZonesAround)
{
    const QImage image = painted(barCodePage(u"123456789012,1389,02"_s), {84, 30});
    const auto *const row = image.constScanLine(static_cast<int>(10 * PixelsPerMillimetre));
    std::vector<int> runs;
    for (int x = 0; x < image.width(); ++x) {
        ASSERT_TRUE(row[x] == 0 || row[x] == 255) << "a grey pixel at " << x;
        if (x == 0 || row[x] != row[x - 1])
            runs.push_back(0);
        ++runs.back();
    }
    const int module = *std::ranges::min_element(runs);
    EXPECT_GE(module, 2);
    EXPECT_GE(runs.front(), 10 * module + static_cast<int>(5 * PixelsPerMillimetre));
    EXPECT_GE(runs.back(), 10 * module);
    for (size_t run = 1; run + 1 < runs.size(); ++run)
        EXPECT_EQ(runs[run] % module, 0);
}

TEST(BarCode, ATextThatHasNoBarsIsStillWritten)
{
    EXPECT_TRUE(code128(QString()).empty());
    EXPECT_TRUE(code128(u"پرونده"_s).empty());
    EXPECT_TRUE(code128(QString(5000, u'1')).empty());
    EXPECT_FALSE(ink(painted(barCodePage(u"پرونده,1389,02"_s), {84, 30})).isEmpty());
    EXPECT_FALSE(ink(painted(barCodePage(QString(120, u'A')), {84, 30})).isEmpty());
}

TEST(ReportPdf, ItsTextCanBeTakenOut)
{
    const auto rows = std::make_shared<PayeeRows>(30);
    const rptHogogTextFile report({rows, PayeeRows::fields()}, PayeeRows::header());
    const QTemporaryDir folder;
    QFile file(folder.filePath(u"list.pdf"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && writePdf(report, file));
    file.close();
    const QString text = plain(outputOf(u"pdftotext"_s, {u"-layout"_s, file.fileName(), u"-"_s}));
    EXPECT_EQ(text.count(u'\f'), 2);
    for (int row = 0; row < 30; ++row)
        for (const QStringView field : {u"MelliCode", u"PostCode", u"InsuNo"})
            EXPECT_TRUE(text.contains(rows->cell(row, field))) << row;
    for (const QStringView word :
         {u"کريمي", u"آذري", u"کارشناس", u"ارديبهشت", u"1389/03/03", u"********", u"3,000,000"})
        EXPECT_TRUE(text.contains(word)) << word.toUtf8().constData();
    EXPECT_TRUE(outputOf(u"pdfinfo"_s, {file.fileName()}).contains(u"841.89 x 595.276"_s)
                || outputOf(u"pdfinfo"_s, {file.fileName()}).contains(u"A4"_s));
}

TEST(ReportPdf, ADeviceThatTakesNothingIsToldOf)
{
    const rptHogogTextFile report({std::make_shared<PayeeRows>(1), PayeeRows::fields()}, PayeeRows::header());
    QBuffer closed;
    EXPECT_FALSE(writePdf(report, closed));
}

TEST(ReportPdf, ItEndsWhenItIsToldTo)
{
    const rptHogogTextFile report({std::make_shared<PayeeRows>(200), PayeeRows::fields()}, PayeeRows::header());
    QBuffer buffer;
    ASSERT_TRUE(buffer.open(QIODevice::WriteOnly));
    std::vector<int> asked;
    EXPECT_FALSE(writePdf(report, buffer, [&](int page) {
        asked.push_back(page);
        return page < 2;
    }));
    EXPECT_EQ(asked, (std::vector<int>{0, 1, 2}));
}

} // namespace zrv::test
