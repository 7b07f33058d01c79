// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QProxyStyle>

namespace zrv {

/// The property of a group box or a field that holds its line's colour, where a screen chose one.
inline constexpr char FrameLineColor[] = "frameLineColor";
/// The property of a button that is a tile, see look::makeTile.
inline constexpr char IsTile[] = "isTile";

/// Fusion with flat fields and buttons and a ring round what has the focus, which is seen from across a desk.
class Style : public QProxyStyle {
public:
    Style();

    /// Of fields, buttons and shown values. The font's line has room for vowel signs above and below that office texts
    /// never bear; a screen of many fields has not.
    [[nodiscard]] static int fieldHeight(const QFontMetrics &metrics);

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override;
    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex *option, QPainter *painter,
                            const QWidget *widget) const override;
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex *option, SubControl part,
                         const QWidget *widget) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption *option, const QWidget *widget) const override;
    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *returnData) const override;
    QIcon standardIcon(StandardPixmap pixmap, const QStyleOption *option, const QWidget *widget) const override;
    QPixmap standardPixmap(StandardPixmap pixmap, const QStyleOption *option, const QWidget *widget) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &contents,
                           const QWidget *widget) const override;
};

} // namespace zrv
