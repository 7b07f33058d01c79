// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/qt_platform.h"

#include "core/basic/run_time_error.h"
#include "core/mdlError.h"
#include "core/platform/tool_process.h"
#include "qt/file_dialog.h"
#include "qt/form_window.h"
#include "qt/guide_viewer.h"
#include "qt/kept_size.h"
#include "qt/look.h"
#include "qt/preview/preview_window.h"

#include <QApplication>
#include <QDesktopServices>
#include <QDir>
#include <QEventLoop>
#include <QFileInfo>
#include <QMessageBox>
#include <QScreen>
#include <QSettings>
#include <QStandardPaths>
#include <QUrl>

#include <algorithm>

namespace zrv {

using namespace Qt::Literals::StringLiterals;

namespace {

/// The screens write paths with the separator of their users' handbook.
QString nativePath(QString path)
{
    return path.replace(u'\\', u'/');
}

QSettings userSettings()
{
    return {QSettings::IniFormat, QSettings::UserScope, u"RegZRVClient"_s, u"RegZRVClient"_s};
}

} // namespace

/// Hears when the system asks the whole program to end, as when its user logs out of the desktop. Qt would close window
/// after window as their user does, and wait at the first question.
class QtPlatform::SystemsEnd : public QObject {
public:
    explicit SystemsEnd(QtPlatform &platform)
        : m_platform(platform)
    {
        qApp->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject *object, QEvent *event) override
    {
        if (object != qApp || event->type() != QEvent::Quit)
            return false;
        m_platform.endWithTheSystem();
        return true;
    }

private:
    QtPlatform &m_platform;
};

QtPlatform::QtPlatform()
    : m_systemsEnd(std::make_unique<SystemsEnd>(*this))
{
}

QtPlatform::~QtPlatform() = default;

// Windows -------------------------------------------------------------------------------------------------------

void QtPlatform::runModal(Form &form)
{
    if (m_windows.empty())
        m_thrown = nullptr;
    FormWindow window(form, *this, topWindow());
    m_windows.push_back(&window);
    struct Leave {
        std::vector<FormWindow *> &windows;
        ~Leave() { windows.pop_back(); }
    } const leave{m_windows};
    window.open();
    // The login, whose details of the user are nobody's business any more.
    if (window.windowType() == Qt::Window && window.parentWidget())
        window.parentWidget()->hide();
    form.activate();
    window.syncFocus();
    if (form.isOpen() && !isEnding())
        waitWhileOpen(form);
    if (isEnding())
        throwOn();
}

void QtPlatform::waitWhileOpen(Form &form)
{
    waitUntil([&form] { return !form.isOpen(); });
}

void QtPlatform::waitUntil(const std::function<bool()> &isOver)
{
    while (!isOver() && !isEnding()) {
        QEventLoop loop;
        m_loops.push_back(&loop);
        loop.exec();
        m_loops.pop_back();
    }
}

void QtPlatform::wake()
{
    for (QEventLoop *loop : m_loops)
        loop->quit();
}

void QtPlatform::throwOn() const
{
    std::rethrow_exception(m_thrown);
}

void QtPlatform::enter(const std::function<void()> &action)
{
    try {
        try {
            action();
        } catch (const RunTimeError &failure) {
            ShowUnknownError(*this, failure);
        } catch (const std::exception &failure) {
            ShowUnknownError(*this, RunTimeError(error::InvalidProcedureCall, QString::fromUtf8(failure.what())));
        }
    } catch (...) {
        // ProgramEnd, or what a driver of the windows throws to leave the screens.
        m_thrown = std::current_exception();
        wake();
    }
}

FormWindow *QtPlatform::windowOf(const Form &form) const
{
    const auto place =
        std::ranges::find_if(m_windows, [&](const FormWindow *window) { return &window->form() == &form; });
    return place == m_windows.end() ? nullptr : *place;
}

FormWindow *QtPlatform::topWindow() const
{
    return m_windows.empty() ? nullptr : m_windows.back();
}

QWidget *QtPlatform::foremost() const
{
    return m_preview ? static_cast<QWidget *>(m_preview) : topWindow();
}

void QtPlatform::runDialog(QDialog &dialog)
{
    dialog.setWindowModality(Qt::ApplicationModal);
    QObject::connect(&dialog, &QDialog::finished, &dialog, [this] { wake(); });
    std::optional<KeptSize> keptSize;
    if (!dialog.objectName().isEmpty() && !qobject_cast<QMessageBox *>(&dialog)) {
        if (!dialog.testAttribute(Qt::WA_Resized))
            dialog.adjustSize();
        keptSize.emplace(dialog, *this, dialog.objectName());
    }
    dialog.show();
    waitUntil([&] { return !dialog.isVisible(); });
    if (isEnding())
        throwOn();
}

void QtPlatform::preview(const Report &report)
{
    PreviewWindow window(report, *this, topWindow());
    m_preview = &window;
    struct Leave {
        PreviewWindow *&preview;
        ~Leave() { preview = nullptr; }
    } const leave{m_preview};
    window.open();
    waitWhileOpen(window);
    if (isEnding())
        throwOn();
}

void QtPlatform::waitWhileOpen(PreviewWindow &window)
{
    waitUntil([&window] { return !window.isVisible(); });
}

/// Screen after screen is left without a question. One that is in the midst of something goes on to its next box or
/// to its end.
void QtPlatform::endWithTheSystem()
{
    for (auto window = m_windows.rbegin(); window != m_windows.rend() && !isEnding(); ++window)
        enter([&] { (*window)->form().unload(UnloadMode::SystemShutdown); });
    if (!isEnding())
        enter([] { throw ProgramEnd{}; });
}

void QtPlatform::yield()
{
    QCoreApplication::processEvents();
}

// The guide -----------------------------------------------------------------------------------------------------

/// Beside the program, beside the program that a branch's copy lies under, or where a package puts it.
QStringList QtPlatform::guideFolders() const
{
    const QString program = QCoreApplication::applicationDirPath();
    QStringList folders{program + u"/guide"_s, program + u"/../guide"_s, program + u"/../share/zrvclient/guide"_s};
    // A branch's copy of a packaged program lies with its user's data.
    const QString packaged = QStandardPaths::locate(QStandardPaths::GenericDataLocation, u"zrvclient/guide"_s,
                                                    QStandardPaths::LocateDirectory);
    if (!packaged.isEmpty())
        folders += packaged;
    return folders;
}

void QtPlatform::showGuide(const QString &form)
{
    const QStringList candidates = guideFolders();
    const QString folder = guideFolder(candidates);
    if (folder.isEmpty()) {
        QStringList clean;
        for (const QString &candidate : candidates)
            clean += QDir::toNativeSeparators(QDir::cleanPath(candidate));
        messageBox(
            box::Refusal, u" اخطار  "_s,
            u"راهنماي برنامه در هيچ يک از پوشه هاي زير يافت نشد. لطفا پوشه guide را کنار برنامه کپي نماييد :\r\n"_s
                + clean.join(u"\r\n"_s));
        return;
    }
    GuideViewer guide(folder, form, foremost());
    runDialog(guide);
}

// Files ---------------------------------------------------------------------------------------------------------

std::optional<QString> QtPlatform::openFileDialog(const QString &folder, const QString &filter)
{
    look::speakPersian();
    FileDialog dialog(foremost(), nativePath(folder), filter);
    dialog.setFileMode(QFileDialog::ExistingFile);
    runDialog(dialog);
    if (dialog.result() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return std::nullopt;
    return dialog.selectedFiles().constFirst();
}

ToolEnd QtPlatform::runTool(const QString &tool, const QStringList &words)
{
    return runToolIn(QCoreApplication::applicationDirPath(), tool, words);
}

void QtPlatform::viewFile(const QString &path)
{
    QDesktopServices::openUrl(QUrl::fromLocalFile(QFileInfo(nativePath(path)).absoluteFilePath()));
}

bool QtPlatform::isInstalledForAll()
{
    return QFileInfo::exists(QCoreApplication::applicationDirPath() + u"/../share/applications/zrvclient.desktop"_s);
}

QString QtPlatform::programFolder()
{
    return isInstalledForAll()
               ? QString(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + u"/ZRVClient"_s)
               : QCoreApplication::applicationDirPath();
}

QString QtPlatform::programFile()
{
    return QCoreApplication::applicationFilePath();
}

QString QtPlatform::desktopFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::DesktopLocation);
}

// The machine ---------------------------------------------------------------------------------------------------

QSize QtPlatform::displaySize()
{
    const QScreen *const display = QGuiApplication::primaryScreen();
    return display->size() * display->devicePixelRatio();
}

QDate QtPlatform::today()
{
    return QDate::currentDate();
}

QTime QtPlatform::timeOfDay()
{
    return QTime::currentTime();
}

QString QtPlatform::setting(const QString &section, const QString &key, const QString &fallback)
{
    return userSettings().value(section + u"/"_s + key, fallback).toString();
}

void QtPlatform::saveSetting(const QString &section, const QString &key, const QString &value)
{
    QSettings settings = userSettings();
    settings.setValue(section + u"/"_s + key, value);
}

} // namespace zrv
