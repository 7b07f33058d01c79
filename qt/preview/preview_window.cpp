// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/preview/preview_window.h"

#include "core/platform/platform.h"
#include "qt/file_dialog.h"
#include "qt/look.h"
#include "qt/preview/page_view.h"
#include "qt/preview/report_pdf.h"
#include "qt/qt_platform.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPageLayout>
#include <QPrintDialog>
#include <QPrinter>
#include <QProgressDialog>
#include <QSaveFile>
#include <QScopeGuard>
#include <QScreen>
#include <QToolBar>

#include <algorithm>
#include <array>

namespace zrv {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr double ZoomStep = 1.25;

/// A key of the preview. Those that write or move in a field belong to the field while it has the focus.
struct ToolKey {
    int key;
    Qt::KeyboardModifiers modifiers;
    PreviewTool tool;
    bool ofFields = false;
};

// clang-format off
constexpr std::array ToolKeys{
    ToolKey{Qt::Key_F9,       Qt::NoModifier,      PreviewTool::Leave},
    ToolKey{Qt::Key_F3,       Qt::NoModifier,      PreviewTool::Find},
    ToolKey{Qt::Key_F,        Qt::ControlModifier, PreviewTool::Find},
    ToolKey{Qt::Key_P,        Qt::ControlModifier, PreviewTool::Print},
    ToolKey{Qt::Key_PageUp,   Qt::NoModifier,      PreviewTool::PreviousPage},
    ToolKey{Qt::Key_PageDown, Qt::NoModifier,      PreviewTool::NextPage},
    ToolKey{Qt::Key_Home,     Qt::NoModifier,      PreviewTool::FirstPage, true},
    ToolKey{Qt::Key_End,      Qt::NoModifier,      PreviewTool::LastPage,  true},
    ToolKey{Qt::Key_Plus,     Qt::NoModifier,      PreviewTool::ZoomIn,    true},
    ToolKey{Qt::Key_Minus,    Qt::NoModifier,      PreviewTool::ZoomOut,   true},
};
// clang-format on

} // namespace

PreviewWindow::PreviewWindow(const Report &report, QtPlatform &platform, QWidget *parent)
    : QWidget(parent, Qt::Window)
    , m_report(report)
    , m_platform(platform)
    , m_tools(new QToolBar(this))
    , m_view(new PageView(report, this))
    , m_sought(new QLineEdit(this))
    , m_found(new QLabel(this))
    , m_pageText(new QLabel(this))
{
    setObjectName(report.name());
    setWindowTitle(report.title());
    setWindowModality(Qt::ApplicationModal);
    PrepareReportToolbar(*m_tools, [this](PreviewTool tool) { use(tool); });
    m_sought->setObjectName(u"sought"_s);
    m_sought->setPlaceholderText(toolAction(*m_tools, PreviewTool::Find)->text());
    m_sought->setAccessibleName(m_sought->placeholderText());
    m_pageText->setTextFormat(Qt::PlainText);
    m_found->setTextFormat(Qt::PlainText);

    auto *const foot = new QHBoxLayout;
    foot->setContentsMargins(8, 4, 8, 4);
    foot->addWidget(m_sought, 1);
    foot->addWidget(m_found, 2);
    foot->addWidget(m_pageText);
    auto *const all = new QVBoxLayout(this);
    all->setContentsMargins(0, 0, 0, 0);
    all->setSpacing(0);
    all->addWidget(m_tools);
    all->addWidget(m_view, 1);
    all->addLayout(foot);

    m_view->installEventFilter(this);
    m_sought->installEventFilter(this);
    connect(m_sought, &QLineEdit::returnPressed, this, [this] { use(PreviewTool::Find); });
    m_view->onPageChanged = [this] { showPageText(); };
    m_view->onFailure = [this](const std::exception_ptr &failure) {
        m_platform.enter([&] { std::rethrow_exception(failure); });
        close();
    };
    showPageText();
}

void PreviewWindow::open()
{
    const QRect room =
        (parentWidget() ? parentWidget()->screen() : QGuiApplication::primaryScreen())->availableGeometry();
    // Where a display manager does not know of maximised windows, the window has a size of use all the same.
    setGeometry(room.adjusted(room.width() / 20, room.height() / 20, -room.width() / 20, -room.height() / 20));
    setWindowState(Qt::WindowMaximized);
    m_keptSize.emplace(*this, m_platform, m_report.name());
    show();
    m_view->setFocus();
}

QString PreviewWindow::pageText() const
{
    return m_pageText->text();
}

QString PreviewWindow::searchText() const
{
    return m_found->text();
}

void PreviewWindow::showPageText()
{
    m_pageText->setText(u"صفحه %1 از %2"_s.arg(m_view->currentPage() + 1).arg(m_report.pageCount()));
}

// Tools ---------------------------------------------------------------------------------------------------------

void PreviewWindow::use(PreviewTool tool)
{
    m_platform.enter([&] { run(tool); });
}

