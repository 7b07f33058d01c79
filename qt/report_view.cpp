// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/report_view.h"

#include "qt/edit_menu.h"
#include "qt/form_window.h"
#include "qt/qt_platform.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QStyleHints>
#include <QTimerEvent>

#include <algorithm>

namespace zrv {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int Margin = 4; ///< at both ends of a line, in pixels
constexpr int MostPlaces = 1'000'000'000;
constexpr qsizetype MostDrawn = 8192; ///< letters; the rest of a longer line can be copied, not seen
constexpr qint64 MostCopied = 16'777'216;
constexpr int DragInterval = 50; ///< milliseconds

constexpr QRgb ErrorInk = 0xFFA31515;
constexpr QRgb ErrorGround = 0xFFFBE9E4;

QString drawn(const QString &line)
{
    return line.size() > MostDrawn ? line.first(MostDrawn) + u'…' : line;
}

} // namespace

ReportView::ReportView(ReportBox &box, FormWindow &window, QWidget *parent)
    : QAbstractScrollArea(parent)
    , m_box(box)
    , m_window(window)
{
    setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    viewport()->setBackgroundRole(QPalette::Base);
    viewport()->setCursor(Qt::ArrowCursor);
    connect(verticalScrollBar(), &QScrollBar::actionTriggered, this, [this](int action) { stepBar(action); });
}

int ReportView::lineHeight() const
{
    return fontMetrics().height() + 2;
}

qint64 ReportView::linesInView() const
{
    return std::max(1, viewport()->height() / lineHeight());
}

/// With it the last line is the last one in view.
qint64 ReportView::lastTop() const
{
    return std::max<qint64>(0, m_box.lineCount() - linesInView());
}

const ReportPage &ReportView::page()
{
    // One more is in view in part.
    return m_box.page(m_top, linesInView() + 1);
}

// Scrolling ------------------------------------------------------------------------------------------------------

int ReportView::barPlace(qint64 top) const
{
    const qint64 last = lastTop();
    if (last <= MostPlaces)
        return static_cast<int>(top);
    return static_cast<int>(static_cast<double>(top) / static_cast<double>(last) * MostPlaces);
}

void ReportView::scrollTo(qint64 top)
{
    m_top = std::clamp<qint64>(top, 0, lastTop());
    verticalScrollBar()->setValue(barPlace(m_top));
    viewport()->update();
}

void ReportView::bringIntoView(qint64 line)
{
    if (line < m_top)
        scrollTo(line);
    else if (line >= m_top + linesInView())
        scrollTo(line - linesInView() + 1);
}

QRect ReportView::lineRect(qint64 line) const
{
    return {0, static_cast<int>(line - m_top) * lineHeight(), viewport()->width(), lineHeight()};
}

void ReportView::scrollContentsBy(int dx, int dy)
{
    Q_UNUSED(dx);
    Q_UNUSED(dy);
    const QScrollBar &bar = *verticalScrollBar();
    if (barPlace(m_top) != bar.value()) {
        const qint64 last = lastTop();
        if (last <= MostPlaces || bar.value() == bar.maximum())
            m_top = bar.value() == bar.maximum() ? last : bar.value();
        else
            m_top = static_cast<qint64>(static_cast<double>(bar.value()) / MostPlaces * static_cast<double>(last));
    }
    viewport()->update();
}

/// Where the bar has a place for many lines, its arrows still go line by line and its pages page by page.
void ReportView::stepBar(int action)
{
    qint64 step = 0;
    if (action == QAbstractSlider::SliderSingleStepAdd || action == QAbstractSlider::SliderSingleStepSub)
        step = 1;
    else if (action == QAbstractSlider::SliderPageStepAdd || action == QAbstractSlider::SliderPageStepSub)
        step = linesInView();
    else
        return;
    const bool isOnward =
        action == QAbstractSlider::SliderSingleStepAdd || action == QAbstractSlider::SliderPageStepAdd;
    scrollTo(m_top + (isOnward ? step : -step));
    verticalScrollBar()->setSliderPosition(barPlace(m_top));
}

void ReportView::fitBars()
{
    const qint64 current = m_box.currentLine();
    const bool wasInView = current >= m_top && current < m_top + m_fitted;
    m_fitted = linesInView();
    m_box.setPageLines(linesInView());
    const qint64 last = lastTop();
    verticalScrollBar()->setRange(0, static_cast<int>(std::min<qint64>(last, MostPlaces)));
    verticalScrollBar()->setPageStep(std::max(1, last > MostPlaces ? 1 : static_cast<int>(linesInView())));
    horizontalScrollBar()->setRange(0, std::max(0, m_widest + 2 * Margin - viewport()->width()));
    horizontalScrollBar()->setPageStep(viewport()->width());
    horizontalScrollBar()->setSingleStep(fontMetrics().averageCharWidth() * 4);
    scrollTo(m_top);
    if (wasInView)
        bringIntoView(current);
}

