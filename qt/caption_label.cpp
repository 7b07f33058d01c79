// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/caption_label.h"

#include <QPainter>

#include <cmath>

namespace zrv {

CaptionLabel::CaptionLabel(bool leftToRight, QWidget *parent)
    : QLabel(parent)
    , m_leftToRight(leftToRight)
{
    setTextFormat(Qt::PlainText);
    if (leftToRight) {
        setLayoutDirection(Qt::LeftToRight);
        setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    }
}

void CaptionLabel::setScale(double scale)
{
    m_scale = scale;
    updateGeometry();
}

void CaptionLabel::setCentred()
{
    m_centred = true;
    setAlignment(Qt::AlignCenter);
}

void CaptionLabel::setColumnWidth(int width)
{
    m_columnWidth = width;
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    updateGeometry();
}

/// The fonts of the script leave room for signs above and below that captions do without.
int CaptionLabel::lineDistance() const
{
    return fontMetrics().height() * 3 / 4;
}

int CaptionLabel::layOutLines(QTextLayout &lines, int width) const
{
    QTextOption option;
    option.setTextDirection(Qt::RightToLeft);
    option.setWrapMode(QTextOption::WordWrap);
    lines.setTextOption(option);
    lines.beginLayout();
    for (QTextLine line = lines.createLine(); line.isValid(); line = lines.createLine()) {
        line.setLineWidth(width);
        line.setPosition(QPointF(width - line.naturalTextRect().right(), (lines.lineCount() - 1) * lineDistance()));
    }
    lines.endLayout();
    return lines.lineCount();
}

void CaptionLabel::paintLines(QPainter &painter) const
{
    QTextLayout lines(text(), font());
    const int count = layOutLines(lines, width());
    const double height = (count - 1) * lineDistance() + fontMetrics().height();
    lines.draw(&painter, QPointF(0, (this->height() - height) / 2));
}

bool CaptionLabel::isOneLine() const
{
    return !wordWrap() && !text().contains(u'\n');
}

const QTextLayout &CaptionLabel::shaped() const
{
    if (m_shaped.lineCount() == 0 || m_shaped.text() != text() || m_shaped.font() != font()) {
        QTextOption option;
        option.setTextDirection(m_leftToRight ? Qt::LeftToRight : Qt::RightToLeft);
        option.setWrapMode(QTextOption::NoWrap);
        m_shaped.setText(text());
        m_shaped.setFont(font());
        m_shaped.setTextOption(option);
        m_shaped.setCacheEnabled(true);
        m_shaped.beginLayout();
        m_shaped.createLine();
        m_shaped.endLayout();
    }
    return m_shaped;
}

QSize CaptionLabel::lineSize() const
{
    const int around = 2 * (frameWidth() + margin());
    const QMargins margins = contentsMargins();
    const double width = text().isEmpty() ? 0 : shaped().lineAt(0).naturalTextWidth();
    return {static_cast<int>(std::ceil(width * m_scale)) + around + margins.left() + margins.right()
                + 2 * std::max(0, indent()),
            static_cast<int>(std::ceil(fontMetrics().height() * m_scale)) + around + margins.top() + margins.bottom()};
}

QSize CaptionLabel::sizeHint() const
{
    if (m_columnWidth > 0) {
        QTextLayout lines(text(), font());
        return {m_columnWidth, layOutLines(lines, m_columnWidth) * lineDistance() + 2};
    }
    // A heading that has to wrap is measured unscaled; that is only the narrow display's case.
    return isOneLine() ? lineSize() : QLabel::sizeHint();
}

QSize CaptionLabel::minimumSizeHint() const
{
    if (m_columnWidth > 0)
        return sizeHint();
    if (m_leftToRight)
        return {0, lineSize().height()};
    return isOneLine() ? lineSize() : QLabel::minimumSizeHint();
}

void CaptionLabel::paintEvent(QPaintEvent *event)
{
    if (!isOneLine()) {
        QLabel::paintEvent(event);
        return;
    }
    QPainter painter(this);
    drawFrame(&painter);
    if (text().isEmpty())
        return;
    painter.setPen(palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, foregroundRole()));
    if (m_columnWidth > 0) {
        paintLines(painter);
        return;
    }
    const int side = margin() + std::max(0, indent());
    const QRectF room = contentsRect().adjusted(side, 0, -side, 0);
    const QTextLine line = shaped().lineAt(0);
    const double width = line.naturalTextWidth() * m_scale;
    if (width > room.width() && !m_centred) {
        const Qt::TextElideMode where = m_leftToRight ? Qt::ElideMiddle : Qt::ElideRight;
        const int direction = m_leftToRight ? Qt::TextForceLeftToRight : Qt::TextForceRightToLeft;
        painter.drawText(room, Qt::AlignRight | Qt::AlignAbsolute | Qt::AlignVCenter | direction,
                         fontMetrics().elidedText(text(), where, static_cast<int>(room.width())));
        return;
    }
    // A line of open width begins at the left whatever its direction.
    const double left = m_centred ? room.center().x() - width / 2 : room.right() - width;
    painter.translate(left, room.center().y() - line.height() * m_scale / 2);
    painter.scale(m_scale, m_scale);
    shaped().draw(&painter, QPointF(-line.naturalTextRect().left(), 0));
}

} // namespace zrv
