// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/forms/form.h"
#include "core/program.h"

namespace zrv {

/// A form of this program: it knows the run and the platform, reports what its routines let go, and opens
/// other screens above itself.
class Screen : public Form {
public:
    Screen(Program &program, QString name);

    [[nodiscard]] Program &program() const { return m_program; }

    /// Opens a screen of the catalogue above this one and waits until it is closed; then this screen's
    /// activation runs. A screen that the program has not got yet is named in a plain box.
    void openScreen(const QString &name);
    /// The same with a screen that the caller has made and filled.
    void openModal(Screen &screen);

protected:
    Answer messageBox(int style, const QString &title, const QString &text);
    void failed(const RunTimeError &failure) override;

    Program &m_program;
    Platform &m_platform;
};

} // namespace zrv