void ReportView::resizeEvent(QResizeEvent *event)
{
    QAbstractScrollArea::resizeEvent(event);
    fitBars();
}

void ReportView::changeEvent(QEvent *event)
{
    QAbstractScrollArea::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        fitBars();
}

void ReportView::wheelEvent(QWheelEvent *event)
{
    const QPoint turned = event->angleDelta();
    if (turned.y() == 0 || event->modifiers() & (Qt::ShiftModifier | Qt::AltModifier)) {
        QAbstractScrollArea::wheelEvent(event);
        return;
    }
    constexpr int Notch = 120;
    m_wheeled += turned.y() * QApplication::wheelScrollLines();
    scrollTo(m_top - m_wheeled / Notch);
    m_wheeled %= Notch;
    event->accept();
}

// From the control -----------------------------------------------------------------------------------------------

void ReportView::showLines()
{
    m_top = 0;
    m_widest = 0;
    fitBars();
    horizontalScrollBar()->setValue(0);
    showCurrent();
}

void ReportView::showCurrent()
{
    const qint64 line = m_box.currentLine();
    if (line >= 0 && !m_stays)
        bringIntoView(line);
    viewport()->update();
    // A report that is gone has another current line from here on.
    const ReportPage &seen = page();
    setAccessibleDescription(drawn(seen.lines.value(m_box.currentLine() - seen.first)));
}

// Painting -------------------------------------------------------------------------------------------------------

void ReportView::paintLine(QPainter &painter, const QRect &room, const QString &text, qint64 line,
                           bool tellsError) const
{
    const bool isMarked = line >= std::min(m_box.anchorLine(), m_box.currentLine())
                          && line <= std::max(m_box.anchorLine(), m_box.currentLine());
    const QPalette::ColorGroup group = hasFocus() ? QPalette::Active : QPalette::Inactive;
    QColor ink = palette().color(isEnabled() ? group : QPalette::Disabled, QPalette::Text);
    if (isMarked) {
        painter.fillRect(room, palette().color(group, QPalette::Highlight));
        ink = palette().color(group, QPalette::HighlightedText);
    } else if (tellsError) {
        painter.fillRect(room, QColor::fromRgb(ErrorGround));
        ink = QColor::fromRgb(ErrorInk);
    }
    painter.setPen(ink);
    // The text's beginning is at the right; scrolling moves it further that way.
    const int right = room.right() - Margin + horizontalScrollBar()->value();
    const QRect place(QPoint(right - std::max(m_widest, room.width()), room.top()), QPoint(right, room.bottom()));
    painter.drawText(place, Qt::AlignRight | Qt::AlignAbsolute | Qt::AlignVCenter | Qt::TextSingleLine, text);
    // Alone its ground shows it; among other marked lines a ring does, which would be lost in the ground's colour.
    if (line != m_box.currentLine() || line == m_box.anchorLine() || !hasFocus())
        return;
    painter.setPen(QPen(ink, 1, Qt::DotLine));
    painter.drawRect(room.adjusted(1, 1, -2, -2));
}

void ReportView::paintEvent(QPaintEvent *event)
{
    Q_UNUSED(event);
    const ReportPage &seen = page();
    QPainter painter(viewport());
    painter.setLayoutDirection(Qt::RightToLeft);
    int widest = m_widest;
    QRect room(0, 0, viewport()->width(), lineHeight());
    for (qsizetype place = 0; place < seen.lines.size(); ++place) {
        const QString text = drawn(seen.lines[place]);
        widest = std::max(widest, fontMetrics().horizontalAdvance(text));
        paintLine(painter, room, text, seen.first + place, seen.tellsError[static_cast<std::size_t>(place)]);
        room.translate(0, lineHeight());
    }
    if (widest == m_widest)
        return;
    m_widest = widest;
    fitBars();
}

void ReportView::focusInEvent(QFocusEvent *event)
{
    QAbstractScrollArea::focusInEvent(event);
    viewport()->update();
}

void ReportView::focusOutEvent(QFocusEvent *event)
{
    QAbstractScrollArea::focusOutEvent(event);
    viewport()->update();
}

// Keys and mouse -------------------------------------------------------------------------------------------------

bool ReportView::keepsKey(const QKeyEvent &event)
{
    const auto held = event.modifiers() & (Qt::ShiftModifier | Qt::ControlModifier);
    switch (event.key()) {
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Home:
    case Qt::Key_End:
        return true;
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        return held != Qt::NoModifier;
    default:
        return held.testFlag(Qt::ControlModifier) && !event.matches(QKeySequence::Find);
    }
}

