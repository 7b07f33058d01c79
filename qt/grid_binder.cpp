// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/grid_binder.h"

#include "qt/form_window.h"
#include "qt/look.h"

#include <QAbstractTableModel>
#include <QHeaderView>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QStyledItemDelegate>
#include <QTableView>

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
        if (orientation == Qt::Horizontal && role == Qt::DisplayRole)
            return column(section).caption;
        return {};
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

/// Codes and numbers read from the left, whatever the direction of the table.
class CellDelegate : public QStyledItemDelegate {
public:
    CellDelegate(const GridModel &model, QObject *parent)
        : QStyledItemDelegate(parent)
        , m_model(model)
    {
    }

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
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
    : Binder(grid, window)
    , m_grid(grid)
    , m_widget(new QTableView(window.groundOf(grid.container())))
    , m_model(new GridModel(grid, m_widget))
{
    adopt(*m_widget);
    m_widget->setModel(m_model);
    m_widget->setItemDelegate(new CellDelegate(*m_model, m_widget));
    m_widget->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_widget->setSelectionMode(QAbstractItemView::SingleSelection);
    m_widget->setEditTriggers(QAbstractItemView::NoEditTriggers);
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
    head.setResizeContentsPrecision(64);
    QObject::connect(&head, &QHeaderView::sectionClicked, m_widget,
                     [this](int column) { m_window.enter([&] { form().userHead(m_grid, column); }); });
    QObject::connect(m_widget->selectionModel(), &QItemSelectionModel::currentChanged, m_widget,
                     [this](const QModelIndex &current) {
                         if (m_showing || !current.isValid())
                             return;
                         m_window.enter([&] { form().userRow(m_grid, current.row(), current.column()); });
                         showCurrent();
                     });
    QObject::connect(m_widget, &QTableView::doubleClicked, m_widget,
                     [this] { m_window.enter([this] { form().userDblClick(m_grid); }); });
}

QWidget *GridBinder::widget() const
{
    return m_widget;
}

QWidget *GridBinder::target() const
{
    return m_widget->viewport();
}

bool GridBinder::keepsKey(const QKeyEvent &event) const
{
    switch (event.key()) {
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Home:
    case Qt::Key_End:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        return true;
    default:
        return Binder::keepsKey(event);
    }
}

/// There is a current cell whenever there are rows: a screen reader that asks for it must never get none.
void GridBinder::showCurrent()
{
    const QScopedValueRollback showing(m_showing, true);
    if (m_grid.currentRow() >= 0)
        m_widget->setCurrentIndex(m_model->index(m_grid.currentRow(), m_grid.currentColumn()));
}

void GridBinder::fitColumns()
{
    const int count = m_model->columnCount();
    for (int column = 0; column < count; ++column)
        m_widget->setColumnHidden(column, !m_model->column(column).visible);
    m_widget->resizeColumnsToContents();
    const int widest = m_widget->fontMetrics().horizontalAdvance(u'0') * 40;
    for (int column = 0; column < count; ++column)
        if (m_widget->columnWidth(column) > widest)
            m_widget->setColumnWidth(column, widest);
}

void GridBinder::refresh(Aspect aspect)
{
    switch (aspect) {
    case Aspect::Columns:
    case Aspect::Rows: {
        const QScopedValueRollback showing(m_showing, true);
        m_model->reset();
        fitColumns();
        showCurrent();
        break;
    }
    case Aspect::CurrentRow:
        showCurrent();
        break;
    case Aspect::Colors:
        look::colorField(*m_widget, m_grid.backColor(), m_grid.textColor());
        break;
    default:
        Binder::refresh(aspect);
    }
}

} // namespace zrv
