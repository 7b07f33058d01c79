// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/layouts/layout_builder.h"

#include "qt/form_window.h"
#include "qt/look.h"

#include <QBoxLayout>
#include <QGridLayout>
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

QLayout *LayoutBuilder::fields(std::initializer_list<std::pair<const char16_t *, const char16_t *>> pairs,
                               int pairsPerLine)
{
    auto *const grid = new QGridLayout;
    int place = 0;
    for (const auto &[labelName, fieldName] : pairs) {
        QWidget *const label = widget(QString::fromUtf16(labelName));
        QWidget *const field = widget(QString::fromUtf16(fieldName));
        const int column = place % pairsPerLine * 2;
        grid->addWidget(label, place / pairsPerLine, column);
        grid->addWidget(field, place / pairsPerLine, column + 1);
        grid->setColumnStretch(column + 1, 1);
        if (auto *text = qobject_cast<QLabel *>(label); text && field->focusPolicy() != Qt::NoFocus)
            text->setBuddy(field);
        ++place;
    }
    return grid;
}

QLayout *LayoutBuilder::values(std::initializer_list<std::pair<const char16_t *, const char16_t *>> pairs,
                               int pairsPerLine)
{
    for (const auto &pair : pairs)
        look::makeValue(*widget(QString::fromUtf16(pair.second)));
    return fields(pairs, pairsPerLine);
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
