// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/style.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QStyleFactory>
#include <QStyleOption>
#include <QVariant>
#include <QWidget>

namespace zrv {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr double Radius = 4;
constexpr int ArrowRoom = 24; ///< at the trailing end of a combo box

/// A rectangle with round corners, drawn inset from the edge of its room.
void paintRounded(QPainter &painter, const QRect &room, double inset, double radius, const QPen &line,
                  const QBrush &ground)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(line);
    painter.setBrush(ground);
    painter.drawRoundedRect(QRectF(room).adjusted(inset, inset, -inset, -inset), radius, radius);
    painter.restore();
}

/// A field's or button's body: a flat ground, a thin line round it, a thick one in the accent when it has the focus.
void paintBody(QPainter &painter, const QStyleOption &option, const QColor &ground, bool focused)
{
    const QColor line = option.palette.color(focused ? QPalette::Highlight : QPalette::Mid);
    const double width = focused ? 2 : 1;
    paintRounded(painter, option.rect, width / 2, Radius, QPen(line, width), ground);
}

QVariant chosenLine(const QWidget *widget)
{
    return widget ? widget->property(FrameLineColor) : QVariant();
}

/// A group's ground and line; the line of a colour that a screen chose is the thicker one.
void paintGroup(QPainter &painter, const QStyleOption &option, const QWidget *widget)
{
    const QVariant chosen = chosenLine(widget);
    const QPen line = chosen.isValid() ? QPen(chosen.value<QColor>(), 2) : QPen(option.palette.color(QPalette::Mid), 1);
    paintRounded(painter, option.rect, line.widthF() / 2, Radius + 2, line, option.palette.color(QPalette::Light));
}

/// A field; a line of a colour that a screen chose stays to be seen inside the ring of the focus.
void paintField(QPainter &painter, const QStyleOption &option, bool focused, const QWidget *widget)
{
    paintBody(painter, option, option.palette.color(QPalette::Base), focused);
    if (const QVariant chosen = chosenLine(widget); chosen.isValid())
        paintRounded(painter, option.rect, focused ? 2.75 : 0.75, focused ? Radius - 2 : Radius,
                     QPen(chosen.value<QColor>(), 1.5), Qt::NoBrush);
}

QColor buttonGround(const QStyleOptionButton &option)
{
    const bool isDefault = option.features & QStyleOptionButton::DefaultButton && option.state & QStyle::State_Enabled;
    const QColor base = option.palette.color(isDefault ? QPalette::Highlight : QPalette::Button);
    if (option.state & (QStyle::State_Sunken | QStyle::State_On))
        return base.darker(112);
    if (option.state & QStyle::State_MouseOver && option.state & QStyle::State_Enabled)
        return isDefault ? base.lighter(118) : QColor(Qt::white);
    return base;
}

bool isTile(const QStyleOptionButton &button, const QWidget *widget)
{
    return widget && !button.icon.isNull() && widget->property(IsTile).toBool();
}

// Of a tile: from its edge to its drawing's ground, from there to the caption, and around the drawing.
constexpr int TileEdge = 10;
constexpr int TileGap = 12;
constexpr int TileInset = 8;
constexpr int DrawingGap = 6; ///< between another button's drawing and its caption

void paintDrawing(QPainter &painter, const QStyleOptionButton &button, const QRect &room)
{
    button.icon.paint(&painter, room, Qt::AlignCenter,
                      button.state & QStyle::State_Enabled ? QIcon::Normal : QIcon::Disabled,
                      button.state & QStyle::State_On ? QIcon::On : QIcon::Off);
}

/// A tile's drawing at its edge, on a ground of its own; returns the room of the caption behind it.
QRect paintTileDrawing(QPainter &painter, const QStyleOptionButton &tile)
{
    const QSize side = tile.iconSize + QSize(2 * TileInset, 2 * TileInset);
    const QRect inside = tile.rect.adjusted(TileEdge, 0, -TileEdge, 0);
    const QRect ground = QStyle::alignedRect(tile.direction, Qt::AlignLeading | Qt::AlignVCenter, side, inside);
    QColor tint = tile.palette.color(!(tile.state & QStyle::State_Enabled) ? QPalette::Dark
                                     : tile.state & QStyle::State_On       ? QPalette::HighlightedText
                                                                           : QPalette::Highlight);
    tint.setAlphaF(0.12F);
    paintRounded(painter, ground, 0, 2 * Radius, Qt::NoPen, tint);
    paintDrawing(painter, tile, ground.adjusted(TileInset, TileInset, -TileInset, -TileInset));
    return QStyle::visualRect(tile.direction, inside, inside.adjusted(side.width() + TileGap, 0, 0, 0));
}

