// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/look.h"

#include "qt/caption_label.h"
#include "qt/spoken_field.h"
#include "qt/style.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QPainter>
#include <QPainterPath>
#include <QStyleOption>
#include <QTranslator>

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace zrv::look {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QRgb Ink = 0xFF1F2429;
constexpr QRgb PaleInk = 0xFF5C5A54; ///< what is switched off, and remarks
constexpr QRgb Accent = 0xFF24596E;  ///< focus, the default button, headings
constexpr QRgb AccentPale = 0xFFDCE6E9;
constexpr QRgb Paper = 0xFFFFFFFF;
constexpr QRgb GroundLine = 0xFFDEDCD4; ///< the drawing behind the main form
constexpr QRgb PaperShade = 0xFFF6F5F0;
constexpr QRgb SearchLine = 0xFFC62828;

constexpr QRgb solid(Color color)
{
    return 0xFF000000 | color;
}

} // namespace

void setUp(QApplication &application)
{
    QApplication::setLayoutDirection(Qt::RightToLeft);
    QApplication::setStyle(new Style);
    speakForFields();
    QApplication::setPalette(palette());
    QFont font;
    font.setFamilies({u"Noto Sans Arabic"_s, u"Noto Sans"_s, u"DejaVu Sans"_s});
    font.setPointSizeF(10.5);
    // Joined letters lose more by being pushed to whole pixels than they gain; and each costs less to draw.
    font.setHintingPreference(QFont::PreferNoHinting);
    QApplication::setFont(font);
    // Only the main form's question ends the program, not the last window that happens to be hidden.
    QApplication::setQuitOnLastWindowClosed(false);
    Q_UNUSED(application);
    QApplication::setDesktopFileName(u"zrvclient"_s);
    QPixmap mark(64, 64);
    mark.fill(Qt::transparent);
    QPainter painter(&mark);
    paintMark(painter, mark.rect());
    QApplication::setWindowIcon(mark);
}

void speakPersian()
{
    static QTranslator *spoken = nullptr;
    if (spoken)
        return;
    spoken = new QTranslator(qApp);
    if (spoken->load(QLocale(QLocale::Persian), u"qtbase"_s, u"_"_s,
                     QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(spoken);
}

QPalette palette()
{
    QPalette colors;
    const auto set = [&](QPalette::ColorRole role, QRgb enabled, QRgb disabled) {
        colors.setColor(QPalette::Active, role, enabled);
        colors.setColor(QPalette::Inactive, role, enabled);
        colors.setColor(QPalette::Disabled, role, disabled);
    };
    // clang-format off
    set(QPalette::Window,          solid(color::Window), solid(color::Window));
    set(QPalette::WindowText,      Ink,                  PaleInk);
    set(QPalette::Base,            Paper,                solid(color::Disabled));
    set(QPalette::AlternateBase,   PaperShade,           solid(color::Disabled));
    set(QPalette::Text,            Ink,                  PaleInk);
    set(QPalette::PlaceholderText, PaleInk,              PaleInk);
    set(QPalette::Button,          PaperShade,           solid(color::Disabled));
    set(QPalette::ButtonText,      Ink,                  PaleInk);
    set(QPalette::BrightText,      Paper,                PaleInk);
    set(QPalette::Highlight,       Accent,               0xFFCFCDC6);
    set(QPalette::HighlightedText, Paper,                PaleInk);
    set(QPalette::Link,            Accent,               PaleInk);
    set(QPalette::ToolTipBase,     Paper,                Paper);
    set(QPalette::ToolTipText,     Ink,                  Ink);
    set(QPalette::Light,           0xFFF8F7F4,           0xFFF8F7F4);
    set(QPalette::Midlight,        0xFFE4E2DB,           0xFFE4E2DB);
    set(QPalette::Mid,             0xFFB8B5AA,           0xFFCBC8BE);
    set(QPalette::Dark,            0xFF8F8C82,           0xFFA9A69C);
    set(QPalette::Shadow,          0xFF6B6860,           0xFF8F8C82);
    // clang-format on
    return colors;
}

namespace {

/// Whether a screen gave a field this ground for what it holds, and not for the stage that it is in.
bool isMark(Color back)
{
    constexpr std::array OfStages{color::Field,       color::KeyField,      color::DataField,
                                  color::FramedCombo, color::RequiredEmpty, color::Disabled};
    return std::ranges::find(OfStages, back) == OfStages.end();
}

} // namespace

void colorField(QWidget &field, Color back, Color text)
{
    QPalette colors = field.palette();
    const auto set = [&](QPalette::ColorGroup group) {
        colors.setColor(group, QPalette::Base, QColor::fromRgb(solid(back)));
        // Every other row of a grid: the same colour, a little deeper.
        colors.setColor(group, QPalette::AlternateBase, QColor::fromRgb(solid(back)).darker(102));
        colors.setColor(group, QPalette::Text,
                        text == color::Text ? QColor::fromRgb(Ink) : QColor::fromRgb(solid(text)));
    };
    set(QPalette::Active);
    set(QPalette::Inactive);
    if (isMark(back)) {
        set(QPalette::Disabled);
    } else {
        colors.setColor(QPalette::Disabled, QPalette::Base, QColor::fromRgb(solid(color::Disabled)));
        colors.setColor(QPalette::Disabled, QPalette::Text, QColor::fromRgb(PaleInk));
    }
    field.setPalette(colors);
}

// Kinds of widgets ----------------------------------------------------------------------------------------------

namespace {

void setInk(QWidget &widget, QRgb ink)
{
    QPalette colors = widget.palette();
    for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive})
        colors.setColor(group, QPalette::WindowText, QColor::fromRgb(ink));
    widget.setPalette(colors);
}

} // namespace

