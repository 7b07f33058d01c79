// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "qt/binder.h"

class QAbstractItemModel;
class QAbstractItemView;
class QModelIndex;

namespace zrv {

/// What the binders of a table and of a list share: a view of rows of which one is current. The view's own moves from
/// row to row go to the form, and the view then stands where the form has put it.
class ViewBinder : public Binder {
public:
    [[nodiscard]] QWidget *widget() const override;
    [[nodiscard]] QWidget *target() const override;
    [[nodiscard]] bool keepsKey(const QKeyEvent &event) const override;
    void refresh(Aspect aspect) override;

protected:
    /// `rows` is the aspect that the control's kind calls its rows by.
    ViewBinder(Control &control, FormWindow &window, QAbstractItemView &view, Aspect rows);
    /// Gives the view its rows; called once, by the constructor of the kind.
    void setModel(QAbstractItemModel &model);

    /// Tells the form of the row that the user has gone to.
    virtual void userMoved(const QModelIndex &current) = 0;
    /// Brings the control's rows to the view, and its current one.
    virtual void showRows() = 0;
    virtual void showCurrent() = 0;

private:
    void quietly(void (ViewBinder::*show)());

    QAbstractItemView &m_view;
    Aspect m_rows;
    bool m_showing = false; ///< the binder moves the view, not the user
};

} // namespace zrv