/// Another button's drawing, which stands with its caption in the middle; returns the caption's room.
QRect paintSmallDrawing(QPainter &painter, const QStyleOptionButton &button)
{
    const QSize text = button.fontMetrics.size(Qt::TextShowMnemonic, button.text);
    const QSize both(button.iconSize.width() + DrawingGap + text.width(), button.rect.height());
    const QRect inside = QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter, both, button.rect);
    paintDrawing(painter, button,
                 QStyle::alignedRect(button.direction, Qt::AlignLeading | Qt::AlignVCenter, button.iconSize, inside));
    return QStyle::visualRect(button.direction, inside, inside.adjusted(both.width() - text.width(), 0, 0, 0));
}

void paintArrow(QPainter &painter, const QRect &room, const QColor &color)
{
    const double half = room.height() * 0.08;
    const QPointF center = QRectF(room).center();
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(color, 1.6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(
        QPolygonF({center + QPointF(-2 * half, -half), center + QPointF(0, half), center + QPointF(2 * half, -half)}));
    painter.restore();
}

/// A scroll bar's handle, darker than the groove in which it runs; while it is dragged in the accent.
void paintHandle(QPainter &painter, const QStyleOptionSlider &bar, const QRect &room)
{
    constexpr int Inset = 3;
    const bool dragged = bar.state & QStyle::State_Sunken && bar.activeSubControls & QStyle::SC_ScrollBarSlider;
    paintRounded(painter, room, Inset, Radius, Qt::NoPen,
                 bar.palette.color(dragged ? QPalette::Highlight : QPalette::Shadow));
}

} // namespace

Style::Style()
    : QProxyStyle(QStyleFactory::create(u"Fusion"_s))
{
}

void Style::drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                          const QWidget *widget) const
{
    const bool focused = option->state & State_HasFocus && option->state & State_Enabled;
    switch (element) {
    case PE_PanelButtonCommand:
        if (const auto *button = qstyleoption_cast<const QStyleOptionButton *>(option)) {
            QStyleOptionButton body(*button);
            paintBody(*painter, body, buttonGround(body), focused);
            // On the filled default button the ring would not be seen at its edge.
            if (focused && body.features & QStyleOptionButton::DefaultButton)
                paintRounded(*painter, body.rect, 3, Radius - 1, QPen(Qt::white, 1.5), Qt::NoBrush);
            return;
        }
        break;
    case PE_PanelLineEdit:
        // The line edit inside a combo box has no frame of its own: the box draws one round both.
        if (const auto *frame = qstyleoption_cast<const QStyleOptionFrame *>(option)) {
            if (frame->lineWidth > 0)
                paintField(*painter, *option, focused, widget);
            return;
        }
        break;
    case PE_Frame:
        // The ground of a label that shows a value; the frames of lists and tables are lines only.
        if (qobject_cast<const QLabel *>(widget)) {
            paintBody(*painter, *option, option->palette.color(QPalette::Window), false);
            return;
        }
        break;
    case PE_FrameGroupBox:
        // A flat group only holds the others of its screen.
        if (const auto *frame = qstyleoption_cast<const QStyleOptionFrame *>(option);
            frame && frame->features.testFlag(QStyleOptionFrame::Flat))
            return;
        paintGroup(*painter, *option, widget);
        return;
    case PE_FrameStatusBarItem: {
        // A line between the panels.
        const int edge = option->direction == Qt::RightToLeft ? option->rect.left() : option->rect.right();
        painter->setPen(option->palette.color(QPalette::Mid));
        painter->drawLine(edge, option->rect.top() + 3, edge, option->rect.bottom() - 3);
        return;
    }
    case PE_FrameFocusRect:
        if (const auto *item = qstyleoption_cast<const QStyleOptionFocusRect *>(option);
            item && !(option->state & State_Item)) {
            paintRounded(*painter, option->rect, 1, Radius, QPen(option->palette.color(QPalette::Highlight), 2),
                         Qt::NoBrush);
            return;
        }
        break;
    default:
        break;
    }
    QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void Style::drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                        const QWidget *widget) const
{
    if (element == CE_ComboBoxLabel) {
        // A painter has the program's direction; the text of a box of paths has the box's.
        painter->save();
        painter->setLayoutDirection(option->direction);
        QProxyStyle::drawControl(element, option, painter, widget);
        painter->restore();
        return;
    }
    const auto *const button = qstyleoption_cast<const QStyleOptionButton *>(option);
    if (element != CE_PushButtonLabel || !button) {
        QProxyStyle::drawControl(element, option, painter, widget);
        return;
    }
    QStyleOptionButton label(*button);
    if (button->features & QStyleOptionButton::DefaultButton && button->state & State_Enabled) {
        label.palette.setColor(QPalette::ButtonText, label.palette.color(QPalette::HighlightedText));
        // The drawing as it stands on the highlight's colour.
        label.state |= State_On;
    }
    if (label.icon.isNull()) {
        QProxyStyle::drawControl(element, &label, painter, widget);
        return;
    }
    // The blanks around a caption would set it off from its drawing, and from the captions above and below.
    label.text = label.text.trimmed();
    const QRect room = isTile(label, widget) ? paintTileDrawing(*painter, label) : paintSmallDrawing(*painter, label);
    // The mark of a letter parts it from its neighbours, which may take a little more than was measured.
    drawItemText(painter, room, Qt::AlignLeading | Qt::AlignVCenter | Qt::TextShowMnemonic | Qt::TextDontClip,
                 label.palette, label.state & State_Enabled, label.text, QPalette::ButtonText);
}

