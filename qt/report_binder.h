// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "qt/binder.h"

namespace zrv {

class ReportView;

/// A report with the line below it in which a word is sought.
class ReportBinder : public Binder {
public:
    ReportBinder(ReportBox &box, FormWindow &window);
    [[nodiscard]] QWidget *widget() const override;
    [[nodiscard]] QWidget *input() const override;
    [[nodiscard]] QWidget *target() const override;
    [[nodiscard]] bool keepsKey(const QKeyEvent &event) const override;
    void refresh(Aspect aspect) override;

private:
    void placeBar();

    ReportBox &m_box;
    QWidget *m_widget;
    ReportView *m_view;
};

} // namespace zrv
