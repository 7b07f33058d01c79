// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/platform/platform.h"
#include "core/report/report.h"
#include "tests/player/transcript.h"

#include <QStringList>

#include <deque>
#include <functional>
#include <memory>
#include <vector>

namespace zrv::player {

/// The sitting has come to its end with screens still open: unwinds them, to the player's loop alone.
struct SittingOver {};

/// A line that could not be carried out, or did not find what it expected. Like SittingOver it is no
/// std::exception, so that no handler of errors on the way takes it for one of the program's.
struct LineFailed {
    QString message; ///< one line or several; the place is added by the player
};

/// A line that turned out to make no sense when it was played.
struct LineUnusable {};

/// A box as the program gave it, with the answer it got.
struct Box {
    int style;
    QString title;
    QString text;
    Answer answer;
};

/// A report that was shown in the preview, kept with all its pages: what it was made from may be gone.
class Preview : public Report {
public:
    explicit Preview(const Report &shown);
    [[nodiscard]] int pageCount() const override { return static_cast<int>(m_pages.size()); }
    [[nodiscard]] report::Page page(int number) const override { return m_pages.at(static_cast<size_t>(number)); }

private:
    std::vector<report::Page> m_pages;
};

/// A style as the transcript writes it: decimal, or hexadecimal when it has parts beyond icon and buttons.
[[nodiscard]] QString styleText(int style);

/// The world of a sitting: clock, display, settings and desktop are the scenario's, boxes and file dialogues are
/// answered from what it laid ready. Nothing outside the sitting's folder is touched.
class ScriptedPlatform : public Platform {
public:
    ScriptedPlatform(QString folder, Transcript &transcript);

    // What a scenario lays ready.
    QDate shownDate{2010, 5, 24};
    QTime shownTime{10, 30, 0};
    QSize shownDisplay{1280, 1024};
    std::deque<Answer> answers;
    std::deque<std::optional<QString>> files;

    /// Shows and activates a screen and plays the lines that act on it, until it is closed.
    std::function<void(Form &)> runScreen;
    /// Shows a box on the way to its answer.
    std::function<void(const Box &)> boxShows = [](const Box &) {};
    /// Shows a report until it is left, which is at once.
    std::function<void(const Report &)> reportShows = [](const Report &) {};
    std::function<void()> yields = [] {};

    // What was seen.
    std::deque<Box> boxes;                               ///< not yet expected, the oldest first
    std::deque<std::shared_ptr<const Preview>> previews; ///< likewise
    /// The screen that the user acts on; null before the first and after the last.
    [[nodiscard]] Form *topmost() const { return m_screens.empty() ? nullptr : m_screens.back(); }

    Answer messageBox(int style, const QString &title, const QString &text) override;
    void runModal(Form &form) override;
    std::optional<QString> openFileDialog(const QString &folder, const QString &filter) override;
    void viewFile(const QString &path) override;
    void preview(const Report &report) override;
    QSize displaySize() override { return shownDisplay; }
    QDate today() override { return shownDate; }
    QTime timeOfDay() override { return shownTime; }
    QString programFolder() override { return m_folder; }
    QString programFile() override;
    QString desktopFolder() override;
    QString setting(const QString &section, const QString &key, const QString &fallback) override;
    void saveSetting(const QString &section, const QString &key, const QString &value) override;
    quint32 keyboardLayout() override { return m_layout; }
    void activateKeyboardLayout(quint32 layout) override { m_layout = layout; }
    void yield() override { yields(); }
    /// The real one, which lies beside the player; what it does is seen in the sitting's folder.
    ToolEnd runTool(const QString &tool, const QStringList &words) override;

private:
    QString m_folder;
    Transcript &m_transcript;
    std::vector<Form *> m_screens;
    quint32 m_layout = 0x04090409;
};

} // namespace zrv::player
