// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/forms/report_box.h"

#include <QAbstractScrollArea>
#include <QBasicTimer>

namespace zrv {

class FormWindow;

/// Draws the lines of a report that are in view, from right to left in lines of one height, and asks for no others. A
/// report may have more lines than a scroll bar has places.
class ReportView : public QAbstractScrollArea {
public:
    ReportView(ReportBox &box, FormWindow &window, QWidget *parent);

    /// The control has another text.
    void showLines();
    /// Another line is current: brings it into view.
    void showCurrent();
    /// Whether the view carries this key out itself.
    [[nodiscard]] static bool keepsKey(const QKeyEvent &event);

    /// The first line in view.
    [[nodiscard]] qint64 topLine() const { return m_top; }
    void bringIntoView(qint64 line);
    /// Where a line lies in the viewport.
    [[nodiscard]] QRect lineRect(qint64 line) const;
    /// Lines that are wholly in view.
    [[nodiscard]] qint64 linesInView() const;

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void scrollContentsBy(int dx, int dy) override;
    void keyPressEvent(QKeyEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void timerEvent(QTimerEvent *event) override;

private:
    [[nodiscard]] int lineHeight() const;
    [[nodiscard]] qint64 lastTop() const;
    [[nodiscard]] const ReportPage &page();
    [[nodiscard]] int barPlace(qint64 top) const;
    [[nodiscard]] qint64 lineAt(int y) const;
    void scrollTo(qint64 top);
    void stepBar(int action);
    void fitBars();
    void paintLine(QPainter &painter, const QRect &room, const QString &text, qint64 line, bool tellsError) const;
    void select(qint64 line, bool extends);
    void selectAll();
    void copy();

    ReportBox &m_box;
    FormWindow &m_window;
    qint64 m_top = 0;
    qint64 m_fitted = 0; ///< lines in view when the bars were last fitted; the current one among them stays there
    int m_widest = 0;    ///< of the lines that were in view so far
    int m_wheeled = 0;
    bool m_stays = false;   ///< what is in view stays, whichever line is current
    QBasicTimer m_dragging; ///< runs while the mouse marks lines beyond the view
};

} // namespace zrv
