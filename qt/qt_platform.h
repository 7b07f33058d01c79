// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The platform of a desktop: real windows and boxes, the machine's clock and folders, the user's settings.
//
// The player of scenarios derives from it: it overrides the boxes, the file choice, the clock, the folders and the
// settings, and waitWhileOpen to act on the windows itself instead of leaving that to a user. A form's window is
// windowOf(form), a control's widget FormWindow::widgetFor(control). After each event that it sends, isEnding()
// tells whether a screen has ended the program; waitWhileOpen must then return, or throwOn().

#include "core/platform/platform.h"

#include <exception>
#include <functional>
#include <memory>
#include <vector>

class QDialog;
class QEventLoop;
class QWidget;

namespace zrv {

class FormWindow;
class PreviewWindow;

class QtPlatform : public Platform {
public:
    QtPlatform();
    ~QtPlatform() override;
    QtPlatform(const QtPlatform &) = delete;
    QtPlatform &operator=(const QtPlatform &) = delete;

    Answer messageBox(int style, const QString &title, const QString &text) override;
    void runModal(Form &form) override;
    std::optional<QString> openFileDialog(const QString &folder, const QString &filter) override;
    void viewFile(const QString &path) override;
    void preview(const Report &report) override;
    QSize displaySize() override;
    QDate today() override;
    QTime timeOfDay() override;
    QString programFolder() override;
    QString programFile() override;
    QString desktopFolder() override;
    QString setting(const QString &section, const QString &key, const QString &fallback) override;
    void saveSetting(const QString &section, const QString &key, const QString &value) override;
    quint32 keyboardLayout() override;
    void activateKeyboardLayout(quint32 layout) override;
    void yield() override;
    ToolEnd runTool(const QString &tool, const QStringList &words) override;

    /// Whether the program lies in a folder of the system, where no user may write: the folder that holds the store is then
    /// one of the user's own.
    [[nodiscard]] static bool isInstalledForAll();

    /// The window of an open form; null when it has none.
    [[nodiscard]] FormWindow *windowOf(const Form &form) const;
    /// The window above all others; null before the first.
    [[nodiscard]] FormWindow *topWindow() const;

    /// The open preview; null when there is none.
    [[nodiscard]] PreviewWindow *previewWindow() const { return m_preview; }

    /// Shows a dialogue of Qt's above all windows and returns when it is closed. One that has a
    /// name and is no box keeps its size.
    void runDialog(QDialog &dialog);

    /// Shows the users' guide, at the form's page, above all windows until the user closes it. Where there is none a box
    /// says where it was looked for.
    void showGuide(const QString &form);

    /// The one way from Qt into a screen's code: nothing that the action throws gets into Qt. A failure is shown in a
    /// box. What is no failure, as ProgramEnd, ends all nested loops and is thrown on by runModal when its own loop is
    /// over.
    void enter(const std::function<void()> &action);
    /// A screen has ended the program; the loops are on their way out.
    [[nodiscard]] bool isEnding() const { return m_thrown != nullptr; }
    /// Throws on what has ended the program; only while isEnding.
    [[noreturn]] void throwOn() const;

protected:
    /// Where the guide may lie, in this order.
    [[nodiscard]] virtual QStringList guideFolders() const;
    /// Returns when the preview is closed or the program is ending.
    virtual void waitWhileOpen(PreviewWindow &window);
    /// Returns when the form is closed or the program is ending. The form's window is shown and activated by then.
    virtual void waitWhileOpen(Form &form);

    /// Runs a loop of events until `isOver` holds or the program is ending; events may change what it says.
    void waitUntil(const std::function<bool()> &isOver);
    /// Lets the innermost waitUntil look again.
    void wake();
    /// What a box or a dialogue is shown above; null before the first window.
    [[nodiscard]] QWidget *foremost() const;

private:
    friend class FormWindow;
    friend class PreviewWindow;
    class SystemsEnd;

    void endWithTheSystem();

    std::unique_ptr<SystemsEnd> m_systemsEnd;
    std::vector<FormWindow *> m_windows; ///< open ones, the topmost last
    PreviewWindow *m_preview = nullptr;
    std::vector<QEventLoop *> m_loops; ///< running ones, the innermost last
    quint32 m_layout = 0;              ///< the layout last asked for, 0 before
    std::exception_ptr m_thrown;       ///< what ended the program
};

} // namespace zrv
