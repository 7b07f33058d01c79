// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/preview/page_view.h"

#include "qt/preview/page_painter.h"

#include <QPainter>
#include <QScrollBar>
#include <QTimer>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>
#include <utility>

namespace zrv {

namespace {

constexpr double LeastScale = 0.5;
constexpr double MostScale = 8;            ///< some 200 dots an inch
constexpr int ImageKilobytes = 256 * 1024; ///< more than a view ever shows at once
constexpr double WheelZoom = 1.15;

} // namespace

PageView::PageView(const Report &report, QWidget *parent)
    : QAbstractScrollArea(parent)
    , m_report(report)
    , m_images(ImageKilobytes)
{
    // A page that is wider than the view is read from its right edge; the horizontal bar begins there.
    setLayoutDirection(Qt::RightToLeft);
    setFocusPolicy(Qt::StrongFocus);
    setFrameShape(QFrame::NoFrame);
    viewport()->setAutoFillBackground(false);
}

int PageView::rows() const
{
    return (m_report.pageCount() + columns() - 1) / columns();
}

QSize PageView::pageSize() const
{
    return (m_report.paper() * m_scale).toSize();
}

QRect PageView::paperOf(int page) const
{
    const QSize paper = pageSize();
    const int width = columns() * (paper.width() + Gap) - Gap;
    const int room = viewport()->width();
    const int begin =
        width + 2 * Gap <= room ? (room - width) / 2 : room - Gap - width + horizontalScrollBar()->value();
    // The first page of a row is its rightmost.
    const int column = columns() - 1 - page % columns();
    const int top = Gap + page / columns() * (paper.height() + Gap) - verticalScrollBar()->value();
    return {{begin + column * (paper.width() + Gap), top}, paper};
}

void PageView::arrange()
{
    const QSize paper = pageSize();
    const QSize room = viewport()->size();
    horizontalScrollBar()->setRange(0, std::max(0, columns() * (paper.width() + Gap) + Gap - room.width()));
    horizontalScrollBar()->setPageStep(room.width());
    horizontalScrollBar()->setSingleStep(paper.width() / 20 + 1);
    verticalScrollBar()->setRange(0, std::max(0, rows() * (paper.height() + Gap) + Gap - room.height()));
    verticalScrollBar()->setPageStep(paper.height() + Gap);
    verticalScrollBar()->setSingleStep(paper.height() / 20 + 1);
    viewport()->update();
}

// Moving --------------------------------------------------------------------------------------------------------

void PageView::setPage(int page)
{
    const bool changed = page != m_page;
    m_page = page;
    if (changed && onPageChanged)
        onPageChanged();
}

void PageView::showPage(int page)
{
    page = std::clamp(page, 0, m_report.pageCount() - 1);
    m_moving = true;
    verticalScrollBar()->setValue(page / columns() * (pageSize().height() + Gap));
    m_moving = false;
    setPage(page);
    viewport()->update();
}

void PageView::scrollContentsBy(int dx, int dy)
{
    Q_UNUSED(dx);
    viewport()->update();
    if (m_moving || dy == 0)
        return;
    // The page that holds the upper third of the view is the one that is being read.
    const int reading = verticalScrollBar()->value() + viewport()->height() / 3;
    const int row = std::clamp(reading / (pageSize().height() + Gap), 0, rows() - 1);
    if (row != m_page / columns())
        setPage(row * columns());
}

void PageView::wheelEvent(QWheelEvent *event)
{
    if (event->modifiers() & Qt::ControlModifier) {
        zoom(event->angleDelta().y() > 0 ? WheelZoom : 1 / WheelZoom);
        event->accept();
        return;
    }
    QAbstractScrollArea::wheelEvent(event);
}

// Size ----------------------------------------------------------------------------------------------------------

void PageView::setScale(double scale)
{
    scale = std::clamp(scale, LeastScale, MostScale);
    if (scale != m_scale)
        m_images.clear();
    m_scale = scale;
    m_moving = true;
    arrange();
    m_moving = false;
    showPage(m_page);
}

void PageView::applyFit()
{
    const QSizeF paper = m_report.paper();
    const QSizeF room = viewport()->size() - QSize(2 * Gap, 2 * Gap);
    switch (m_fit) {
    case Fit::Width:
        return setScale(room.width() / paper.width());
    case Fit::OnePage:
        return setScale(std::min(room.width() / paper.width(), room.height() / paper.height()));
    case Fit::SeveralPages:
        return setScale((room.width() - (SeveralColumns - 1) * Gap) / (SeveralColumns * paper.width()));
    case Fit::None:
        arrange();
    }
}

void PageView::setFit(Fit fit)
{
    m_fit = fit;
    applyFit();
}

void PageView::zoom(double factor)
{
    m_fit = Fit::None;
    setScale(m_scale * factor);
}

void PageView::resizeEvent(QResizeEvent *event)
{
    QAbstractScrollArea::resizeEvent(event);
    applyFit();
}

// Marks ---------------------------------------------------------------------------------------------------------

QRect PageView::placeOf(const report::Place &place) const
{
    const report::Page page = m_report.page(place.page);
    const QRectF box = report::boxOf(page.items.at(static_cast<size_t>(place.item)));
    const QRectF inPaper(box.topLeft() * m_scale, box.size() * m_scale);
    return inPaper.translated(paperOf(place.page).topLeft()).toAlignedRect();
}

void PageView::mark(const std::optional<report::Place> &place)
{
    m_marked = place;
    viewport()->update();
    if (!place)
        return;
    if (place->page != m_page)
        showPage(place->page);
    const QRect seen = placeOf(*place);
    const QRect room = viewport()->rect();
    m_moving = true;
    if (!room.contains(seen)) {
        verticalScrollBar()->setValue(verticalScrollBar()->value() + seen.center().y() - room.center().y());
        horizontalScrollBar()->setValue(horizontalScrollBar()->value() + room.center().x() - seen.center().x());
    }
    m_moving = false;
}

// Painting ------------------------------------------------------------------------------------------------------

const QImage *PageView::imageOf(int page)
{
    if (const QImage *known = m_images.object(page))
        return known;
    const double dots = devicePixelRatioF();
    auto *image = new QImage((QSizeF(pageSize()) * dots).toSize(), QImage::Format_RGB32);
    image->fill(Qt::white);
    try {
        QPainter painter(image);
        paintPage(painter, m_report.page(page), m_scale * dots);
    } catch (...) {
        // Qt is painting and can't be thrown through.
        if (!m_failed && onFailure)
            QTimer::singleShot(0, this, [this, failure = std::current_exception()] { onFailure(failure); });
        m_failed = true;
    }
    image->setDevicePixelRatio(dots);
    m_images.insert(page, image, static_cast<int>(std::min<qint64>(image->sizeInBytes() / 1024, ImageKilobytes)));
    return m_images.object(page);
}

void PageView::paintEvent(QPaintEvent *event)
{
    Q_UNUSED(event);
    QPainter painter(viewport());
    painter.fillRect(viewport()->rect(), palette().color(QPalette::Mid));
    // The page that is being read is made first, its neighbours one by one when there is time again.
    bool mayMake = true;
    const auto image = [&](int page) -> const QImage * {
        if (const QImage *known = m_images.object(page))
            return known;
        return std::exchange(mayMake, false) ? imageOf(page) : nullptr;
    };
    image(m_page);
    bool isMissing = false;
    const int height = pageSize().height() + Gap;
    const int firstRow = std::max(0, (verticalScrollBar()->value() - Gap) / height);
    for (int page = firstRow * columns(); page < m_report.pageCount(); ++page) {
        const QRect paper = paperOf(page);
        if (paper.top() > viewport()->height())
            break;
        painter.fillRect(paper.translated(2, 2), palette().color(QPalette::Dark));
        painter.fillRect(paper, Qt::white);
        if (const QImage *const made = image(page))
            painter.drawImage(paper.topLeft(), *made);
        else
            isMissing = true;
    }
    if (m_marked && !m_failed)
        paintMarkOn(painter);
    if (isMissing)
        QTimer::singleShot(0, viewport(), qOverload<>(&QWidget::update));
}

void PageView::paintMarkOn(QPainter &painter) const
{
    // As a marker pen does, it leaves the letters black.
    painter.setCompositionMode(QPainter::CompositionMode_Multiply);
    painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
    painter.setBrush(QColor(0xFF, 0xF0, 0x6E));
    painter.drawRect(placeOf(*m_marked).adjusted(-2, -2, 2, 2));
}

} // namespace zrv
