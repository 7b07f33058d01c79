// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "files/frmReadTextFiles.h"

namespace zrv {

/// What the screen has for each of the two kinds of file.
struct frmReadTextFiles::FileControls {
    QString &path; ///< what checks and loads read
    Label &label;
    Button &show;
    Page contentsPage;
    QString &shown; ///< the file whose contents are in the grid; empty without contents
    Page reportPage;
    ReportBox &box;
    std::shared_ptr<CheckReport> &report;
    QString &checked; ///< the file that the report speaks of
};

} // namespace zrv
