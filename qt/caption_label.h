// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>
#include <QTextLayout>

namespace zrv {

/// A label in the program's one font. A heading is that font drawn larger: a second size would have to be found and
/// loaded for each script, which is most of what a start costs.
class CaptionLabel : public QLabel {
public:
    CaptionLabel(bool leftToRight, QWidget *parent);

    void setScale(double scale);
    /// Text in the middle of its line; wraps only where the display is too narrow for it, see FormWindow::open.
    void setCentred();
    [[nodiscard]] bool isCentred() const { return m_centred; }
    /// A long caption beside its field: at least so wide, it wraps to lines that stand close.
    void setColumnWidth(int width);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    [[nodiscard]] bool isOneLine() const;
    [[nodiscard]] int lineDistance() const;
    /// Lays the text out in lines of this width; returns how many there are.
    int layOutLines(QTextLayout &lines, int width) const;
    void paintLines(QPainter &painter) const;
    [[nodiscard]] QSize lineSize() const;
    /// The text with its letters joined, which is done once for measuring and painting.
    [[nodiscard]] const QTextLayout &shaped() const;

    mutable QTextLayout m_shaped;
    double m_scale = 1;
    int m_columnWidth = 0;
    bool m_leftToRight; ///< a path or a code, cut in its middle where the window is too narrow
    bool m_centred = false;
};

} // namespace zrv
