// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/report/report.h"
#include "qt/kept_size.h"
#include "qt/preview/preview_tools.h"

#include <QWidget>

#include <functional>
#include <optional>

class QKeyEvent;
class QLabel;
class QLineEdit;
class QProgressDialog;
class QToolBar;

namespace zrv {

class PageView;
class QtPlatform;

/// The window in which a report is looked at, sought through, printed and saved. Everything can be done with the
/// keyboard: Tab walks through the tools and the blank key uses them; F9 leaves, F3 searches, Page Up and Page Down
/// turn the pages, Home and End go to the first and the last, + and - zoom, Ctrl+P prints.
class PreviewWindow : public QWidget {
public:
    PreviewWindow(const Report &report, QtPlatform &platform, QWidget *parent);

    void open();
    /// What a tool does, whichever way the user came to it.
    void use(PreviewTool tool);

    [[nodiscard]] const Report &report() const { return m_report; }
    [[nodiscard]] QToolBar &toolBar() const { return *m_tools; }
    [[nodiscard]] PageView &view() const { return *m_view; }
    [[nodiscard]] QLineEdit &sought() const { return *m_sought; }
    /// What stands below the pages: the page's number and their count, and how the search went.
    [[nodiscard]] QString pageText() const;
    [[nodiscard]] QString searchText() const;

    /// Writes the PDF to a file and tells of a failure in a box.
    bool saveAs(const QString &path);

protected:
    bool eventFilter(QObject *object, QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    void run(PreviewTool tool);
    bool keyPressed(const QKeyEvent &event, bool inField);
    void find();
    void print();
    void savePdf();
    void showPageText();
    /// Shows how far a long output is; the answer is for paintPages.
    [[nodiscard]] std::function<bool(int page)> progress(QProgressDialog &dialog, int first, int last) const;
    void tell(const QString &text);

    const Report &m_report;
    QtPlatform &m_platform;
    QToolBar *m_tools;
    PageView *m_view;
    QLineEdit *m_sought;
    QLabel *m_found;
    QLabel *m_pageText;
    std::optional<KeptSize> m_keptSize;
};

} // namespace zrv
