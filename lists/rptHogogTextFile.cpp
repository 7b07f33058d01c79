// SPDX-License-Identifier: GPL-3.0-or-later
#include "lists/rptHogogTextFile.h"

#include "core/basic/number_format.h"
#include "core/basic/val.h"
#include "core/public/solar_date.h"

#include <algorithm>
#include <array>
#include <limits>

namespace zrv {

namespace {

using report::Side;

enum class Kind { Radif, Text, Number, Amount, Fixed };

struct ListColumn {
    QStringView caption;
    QStringView field;
    double width; ///< millimetres
    Kind kind = Kind::Text;
    QStringView format = {};
};

// From right to left.
// clang-format off
constexpr std::array Columns{
    ListColumn{u" رديف",            u"Radif",                    9, Kind::Radif},
    ListColumn{u"کد ملي",           u"MelliCode",             16.5, Kind::Number},
    ListColumn{u"وضعيت",            u"CodeMelliState",          12, Kind::Text},
    ListColumn{u"نام",              u"Name",                    15, Kind::Text},
    ListColumn{u"نام خانوادگي",     u"Family",                  19, Kind::Text},
    ListColumn{u"نام پدر",          u"FatherName",              14, Kind::Text},
    ListColumn{u"کد پستي",          u"PostCode",              16.5, Kind::Number},
    ListColumn{u"سمت يا شغل",       u"Semat",                   17, Kind::Text},
    ListColumn{u"سابقه",            u"Sabege",                   8, Kind::Number},
    ListColumn{u"مدرک",             u"Madrak",                  12, Kind::Text},
    ListColumn{u"رسته",             u"Rasteh",                  17, Kind::Text},
    ListColumn{u"معافيت",           u"ShakhsMoafCode",          18, Kind::Text},
    ListColumn{u"نوع استخدام",      u"EstekhdamType",           13, Kind::Text},
    ListColumn{u"نوع بيمه",         u"BimehType",               14, Kind::Text, u"#,##0"},
    ListColumn{u"شماره بيمه",       u"InsuNo",                  18, Kind::Number},
    ListColumn{u"جمع حقوق",         u"JariSumHogog",            19, Kind::Amount, u"#,##0"},
    ListColumn{u"درآمد مشمول",      u"FinalDaramadeMashmol",    19, Kind::Amount, u"#,##0"},
    ListColumn{u"ماليات ",          u"FinalTax",                17, Kind::Amount, u"#,##0"},
    ListColumn{u"*******",          u"",                        11, Kind::Fixed},
};
// clang-format on

constexpr QStringView Stars = u"********"; ///< in place of a value, on every row

struct Total {
    QStringView caption;
    QStringView field;
};

constexpr std::array Totals{
    Total{u"  : جمع کل حقوق پرداختي ", u"JariSumHogog"},
    Total{u"  : جمع کل درآمد مشمول ", u"FinalDaramadeMashmol"},
    Total{u"  : جمع کل ماليات متعلقه", u"FinalTax"},
};

constexpr QStringView AmountPicture = u"#,##0";

// Millimetres.
constexpr double Left = 6;
constexpr double Right = 291;
constexpr double TableTop = 24;
constexpr double TableHeaderHeight = 10;
constexpr double RowsTop = TableTop + TableHeaderHeight;
constexpr double RowHeight = 8.2;
constexpr double CellMargin = 0.7;
constexpr int RowsOfPage = 20; ///< the line of the totals counts as one

constexpr double widthOfColumns()
{
    double width = 0;
    for (const ListColumn &column : Columns)
        width += column.width;
    return width;
}
static_assert(widthOfColumns() == Right - Left);

void addRuling(report::Page &page, double top, double bottom)
{
    double x = Right;
    page.items.push_back(report::Line{{x, top}, {x, bottom}});
    for (const ListColumn &column : Columns) {
        x -= column.width;
        page.items.push_back(report::Line{{x, top}, {x, bottom}});
    }
}

/// A caption with the colon in front and its value to the left of it.
void addPair(report::Page &page, QStringView caption, QStringView control, const QString &value, const QRectF &box,
             double captionWidth)
{
    page.items.push_back(report::Text{.box = {box.right() - captionWidth, box.top(), captionWidth, box.height()},
                                      .text = caption.toString(),
                                      .points = 9,
                                      .leftToRight = true});
    page.items.push_back(report::Text{.box = {box.left(), box.top(), box.width() - captionWidth - 1, box.height()},
                                      .text = value,
                                      .control = control,
                                      .points = 9,
                                      .bold = true,
                                      .leftToRight = true});
}

} // namespace

ReportRows rowsOf(const Grid &grid)
{
    ReportRows rows{grid.rows(), {}};
    for (const GridColumn &column : grid.columns())
        rows.fields += column.field;
    return rows;
}

rptHogogTextFile::rptHogogTextFile(ReportRows rows, Header header)
    : Report(u"rptHogogTextFile"_s, u"پيش نمايش ليست حقوق"_s, A4Landscape)
    , m_rows(std::move(rows))
    , m_header(std::move(header))
{
}

int rptHogogTextFile::pageCount() const
{
    return rowCount() / RowsOfPage + 1;
}

int rptHogogTextFile::firstRowOf(int page) const
{
    // Where the rows fill the pages before the last, one of them moves over to keep the totals company.
    const int first = page * RowsOfPage;
    return page == pageCount() - 1 ? std::clamp(first, 0, std::max(0, rowCount() - 1)) : first;
}

QString rptHogogTextFile::cell(int row, QStringView field) const
{
    const qsizetype column = m_rows.fields.indexOf(field);
    return column < 0 ? QString() : m_rows.source->cell(row, static_cast<int>(column));
}

qint64 rptHogogTextFile::total(QStringView field) const
{
    constexpr qint64 Most = std::numeric_limits<qint64>::max();
    qint64 sum = 0;
    for (int row = 0; row < rowCount(); ++row) {
        const qint64 amount = wholeVal(cell(row, field));
        // Files of any maker are summed here; beyond 64 bits a sum stays at its end.
        if (amount > 0 && sum > Most - amount)
            sum = Most;
        else if (amount < 0 && sum < -Most - amount)
            sum = -Most;
        else
            sum += amount;
    }
    return sum;
}

report::Page rptHogogTextFile::page(int number) const
{
    report::Page page;
    addPageHeader(page, number);
    addTableHeader(page);
    const bool last = number == pageCount() - 1;
    const int end = last ? rowCount() : firstRowOf(number + 1);
    double top = RowsTop;
    for (int row = firstRowOf(number); row < end; ++row, top += RowHeight)
        addRow(page, row, top);
    addRuling(page, TableTop, top);
    if (last)
        addTotals(page, top);
    return page;
}

void rptHogogTextFile::addPageHeader(report::Page &page, int number) const
{
    constexpr double Top = 6;
    constexpr double Height = 7;
    constexpr double Second = 15;
    page.items.push_back(
        report::Text{.box = {80, Top, 137, Height + 1},
                     .text = u"ليست حقوق "_s + m_header.TaxMonth + u' ' + u"ماه سال"_s + u' ' + m_header.txtYear,
                     .control = u"txtMonth",
                     .points = 14,
                     .bold = true,
                     .side = Side::Centre});
    addPair(page, u": تاريخ گزارشگيري", u"txtDate", Format(SolarDate(m_header.today, true), u"####/##/##"),
            {221, Top, 70, Height}, 25);
    addPair(page, u": صفحه ", u"PageShomare", QString::number(number + 1), {Left, Top, 40, Height}, 20);
    page.items.push_back(report::Text{
        .box = {80, Second, 211, Height}, .text = m_header.txtName, .control = u"txtName", .points = 10, .bold = true});
    addPair(page, u" : تعداد کارکنان", u"txtKarkonanTedad", Format(rowCount(), AmountPicture),
            {Left, Second, 40, Height}, 20);
}

void rptHogogTextFile::addTableHeader(report::Page &page) const
{
    page.items.push_back(report::Frame{{Left, TableTop, Right - Left, TableHeaderHeight}, true});
    double x = Right;
    for (const ListColumn &column : Columns) {
        x -= column.width;
        const bool isState = column.field == u"CodeMelliState";
        page.items.push_back(
            report::Text{.box = {x + CellMargin, TableTop, column.width - 2 * CellMargin, TableHeaderHeight},
                         .text = isState ? m_header.lblVaziat : column.caption.toString(),
                         .control = isState ? QStringView(u"lblVaziat") : QStringView(),
                         .points = 7.5,
                         .bold = true,
                         .side = Side::Centre});
    }
}

void rptHogogTextFile::addRow(report::Page &page, int row, double top) const
{
    double x = Right;
    for (const ListColumn &column : Columns) {
        x -= column.width;
        const QString text = column.kind == Kind::Radif   ? QString::number(row + 1)
                             : column.kind == Kind::Fixed ? Stars.toString()
                             : column.format.isEmpty()    ? cell(row, column.field)
                                                          : Format(cell(row, column.field), column.format);
        const bool words = column.kind == Kind::Text;
        page.items.push_back(report::Text{.box = {x + CellMargin, top, column.width - 2 * CellMargin, RowHeight},
                                          .text = text,
                                          .control = column.field,
                                          .points = 7,
                                          .side = words || column.kind == Kind::Amount ? Side::Right : Side::Centre,
                                          .leftToRight = !words});
    }
    page.items.push_back(report::Line{{Left, top + RowHeight}, {Right, top + RowHeight}});
}

void rptHogogTextFile::addTotals(report::Page &page, double top) const
{
    constexpr double Gap = 1;
    constexpr double Height = RowHeight - Gap;
    constexpr double Width = (Right - Left) / Totals.size();
    page.items.push_back(report::Frame{{Left, top + Gap, Right - Left, Height}, true});
    double right = Right - CellMargin;
    for (const Total &row : Totals) {
        addPair(page, row.caption, row.field, Format(total(row.field), AmountPicture),
                {right - Width + Gap, top + Gap, Width - Gap, Height}, 33);
        right -= Width;
    }
}

} // namespace zrv
