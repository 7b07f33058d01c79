// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/layouts/layout_builder.h"

#include "core/forms/spoken_name.h"
#include "qt/binder.h"
#include "qt/caption_label.h"
#include "qt/form_window.h"
#include "qt/layouts/wrap_layout.h"
#include "qt/look.h"
#include "qt/spoken_names.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QScreen>
#include <QTableView>

#include <algorithm>

namespace zrv {

namespace {

// On a display with less room than the layouts are drawn for, lines are wrapped and fewer things stand on one.
constexpr int LeastRoom = 1000;
constexpr int RoomOfAPair = 360; ///< of a label with its field
constexpr int RoomOfATile = 260;
constexpr int Beside = 40; ///< the window's frame and the bar by which it scrolls

} // namespace

LayoutBuilder::LayoutBuilder(FormWindow &window)
    : m_window(window)
    , m_room(window.screen()->availableSize().width())
    , m_narrow(m_room < LeastRoom)
{
}

int LayoutBuilder::perLine(int wanted, int roomOfOne) const
{
    return m_narrow ? std::clamp(m_room / roomOfOne, 1, wanted) : wanted;
}

QWidget *LayoutBuilder::widget(const QString &name) const
{
    const Control *const control = m_window.form().find(name);
    QWidget *const found = control ? m_window.widgetFor(*control) : nullptr;
    if (!found)
        qFatal("the layout of %s names %s, which the screen does not have", qPrintable(m_window.form().name()),
               qPrintable(name));
    return found;
}

QString LayoutBuilder::shownText(const QString &name) const
{
    return m_window.form().find(name)->shownText().trimmed();
}

QWidget &LayoutBuilder::withCaption(QWidget &button) const
{
    m_window.binderOf(*m_window.form().find(button.objectName())).refresh(Aspect::Caption);
    return button;
}

void LayoutBuilder::add(QBoxLayout &box, const Cell &cell) const
{
    if (cell.layout)
        box.addLayout(cell.layout, cell.share);
    else if (cell.widget || !cell.name.isEmpty())
        box.addWidget(cell.widget ? cell.widget : widget(cell.name), cell.share);
    else
        box.addStretch(1);
}

QLayout *LayoutBuilder::column(Cells cells)
{
    auto *const box = new QVBoxLayout;
    for (const Cell &cell : cells)
        add(*box, cell);
    return box;
}

QLayout *LayoutBuilder::line(const std::vector<Cell> &cells)
{
    if (m_narrow)
        return wrapped(cells);
    auto *const box = new QHBoxLayout;
    for (const Cell &cell : cells)
        add(*box, cell);
    return box;
}

/// A group, and what would have taken the free room of the line, now has a line of its own.
QLayout *LayoutBuilder::wrapped(const std::vector<Cell> &cells)
{
    auto *const lines = new WrapLayout;
    for (const Cell &cell : cells) {
        if (cell.layout) {
            lines->addWholeLine(cell.layout);
        } else if (cell.widget || !cell.name.isEmpty()) {
            QWidget *const placed = cell.widget ? cell.widget : widget(cell.name);
            if (cell.share > 0 || placed->layout())
                lines->addWholeLine(placed);
            else
                lines->addWidget(placed);
        }
    }
    return lines;
}

QLayout *LayoutBuilder::table(int wantedColumns, Cells cells)
{
    const int columns = perLine(wantedColumns, RoomOfATile);
    auto *const grid = new QGridLayout;
    int place = 0;
    int widest = 0;
    for (const Cell &cell : cells) {
        QWidget *const placed = cell.widget ? cell.widget : widget(cell.name);
        grid->addWidget(placed, place / columns, place % columns);
        widest = std::max(widest, withCaption(*placed).sizeHint().width());
        ++place;
    }
    for (int column = 0; column < columns; ++column) {
        grid->setColumnStretch(column, 1);
        grid->setColumnMinimumWidth(column, widest);
    }
    return grid;
}

QLayout *LayoutBuilder::fields(std::initializer_list<std::pair<const char16_t *, Cell>> pairs, int wantedPerLine)
{
    const int pairsPerLine = perLine(wantedPerLine, RoomOfAPair);
    auto *const grid = new QGridLayout;
    int place = 0;
    for (const auto &[labelName, field] : pairs) {
        QWidget *const label = widget(QString::fromUtf16(labelName));
        const int row = place / pairsPerLine;
        const int column = place % pairsPerLine * 2;
        // Beside its field, however long the labels above and below it are.
        grid->addWidget(label, row, column, Qt::AlignTrailing | Qt::AlignVCenter);
        QWidget *named = field.widget;
        if (field.layout) {
            grid->addLayout(field.layout, row, column + 1);
            named = field.layout->itemAt(0)->widget();
        } else {
            if (!named)
                named = widget(field.name);
            grid->addWidget(named, row, column + 1);
        }
        grid->setColumnStretch(column + 1, 1);
        if (auto *text = qobject_cast<QLabel *>(label); text && named && named->focusPolicy() != Qt::NoFocus)
            text->setBuddy(named);
        ++place;
    }
    return grid;
}

QLayout *LayoutBuilder::figures(Cells heads, std::initializer_list<std::pair<const char16_t *, Cells>> lines)
{
    auto *const grid = new QGridLayout;
    // Where there is little room a label stands above its figures.
    const int firstColumn = m_narrow ? 0 : 1;
    const int columns = static_cast<int>(heads.size());
    for (int column = 0; column < columns; ++column) {
        grid->addWidget(widget(heads.begin()[column].name), 0, firstColumn + column, Qt::AlignCenter);
        grid->setColumnStretch(firstColumn + column, 1);
    }
    int row = 1;
    for (const auto &[labelName, cells] : lines) {
        const QString label = QString::fromUtf16(labelName);
        if (m_narrow)
            grid->addWidget(widget(label), row++, 0, 1, columns);
        else
            grid->addWidget(widget(label), row, 0);
        for (int column = 0; column < columns; ++column) {
            QWidget *const field = widget(cells.begin()[column].name);
            field->setAccessibleName(spokenText(shownText(label) + u' ' + shownText(heads.begin()[column].name)));
            field->setProperty(NamedByLayout, true);
            grid->addWidget(field, row, firstColumn + column);
        }
        ++row;
    }
    return grid;
}

QLayout *LayoutBuilder::amounts(std::initializer_list<std::pair<const char16_t *, const char16_t *>> pairs,
                                int lettersOfCaption)
{
    constexpr int AmountLetters = 15;
    constexpr int ListLetters = 24;
    const int letter = m_window.fontMetrics().horizontalAdvance(u'0');
    // Where there is room, fewer captions wrap.
    if (!m_narrow)
        lettersOfCaption += 4;
    // An amount stands in the last of three columns; a list takes the middle one as well.
    auto *const grid = new QGridLayout;
    grid->setVerticalSpacing(2);
    grid->setHorizontalSpacing(4);
    grid->setColumnStretch(0, 1);
    grid->setColumnMinimumWidth(1, letter * (ListLetters - AmountLetters) - grid->horizontalSpacing());
    int row = 0;
    for (const auto &[labelName, fieldName] : pairs) {
        auto *const label = dynamic_cast<CaptionLabel *>(widget(QString::fromUtf16(labelName)));
        QWidget *const field = widget(QString::fromUtf16(fieldName));
        const bool isList = qobject_cast<QComboBox *>(field) != nullptr;
        field->setFixedSize(letter * (isList ? ListLetters : AmountLetters), m_window.fontMetrics().height() * 9 / 10);
        label->setColumnWidth(letter * (lettersOfCaption - (isList ? ListLetters - AmountLetters : 0)));
        label->setBuddy(field);
        grid->addWidget(label, row, 0, 1, isList ? 1 : 2);
        grid->addWidget(field, row, isList ? 1 : 2, 1, isList ? 2 : 1);
        ++row;
    }
    grid->setRowStretch(row, 1);
    // Spare width stands beside the fields, not between a caption and its field.
    auto *const box = new QHBoxLayout;
    box->setContentsMargins(8, 2, 8, 6);
    box->addLayout(grid);
    box->addStretch(1);
    return box;
}

LayoutBuilder::Cell LayoutBuilder::narrow(const char16_t *field, int letters)
{
    QWidget *const narrowed = widget(QString::fromUtf16(field));
    narrowed->setFixedWidth(m_window.fontMetrics().horizontalAdvance(u'0') * letters);
    return narrowed;
}

LayoutBuilder::Cell LayoutBuilder::noLess(const char16_t *list, int letters)
{
    QWidget *const field = widget(QString::fromUtf16(list));
    field->setMinimumWidth(m_window.fontMetrics().horizontalAdvance(u'0') * letters);
    return field;
}

QLayout *LayoutBuilder::date(const char16_t *prefix)
{
    const QString begin = QString::fromUtf16(prefix);
    auto *const box = new QHBoxLayout;
    box->setDirection(QBoxLayout::LeftToRight);
    const QFontMetrics metrics = m_window.fontMetrics();
    for (const auto &[end, digits] : {std::pair{"_Year", 4}, std::pair{"_Month", 2}, std::pair{"_Day", 2}}) {
        if (box->count() > 0)
            box->addWidget(new QLabel(QStringLiteral("/")));
        QWidget *const field = widget(begin + QLatin1String(end));
        field->setMaximumWidth(metrics.horizontalAdvance(u'0') * (digits + 4));
        box->addWidget(field);
    }
    return box;
}

LayoutBuilder::Cell LayoutBuilder::browse(const char16_t *grid, Cells extra)
{
    QLayout *const options = line({u"OptNormal", u"OptSort", u"OptSearch"});
    options->setContentsMargins(0, 0, 0, 0);
    std::vector<Cell> head{inside(u"PicOperation", options), u"chkAnd"};
    head.insert(head.end(), extra);
    const Cell count = value(u"LabelGridCount");
    count.widget->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    count.widget->setMinimumWidth(m_window.fontMetrics().averageCharWidth() * 8);
    head.insert(head.end(), {room(), u"LabelGridCountCaption", count});
    QLayout *const search =
        line({u"lblSearch", wide(u"txtSearch"), u"cmdSearch", u"cmdCancel_Search", u"lstWord_Seperator"});
    // A grid takes what is left, and stays readable where little is.
    QWidget *const rows = widget(QString::fromUtf16(grid));
    rows->setMinimumHeight(m_window.fontMetrics().height() * 9 / 2);
    // Where there is much, it opens with some eight rows instead of two.
    m_window.wishHeight(6 * static_cast<QTableView *>(rows)->verticalHeader()->defaultSectionSize());
    // Where lines wrap, a height is reckoned that an ignored one would be missing from.
    rows->setSizePolicy(QSizePolicy::Expanding, m_narrow ? QSizePolicy::Expanding : QSizePolicy::Ignored);
    return inside(u"framBrows", column({line(head), search, wide(grid)}));
}

QLayout *LayoutBuilder::values(std::initializer_list<std::pair<const char16_t *, const char16_t *>> pairs,
                               int wantedPerLine)
{
    const int pairsPerLine = perLine(wantedPerLine, RoomOfAPair);
    for (const auto &pair : pairs)
        look::makeValue(*widget(QString::fromUtf16(pair.second)));
    auto *const grid = new QGridLayout;
    int place = 0;
    for (const auto &[label, value] : pairs) {
        grid->addWidget(widget(QString::fromUtf16(label)), place / pairsPerLine, place % pairsPerLine * 2,
                        Qt::AlignTrailing | Qt::AlignVCenter);
        grid->addWidget(widget(QString::fromUtf16(value)), place / pairsPerLine, place % pairsPerLine * 2 + 1);
        grid->setColumnStretch(place % pairsPerLine * 2 + 1, 1);
        ++place;
    }
    return grid;
}

QLayout *LayoutBuilder::buttons(Cells cells)
{
    int widest = 0;
    for (const Cell &cell : cells)
        widest = std::max(widest, withCaption(*widget(cell.name)).sizeHint().width());
    for (const Cell &cell : cells)
        widget(cell.name)->setMinimumWidth(widest);
    std::vector<Cell> row(cells);
    row.push_back(room());
    return line(row);
}

LayoutBuilder::Cell LayoutBuilder::inside(const char16_t *container, QLayout *cells)
{
    QWidget *const around = widget(QString::fromUtf16(container));
    around->setLayout(cells);
    return around;
}

LayoutBuilder::Cell LayoutBuilder::around(const char16_t *container, QLayout *cells)
{
    const Cell cell = inside(container, cells);
    cells->setContentsMargins(0, 0, 0, 0);
    if (auto *const box = qobject_cast<QGroupBox *>(cell.widget)) {
        box->setFlat(true);
        // The margins that it took for its line.
        box->setContentsMargins(0, 0, 0, 0);
    }
    return cell;
}

QLayout *LayoutBuilder::over(Cell below, Cell above)
{
    auto *const grid = new QGridLayout;
    grid->addWidget(below.widget, 0, 0);
    grid->addWidget(above.widget, 0, 0, Qt::AlignCenter);
    above.widget->raise();
    return grid;
}

LayoutBuilder::Cell LayoutBuilder::panel(QLayout *cells)
{
    auto *const around = new look::Panel(m_window.ground());
    around->setLayout(cells);
    return around;
}

QLayout *LayoutBuilder::middle(QLayout *cells)
{
    auto *const box = new QHBoxLayout;
    const int aside = m_narrow ? 0 : 1;
    box->addStretch(aside);
    box->addLayout(cells, 6);
    box->addStretch(aside);
    return box;
}

LayoutBuilder::Cell LayoutBuilder::wide(Cell cell, int share)
{
    cell.share = share;
    return cell;
}

LayoutBuilder::Cell LayoutBuilder::heading(const char16_t *label)
{
    QWidget *const made = widget(QString::fromUtf16(label));
    look::makeHeading(*made);
    return made;
}

LayoutBuilder::Cell LayoutBuilder::note(const char16_t *label)
{
    QWidget *const made = widget(QString::fromUtf16(label));
    look::makeNote(*made);
    return made;
}

LayoutBuilder::Cell LayoutBuilder::remark(const char16_t *label)
{
    QWidget *const made = widget(QString::fromUtf16(label));
    look::makeRemark(*made);
    return made;
}

LayoutBuilder::Cell LayoutBuilder::value(const char16_t *label)
{
    QWidget *const made = widget(QString::fromUtf16(label));
    look::makeValue(*made);
    return made;
}

LayoutBuilder::Cell LayoutBuilder::paragraph(const char16_t *label, int lines)
{
    auto *const made = static_cast<QLabel *>(widget(QString::fromUtf16(label)));
    made->setWordWrap(true);
    // The last letter of a full line may reach beyond its width.
    made->setMargin(3);
    made->setMinimumHeight(made->fontMetrics().lineSpacing() * lines);
    return made;
}

LayoutBuilder::Cell LayoutBuilder::rows(const char16_t *list, int count)
{
    QWidget *const made = widget(QString::fromUtf16(list));
    made->setFixedHeight(made->fontMetrics().height() * 3 / 2 * count);
    return made;
}

LayoutBuilder::Cell LayoutBuilder::words(const char16_t *label, int letters)
{
    auto *const made = dynamic_cast<CaptionLabel *>(widget(QString::fromUtf16(label)));
    made->setColumnWidth(m_window.fontMetrics().horizontalAdvance(u'0') * letters);
    made->setMinimumHeight(m_window.fontMetrics().height() * 8 / 5);
    return made;
}

LayoutBuilder::Cell LayoutBuilder::tile(const char16_t *button)
{
    QWidget *const made = widget(QString::fromUtf16(button));
    look::makeTile(*made);
    return made;
}

LayoutBuilder::Cell LayoutBuilder::searching(const char16_t *field)
{
    QWidget *const made = widget(QString::fromUtf16(field));
    look::makeSearching(*made);
    return made;
}

LayoutBuilder::Cell LayoutBuilder::small(const char16_t *button, const char16_t *asWideAs)
{
    QString caption = shownText(QString::fromUtf16(asWideAs ? asWideAs : button));
    QWidget *const made = widget(QString::fromUtf16(button));
    made->setFixedWidth(m_window.fontMetrics().horizontalAdvance(caption.remove(u'&') + QStringLiteral("000000")));
    return made;
}

void LayoutBuilder::fill(QLayout *cells)
{
    m_window.ground()->setLayout(cells);
}

void LayoutBuilder::drawGround()
{
    static_cast<look::Ground *>(m_window.ground())->setDrawn(true);
}

void LayoutBuilder::atLeast(int letters, int lines)
{
    const QFontMetrics metrics = m_window.fontMetrics();
    if (m_narrow)
        m_window.ground()->setMinimumWidth(std::min(metrics.horizontalAdvance(u'0') * letters, m_room - Beside));
    else
        m_window.ground()->setMinimumSize(metrics.horizontalAdvance(u'0') * letters, metrics.height() * lines);
}

} // namespace zrv
