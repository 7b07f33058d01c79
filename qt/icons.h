// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The drawings on buttons: files of qt/icons, lines on a square of 24 by 24. What has a direction is drawn as it is read
// here, from right to left. They are read when they are first painted, and painted in the palette's colours.

#include <QIcon>
#include <QPainterPath>

#include <optional>

namespace zrv::look {

/// The name of the drawing that a button of a screen bears; empty for those whose caption says enough.
[[nodiscard]] QString iconName(const QString &form, const QString &button);

/// The drawing of that name. Its state "on" is for a ground in the colour of the highlight.
[[nodiscard]] QIcon icon(const QString &name);

/// The lines of an SVG file that is made of <path>, <circle> and <rect> alone, its paths of the letters M, L, C and Z with
/// blanks around each letter and number. Nothing for any other.
[[nodiscard]] std::optional<QPainterPath> readDrawing(const QByteArray &svg);

} // namespace zrv::look
