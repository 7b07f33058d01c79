// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "qt/binder.h"

class QGroupBox;
class QTabWidget;

namespace zrv {

/// A frame, or a page of a tab control.
class FrameBinder : public Binder {
public:
    FrameBinder(Frame &frame, FormWindow &window);
    [[nodiscard]] QWidget *widget() const override;
    void refresh(Aspect aspect) override;

private:
    Frame &m_frame;
    QGroupBox *m_box = nullptr;
    QWidget *m_page = nullptr;
};

class PictureBinder : public Binder {
public:
    PictureBinder(Picture &picture, FormWindow &window);
    [[nodiscard]] QWidget *widget() const override;

private:
    QWidget *m_widget;
};

class TabsBinder : public Binder {
public:
    TabsBinder(Tabs &tabs, FormWindow &window);
    [[nodiscard]] QWidget *widget() const override;
    [[nodiscard]] QWidget *input() const override;
    void refresh(Aspect aspect) override;

private:
    Tabs &m_tabs;
    QTabWidget *m_widget;
};

} // namespace zrv