void PreviewWindow::run(PreviewTool tool)
{
    switch (tool) {
    case PreviewTool::Print:
        return print();
    case PreviewTool::SavePdf:
        return savePdf();
    case PreviewTool::Find:
        return find();
    case PreviewTool::OnePage:
        return m_view->setFit(PageView::Fit::OnePage);
    case PreviewTool::SeveralPages:
        return m_view->setFit(PageView::Fit::SeveralPages);
    case PreviewTool::ZoomOut:
        return m_view->zoom(1 / ZoomStep);
    case PreviewTool::ZoomIn:
        return m_view->zoom(ZoomStep);
    case PreviewTool::FirstPage:
        return m_view->showPage(0);
    case PreviewTool::PreviousPage:
        return m_view->showPage(m_view->currentPage() - 1);
    case PreviewTool::NextPage:
        return m_view->showPage(m_view->currentPage() + 1);
    case PreviewTool::LastPage:
        return m_view->showPage(m_report.pageCount() - 1);
    case PreviewTool::Leave:
        close();
    }
}

void PreviewWindow::find()
{
    if (m_sought->text().trimmed().isEmpty()) {
        m_sought->setFocus();
        return;
    }
    QApplication::setOverrideCursor(Qt::WaitCursor);
    const auto restore = qScopeGuard([] { QApplication::restoreOverrideCursor(); });
    m_view->mark(report::findText(m_report, m_sought->text(), m_view->marked()));
    m_found->setText(m_view->marked() ? QString() : u"متن مورد نظر يافت نشد"_s);
}

// Keys ----------------------------------------------------------------------------------------------------------

bool PreviewWindow::keyPressed(const QKeyEvent &event, bool inField)
{
    for (const ToolKey &row : ToolKeys) {
        if (row.key != event.key() || (row.ofFields && inField))
            continue;
        if ((event.modifiers() & ~(Qt::KeypadModifier | Qt::ShiftModifier)) != row.modifiers)
            continue;
        use(row.tool);
        return true;
    }
    return false;
}

bool PreviewWindow::eventFilter(QObject *object, QEvent *event)
{
    return event->type() == QEvent::KeyPress && keyPressed(static_cast<const QKeyEvent &>(*event), object == m_sought);
}

void PreviewWindow::keyPressEvent(QKeyEvent *event)
{
    if (!keyPressed(*event, false))
        QWidget::keyPressEvent(event);
}

void PreviewWindow::closeEvent(QCloseEvent *event)
{
    QWidget::closeEvent(event);
    m_platform.wake();
}

// Output --------------------------------------------------------------------------------------------------------

std::function<bool(int page)> PreviewWindow::progress(QProgressDialog &dialog, int first, int last) const
{
    dialog.setWindowModality(Qt::ApplicationModal);
    dialog.setWindowTitle(m_report.title());
    dialog.setLabelText(m_pageText->text());
    dialog.setCancelButtonText(u"انصراف"_s);
    dialog.setRange(first, last + 1);
    return [&dialog](int page) {
        dialog.setValue(page);
        return !dialog.wasCanceled();
    };
}

void PreviewWindow::tell(const QString &text)
{
    m_platform.messageBox(box::Refusal, u" اخطار  "_s, text);
}

void PreviewWindow::print()
{
    look::speakPersian();
    const int pages = m_report.pageCount();
    QPrinter printer(QPrinter::HighResolution);
    printer.setDocName(m_report.title());
    const QSizeF paper = m_report.paper();
    const bool wide = paper.width() > paper.height();
    printer.setPageSize(QPageSize(wide ? paper.transposed() : paper, QPageSize::Millimeter));
    printer.setPageOrientation(wide ? QPageLayout::Landscape : QPageLayout::Portrait);
    printer.setFullPage(true);
    QPrintDialog dialog(&printer, this);
    dialog.setMinMax(1, pages);
    dialog.setFromTo(1, pages);
    m_platform.runDialog(dialog);
    if (dialog.result() != QDialog::Accepted)
        return;
    const bool range = printer.printRange() == QPrinter::PageRange && printer.fromPage() > 0;
    const int first = range ? std::min(printer.fromPage(), pages) - 1 : 0;
    const int last = range ? std::clamp(printer.toPage(), first + 1, pages) - 1 : pages - 1;
    QProgressDialog window(this);
    const auto goesOn = progress(window, first, last);
    if (!paintPages(m_report, printer, printer.resolution(), first, last, goesOn)) {
        printer.abort();
        if (!window.wasCanceled())
            tell(u"چاپ انجام نشد"_s);
    }
}

void PreviewWindow::savePdf()
{
    look::speakPersian();
    FileDialog dialog(this, m_platform.desktopFolder(), u"*.pdf"_s);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(u"pdf"_s);
    dialog.selectFile(m_report.name() + u".pdf"_s);
    m_platform.runDialog(dialog);
    if (dialog.result() == QDialog::Accepted && !dialog.selectedFiles().isEmpty())
        saveAs(dialog.selectedFiles().constFirst());
}

bool PreviewWindow::saveAs(const QString &path)
{
    // A file that can't be written whole leaves the one that was there before.
    QSaveFile file(path);
    QProgressDialog window(this);
    const auto goesOn = progress(window, 0, m_report.pageCount() - 1);
    if (file.open(QIODevice::WriteOnly) && writePdf(m_report, file, goesOn) && file.commit())
        return true;
    if (!window.wasCanceled())
        tell(u"ذخيره فايل انجام نشد : "_s + file.errorString());
    return false;
}

} // namespace zrv