void makeHeading(QWidget &label)
{
    static_cast<CaptionLabel &>(label).setScale(1.3);
    setInk(label, Accent);
    makeNote(label);
}

void makeNote(QWidget &label)
{
    static_cast<CaptionLabel &>(label).setCentred();
}

void makeRemark(QWidget &label)
{
    setInk(label, PaleInk);
    makeNote(label);
}

void makeValue(QWidget &label)
{
    label.setMinimumWidth(label.fontMetrics().averageCharWidth() * 12);
    label.setFixedHeight(Style::fieldHeight(label.fontMetrics()));
    QPalette colors = label.palette();
    colors.setColor(QPalette::Window, QColor::fromRgb(PaperShade));
    label.setPalette(colors);
    auto &text = static_cast<CaptionLabel &>(label);
    text.setFrameStyle(QFrame::StyledPanel);
    text.setMargin(2);
    text.setIndent(4);
}

void makeSearching(QWidget &field)
{
    field.setProperty(FrameLineColor, QColor::fromRgb(SearchLine));
}

void makeTile(QWidget &button)
{
    button.setMinimumHeight(button.fontMetrics().height() * 2);
    button.setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    const int side = button.fontMetrics().height();
    static_cast<QAbstractButton &>(button).setIconSize({side, side});
    button.setProperty(IsTile, true);
}

// Drawings ------------------------------------------------------------------------------------------------------

namespace {

/// An eight-pointed star, two squares laid over each other.
QPainterPath star(const QPointF &center, double radius)
{
    QPainterPath path;
    for (int turn = 0; turn < 2; ++turn) {
        QPolygonF square;
        for (int corner = 0; corner <= 4; ++corner) {
            const double angle = std::numbers::pi * (corner / 2.0 + turn / 4.0 + 0.25);
            square << center + QPointF(std::cos(angle), std::sin(angle)) * radius;
        }
        path.addPolygon(square);
    }
    return path;
}

} // namespace

QSize markSize(const QWidget &widget)
{
    const int side = widget.fontMetrics().height() * 5;
    return {side, side};
}

void paintMark(QPainter &painter, const QRect &room)
{
    painter.setRenderHint(QPainter::Antialiasing);
    const QPointF center = QRectF(room).center();
    const double radius = std::min(room.width(), room.height()) * 0.46;
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor::fromRgb(AccentPale));
    painter.drawPath(star(center, radius).simplified());
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(QColor::fromRgb(Accent), std::max(1.5, radius / 24)));
    painter.drawPath(star(center, radius * 0.86));
    painter.setBrush(QColor::fromRgb(Accent));
    painter.drawEllipse(center, radius * 0.16, radius * 0.16);
}

void Panel::paintEvent(QPaintEvent *event)
{
    Q_UNUSED(event);
    QPainter painter(this);
    QStyleOption option;
    option.initFrom(this);
    style()->drawPrimitive(QStyle::PE_FrameGroupBox, &option, &painter, this);
}

void Ground::paintEvent(QPaintEvent *event)
{
    Q_UNUSED(event);
    QPainter painter(this);
    painter.fillRect(rect(), QWidget::palette().color(QPalette::Window));
    if (!m_drawn)
        return;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(QColor::fromRgb(GroundLine), 1.2));
    // Stars that touch with their points, as tiles on a wall: what is left between four of them is a cross.
    const double step = fontMetrics().height() * 2.6;
    const QPainterPath one = star({0, 0}, step / 2).simplified();
    const QPointF middle = QRectF(rect()).center();
    const auto steps = [step](double room) { return static_cast<int>(std::ceil(room / step)); };
    for (int row = -steps(middle.y()); row <= steps(middle.y()); ++row)
        for (int column = -steps(middle.x()); column <= steps(middle.x()); ++column)
            painter.drawPath(one.translated(middle + QPointF(column, row) * step));
    // Where the buttons are, it fades away.
    QColor veil = QWidget::palette().color(QPalette::Window);
    QRadialGradient fading(middle, std::max(width(), height()) * 0.6);
    fading.setColorAt(0, veil);
    fading.setColorAt(0.5, veil);
    veil.setAlpha(0);
    fading.setColorAt(1, veil);
    painter.fillRect(rect(), fading);
}

} // namespace zrv::look
