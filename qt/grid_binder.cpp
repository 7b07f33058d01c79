// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/grid_binder.h"

#include "core/forms/spoken_name.h"
#include "qt/form_window.h"

#include <QAbstractTableModel>
#include <QHeaderView>
#include <QPainter>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <QTableView>

#include <algorithm>
#include <vector>

namespace zrv {

class GridModel : public QAbstractTableModel {
public:
    GridModel(const Grid &grid, QObject *parent)
        : QAbstractTableModel(parent)
        , m_grid(grid)
    {
    }

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override
    {
        return parent.isValid() ? 0 : m_grid.rowCount();
    }

    [[nodiscard]] int columnCount(const QModelIndex &parent = {}) const override
    {
        return parent.isValid() ? 0 : static_cast<int>(m_grid.columns().size());
    }

    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override
    {
        if (role == Qt::DisplayRole || role == Qt::AccessibleTextRole)
            return m_grid.shownCell(index.row(), index.column());
        if (role == Qt::TextAlignmentRole && column(index.column()).leftToRight)
            return QVariant::fromValue(Qt::AlignRight | Qt::AlignAbsolute | Qt::AlignVCenter);
        return {};
    }

    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override
    {
        if (orientation != Qt::Horizontal)
            return {};
        if (role == Qt::AccessibleTextRole)
            return spokenText(column(section).caption);
        return role == Qt::DisplayRole ? column(section).caption : QVariant();
    }

    [[nodiscard]] const GridColumn &column(int place) const { return m_grid.columns().at(static_cast<size_t>(place)); }

    void reset()
    {
        beginResetModel();
        endResetModel();
    }

private:
    const Grid &m_grid;
};

namespace {

/// Codes and numbers read from the left, whatever the direction of the table. The current cell has an outline in its
/// row, a thicker one while the grid has the focus.
class CellDelegate : public QStyledItemDelegate {
public:
    CellDelegate(const GridModel &model, QObject *parent)
        : QStyledItemDelegate(parent)
        , m_model(model)
    {
    }

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        QStyledItemDelegate::paint(painter, option, index);
        const auto *const view = qobject_cast<const QAbstractItemView *>(option.widget);
        if (!view || view->currentIndex() != index)
            return;
        const bool isMarked = option.state & QStyle::State_Selected;
        const QColor ink = option.palette.color(isMarked ? QPalette::HighlightedText : QPalette::Highlight);
        const int width = option.state & QStyle::State_HasFocus ? 2 : 1;
        const double inset = 1 + width / 2.0;
        painter->save();
        painter->setPen(QPen(ink, width, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
        painter->setBrush(Qt::NoBrush);
        painter->drawRect(QRectF(option.rect).adjusted(inset, inset, -inset, -inset));
        painter->restore();
    }

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        // The style would mark it with a veil over the text.
        option->state &= ~QStyle::State_HasFocus;
        if (m_model.column(index.column()).leftToRight) {
            option->direction = Qt::LeftToRight;
            option->displayAlignment = Qt::AlignRight | Qt::AlignAbsolute | Qt::AlignVCenter;
        }
    }

private:
    const GridModel &m_model;
};

} // namespace

GridBinder::GridBinder(Grid &grid, FormWindow &window)
    : GridBinder(grid, window, *new QTableView(window.groundOf(grid.container())))
{
}

GridBinder::GridBinder(Grid &grid, FormWindow &window, QTableView &widget)
    : ViewBinder(grid, window, widget, Aspect::Rows)
    , m_grid(grid)
    , m_widget(&widget)
    , m_model(new GridModel(grid, m_widget))
{
    setModel(*m_model);
    m_widget->setItemDelegate(new CellDelegate(*m_model, m_widget));
    m_widget->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_widget->setSelectionMode(QAbstractItemView::SingleSelection);
    m_widget->setTabKeyNavigation(false);
    m_widget->setAlternatingRowColors(true);
    m_widget->setWordWrap(false);
    m_widget->verticalHeader()->hide();
    m_widget->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    m_widget->verticalHeader()->setDefaultSectionSize(m_widget->fontMetrics().height() + 6);
    QHeaderView &head = *m_widget->horizontalHeader();
    head.setSectionsClickable(true);
    head.setHighlightSections(false);
    head.setDefaultAlignment(Qt::AlignCenter);
    head.setTextElideMode(Qt::ElideRight);
    head.setStretchLastSection(true);
    QObject::connect(&head, &QHeaderView::sectionClicked, m_widget,
                     [this](int column) { m_window.enter([&] { form().userHead(m_grid, column); }); });
}

/// There is a current cell whenever there are rows: a screen reader that asks for it must never get none. A table that
/// has to scroll for it shows its beginning if the cell is seen there, too.
void GridBinder::showCurrent()
{
    if (m_grid.currentRow() < 0)
        return;
    const QModelIndex cell = m_model->index(m_grid.currentRow(), m_grid.currentColumn());
    const QRect place = m_widget->visualRect(cell);
    const bool isShown = m_widget->isVisible();
    if (!isShown || place.left() < 0 || place.right() >= m_widget->viewport()->width())
        m_widget->horizontalScrollBar()->setValue(0);
    m_widget->setCurrentIndex(cell);
    // One on a hidden page may yet have another width; it scrolls by itself when it is shown.
    if (isShown)
        m_widget->scrollTo(cell);
}

/// The first rows give the columns their widths, a good many of them; rows that are found later only widen what is too
/// narrow for those in view, so that nothing jumps under the eyes of whoever types a search.
void GridBinder::fitColumns()
{
    constexpr int FirstRows = 64;
    constexpr int RowsInView = 0;
    const int count = m_model->columnCount();
    std::vector<int> widths;
    for (int column = 0; column < count; ++column) {
        m_widget->setColumnHidden(column, !m_model->column(column).visible);
        widths.push_back(m_fitted ? m_widget->columnWidth(column) : 0);
    }
    m_widget->horizontalHeader()->setResizeContentsPrecision(m_fitted ? RowsInView : FirstRows);
    m_widget->resizeColumnsToContents();
    const int widest = m_widget->fontMetrics().horizontalAdvance(u'0') * 40;
    for (int column = 0; column < count; ++column) {
        const int width = std::min(m_widget->columnWidth(column), widest);
        m_widget->setColumnWidth(column, std::max(width, widths[static_cast<size_t>(column)]));
    }
    m_fitted = m_model->rowCount() > 0;
}

void GridBinder::userMoved(const QModelIndex &current)
{
    form().userRow(m_grid, current.row(), current.column());
}

void GridBinder::showRows()
{
    m_model->reset();
    fitColumns();
}

} // namespace zrv
