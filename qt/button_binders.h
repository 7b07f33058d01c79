// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "qt/binder.h"

class QAbstractButton;
class QPushButton;

namespace zrv {

class ButtonBinder : public Binder {
public:
    ButtonBinder(Button &button, FormWindow &window);
    [[nodiscard]] QWidget *widget() const override;
    void refresh(Aspect aspect) override;

private:
    Button &m_button;
    QPushButton *m_widget;
};

class CheckBinder : public Binder {
public:
    CheckBinder(CheckBox &box, FormWindow &window);
    [[nodiscard]] QWidget *widget() const override;
    void refresh(Aspect aspect) override;

private:
    CheckBox &m_box;
    QAbstractButton *m_widget;
};

class OptionBinder : public Binder {
public:
    OptionBinder(OptionButton &option, FormWindow &window);
    [[nodiscard]] QWidget *widget() const override;
    void refresh(Aspect aspect) override;
    bool special(QEvent &event) override;

private:
    OptionButton &m_option;
    QAbstractButton *m_widget;
};

} // namespace zrv