void ReportView::keyPressEvent(QKeyEvent *event)
{
    const bool isExtending = event->modifiers() & Qt::ShiftModifier;
    const bool isFar = event->modifiers() & Qt::ControlModifier;
    QScrollBar &sideways = *horizontalScrollBar();
    if (event->matches(QKeySequence::Copy)) {
        copy();
        return;
    }
    if (event->matches(QKeySequence::SelectAll)) {
        selectAll();
        return;
    }
    switch (event->key()) {
    // A line begins at the right.
    case Qt::Key_Left:
        sideways.setValue(sideways.value() + sideways.singleStep());
        break;
    case Qt::Key_Right:
        sideways.setValue(sideways.value() - sideways.singleStep());
        break;
    case Qt::Key_Home:
        isFar ? select(0, isExtending) : sideways.setValue(0);
        break;
    case Qt::Key_End:
        isFar ? select(m_box.lineCount() - 1, isExtending) : sideways.setValue(sideways.maximum());
        break;
    case Qt::Key_Up:
        select(m_box.currentLine() - 1, isExtending);
        break;
    case Qt::Key_Down:
        select(m_box.currentLine() + 1, isExtending);
        break;
    case Qt::Key_PageUp:
        select(m_box.currentLine() - linesInView(), isExtending);
        break;
    case Qt::Key_PageDown:
        select(m_box.currentLine() + linesInView(), isExtending);
        break;
    default:
        QAbstractScrollArea::keyPressEvent(event);
    }
}

void ReportView::select(qint64 line, bool extends)
{
    m_window.enter([&] { m_box.form().userLines(m_box, extends ? m_box.anchorLine() : line, line); });
}

void ReportView::selectAll()
{
    const QScopedValueRollback staying(m_stays, true);
    m_window.enter([this] { m_box.form().userLines(m_box, 0, m_box.lineCount() - 1); });
}

void ReportView::copy()
{
    m_window.enter([this] {
        if (const std::optional<QString> text = m_box.selectedText(MostCopied))
            QGuiApplication::clipboard()->setText(*text);
        else
            m_window.platform().messageBox(
                box::RefusalRtl, u"  توجه"_s,
                u"متن انتخاب شده طولاني تر از آن است که بتوان از آن رونوشت گرفت.لطفا خطوط کمتري را انتخاب نماييد"_s);
    });
}

/// The line under a point, beyond the view one that is not in view; -1 behind the last line.
qint64 ReportView::lineAt(int y) const
{
    const int height = lineHeight();
    const qint64 line = m_top + (y >= 0 ? y / height : -1);
    return line < m_box.lineCount() ? line : -1;
}

void ReportView::mousePressEvent(QMouseEvent *event)
{
    const qint64 line = lineAt(event->position().toPoint().y());
    if (line < 0)
        return;
    const bool isMarked = line >= std::min(m_box.anchorLine(), m_box.currentLine())
                          && line <= std::max(m_box.anchorLine(), m_box.currentLine());
    // The menu of a marked text is about that text.
    if (event->button() == Qt::LeftButton || !isMarked)
        select(line, event->modifiers() & Qt::ShiftModifier);
}

void ReportView::mouseMoveEvent(QMouseEvent *event)
{
    if (!(event->buttons() & Qt::LeftButton))
        return;
    const int y = event->position().toPoint().y();
    const bool isBeyond = y < 0 || y >= viewport()->height();
    if (isBeyond && !m_dragging.isActive())
        m_dragging.start(DragInterval, this);
    if (isBeyond)
        return;
    m_dragging.stop();
    if (const qint64 line = lineAt(y); line >= 0)
        select(line, true);
}

void ReportView::mouseReleaseEvent(QMouseEvent *event)
{
    Q_UNUSED(event);
    m_dragging.stop();
}

void ReportView::timerEvent(QTimerEvent *event)
{
    if (event->timerId() != m_dragging.timerId()) {
        QAbstractScrollArea::timerEvent(event);
        return;
    }
    const bool isUpward = viewport()->mapFromGlobal(QCursor::pos()).y() < 0;
    select(m_box.currentLine() + (isUpward ? -1 : 1), true);
}

void ReportView::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton && lineAt(event->position().toPoint().y()) >= 0)
        m_window.enter([this] { m_box.form().userDblClick(m_box); });
}

void ReportView::contextMenuEvent(QContextMenuEvent *event)
{
    if (!m_window.pressed(m_box))
        return;
    EditMenuState state;
    state.hasSelection = m_box.currentLine() >= 0;
    state.isLocked = true;
    EditMenuActions actions;
    actions.undo = actions.redo = actions.cut = actions.paste = actions.remove = [] {};
    actions.copy = [this] { copy(); };
    actions.selectAll = [this] { selectAll(); };
    showEditMenu(*this, event->globalPos(), state, actions);
}

} // namespace zrv
