// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/report/find_text.h"

#include <QAbstractScrollArea>
#include <QCache>
#include <QImage>

#include <exception>
#include <functional>
#include <optional>

namespace zrv {

/// The pages of a report, one below the other or several side by side. Only those that are seen are made.
class PageView : public QAbstractScrollArea {
public:
    PageView(const Report &report, QWidget *parent);

    /// The page at the top of the view, from 0.
    [[nodiscard]] int currentPage() const { return m_page; }
    /// Brings a page to the top; one beyond the report's ends is the last or the first.
    void showPage(int page);

    /// A page as wide as the view, a whole page in the view, or several side by side. Each holds until the next zoom,
    /// also when the window changes its size.
    enum class Fit { Width, OnePage, SeveralPages, None };
    void setFit(Fit fit);
    void zoom(double factor);

    /// Marks an item and brings it into the view; nothing takes the mark away.
    void mark(const std::optional<report::Place> &place);
    [[nodiscard]] const std::optional<report::Place> &marked() const { return m_marked; }
    /// Where an item is seen in the viewport.
    [[nodiscard]] QRect placeOf(const report::Place &place) const;

    std::function<void()> onPageChanged;
    /// A page could not be made. Called when painting is over.
    std::function<void(std::exception_ptr)> onFailure;

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void scrollContentsBy(int dx, int dy) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    [[nodiscard]] int columns() const { return m_fit == Fit::SeveralPages ? SeveralColumns : 1; }
    [[nodiscard]] int rows() const;
    [[nodiscard]] QSize pageSize() const;
    /// The page's paper in the viewport.
    [[nodiscard]] QRect paperOf(int page) const;
    const QImage *imageOf(int page);
    void paintMarkOn(QPainter &painter) const;
    void applyFit();
    void setScale(double scale);
    void setPage(int page);
    void arrange();

    static constexpr int SeveralColumns = 3;
    static constexpr int Gap = 12;

    const Report &m_report;
    Fit m_fit = Fit::Width;
    double m_scale = 3; ///< pixels a millimetre
    int m_page = 0;
    bool m_moving = false; ///< scrolling to a page that was asked for
    bool m_failed = false;
    std::optional<report::Place> m_marked;
    QCache<int, QImage> m_images;
};

} // namespace zrv
