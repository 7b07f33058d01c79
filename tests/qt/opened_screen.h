// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// Every screen of the program in its real window, for what has to hold of all of them: as it comes up over a store that
// holds a little of everything, and at each of its stages in which fields are open.

#include "tests/qt/window_fixture.h"
#include "tests/screens/field_stages.h"

#include <QTemporaryDir>

namespace zrv::test {

/// A screen of the catalogue as it comes up, or a stage.
struct ScreenCase {
    std::string name; ///< of the screen or of the stage
    const Stage *stage = nullptr;
};

[[nodiscard]] std::vector<ScreenCase> allScreens();
[[nodiscard]] std::vector<ScreenCase> allScreensAndStages();

inline void PrintTo(const ScreenCase &screen, std::ostream *out)
{
    *out << screen.name;
}

/// The window's platform, with the guide of this tree.
class GuidePlatform : public QuietPlatform {
protected:
    [[nodiscard]] QStringList guideFolders() const override;
};

class OpenedScreen {
public:
    explicit OpenedScreen(const ScreenCase &opened);

private:
    [[nodiscard]] std::unique_ptr<Screen> make(const ScreenCase &opened);

    const QTemporaryDir m_folder;
    BoxKeeper m_boxes{m_folder.path()};
    Program m_program{m_boxes};

public:
    GuidePlatform platform;
    const std::unique_ptr<Screen> screen;
    FormWindow window;

    /// Controls that a user can move the focus to, in tab order.
    [[nodiscard]] std::vector<Control *> stops() const;
};

} // namespace zrv::test
