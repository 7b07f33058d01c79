// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/forms/form.h"
#include "tests/player/scripted_platform.h"

#include <optional>

namespace zrv::player {

/// How a sitting's lines reach the screens: headless through the calls of Form, or through real windows. Both do what
/// a user would and answer false when the screen refused it; the player has looked before that the control can be
/// reached.
class Stage {
public:
    virtual ~Stage() = default;

    /// Told once of the platform that the program runs on.
    virtual void attach(Platform &platform) = 0;
    /// Shows a loaded screen, activates it, and lets the user act until the screen is closed.
    virtual void runModal(Form &form, const std::function<void()> &letUserAct) = 0;
    /// A box that the platform answers.
    virtual void boxShows(const Box &box) = 0;
    /// A report's preview, which the user leaves at once.
    virtual void reportShows(const Report &report) = 0;
    virtual void yields() = 0;
    /// Between two lines: what is still on its way to the screens arrives.
    virtual void settle() = 0;

    virtual bool focus(Control &control) = 0;
    virtual bool selectText(Control &control) = 0;
    virtual bool letter(Form &form, QChar letter) = 0;
    virtual bool key(Form &form, Key key) = 0;
    virtual bool paste(Form &form, const QString &text) = 0;
    virtual bool click(Control &control) = 0;
    virtual bool dblClick(Control &control) = 0;
    virtual bool chooseRow(Control &list, int row) = 0;
    virtual bool tickRow(ListBox &list, int row) = 0;
    virtual bool tick(Control &checkOrOption) = 0;
    virtual bool row(Grid &grid, int row) = 0;
    virtual bool line(ReportBox &report, qint64 line) = 0;
    virtual bool head(Grid &grid, int column) = 0;
    virtual bool close(Form &form) = 0;

    /// What the window shows of a control's property, in the words of the scenarios; nothing where it shows none.
    virtual std::optional<QString> shown(const Control &control, QStringView property) = 0;
    virtual std::optional<QString> shownCell(const Grid &grid, int row, int column) = 0;
    /// Saves a picture of the topmost window. True without windows as well, where there is none to save.
    virtual bool picture(const QString &path) = 0;
    /// The same of the preview that was last open.
    virtual bool picturePrint(const QString &path) = 0;
    /// Writes a report as a PDF.
    virtual bool savePdf(const Report &report, const QString &path) = 0;
};

/// No window at all: the calls of Form alone.
class HeadlessStage : public Stage {
public:
    void attach(Platform &) override {}
    void runModal(Form &form, const std::function<void()> &letUserAct) override;
    void boxShows(const Box &) override {}
    void reportShows(const Report &) override {}
    void yields() override {}
    void settle() override {}
    bool focus(Control &control) override;
    bool selectText(Control &control) override;
    bool letter(Form &form, QChar letter) override;
    bool key(Form &form, Key key) override;
    bool paste(Form &form, const QString &text) override;
    bool click(Control &control) override;
    bool dblClick(Control &control) override;
    bool chooseRow(Control &list, int row) override;
    bool tickRow(ListBox &list, int row) override;
    bool tick(Control &checkOrOption) override;
    bool row(Grid &grid, int row) override;
    bool line(ReportBox &report, qint64 line) override;
    bool head(Grid &grid, int column) override;
    bool close(Form &form) override;
    std::optional<QString> shown(const Control &, QStringView) override { return {}; }
    std::optional<QString> shownCell(const Grid &, int, int) override { return {}; }
    bool picture(const QString &) override { return true; }
    bool picturePrint(const QString &) override { return true; }
    bool savePdf(const Report &report, const QString &path) override { return writesPdf && writesPdf(report, path); }

    /// Painting needs what only the window side has, though it makes no window; null where there is none.
    std::function<bool(const Report &, const QString &)> writesPdf;
};

} // namespace zrv::player
