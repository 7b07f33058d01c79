// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tests/forgetful_platform.h"
#include "tests/player/stage.h"

#include <QPixmap>

#include <map>

class QAbstractItemView;
class QPoint;

namespace zrv::player {

/// The windows of a sitting: those of the program, waited on by the player in place of a user.
class WindowPlatform : public ForgetfulPlatform {
public:
    /// Boxes that the windows themselves raise go where the program's go.
    Platform *boxes = nullptr;
    /// What acts on each open screen in place of the user.
    std::map<Form *, std::function<void()>> users;
    /// What the last preview looked like.
    QPixmap lastPreview;

    Answer messageBox(int style, const QString &title, const QString &text) override
    {
        return boxes->messageBox(style, title, text);
    }
    /// Shows the real box and presses the button that gives this answer. Raises LineFailed when the box shows anything
    /// else than it was told.
    void showBox(const Box &box);
    /// Shows the real preview and leaves it by its key. Raises LineFailed when it does not show what it was told.
    void showReport(const Report &report);

protected:
    void waitWhileOpen(Form &form) override;
};

/// Plays on real windows: the user's keys and clicks are events sent to the widgets, whose names are the controls'
/// names; what they show is read from them.
class WidgetStage : public Stage {
public:
    void attach(Platform &platform) override { m_platform.boxes = &platform; }
    void runModal(Form &form, const std::function<void()> &letUserAct) override;
    void boxShows(const Box &box) override { m_platform.showBox(box); }
    void reportShows(const Report &report) override { m_platform.showReport(report); }
    void yields() override { m_platform.yield(); }
    void settle() override;
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
    std::optional<QString> shown(const Control &control, QStringView property) override;
    std::optional<QString> shownCell(const Grid &grid, int row, int column) override;
    bool picture(const QString &path) override;
    bool picturePrint(const QString &path) override;
    bool savePdf(const Report &report, const QString &path) override;

private:
    [[nodiscard]] FormWindow &windowOf(const Form &form) const;
    /// The widget that is clicked for a control; fails the line when the window shows it hidden or disabled.
    [[nodiscard]] QWidget &usable(const Control &control) const;
    void press(Form &form, int key, Qt::KeyboardModifiers modifiers, const QString &text);
    void mouse(QWidget &widget, const QPoint &place, bool twice = false);
    void cell(QAbstractItemView &view, int row, int column, bool twice = false);
    void clickLine(ReportBox &report, qint64 line, bool twice);
    bool chooseInCombo(Combo &combo, int row);
    /// What an event has thrown is held back while Qt is on the way; here it goes on.
    void afterEvent() const;

    WindowPlatform m_platform;
};

} // namespace zrv::player
