// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/list_binder.h"

#include "qt/form_window.h"

#include <QAbstractListModel>
#include <QKeyEvent>
#include <QListView>

#include <utility>

namespace zrv {

/// The rows of a list box, read from the control itself.
class ListModel : public QAbstractListModel {
public:
    ListModel(ListBox &list, FormWindow &window, QObject *parent)
        : QAbstractListModel(parent)
        , m_list(list)
        , m_window(window)
    {
    }

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override { return parent.isValid() ? 0 : m_count; }

    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override
    {
        if (std::cmp_greater_equal(index.row(), m_list.items().size()))
            return {};
        const ListItem &item = m_list.items()[static_cast<size_t>(index.row())];
        if (role == Qt::DisplayRole || role == Qt::AccessibleTextRole)
            return item.shown;
        if (role == Qt::CheckStateRole && m_list.hasCheckBoxes())
            return item.checked ? Qt::Checked : Qt::Unchecked;
        return {};
    }

    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex &index) const override
    {
        const Qt::ItemFlags flags = QAbstractListModel::flags(index);
        return m_list.hasCheckBoxes() ? flags | Qt::ItemIsUserCheckable : flags;
    }

    bool setData(const QModelIndex &index, const QVariant &value, int role) override
    {
        if (role != Qt::CheckStateRole)
            return false;
        const bool checked = value.toInt() == Qt::Checked;
        m_window.enter([&] { m_list.form().userCheckItem(m_list, index.row(), checked); });
        return true;
    }

    /// The control's rows have changed. A list that only grew, as a log does, is not read anew.
    void update()
    {
        const int count = static_cast<int>(m_list.items().size());
        if (count > m_count) {
            beginInsertRows({}, m_count, count - 1);
            m_count = count;
            endInsertRows();
        } else if (count < m_count) {
            beginResetModel();
            m_count = count;
            endResetModel();
        }
        if (m_count > 0)
            Q_EMIT dataChanged(index(0), index(m_count - 1));
    }

private:
    ListBox &m_list;
    FormWindow &m_window;
    int m_count = 0;
};

ListBinder::ListBinder(ListBox &list, FormWindow &window)
    : ListBinder(list, window, *new QListView(window.groundOf(list.container())))
{
}

ListBinder::ListBinder(ListBox &list, FormWindow &window, QListView &widget)
    : ViewBinder(list, window, widget, Aspect::Items)
    , m_list(list)
    , m_widget(&widget)
    , m_model(new ListModel(list, window, m_widget))
{
    m_widget->setUniformItemSizes(true);
    setModel(*m_model);
}

bool ListBinder::special(QEvent &event)
{
    if (event.type() != QEvent::KeyPress || !m_list.hasCheckBoxes() || m_list.listIndex() < 0)
        return false;
    if (static_cast<const QKeyEvent &>(event).key() != Qt::Key_Space)
        return false;
    const int row = m_list.listIndex();
    const bool checked = m_list.items()[static_cast<size_t>(row)].checked;
    m_window.enter([&] { form().userCheckItem(m_list, row, !checked); });
    return true;
}

void ListBinder::userMoved(const QModelIndex &current)
{
    form().userChoose(m_list, current.row());
}

void ListBinder::showRows()
{
    m_model->update();
}

void ListBinder::showCurrent()
{
    const QModelIndex current = m_model->index(m_list.listIndex());
    if (current.isValid()) {
        m_widget->setCurrentIndex(current);
    } else {
        // A screen reader needs a current row; nothing is marked as chosen.
        m_widget->selectionModel()->setCurrentIndex(m_model->index(0), QItemSelectionModel::NoUpdate);
        m_widget->clearSelection();
    }
}

} // namespace zrv
