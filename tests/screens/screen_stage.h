// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/screen.h"
#include "tests/core/screens/quiet_platform.h"

#include <memory>
#include <ostream>
#include <vector>

namespace zrv {

/// What a user does to a control on the way to a stage: types into a field, picks a list's row by its code, clicks a
/// button, ticks an option, clicks the head of a grid's column, opens a page.
struct Step {
    const char16_t *control;
    const char16_t *value = u"";
};

/// A stage of a screen in which fields are open, and the button that takes what they hold.
struct Stage {
    const char *name;
    std::unique_ptr<Screen> (*make)(Program &);
    std::vector<Step> way;
    const char16_t *accept;
    bool writes = false; ///< accepting changes the store when all is well
    /// Columns that a field of another name is stored in; else a column's field is txt or dcb and its name.
    struct StoredIn {
        const char16_t *column;
        const char16_t *field;
    };
    std::vector<StoredIn> storedIn = {};
    /// Run on the fresh store, whose payer number is empty, before the screen is opened.
    std::vector<const char16_t *> statements = {};
};

inline void PrintTo(const Stage &stage, std::ostream *out)
{
    *out << stage.name;
}

/// A platform that keeps the boxes; questions are answered with Yes.
class BoxKeeper : public QuietPlatform {
public:
    explicit BoxKeeper(QString folder)
        : m_folder(std::move(folder))
    {
    }

    Answer messageBox(int style, const QString &title, const QString &text) override;
    void runModal(Form &form) override;
    QString programFolder() override { return m_folder; }

    /// The boxes that tell a failed statement.
    [[nodiscard]] const QStringList &failures() const { return m_failures; }
    /// Screens that were opened above the one in hand.
    [[nodiscard]] const QStringList &opened() const { return m_opened; }

private:
    QString m_folder;
    QStringList m_failures;
    QStringList m_opened;
};

/// The stage's screen, open and led to the stage. Fails the test where a step can't be done.
[[nodiscard]] std::unique_ptr<Screen> openAt(const Stage &stage, Program &program);

/// The fields that a user can type in now.
[[nodiscard]] std::vector<Edit *> openFields(const Screen &screen);

} // namespace zrv
