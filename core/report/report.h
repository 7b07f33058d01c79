// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// A printed report without a toolkit: pages of placed items, in millimetres from the upper left corner of the paper.
// The layouts of lists/ make them, Platform::preview shows them, the window side paints them to the screen, the
// printer and PDF alike.
//
// A text is given a box and its usual size; whoever paints it breaks it into the lines that the box has room for and
// makes it smaller until it fits. So a layout needs no measure of letters: rows are as high as their boxes, the number
// of pages is a division, and any page can be made without those before it. And nothing ever runs over its neighbour,
// whatever font the machine has.

#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <QString>
#include <QStringList>

#include <variant>
#include <vector>

namespace zrv {

namespace report {

/// Where a text stands in its box, whatever its direction.
enum class Side { Right, Centre, Left };

struct Text {
    QRectF box;
    QString text;
    QStringView control = {}; ///< the report's name for it; empty for what is the same on every page
    double points = 8;        ///< size of its letters, at most
    bool bold = false;
    Side side = Side::Right;
    bool leftToRight = false; ///< codes, numbers, and captions that are written with the colon in front
};

struct Line {
    QPointF from;
    QPointF to;
    double width = 0.2;
};

struct Frame {
    QRectF box;
    bool tinted = false; ///< a light ground under the items that follow
    double width = 0.2;
};

/// Code 128 with its quiet zones, and the text below the bars.
struct BarCode {
    QRectF box;
    QString text;
    QStringView control = {};
};

struct CheckMark {
    QRectF box;
    bool ticked = false;
    QStringView control = {};
};

/// The program's own mark.
struct Emblem {
    QRectF box;
    QStringView control = {};
};

using Item = std::variant<Text, Line, Frame, BarCode, CheckMark, Emblem>;

/// Items in the order in which they are painted and sought through.
struct Page {
    std::vector<Item> items;
};

/// The item's box. A line's has no height or no width.
[[nodiscard]] QRectF boxOf(const Item &item);

/// What can be read of the item; empty for lines and frames.
[[nodiscard]] QString textOf(const Item &item);

/// The texts of a page, an item a line.
[[nodiscard]] QString textOf(const Page &page);

} // namespace report

/// Pages of one size. A page is made when it is asked for.
class Report {
public:
    Report(QString name, QString title, QSizeF paper)
        : m_name(std::move(name))
        , m_title(std::move(title))
        , m_paper(paper)
    {
    }
    virtual ~Report() = default;

    [[nodiscard]] const QString &name() const { return m_name; }
    /// Stands over the preview.
    [[nodiscard]] const QString &title() const { return m_title; }
    /// Width and height of the paper in millimetres.
    [[nodiscard]] QSizeF paper() const { return m_paper; }

    /// At least 1.
    [[nodiscard]] virtual int pageCount() const = 0;
    /// The page of this number, from 0. Rows that come from the store may raise its errors.
    [[nodiscard]] virtual report::Page page(int number) const = 0;

private:
    QString m_name;
    QString m_title;
    QSizeF m_paper;
};

inline constexpr QSizeF A4Portrait{210, 297};
inline constexpr QSizeF A4Landscape{297, 210};

} // namespace zrv
