// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// How the program looks: one font, one palette, one style for all windows. Colours of fields come from the screens
// (core/forms/color.h); everything else is here.

#include "core/forms/color.h"

#include <QPalette>
#include <QWidget>

class QApplication;
class QPainter;

namespace zrv::look {

/// Persian first, right to left, whatever the desktop's language is. Called once, before the first window.
void setUp(QApplication &application);

/// Loads Qt's own Persian texts, which only its file dialogue and its print preview show. Costs time, so it is not
/// part of the start.
void speakPersian();

/// The palette of the program; tests look at its contrasts.
[[nodiscard]] QPalette palette();

/// Gives a field its ground and letters. A disabled field keeps the palette's grey, unless the ground is a mark of what
/// the field holds: that is there to be seen also where the amount follows from another and can't be typed.
void colorField(QWidget &field, Color back, Color text);

/// A screen's title.
void makeHeading(QWidget &label);
/// A line of its own in the middle of the window.
void makeNote(QWidget &label);
/// A remark that steps back behind the fields.
void makeRemark(QWidget &label);
/// A value that the program shows and nobody types.
void makeValue(QWidget &label);
/// A field in which typing starts a search: it wears the red border by which tooltips speak of these.
void makeSearching(QWidget &field);
/// A button that leads to another screen: tall, so that it is found by eye, with its drawing before its caption.
void makeTile(QWidget &button);

/// The program's mark, as large as its letters ask.
[[nodiscard]] QSize markSize(const QWidget &widget);
void paintMark(QPainter &painter, const QRect &room);

/// A group that no control stands for.
class Panel : public QWidget {
public:
    using QWidget::QWidget;

protected:
    void paintEvent(QPaintEvent *event) override;
};

/// What the widgets of a window lie on; with a drawing behind them if the screen wants one.
class Ground : public QWidget {
public:
    using QWidget::QWidget;
    void setDrawn(bool drawn) { m_drawn = drawn; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    bool m_drawn = false;
};

} // namespace zrv::look
