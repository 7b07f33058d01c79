// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDate>
#include <QSize>
#include <QString>
#include <QStringList>
#include <QTime>

#include <optional>

namespace zrv {

class Form;
class Report;

/// How a box looks and what it asks: a sum of these. Each screen gives its boxes' styles as the number that its
/// users' handbook and its tests name, for example 0x90010.
namespace box {

inline constexpr int Plain = 0;
inline constexpr int YesNo = 4;
inline constexpr int Critical = 0x10;
inline constexpr int Question = 0x20;
inline constexpr int Warning = 0x30;
inline constexpr int Information = 0x40;
inline constexpr int Foreground = 0x10000;
inline constexpr int RightAligned = 0x80000;
inline constexpr int RightToLeft = 0x100000;

inline constexpr int Refusal = Critical | Foreground | RightAligned;   ///< 0x90010
inline constexpr int RefusalRtl = Refusal | RightToLeft;               ///< 0x190010
inline constexpr int Notice = Information | Foreground | RightAligned; ///< 0x90040
inline constexpr int AskYesNo = Question | YesNo;                      ///< 36

} // namespace box

enum class Answer { Ok, Yes, No };

/// How a tool ended: its exit status, and what it wrote.
struct ToolEnd {
    int exitCode = -1; ///< below 0: it couldn't be run, or did not come to its end
    QString output;
    QString errors;
};

/// Everything the screens ask of the world outside: boxes, other windows, files to choose, the clock, settings,
/// the keyboard. The window side has the real one, the tests a scripted one; no screen uses anything else.
class Platform {
public:
    virtual ~Platform() = default;

    /// Shows a box and waits for its answer. A style with box::YesNo answers Yes or No, any other Ok.
    virtual Answer messageBox(int style, const QString &title, const QString &text) = 0;

    /// Shows a loaded form above all others, runs its activate, and lets the user act on it until it is closed.
    virtual void runModal(Form &form) = 0;

    /// Asks for a file that exists, starting in the folder; nothing when the user cancels. The filter is in the
    /// manner "*.TXT"; empty shows all files.
    virtual std::optional<QString> openFileDialog(const QString &folder, const QString &filter) = 0;

    /// Shows a text file in the system's viewer.
    virtual void viewFile(const QString &path) = 0;

    /// Shows a report's pages, from where the user prints them, above all others until the user leaves it.
    virtual void preview(const Report &report) = 0;

    /// Size of the display in pixels.
    virtual QSize displaySize() = 0;
    virtual QDate today() = 0;
    virtual QTime timeOfDay() = 0;
    /// The folder that holds the program and its store, without a separator behind it.
    virtual QString programFolder() = 0;
    /// The file that starts the program.
    virtual QString programFile() = 0;
    virtual QString desktopFolder() = 0;

    /// A per-user setting of the program; `fallback` when it was never saved.
    virtual QString setting(const QString &section, const QString &key, const QString &fallback) = 0;
    virtual void saveSetting(const QString &section, const QString &key, const QString &value) = 0;

    /// Codes of the layouts: 0x04090409 US English, 0x04010401 Arabic, 0x04010429 Persian with the Arabic
    /// keyboard, 0x04290429 Persian. Activating one that the machine lacks does nothing.
    virtual quint32 keyboardLayout() = 0;
    virtual void activateKeyboardLayout(quint32 layout) = 0;

    /// Gives the windows time to draw and the user's input time to come in, inside a long operation. What the
    /// user does to a busy form is dropped (see Form).
    virtual void yield() = 0;

    /// Runs a tool that comes with the program, without a window and in a process of its own, and waits for its end.
    virtual ToolEnd runTool(const QString &tool, const QStringList &words) = 0;
};

} // namespace zrv