void Style::drawComplexControl(ComplexControl control, const QStyleOptionComplex *option, QPainter *painter,
                               const QWidget *widget) const
{
    const auto *const bar = qstyleoption_cast<const QStyleOptionSlider *>(option);
    if (control == CC_ScrollBar && bar) {
        QStyleOptionSlider rest(*bar);
        rest.subControls &= ~SC_ScrollBarSlider;
        QProxyStyle::drawComplexControl(control, &rest, painter, widget);
        if (bar->subControls & SC_ScrollBarSlider)
            paintHandle(*painter, *bar, subControlRect(control, bar, SC_ScrollBarSlider, widget));
        return;
    }
    const auto *const combo = qstyleoption_cast<const QStyleOptionComboBox *>(option);
    if (control != CC_ComboBox || !combo || !combo->editable) {
        QProxyStyle::drawComplexControl(control, option, painter, widget);
        return;
    }
    // The keyboard is at the field inside the box; the ring goes round both.
    const auto *const box = qobject_cast<const QComboBox *>(widget);
    const bool focused = combo->state & State_Enabled
                         && (combo->state & State_HasFocus || (box && box->lineEdit() && box->lineEdit()->hasFocus()));
    paintBody(*painter, *combo, combo->palette.color(QPalette::Base), focused);
    paintArrow(*painter,
               alignedRect(combo->direction, Qt::AlignTrailing, {ArrowRoom, combo->rect.height()}, combo->rect),
               combo->palette.color(QPalette::Text));
}

QRect Style::subControlRect(ComplexControl control, const QStyleOptionComplex *option, SubControl part,
                            const QWidget *widget) const
{
    QRect rect = QProxyStyle::subControlRect(control, option, part, widget);
    if (control == CC_ComboBox && part == SC_ComboBoxEditField) {
        // No letter runs under the arrow.
        const QRect beside = option->rect.adjusted(0, 0, -ArrowRoom, 0);
        return rect & visualRect(option->direction, option->rect, beside);
    }
    const auto *const group = qstyleoption_cast<const QStyleOptionGroupBox *>(option);
    if (control != CC_GroupBox || !group)
        return rect;
    constexpr int Line = 3;
    if (part == SC_GroupBoxContents && group->features & QStyleOptionFrame::Flat)
        return group->rect;
    // Alike on all sides: a frame of one line of fields is no higher above them than below.
    if (group->text.isEmpty())
        return part == SC_GroupBoxContents ? group->rect.adjusted(Line, Line, -Line, -Line) : rect;
    // The title stands inside the line round the group, above its first field.
    constexpr int Inset = 10;
    if (part == SC_GroupBoxLabel)
        rect.translate(group->direction == Qt::RightToLeft ? -Inset : Inset, 2);
    else if (part == SC_GroupBoxContents)
        rect.setTop(rect.top() - Inset);
    return rect;
}

