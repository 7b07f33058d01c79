// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/preview/page_painter.h"

#include "core/basic/text.h"
#include "qt/look.h"
#include "qt/preview/bar_code.h"

#include <QFont>
#include <QPainter>
#include <QTextLayout>

#include <algorithm>
#include <cmath>

namespace zrv {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr double UnitsPerMillimetre = 100;
constexpr double UnitsPerPoint = 25.4 / 72 * UnitsPerMillimetre;
/// The height of a text's one line, how much each further line adds to it, and from a line's top to its letters' feet,
/// as parts of the letters' size: the font's own lines leave room for vowel signs that no report bears.
constexpr double LineHeight = 1.5;
constexpr double LinePitch = 1.25;
constexpr double FootOfLine = 1.05;
/// Down to this part of its size a text keeps its words whole.
constexpr double LeastWithWholeWords = 0.65;
constexpr double Shrink = 0.95;
constexpr int QuietModules = 10;

QFont fontOf(const report::Text &text, double units)
{
    QFont font;
    font.setFamilies({u"Noto Sans Arabic"_s, u"Noto Sans"_s, u"DejaVu Sans"_s});
    font.setPixelSize(std::max(1, static_cast<int>(std::lround(units))));
    font.setBold(text.bold);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

QRectF inUnits(const QRectF &box)
{
    return {box.topLeft() * UnitsPerMillimetre, box.size() * UnitsPerMillimetre};
}

double heightOf(int lines, double size)
{
    return (LineHeight + (lines - 1) * LinePitch) * size;
}

/// Breaks the text at this size; false when it does not fit the box then.
bool lay(QTextLayout &layout, const QSizeF &room, double size)
{
    bool fits = true;
    double top = 0;
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(room.width());
        line.setPosition({0, top + size * FootOfLine - line.ascent()});
        top += size * LinePitch;
        fits = fits && line.naturalTextWidth() <= room.width();
    }
    layout.endLayout();
    const int lines = layout.lineCount();
    return fits && (lines <= 1 || heightOf(lines, size) <= room.height() + 1);
}

void paintText(QPainter &painter, const report::Text &text)
{
    const QRectF box = inUnits(text.box);
    const Qt::Alignment side = text.side == report::Side::Right    ? Qt::AlignRight
                               : text.side == report::Side::Centre ? Qt::AlignHCenter
                                                                   : Qt::AlignLeft;
    QTextOption option(side | Qt::AlignAbsolute);
    option.setTextDirection(text.leftToRight ? Qt::LeftToRight : Qt::RightToLeft);
    option.setWrapMode(QTextOption::WordWrap);
    QTextLayout layout(trimBlanks(text.text).toString());
    double size = text.points * UnitsPerPoint;
    const double least = size * LeastWithWholeWords;
    for (;; size *= Shrink) {
        // A number is never broken, however long it is.
        if (size < least && !text.leftToRight)
            option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
        layout.setTextOption(option);
        layout.setFont(fontOf(text, size));
        if (lay(layout, box.size(), size) || size < 1)
            break;
    }
    const double height = heightOf(layout.lineCount(), size);
    painter.setPen(Qt::black);
    layout.draw(&painter, box.topLeft() + QPointF(0, (box.height() - height) / 2));
}

void paintBarCode(QPainter &painter, const report::BarCode &code)
{
    constexpr double TextHeight = 4;
    const std::vector<bool> modules = code128(code.text);
    const QRectF bars = code.box.adjusted(0, 0, 0, -TextHeight);
    const QRectF room = painter.deviceTransform().mapRect(inUnits(bars));
    const int count = static_cast<int>(modules.size()) + 2 * QuietModules;
    // On a screen that shows the page small, bars are less than a pixel wide and only shown, not to be read off.
    const double module = room.width() >= count ? std::floor(room.width() / count) : room.width() / count;
    painter.save();
    painter.setWorldMatrixEnabled(false);
    painter.setRenderHint(QPainter::Antialiasing, module < 1);
    const double left = std::ceil(room.left()) + QuietModules * module;
    const double top = std::round(room.top());
    const double height = std::round(room.height());
    for (auto bar = modules.begin(); bar != modules.end();) {
        const auto end = std::find(bar, modules.end(), !*bar);
        if (*bar)
            painter.fillRect(QRectF(left + static_cast<double>(bar - modules.begin()) * module, top,
                                    static_cast<double>(end - bar) * module, height),
                             Qt::black);
        bar = end;
    }
    painter.restore();
    // Without bars, too, the text tells what they would.
    paintText(painter, {.box = {code.box.left(), bars.bottom(), code.box.width(), TextHeight},
                        .text = code.text,
                        .points = 8,
                        .side = report::Side::Left,
                        .leftToRight = true});
}

struct Paint {
    QPainter &painter;

    [[nodiscard]] static QPen pen(double width) { return {Qt::black, width * UnitsPerMillimetre}; }

    void operator()(const report::Text &text) const { paintText(painter, text); }
    void operator()(const report::Line &line) const
    {
        painter.setPen(pen(line.width));
        painter.drawLine(line.from * UnitsPerMillimetre, line.to * UnitsPerMillimetre);
    }
    void operator()(const report::Frame &frame) const
    {
        painter.setPen(pen(frame.width));
        painter.setBrush(frame.tinted ? QBrush(QColor(0xEE, 0xEE, 0xEE)) : QBrush(Qt::NoBrush));
        painter.drawRect(inUnits(frame.box));
    }
    void operator()(const report::BarCode &code) const { paintBarCode(painter, code); }
    void operator()(const report::CheckMark &mark) const
    {
        const QRectF box = inUnits(mark.box);
        painter.setPen(pen(0.3));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(box);
        if (!mark.ticked)
            return;
        painter.setPen(pen(0.5));
        painter.drawPolyline(QPolygonF{QPointF(box.left() + box.width() * 0.2, box.top() + box.height() * 0.5),
                                       QPointF(box.left() + box.width() * 0.42, box.top() + box.height() * 0.75),
                                       QPointF(box.left() + box.width() * 0.82, box.top() + box.height() * 0.22)});
    }
    void operator()(const report::Emblem &emblem) const { look::paintMark(painter, inUnits(emblem.box).toRect()); }
};

} // namespace

void paintPage(QPainter &painter, const report::Page &page, double pixelsPerMillimetre)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(pixelsPerMillimetre / UnitsPerMillimetre, pixelsPerMillimetre / UnitsPerMillimetre);
    for (const report::Item &item : page.items)
        std::visit(Paint{painter}, item);
    painter.restore();
}

} // namespace zrv
