// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "qt/binder.h"

class QComboBox;

namespace zrv {

class FieldEdit;

/// A combo box is a field with a list under it: typing and completion are the control's, the list is the widget's.
class ComboBinder : public Binder {
public:
    ComboBinder(Combo &combo, FormWindow &window);
    [[nodiscard]] QWidget *widget() const override;
    [[nodiscard]] QWidget *input() const override;
    [[nodiscard]] bool keepsKey(const QKeyEvent &event) const override;
    void refresh(Aspect aspect) override;
    bool special(QEvent &event) override;

private:
    void widenList();
    void openList();

    Combo &m_combo;
    QComboBox *m_widget;
    FieldEdit *m_field;
};

} // namespace zrv