int Style::pixelMetric(PixelMetric metric, const QStyleOption *option, const QWidget *widget) const
{
    switch (metric) {
    case PM_LayoutHorizontalSpacing:
    case PM_LayoutVerticalSpacing:
        // Alike: a line in a grid takes its spacing from it only when both are.
        return 6;
    case PM_LayoutLeftMargin:
    case PM_LayoutRightMargin:
    case PM_LayoutTopMargin:
    case PM_LayoutBottomMargin:
        return 9;
    case PM_ButtonIconSize:
        return 18;
    case PM_ButtonMargin:
        return 6;
    case PM_DefaultFrameWidth:
        return 2;
    case PM_MessageBoxIconSize:
        return 40;
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

int Style::styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                     QStyleHintReturn *returnData) const
{
    switch (hint) {
    case SH_LineEdit_PasswordCharacter:
        return '*';
    case SH_UnderlineShortcut:
        return 1;
    default:
        return QProxyStyle::styleHint(hint, option, widget, returnData);
    }
}

namespace {

/// The sign of a message box: a disc with a letter in the manner of the program's other drawings; null for others.
QPixmap boxSign(QStyle::StandardPixmap which, int side, double ratio)
{
    struct Row {
        QStyle::StandardPixmap which;
        QRgb disc;
        char16_t letter;
    };
    static constexpr Row rows[] = {{QStyle::SP_MessageBoxCritical, 0xFFB3392F, u'!'},
                                   {QStyle::SP_MessageBoxWarning, 0xFFB9770E, u'!'},
                                   {QStyle::SP_MessageBoxInformation, 0xFF24596E, u'i'},
                                   {QStyle::SP_MessageBoxQuestion, 0xFF24596E, u'\u061F'}};
    for (const Row &row : rows) {
        if (row.which != which)
            continue;
        QPixmap sign(QSize(side, side) * ratio);
        sign.setDevicePixelRatio(ratio);
        sign.fill(Qt::transparent);
        QPainter painter(&sign);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor::fromRgb(row.disc));
        painter.drawEllipse(QRectF(1, 1, side - 2, side - 2));
        QFont font = painter.font();
        font.setPixelSize(side * 5 / 8);
        font.setBold(true);
        painter.setFont(font);
        painter.setPen(Qt::white);
        painter.drawText(QRectF(0, 0, side, side), Qt::AlignCenter, QChar(row.letter));
        return sign;
    }
    return {};
}

} // namespace

QIcon Style::standardIcon(StandardPixmap pixmap, const QStyleOption *option, const QWidget *widget) const
{
    const QPixmap sign = boxSign(pixmap, 40, widget ? widget->devicePixelRatioF() : 1.0);
    return sign.isNull() ? QProxyStyle::standardIcon(pixmap, option, widget) : QIcon(sign);
}

QPixmap Style::standardPixmap(StandardPixmap pixmap, const QStyleOption *option, const QWidget *widget) const
{
    const QPixmap sign = boxSign(pixmap, 40, widget ? widget->devicePixelRatioF() : 1.0);
    return sign.isNull() ? QProxyStyle::standardPixmap(pixmap, option, widget) : sign;
}

QSize Style::sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &contents,
                              const QWidget *widget) const
{
    // A group without a title is as high as what it holds, be that one button.
    if (const auto *const group = qstyleoption_cast<const QStyleOptionGroupBox *>(option);
        group && type == CT_GroupBox && group->text.isEmpty())
        return {};
    QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
    int lines = 1;
    if (const auto *const button = qstyleoption_cast<const QStyleOptionButton *>(option);
        button && type == CT_PushButton) {
        size.rwidth() = std::max(size.width() + 2 * option->fontMetrics.averageCharWidth(),
                                 option->fontMetrics.averageCharWidth() * 14);
        if (isTile(*button, widget))
            size.rwidth() += TileEdge + TileGap + 2 * TileInset;
        lines += static_cast<int>(button->text.count(u'\n'));
    }
    if (type == CT_PushButton || type == CT_LineEdit || type == CT_ComboBox)
        size.setHeight(
            std::min(size.height(), fieldHeight(option->fontMetrics) + (lines - 1) * option->fontMetrics.height()));
    return size;
}

int Style::fieldHeight(const QFontMetrics &metrics)
{
    return metrics.tightBoundingRect(u"\u0622\u06AF\u064A\u062C\u0639"_s).height() + 12;
}

} // namespace zrv
