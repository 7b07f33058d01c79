// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAction>

#include <functional>

class QToolBar;

namespace zrv {

/// The tools of a report's preview, by the numbers under which they are known.
enum class PreviewTool {
    Print = 2,
    SavePdf = 3,
    Find = 6,
    OnePage = 8,
    SeveralPages = 9,
    ZoomOut = 11,
    ZoomIn = 12,
    PreviousPage = 15,
    NextPage = 16,
    FirstPage = 17,
    LastPage = 18,
    Leave = 110,
};

/// Fills the toolbar of a preview: Persian captions and tips, and at its end, behind a separator, the tool that leaves.
/// Each of its actions has the tool's number as data. `use` is called with the tool that the user chose.
void PrepareReportToolbar(QToolBar &bar, const std::function<void(PreviewTool)> &use);

/// The bar's action of a tool.
[[nodiscard]] QAction *toolAction(const QToolBar &bar, PreviewTool tool);

} // namespace zrv
