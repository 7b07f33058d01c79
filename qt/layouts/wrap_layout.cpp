// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/layouts/wrap_layout.h"

#include <QStyle>
#include <QWidget>

#include <algorithm>
#include <utility>

namespace zrv {

WrapLayout::~WrapLayout() = default;

void WrapLayout::addItem(QLayoutItem *item)
{
    m_items.push_back({std::unique_ptr<QLayoutItem>(item), m_nextTakesLine});
}

void WrapLayout::addWholeLine(QWidget *widget)
{
    m_nextTakesLine = true;
    addWidget(widget);
    m_nextTakesLine = false;
}

void WrapLayout::addWholeLine(QLayout *layout)
{
    addChildLayout(layout);
    m_items.push_back({std::unique_ptr<QLayoutItem>(layout), true});
}

int WrapLayout::count() const
{
    return static_cast<int>(m_items.size());
}

QLayoutItem *WrapLayout::itemAt(int index) const
{
    return index >= 0 && index < count() ? m_items[static_cast<size_t>(index)].item.get() : nullptr;
}

QLayoutItem *WrapLayout::takeAt(int index)
{
    if (index < 0 || index >= count())
        return nullptr;
    const auto place = m_items.begin() + index;
    QLayoutItem *const taken = place->item.release();
    m_items.erase(place);
    return taken;
}

Qt::Orientations WrapLayout::expandingDirections() const
{
    return {};
}

bool WrapLayout::hasHeightForWidth() const
{
    return true;
}

int WrapLayout::heightForWidth(int width) const
{
    return arrange(QRect(0, 0, width, 0), Move::Measure);
}

QSize WrapLayout::sizeHint() const
{
    return minimumSize();
}

/// The largest item's; how high the layout is depends on the width that it gets.
QSize WrapLayout::minimumSize() const
{
    QSize size;
    for (const Placed &placed : m_items)
        size = size.expandedTo(placed.item->minimumSize());
    return size.grownBy(contentsMargins());
}

void WrapLayout::setGeometry(const QRect &room)
{
    QLayout::setGeometry(room);
    (void)arrange(room, Move::Place);
}

int WrapLayout::heightOf(const QLayoutItem &item, int width)
{
    return item.hasHeightForWidth() ? item.heightForWidth(width) : item.sizeHint().height();
}

/// Goes through the items line by line; returns the height that they need.
int WrapLayout::arrange(const QRect &room, Move move) const
{
    const QRect inner = room.marginsRemoved(contentsMargins());
    const int gap = std::max(0, spacing());
    const bool fromRight = parentWidget() && parentWidget()->layoutDirection() == Qt::RightToLeft;
    int used = 0; // of the width of the current line
    int top = inner.top();
    int lineHeight = 0;
    for (const Placed &placed : m_items) {
        QLayoutItem &item = *placed.item;
        if (item.isEmpty())
            continue;
        const int wanted = std::max(item.sizeHint().width(), item.minimumSize().width());
        const int width = placed.wholeLine ? inner.width() : std::min(wanted, inner.width());
        if (used > 0 && used + width > inner.width()) {
            top += lineHeight + gap;
            used = lineHeight = 0;
        }
        const int height = heightOf(item, width);
        const int left = fromRight ? inner.right() + 1 - used - width : inner.left() + used;
        if (move == Move::Place)
            item.setGeometry(QRect(left, top, width, height));
        used += width + gap;
        lineHeight = std::max(lineHeight, height);
    }
    return top + lineHeight - room.top() + contentsMargins().bottom();
}

} // namespace zrv
