// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/layouts/layouts.h"

#include "qt/form_window.h"
#include "qt/layouts/layout_builder.h"

#include <QBoxLayout>

namespace zrv {

namespace {

struct Row {
    QLatin1String form;
    void (*layOut)(LayoutBuilder &);
};

// clang-format off
constexpr Row layouts[] = {
    {QLatin1String("frmEnterance_Door"), layOutEnterance_Door},
    {QLatin1String("frmMain"),           layOutMain},
    {QLatin1String("frmAbout"),          layOutAbout},
    {QLatin1String("frmEncodeDecode"),   layOutEncodeDecode},
    {QLatin1String("frmCreatTextFiles"), layOutCreatTextFiles},
};
// clang-format on

void layOutPlainly(const FormWindow &window, Container &container)
{
    auto *const box = new QVBoxLayout;
    for (Control *control : container.children()) {
        QWidget *const widget = window.widgetFor(*control);
        const bool onBar = control->kind() == ControlKind::StatusPanel;
        const bool isPage = container.containerControl() && container.containerControl()->kind() == ControlKind::Tabs;
        if (widget && !onBar && !isPage)
            box->addWidget(widget);
        if (auto *inner = dynamic_cast<Container *>(control); inner && control->kind() != ControlKind::MenuItem)
            layOutPlainly(window, *inner);
    }
    box->addStretch(1);
    if (QWidget *const around = window.groundOf(container); !around->layout())
        around->setLayout(box);
    else
        delete box;
}

} // namespace

void layOut(FormWindow &window)
{
    for (const Row &row : layouts) {
        if (window.form().name() == row.form) {
            LayoutBuilder builder(window);
            row.layOut(builder);
            return;
        }
    }
    layOutPlainly(window, window.form());
}

} // namespace zrv
