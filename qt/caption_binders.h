// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "qt/binder.h"

class QLabel;

namespace zrv {

class LabelBinder : public Binder {
public:
    LabelBinder(Label &label, FormWindow &window);
    [[nodiscard]] QWidget *widget() const override;
    void refresh(Aspect aspect) override;
    bool special(QEvent &event) override;

private:
    Label &m_label;
    QLabel *m_widget;
};

class StatusPanelBinder : public Binder {
public:
    StatusPanelBinder(StatusPanel &panel, FormWindow &window);
    [[nodiscard]] QWidget *widget() const override;
    void refresh(Aspect aspect) override;

private:
    StatusPanel &m_panel;
    QLabel *m_widget;
};

} // namespace zrv
