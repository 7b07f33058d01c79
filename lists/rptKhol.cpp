// SPDX-License-Identifier: GPL-3.0-or-later
#include "lists/rptKhol.h"

#include "core/basic/number_format.h"
#include "core/basic/text.h"
#include "core/basic/val.h"
#include "core/public/number_words.h"
#include "core/store/recordset.h"

#include <array>

namespace zrv {

namespace {

using report::Side;

constexpr QStringView DatePicture = u"####/##/##";
constexpr QStringView AmountPicture = u"#,##0";
constexpr QStringView FigurePicture = u"#,##0;(#,##0)";

// Millimetres.
constexpr double Left = 12;
constexpr double Right = 198;
constexpr double Width = Right - Left;
constexpr double Top = 9;
constexpr double Bottom = 288;
constexpr double LineHeight = 7;

/// A value with its caption to the right of it, in one line of the form.
struct Field {
    QStringView caption;
    QStringView control;
    double right;
    double captionWidth;
    double valueWidth;
    double top;
    QStringView format = {};
    double height = LineHeight;
    bool number = true;
};

// clang-format off
constexpr std::array Fields{
    Field{u": ماه", u"TaxMonth", 150, 11, 25, 29.5, {}, LineHeight, false},
    Field{u": سال", u"TaxYear",  112, 11, 15, 29.5},

    Field{u": (TFN) شماره  پرونده", u"TFN",          Right, 40, 46, 47},
    Field{u": نام کارفرما", u"KarfarmaName", Right, 40, 146, 54, {}, LineHeight + 1, false},
    Field{u" : نشاني کارفرما", u"Address",     Right, 40, 146, 62, {}, LineHeight + 2, false},
    Field{u": شماره  تلفن", u"TelNo",      Right, 40, 46, 71},
    Field{u": کد پستي", u"PostCode",   105,   22, 46, 71},

    Field{u": تعداد کل کارکنان",   u"KarkonanNo", Right, 40, 20, 150},
    Field{u": تعداد کارکنان خارجي", u"KharejiNo",  122,   42, 20, 150},
    Field{u": (تاريخ ثبت روزنامه (تخصيص يا پرداخت", u"RoznameDate", Right, 72, 40, 157, DatePicture},

    Field{u": شماره سري چک", u"ChequeSeriNo", Right, 34, 34, 185},
    Field{u": تاريخ چک",      u"ChequeDate",   126,   22, 26, 185, DatePicture},
    Field{u": نام بانک",       u"BankName",     76,    20, 44, 185, {}, LineHeight, false},
    Field{u": شعبه",          u"ShobeName",    Right, 34, 60, 192, {}, LineHeight, false},
    Field{u": شماره حساب",   u"HesabNo",      76,    26, 38, 192},

    Field{u": (مبلغ پرداختي (ريال", u"MablagPardakhti", Right, 44, 60, 203, AmountPicture},
};

struct Figure {
    QStringView caption;
    QStringView month;  ///< field of the current month
    QStringView before; ///< field of the months before
};

constexpr std::array Figures{
    Figure{u"جمع حقوق و مزاياي نقدي،غير نقدي،عيدي و پاداش پرداختي/تخصيصي ", u"JariSumHogog", u"GablSumHogog"},
    Figure{u"جمع حقوق و مزايـاي نقدي ، غير نقدي ، عيدي و پاداش مشمول ماليات ", u"JariSumMashmol", u"GablSumMashmol"},
    Figure{u" جمع ماليات متعلقه ", u"JariTax", u"GablTax"},
    Figure{u"جريمه عدم تسليم به موقع خلاصه ليست 2% - موضوع ماده 197", u"JariJarimeDo", u"GablJarimeDo"},
    Figure{u" جريمه عدم پرداخت به موقع ماليات  %20 - موضوع ماده 199", u"JariJarimeBist", u"GablJarimeBist"},
    Figure{u" بدهي مالياتي", u"JariBedehiTax", u"GablBedehiTax"},
};

/// A text that is the same on every form.
struct Fixed {
    QStringView text;
    double right;
    double top;
    double width;
    double points = 9;
    bool bold = false;
    Side side = Side::Right;
    bool leftToRight = false;
};

constexpr std::array FixedTexts{
    Fixed{u"ديوان زروان",  Right, 32, 40, 9, true, Side::Centre},
    Fixed{u"خلاصه ليست",  156, 11, 66, 17, true, Side::Centre},
    Fixed{u"مشخصات کــــارفرما", Right, 40, 80, 10, true},
    Fixed{u"نحــــوه  پرداخت",   Right, 168, 80, 10, true},

    Fixed{u"بدينوسيله صحت مطالب و مندرجات فوق تاييد ميشود", Right, 224, 90, 9, false, Side::Right},
    Fixed{u"مهر و امضاء کارفرما", Right, 234, 90, 9, true, Side::Centre},

    Fixed{u": اين خلاصه ليست در تاريخ ", 101, 224, 42, 9, false, Side::Right, true},
    Fixed{u": دريافت و تحت شماره ",     101, 232, 42, 9, false, Side::Right, true},
    Fixed{u": در دفتر انديکاتور",    101, 240, 42, 9, false, Side::Right, true},
    Fixed{u" ثبت گرديد",              36, 240, 22, 9, false, Side::Right},
    Fixed{u"مهر و امضاء اداره امور مالياتي", 101, 250, 89, 9, true, Side::Centre},
};

/// Where the office writes by hand.
constexpr QStringView Dots = u"..............................";
constexpr std::array HandWritten{
    Fixed{Dots, 58, 224, 46, 9, false, Side::Right, true},
    Fixed{Dots, 58, 232, 46, 9, false, Side::Right, true},
    Fixed{u"............", 58, 240, 20, 9, false, Side::Right, true},
};

struct Choice {
    QStringView caption;
    QStringView field;
    double right;
    double width;
};

constexpr std::array Choices{
    Choice{u"نقدي", u"NAGHDY", Right, 30},
    Choice{u"چک",  u"GNAGHDY", 160, 30},
    Choice{u"ارائه ليست بدون پرداخت ماليات", u"ADAMEPARDAKHT", 122, 80},
};

/// The rules between the blocks; the figures have frames of their own.
constexpr std::array RulingLines{39.5, 148.0, 166.0, 201.0, 221.0};
constexpr double HalvesLine = 105; ///< between what the payer and what the office signs
// clang-format on

/// Column widths of the figures, from right to left: words, current month, months before.
constexpr std::array FigureColumns{102.0, 42.0, 42.0};
constexpr std::array<QStringView, 3> FigureHeads{u"شرح", u"مــاه  جاري", u"جمع تا ماه گذشته"};
constexpr double FiguresTop = 83;
constexpr double FiguresHead = 8;
constexpr double FigureHeight = 9;

report::Text fixedText(const Fixed &row)
{
    return {.box = {row.right - row.width, row.top, row.width, row.points > 12 ? LineHeight + 2 : LineHeight},
            .text = row.text.toString(),
            .points = row.points,
            .bold = row.bold,
            .side = row.side,
            .leftToRight = row.leftToRight};
}

QString shown(const KholRow &row, QStringView field, QStringView format)
{
    const QString text = row.value(field.toString());
    return format.isEmpty() ? text : Format(text, format);
}

void addField(report::Page &page, const Field &field, const KholRow &row)
{
    const double captionLeft = field.right - field.captionWidth;
    page.items.push_back(report::Text{.box = {captionLeft, field.top, field.captionWidth, field.height},
                                      .text = field.caption.toString(),
                                      .points = 9,
                                      .leftToRight = true});
    page.items.push_back(
        report::Text{.box = {captionLeft - field.valueWidth, field.top, field.valueWidth - 1, field.height},
                     .text = shown(row, field.control, field.format),
                     .control = field.control,
                     .points = 10,
                     .bold = true,
                     .leftToRight = field.number});
}

void addHead(report::Page &page, const KholRow &row, const QString &barCode)
{
    page.items.push_back(report::Frame{{Left - 3, Top, Width + 6, Bottom - Top}, false, 0.5});
    page.items.push_back(report::Emblem{{Right - 30, 12, 20, 20}, u"Image2"});
    page.items.push_back(report::Text{.box = {90, 20, 66, LineHeight + 2},
                                      .text = row.value(u"KholListType"_s),
                                      .control = u"KholListType",
                                      .points = 12,
                                      .bold = true,
                                      .side = Side::Centre});
    page.items.push_back(report::BarCode{{Left, 12, 66, 20}, barCode, u"Barcode1"});
}

void addFigureRow(report::Page &page, double top, double height, const std::array<report::Text, 3> &cells)
{
    double x = Right;
    for (size_t column = 0; column < cells.size(); ++column) {
        const double width = FigureColumns[column];
        x -= width;
        page.items.push_back(report::Frame{{x, top, width, height}, top == FiguresTop});
        report::Text cell = cells[column];
        cell.box = {x + 1.5, top, width - 3, height};
        page.items.push_back(cell);
    }
}

void addFigures(report::Page &page, const KholRow &row)
{
    std::array<report::Text, 3> heads;
    for (size_t column = 0; column < heads.size(); ++column)
        heads[column] = {.text = FigureHeads[column].toString(), .points = 9.5, .bold = true, .side = Side::Centre};
    addFigureRow(page, FiguresTop, FiguresHead, heads);
    const auto amount = [&](QStringView field) {
        return report::Text{.text = shown(row, field, FigurePicture),
                            .control = field,
                            .points = 10,
                            .bold = true,
                            .leftToRight = true};
    };
    double top = FiguresTop + FiguresHead;
    for (const Figure &figure : Figures) {
        addFigureRow(page, top, FigureHeight,
                     {report::Text{.text = figure.caption.toString(), .points = 9}, amount(figure.month),
                      amount(figure.before)});
        top += FigureHeight;
    }
}

void addChoices(report::Page &page, const KholRow &row)
{
    constexpr double MarksTop = 176;
    constexpr double Mark = 4.5;
    for (const Choice &choice : Choices) {
        page.items.push_back(report::CheckMark{{choice.right - Mark, MarksTop + 1.2, Mark, Mark},
                                               Val(row.value(choice.field.toString())) == 1,
                                               choice.field});
        page.items.push_back(
            report::Text{.box = {choice.right - choice.width, MarksTop, choice.width - Mark - 2, LineHeight},
                         .text = choice.caption.toString(),
                         .points = 9});
    }
}

void addAmountInWords(report::Page &page, const KholRow &row)
{
    const qint64 amount = wholeVal(row.value(u"MablagPardakhti"_s));
    page.items.push_back(report::Text{.box = {Left, 210, Width, LineHeight + 3},
                                      .text = NumberToWords(amount, u"ريال"),
                                      .control = u"MablaghBeHorof",
                                      .points = 10});
}

} // namespace

KholRow readKholRow(const Program &program, const QString &TFN, const QString &KholListType, const QString &TaxYear,
                    const QString &TaxMonth)
{
    const QString select =
        u"SELECT ZRVtbKholList.TFN,' خلاصه ليست ماليات بر حقوق ' AS KholListType,TaxYear,ZRVtbCoding_1.SDesc AS TaxMonth,"
        "ZRVtbKarfarma.name + ' ' + ZRVtbKarfarma.Family + ' - شعبه ' + ZRVtbKarfarma.ShobeName AS KarfarmaName,ZRVtbKarfarma.Address AS Address,ZRVtbKarfarma.TelNo AS TelNo,ZRVtbKarfarma.PostCode AS PostCode,"
        "JariSumHogog,JariSumMashmol,JariTax,JariJarimeDo,JariJarimeBist,JariBedehiTax,"
        "GablSumHogog,GablSumMashmol,GablTax,GablJarimeDo,GablJarimeBist,GablBedehiTax,"
        "RoznameDate,KarkonanNo,KharejiNo,IIF(VAL(NahveyePardakht)=1,1,0) AS NAGHDY,IIF(VAL(NahveyePardakht)=2,1,0) AS GNAGHDY,IIF(VAL(NahveyePardakht)=3,1,0) AS ADAMEPARDAKHT,"
        "ChequeSeriNo,ChequeDate,ZRVtbCoding_2.SDesc AS BankName,ZRVtbKholList.ShobeName,HesabNo,MablagPardakhti"
        " FROM (((ZRVtbKholList LEFT JOIN ZRVtbCoding ON ZRVtbKholList.KholListType = ZRVtbCoding.SCode"
        " AND ZRVtbCoding.MCode = '14') LEFT JOIN ZRVtbCoding AS ZRVtbCoding_1 ON ZRVtbKholList.TaxMonth ="
        " ZRVtbCoding_1.SCode AND ZRVtbCoding_1.MCode = '4') LEFT JOIN ZRVtbCoding AS ZRVtbCoding_2 ON"
        " trim(ZRVtbKholList.BankName) = ZRVtbCoding_2.SCode AND ZRVtbCoding_2.MCode = '8') LEFT JOIN ZRVtbKarfarma"
        " ON ZRVtbKholList.TFN = ZRVtbKarfarma.TFN WHERE ZRVtbKholList.TFN = "_s
        + quoted(TFN) + u" AND ZRVtbKholList.KholListType = "_s + quoted(KholListType) + u" AND TaxYear = "_s
        + quoted(TaxYear) + u" AND TaxMonth = "_s + quoted(TaxMonth);
    const Recordset rows(Connection(program.StoreConnectionString), select);
    KholRow row;
    if (!rows.eof())
        for (int column = 0; column < rows.columnCount(); ++column)
            row.insert(rows.columnName(column), rows.value(column).toText());
    return row;
}

rptKhol::rptKhol(const Program &program, KholRow row)
    : Report(u"rptKhol"_s, u"  پيش  نمايش  خلاصه  ليست  حقوق"_s, A4Portrait)
    , m_program(program)
    , m_row(std::move(row))
{
}

QString rptKhol::barCodeText() const
{
    const QString &TFN = m_program.DisplayedTFN.isEmpty() ? m_row.value(u"TFN"_s) : m_program.DisplayedTFN;
    return Trim(TFN) + u',' + Trim(m_program.DisplayedTaxYear) + u',' + Trim(m_program.DisplayedTaxMonth);
}

report::Page rptKhol::page(int number) const
{
    Q_UNUSED(number);
    report::Page page;
    addHead(page, m_row, barCodeText());
    for (const double y : RulingLines)
        page.items.push_back(report::Line{{Left - 3, y}, {Right + 3, y}, 0.3});
    page.items.push_back(report::Line{{HalvesLine, RulingLines.back()}, {HalvesLine, Bottom}, 0.3});
    for (const Fixed &text : FixedTexts)
        page.items.push_back(fixedText(text));
    for (const Field &field : Fields)
        addField(page, field, m_row);
    addFigures(page, m_row);
    addChoices(page, m_row);
    addAmountInWords(page, m_row);
    for (const Fixed &dots : HandWritten)
        page.items.push_back(fixedText(dots));
    return page;
}

} // namespace zrv
