// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tests/player/command.h"
#include "tests/player/scripted_platform.h"
#include "tests/player/stage.h"

#include <functional>
#include <optional>

namespace zrv::player {

/// What a player of a scenario tells whoever called it.
enum class Status {
    Held = 0,     ///< every expectation held
    Failed = 1,   ///< one did not, or a line could not be carried out
    Unusable = 2, ///< the scenario or the folder can't be used
};

/// Plays one sitting: the lines in turn, on the topmost of the screens that they open.
///
/// A screen's modal run takes the lines that follow the one which opened it, and gives the rest back when the screen
/// has closed; so the lines act on the screens as a user does, without the program knowing of them.
class Player {
public:
    /// `folder` is the sitting's folder as an absolute path; `program` runs the program to its end.
    Player(QString folder, Stage &stage, Transcript &transcript, std::function<void(Platform &)> program);

    /// Plays the lines up to the first that fails.
    Status play(std::vector<Line> lines);
    /// What went wrong, for a reader: place, line, what was expected and what was seen. Empty when all went well.
    [[nodiscard]] const QString &complaint() const { return m_complaint; }

    // For the routines of the lines.
    [[nodiscard]] ScriptedPlatform &platform() { return m_platform; }
    [[nodiscard]] Stage &stage() { return m_stage; }
    [[nodiscard]] Transcript &transcript() { return m_transcript; }
    [[nodiscard]] const QString &folder() const { return m_folder; }
    [[nodiscard]] bool programHasEnded() const { return m_programEnded; }
    std::optional<Box> lastBox;                 ///< the box just expected
    std::shared_ptr<const Preview> lastPreview; ///< the preview just expected; null before the first

    /// Runs the program; the lines behind `start` are played inside.
    void startProgram();
    /// The screen that lines act on, and one of its controls by name; raise LineFailed when there is none.
    [[nodiscard]] Form &topmost();
    [[nodiscard]] Control &control(const QString &name);
    /// The same for a control that the user means to act on: hidden or disabled, it fails the line.
    [[nodiscard]] Control &reachable(const QString &name);
    /// Whether lines behind this one have been played already, because it opened a screen.
    [[nodiscard]] bool isOver(const Line &line) const { return &line != &m_lines[m_next - 1]; }
    /// A path of a line as an absolute one: relative paths start in the sitting's folder, either slash will do.
    [[nodiscard]] QString path(const QString &written) const;

private:
    void letUserAct(Form &form);
    void playNextLine();
    [[nodiscard]] bool atEnd() const { return m_next == m_lines.size(); }
    void complain(const QString &message);

    QString m_folder;
    Stage &m_stage;
    Transcript &m_transcript;
    std::function<void(Platform &)> m_program;
    ScriptedPlatform m_platform;
    std::vector<Line> m_lines;
    size_t m_next = 0;
    QString m_complaint;
    bool m_programEnded = false;
};

/// Fails the line in hand.
[[noreturn]] void failLine(const QString &message);
/// Fails it because something else was seen.
[[noreturn]] void failExpectation(const QString &expected, const QString &seen);

} // namespace zrv::player
