// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <initializer_list>
#include <utility>
#include <vector>

class QBoxLayout;
class QLayout;
class QWidget;

namespace zrv {

class FormWindow;

/// The words in which a layout is written: a layout is one expression of columns, lines, fields and frames that names
/// each control of its screen once.
///
/// On a display with less room than usual the same words put fewer things on a line, and wrap what is left.
///
///     b.fill(b.column({b.heading(u"LabelFormHeader"), b.inside(u"framKey", b.fields({{u"lblTFN", u"txtTFN"}}))}));
class LayoutBuilder {
public:
    /// A control by its name, or a group of cells that was made before; empty: free room that takes up what is left.
    struct Cell {
        Cell(const char16_t *controlName)
            : name(QString::fromUtf16(controlName))
        {
        }
        Cell(QWidget *laidOut)
            : widget(laidOut)
        {
        }
        Cell(QLayout *group)
            : layout(group)
        {
        }
        Cell() = default;

        QString name;
        QWidget *widget = nullptr;
        QLayout *layout = nullptr;
        int share = 0; ///< of the free room; 0 takes what the cell needs
    };
    using Cells = std::initializer_list<Cell>;

    explicit LayoutBuilder(FormWindow &window);

    /// Below each other, beside each other, or so many to a line.
    QLayout *column(Cells cells);
    QLayout *line(const std::vector<Cell> &cells);
    QLayout *table(int columns, Cells cells);
    /// Labels with their fields, so many pairs to a line. The label names its field to screen readers.
    QLayout *fields(std::initializer_list<std::pair<const char16_t *, Cell>> pairs, int pairsPerLine = 1);
    /// A field under each head in the line of each label; head and label together name it to screen readers.
    QLayout *figures(Cells heads, std::initializer_list<std::pair<const char16_t *, Cells>> lines);
    /// Amounts below each other in close lines: long captions, at least so many letters wide, that wrap beside fields
    /// as wide as an amount; a list's is wider.
    QLayout *amounts(std::initializer_list<std::pair<const char16_t *, const char16_t *>> pairs, int lettersOfCaption);
    /// A field of so many letters' width; or of no less, where a list would claim more for itself.
    Cell narrow(const char16_t *field, int letters);
    Cell noLess(const char16_t *list, int letters);
    /// The three boxes of a date, by what their names begin with: year, month and day from left to right with slashes
    /// between, as dates are written.
    QLayout *date(const char16_t *prefix);
    /// A record screen's grid with all that acts on it, in its container framBrows; `extra` are further cells of the
    /// line above the grid.
    Cell browse(const char16_t *grid, Cells extra = {});
    /// The same with labels that show a value instead of fields.
    QLayout *values(std::initializer_list<std::pair<const char16_t *, const char16_t *>> pairs, int pairsPerLine = 1);
    /// Buttons of one width at the leading side of their line.
    QLayout *buttons(Cells cells);
    /// Cells laid out in the widget of a container.
    Cell inside(const char16_t *container, QLayout *cells);
    /// The same for a container that needs no frame drawn: the one that holds all others, a row of buttons.
    Cell around(const char16_t *container, QLayout *cells);
    /// A container that comes up in front of another one, no larger than it asks for.
    QLayout *over(Cell below, Cell above);
    /// Cells on a panel of their own, without a control behind it.
    Cell panel(QLayout *cells);
    /// Cells in the middle of the window, no wider than they ask for.
    QLayout *middle(QLayout *cells);
    /// A share of the free room for a cell.
    static Cell wide(Cell cell, int share = 1);
    static Cell room() { return {}; }

    Cell heading(const char16_t *label);
    Cell note(const char16_t *label);
    Cell remark(const char16_t *label);
    Cell value(const char16_t *label);
    /// A text that comes later and may be long: it wraps, and has room for so many lines.
    Cell paragraph(const char16_t *label, int lines);
    /// A list of so many rows.
    Cell rows(const char16_t *list, int count);
    /// An amount in words, in close lines at least so many letters wide; two lines are kept free for it.
    Cell words(const char16_t *label, int letters);
    Cell tile(const char16_t *button);
    Cell searching(const char16_t *field);
    /// A button that is little wider than its caption, or than that of another one beside or below it.
    Cell small(const char16_t *button, const char16_t *asWideAs = nullptr);

    /// The whole layout; the last word of a layout.
    void fill(QLayout *cells);
    /// A quiet drawing behind everything.
    void drawGround();
    /// The window is at least so many letters wide, and so many lines high.
    void atLeast(int letters, int lines);

private:
    QWidget *widget(const QString &name) const;
    QString shownText(const QString &name) const;
    /// The button, as wide as its caption asks: the controls are shown only when all of them are placed.
    QWidget &withCaption(QWidget &button) const;
    void add(QBoxLayout &box, const Cell &cell) const;
    QLayout *wrapped(const std::vector<Cell> &cells);
    [[nodiscard]] int perLine(int wanted, int roomOfOne) const;

    FormWindow &m_window;
    int m_room;    ///< across the display
    bool m_narrow; ///< less than the layouts are drawn for
};

} // namespace zrv
