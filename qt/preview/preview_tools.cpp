// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/preview/preview_tools.h"

#include <QToolBar>
#include <QWidget>

#include <array>

namespace zrv {

using namespace Qt::Literals::StringLiterals;

namespace {

struct Tool {
    PreviewTool tool;
    QStringView caption;
    bool beginsGroup = false;
};

// clang-format off
constexpr std::array Tools{
    Tool{PreviewTool::Print,        u" چاپ "},
    Tool{PreviewTool::SavePdf,      u"ذخيره PDF"},
    Tool{PreviewTool::Find,         u"جستجو",      true},
    Tool{PreviewTool::OnePage,      u"تک صفحه",   true},
    Tool{PreviewTool::SeveralPages, u"چند صفحه"},
    Tool{PreviewTool::ZoomOut,      u"کوچک نمايي", true},
    Tool{PreviewTool::ZoomIn,       u"بزرگ نمايي"},
    Tool{PreviewTool::FirstPage,    u"صفحه اول",   true},
    Tool{PreviewTool::PreviousPage, u"صفحه قبل"},
    Tool{PreviewTool::NextPage,     u"صفحه بعد"},
    Tool{PreviewTool::LastPage,     u"صفحه آخر"},
    Tool{PreviewTool::Leave,        u"F9 خروج",    true},
};
// clang-format on

} // namespace

void PrepareReportToolbar(QToolBar &bar, const std::function<void(PreviewTool)> &use)
{
    for (const Tool &row : Tools) {
        if (row.beginsGroup)
            bar.addSeparator();
        QAction *const action = bar.addAction(row.caption.toString());
        action->setToolTip(row.caption.toString());
        action->setData(static_cast<int>(row.tool));
        QObject::connect(action, &QAction::triggered, &bar, [use, tool = row.tool] { use(tool); });
        // The tools can be walked through with Tab and used with the blank key.
        bar.widgetForAction(action)->setFocusPolicy(Qt::StrongFocus);
    }
}

QAction *toolAction(const QToolBar &bar, PreviewTool tool)
{
    for (QAction *action : bar.actions())
        if (action->data() == static_cast<int>(tool))
            return action;
    return nullptr;
}

} // namespace zrv
