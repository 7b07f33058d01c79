// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/layouts/layout_builder.h"

#include "qt/form_window.h"
#include "qt/look.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>

namespace zrv {

LayoutBuilder::LayoutBuilder(FormWindow &window)
    : m_window(window)
{
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

QLayout *LayoutBuilder::line(Cells cells)
{
    auto *const box = new QHBoxLayout;
    for (const Cell &cell : cells)
        add(*box, cell);
    return box;
}

QLayout *LayoutBuilder::table(int columns, Cells cells)
{
    auto *const grid = new QGridLayout;
    int place = 0;
    for (const Cell &cell : cells) {
        grid->addWidget(cell.widget ? cell.widget : widget(cell.name), place / columns, place % columns);
        ++place;
    }
    for (int column = 0; column < columns; ++column)
        grid->setColumnStretch(column, 1);
    return grid;
}

QLayout *LayoutBuilder::fields(std::initializer_list<std::pair<const char16_t *, Cell>> pairs, int pairsPerLine)
{
    auto *const grid = new QGridLayout;
    int place = 0;
    for (const auto &[labelName, field] : pairs) {
        QWidget *const label = widget(QString::fromUtf16(labelName));
        const int row = place / pairsPerLine;
        const int column = place % pairsPerLine * 2;
        grid->addWidget(label, row, column);
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
    int column = 0;
    for (const Cell &head : heads) {
        grid->addWidget(widget(head.name), 0, ++column, Qt::AlignCenter);
        grid->setColumnStretch(column, 1);
    }
    int row = 0;
    for (const auto &[labelName, cells] : lines) {
        const QString label = QString::fromUtf16(labelName);
        grid->addWidget(widget(label), ++row, 0);
        column = 0;
        for (const Cell &cell : cells) {
            QWidget *const field = widget(cell.name);
            const QString &head = heads.begin()[column].name;
            field->setAccessibleName(shownText(label) + u' ' + shownText(head));
            grid->addWidget(field, row, ++column);
        }
    }
    return grid;
}

QLayout *LayoutBuilder::date(const char16_t *prefix)
{
    const QString begin = QString::fromUtf16(prefix);
    auto *const box = new QHBoxLayout;
    box->setDirection(QBoxLayout::LeftToRight);
    const QFontMetrics metrics = m_window.fontMetrics();
    for (const auto &[end, digits] : {std::pair{"_Year", 4}, std::pair{"_Month", 2}, std::pair{"_Day", 2}}) {
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
    auto *const head = static_cast<QBoxLayout *>(line({inside(u"PicOperation", options), u"chkAnd"}));
    for (const Cell &cell : extra)
        add(*head, cell);
    head->addStretch(1);
    add(*head, u"LabelGridCountCaption");
    const Cell count = value(u"LabelGridCount");
    count.widget->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    count.widget->setMinimumWidth(m_window.fontMetrics().averageCharWidth() * 8);
    add(*head, count);
    QLayout *const search =
        line({u"lblSearch", wide(u"txtSearch"), u"cmdSearch", u"cmdCancel_Search", u"lstWord_Seperator"});
    // A grid takes what is left, and stays readable where little is.
    QWidget *const rows = widget(QString::fromUtf16(grid));
    rows->setMinimumHeight(m_window.fontMetrics().height() * 9 / 2);
    rows->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
    return inside(u"framBrows", column({head, search, wide(grid)}));
}

QLayout *LayoutBuilder::values(std::initializer_list<std::pair<const char16_t *, const char16_t *>> pairs,
                               int pairsPerLine)
{
    for (const auto &pair : pairs)
        look::makeValue(*widget(QString::fromUtf16(pair.second)));
    auto *const grid = new QGridLayout;
    int place = 0;
    for (const auto &[label, value] : pairs) {
        grid->addWidget(widget(QString::fromUtf16(label)), place / pairsPerLine, place % pairsPerLine * 2);
        grid->addWidget(widget(QString::fromUtf16(value)), place / pairsPerLine, place % pairsPerLine * 2 + 1);
        grid->setColumnStretch(place % pairsPerLine * 2 + 1, 1);
        ++place;
    }
    return grid;
}

QLayout *LayoutBuilder::buttons(Cells cells)
{
    auto *const box = new QHBoxLayout;
    int widest = 0;
    for (const Cell &cell : cells)
        widest = std::max(widest, widget(cell.name)->sizeHint().width());
    for (const Cell &cell : cells) {
        QWidget *const button = widget(cell.name);
        button->setMinimumWidth(widest);
        box->addWidget(button);
    }
    box->addStretch(1);
    return box;
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
    if (auto *const box = qobject_cast<QGroupBox *>(cell.widget))
        box->setFlat(true);
    return cell;
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
    box->addStretch(1);
    box->addLayout(cells, 6);
    box->addStretch(1);
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

LayoutBuilder::Cell LayoutBuilder::tile(const char16_t *button)
{
    QWidget *const made = widget(QString::fromUtf16(button));
    look::makeTile(*made);
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
    m_window.ground()->setMinimumSize(metrics.horizontalAdvance(u'0') * letters, metrics.height() * lines);
}

} // namespace zrv
